// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthUnitLabel.h"

#include "app/kit/SettingsSingleton.h"

DepthUnitLabel::DepthUnitLabel(QWidget* parent) : QLabel(UnitText(), parent)
{
    setAlignment(Qt::AlignCenter);
}

QString DepthUnitLabel::UnitText()
{
    return QLatin1Char('[') + SettingsSingleton::Instance().GetDepthUnit() + QLatin1Char(']');
}

void DepthUnitLabel::paintEvent(QPaintEvent* event)
{
    if (QString const unit = UnitText(); text() != unit) {
        setText(unit);
    }
    QLabel::paintEvent(event);
}
