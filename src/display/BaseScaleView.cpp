// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseScaleView.h"

#include "display/BaseScaleItem.h"
#include "display/ScaleLabel.h"

#include <QPainter>
#include <QVBoxLayout>

namespace {
QColor const name_background(0x99, 0xB4, 0xD1);
}

BaseScaleView::BaseScaleView(QWidget* parent)
    : QWidget(parent),
      name_area_(new QWidget(this)),
      items_area_(new QWidget(this)),
      label_(new ScaleLabel(name_area_)),
      items_layout_(new QVBoxLayout(items_area_))
{
    // The name's ground is light whatever the palette, so its text is dark whatever the palette.
    QPalette name_palette = name_area_->palette();
    name_palette.setColor(QPalette::Window, name_background);
    name_palette.setColor(QPalette::WindowText, Qt::black);
    name_area_->setPalette(name_palette);
    // Set, because in a scroll area the role would be the viewport's, which is Base.
    name_area_->setBackgroundRole(QPalette::Window);
    name_area_->setAutoFillBackground(true);
    name_area_->setFixedHeight(LINE_HEIGHT);

    label_->setAlignment(Qt::AlignCenter);
    label_->setMinimumWidth(1);
    auto* name_layout = new QVBoxLayout(name_area_);
    name_layout->setContentsMargins(0, 0, 0, 0);
    name_layout->setSpacing(0);
    name_layout->addWidget(label_);

    QSizePolicy items_policy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    items_policy.setHorizontalStretch(1);
    items_policy.setVerticalStretch(1);
    items_area_->setSizePolicy(items_policy);
    items_layout_->setContentsMargins(0, 0, 0, 0);
    items_layout_->setSpacing(0);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(name_area_, 1);
    layout->addWidget(items_area_, 1);

    connect(label_, &ScaleLabel::MoveViewWidget_Signal, this, &BaseScaleView::MoveViewWidget_Signal);
    connect(label_, &ScaleLabel::MoveButtonReleased_Signal, this, &BaseScaleView::MoveButtonReleased_Signal);
}

void BaseScaleView::SetScale(std::vector<std::shared_ptr<ScaleItemParameters>> /*scales*/) {}

void BaseScaleView::OnSelected(ScaleItem* /*item*/) {}

void BaseScaleView::RenderScalesToPainter(QPainter& painter, int height, QColor const& color)
{
    QRect const window = painter.window();
    QRect const viewport = painter.viewport();
    double const scale = window.height() > 0 ? static_cast<double>(viewport.height()) / window.height() : 1.0;
    int const line_height = qRound(height * scale);
    auto const select_line = [&](int line) {
        painter.setWindow(0, 0, window.width(), height);
        painter.setViewport(viewport.x(), viewport.y() + line * line_height, viewport.width(), line_height);
    };
    select_line(0);
    RenderScaleNameToPainter(painter);
    int line = 1;
    for (int i = 0; i < items_layout_->count(); ++i) {
        if (auto const* item = qobject_cast<BaseScaleItem const*>(items_layout_->itemAt(i)->widget())) {
            select_line(line++);
            item->DrawScaleItem_PDF(painter, color);
        }
    }
    painter.setWindow(window);
    painter.setViewport(viewport);
}

void BaseScaleView::SetName(QString const& name)
{
    label_->setText(name);
    label_->setToolTip(name);
}

QString BaseScaleView::GetName() const
{
    return label_->text();
}

int BaseScaleView::GetScaleCount() const
{
    int count = 0;
    for (int i = 0; i < items_layout_->count(); ++i) {
        count += qobject_cast<BaseScaleItem const*>(items_layout_->itemAt(i)->widget()) != nullptr ? 1 : 0;
    }
    return count;
}

void BaseScaleView::RenderScaleNameToPainter(QPainter& painter) const
{
    painter.save();
    painter.fillRect(painter.window(), name_background);
    painter.setPen(Qt::black);
    painter.drawText(painter.window(), Qt::AlignCenter, GetName());
    painter.restore();
}

QSize BaseScaleView::sizeHint() const
{
    return {50, LINE_HEIGHT * GetScaleCount() + LINE_HEIGHT};
}
