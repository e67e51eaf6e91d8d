// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseCurve.h"

#include "model/ScaleItemParameters.h"

BaseCurve::BaseCurve() : scale_item_(std::make_shared<ScaleItemParameters>()) {}

BaseCurve::~BaseCurve() = default;

QPen const& BaseCurve::GetCurvePen() const
{
    return scale_item_->pen;
}

void BaseCurve::SetCurvePen(QPen const& pen)
{
    scale_item_->pen = pen;
}

Interval const& BaseCurve::GetScale() const
{
    return scale_item_->scale;
}

void BaseCurve::SetScales(Interval const& scale)
{
    scale_item_->scale = scale;
}

double BaseCurve::ConvertValueToPercentage(float value) const
{
    Interval const& scale = GetScale();
    return (static_cast<double>(value) - scale.lower) / (scale.upper - scale.lower);
}
