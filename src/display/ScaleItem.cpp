// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ScaleItem.h"

#include "app/kit/SettingsSingleton.h"
#include "model/ScaleItemParameters.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {
constexpr double edge_margin = 5; ///< of the two values
constexpr double value_gap = 15;  ///< between a value and the line
constexpr double text_gap = 10;   ///< between the line and the text
constexpr double least_gap = 4;   ///< between a value and the text

QString MiddleText(HeaderRow const& header)
{
    return header.unit.isEmpty() ? header.mnemonic
                                 : header.mnemonic + QStringLiteral(" [") + header.unit + QLatin1Char(']');
}

QString ValueText(double value)
{
    return SettingsSingleton::Instance().GetLocale().toString(value, 'g', 6);
}

/// Draws `text` with its left end at x, vertically centred by its ink.
void DrawCentred(QPainter& painter, double x, double height, QString const& text)
{
    QRectF const ink = QFontMetricsF(painter.font(), painter.device()).tightBoundingRect(text);
    painter.drawText(QPointF(x, height * 0.5 - ink.center().y()), text);
}

double TextWidth(QPainter const& painter, QFont const& font, QString const& text)
{
    return QFontMetricsF(font, painter.device()).horizontalAdvance(text);
}

void Draw(QPainter& painter, ScaleItemParameters const& parameters, QSizeF size, QColor const& text_color)
{
    painter.setPen(text_color);
    QString const left = ValueText(parameters.scale.lower);
    QString const right = ValueText(parameters.scale.upper);
    double const left_end = edge_margin + TextWidth(painter, painter.font(), left);
    double const right_start = size.width() - edge_margin - TextWidth(painter, painter.font(), right);
    DrawCentred(painter, edge_margin, size.height(), left);
    DrawCentred(painter, right_start, size.height(), right);

    QFont middle_font = painter.font();
    middle_font.setBold(parameters.is_selected);
    QString const middle = MiddleText(parameters.header);
    double const width = TextWidth(painter, middle_font, middle);
    double const first = left_end + least_gap;
    double const last = right_start - least_gap - width;
    if (last < first) {
        return;
    }
    double const x = std::clamp((size.width() - width) * 0.5, first, last);
    painter.setFont(middle_font);
    DrawCentred(painter, x, size.height(), middle);

    painter.setPen(parameters.pen);
    double const y = size.height() * 0.5;
    if (double const end = x - text_gap; end > left_end + value_gap) {
        painter.drawLine(QPointF(left_end + value_gap, y), QPointF(end, y));
    }
    if (double const start = x + width + text_gap; start < right_start - value_gap) {
        painter.drawLine(QPointF(start, y), QPointF(right_start - value_gap, y));
    }
}
} // namespace

ScaleItem::ScaleItem(QWidget* parent, std::shared_ptr<ScaleItemParameters> parameters)
    : BaseScaleItem(parent),
      parameters_(parameters ? std::move(parameters) : std::make_shared<ScaleItemParameters>())
{
}

void ScaleItem::SetSelected(bool selected)
{
    parameters_->is_selected = selected;
    update();
}

bool ScaleItem::GetSelected() const
{
    return parameters_->is_selected;
}

void ScaleItem::DrawScaleItem(QPainter& painter, QColor const& background) const
{
    painter.save();
    painter.fillRect(rect(), background);
    Draw(painter, *parameters_, size(), palette().color(QPalette::Text));
    painter.restore();
}

void ScaleItem::DrawScaleItem_PDF(QPainter& painter, QColor const& color) const
{
    painter.save();
    Draw(painter, *parameters_, painter.window().size(), color);
    painter.restore();
}

void ScaleItem::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    emit Selected(this);
}
