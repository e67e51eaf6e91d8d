// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ZoneScaleItem.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

ZoneScaleItem::ZoneScaleItem(QWidget* parent, Headings headings)
    : BaseScaleItem(parent), headings_(std::move(headings))
{
}

void ZoneScaleItem::DrawScaleItem(QPainter& painter, QColor const& background) const
{
    painter.save();
    painter.fillRect(rect(), background);
    painter.setPen(palette().color(QPalette::Text));
    Draw(painter, size());
    painter.restore();
}

void ZoneScaleItem::DrawScaleItem_PDF(QPainter& painter, QColor const& color) const
{
    painter.save();
    painter.setPen(color);
    Draw(painter, painter.window().size());
    painter.restore();
}

void ZoneScaleItem::Draw(QPainter& painter, QSize const& size) const
{
    QStringList const headings = headings_();
    if (headings.isEmpty()) {
        return;
    }
    int const width = size.width() / static_cast<int>(headings.size());
    QFontMetrics const metrics(painter.font(), painter.device());
    for (int i = 0; i < headings.size(); ++i) {
        QRect const cell(i * width, 0, width, size.height());
        painter.drawText(cell, Qt::AlignCenter,
                         metrics.elidedText(headings[i], Qt::ElideRight, qMax(width - 2, 0)));
    }
}

bool ZoneScaleItem::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        auto const* help = static_cast<QHelpEvent*>(event);
        QStringList const headings = headings_();
        int const column_width = headings.isEmpty() ? 0 : width() / static_cast<int>(headings.size());
        int const column = column_width > 0 ? help->pos().x() / column_width : -1;
        QToolTip::showText(help->globalPos(), headings.value(column), this);
        return true;
    }
    return BaseScaleItem::event(event);
}
