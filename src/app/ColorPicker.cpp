// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/ColorPicker.h"

#include <QColorDialog>
#include <QPainter>

namespace {
constexpr QSize SWATCH_SIZE(32, 16);
}

ColorPicker::ColorPicker(QWidget* parent) : ColorPicker(QColor(Qt::black), parent) {}

ColorPicker::ColorPicker(QColor const& color, QWidget* parent) : QToolButton(parent)
{
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize(SWATCH_SIZE);
    connect(this, &QToolButton::clicked, this, &ColorPicker::OnClicked);
    SetColor(color);
}

void ColorPicker::SetColor(QColor const& color)
{
    color_ = color;
    QPixmap swatch(SWATCH_SIZE * devicePixelRatioF());
    swatch.setDevicePixelRatio(devicePixelRatioF());
    swatch.fill(color_);
    QPainter painter(&swatch);
    // Half-transparent grey frames black and white alike.
    painter.setPen(QColor(128, 128, 128, 200));
    painter.drawRect(QRectF(QPointF(0.5, 0.5), SWATCH_SIZE - QSize(1, 1)));
    painter.end();
    QIcon icon(swatch);
    icon.addPixmap(swatch, QIcon::Disabled);
    setIcon(icon);
    setText(color_.name());
}

void ColorPicker::OnClicked()
{
    QColor const chosen = QColorDialog::getColor(color_, this, tr("Select Color"));
    if (chosen.isValid() && chosen != color_) {
        SetColor(chosen);
        emit ColorChanged_Signal(chosen);
    }
}
