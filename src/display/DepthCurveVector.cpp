// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthCurveVector.h"

#include "model/BaseDepthDataChannel.h"

#include <algorithm>

std::pair<bool, DepthCurve*>
DepthCurveVector::AssignDataChannel(std::weak_ptr<BaseDepthDataChannel const> const& channel, QPen const& pen)
{
    auto const data = channel.lock();
    if (!data) {
        return {false, nullptr};
    }
    auto const present = std::find_if(begin(), end(), [&](DepthCurve const& curve) {
        return curve.GetDataChannelIdentifier() == data->GetDataChannelIdentifier();
    });
    if (present != end()) {
        return {false, &*present};
    }
    DepthCurve& curve = emplace_back(channel);
    curve.SetCurvePen(pen);
    return {true, &curve};
}

void DepthCurveVector::RemoveDataChannel(DataChannelIdentifier const& identifier)
{
    std::erase_if(*this,
                  [&](DepthCurve const& curve) { return curve.GetDataChannelIdentifier() == identifier; });
}

void DepthCurveVector::DeleteDependencies(DataChannelIdentifier const& identifier)
{
    std::erase_if(*this, [&](DepthCurve const& curve) { return curve.IsDependentOn(identifier); });
}

std::optional<Interval> DepthCurveVector::GetDepthInterval_metric() const
{
    std::optional<Interval> result;
    for (DepthCurve const& curve : *this) {
        Interval const depths = curve.GetDepthInterval_metric();
        if (!depths.IsValid()) {
            continue;
        }
        if (!result) {
            result.emplace();
        }
        result->lower = std::min(result->lower, depths.lower);
        result->upper = std::max(result->upper, depths.upper);
    }
    return result;
}

Interval DepthCurveVector::GetMinMaxValue() const
{
    Interval result;
    for (DepthCurve const& curve : *this) {
        result.lower = std::min(result.lower, curve.GetValueInterval().lower);
        result.upper = std::max(result.upper, curve.GetValueInterval().upper);
    }
    return result;
}

void DepthCurveVector::ProcessAllCurves()
{
    for (DepthCurve& curve : *this) {
        curve.ProcessCurve();
    }
}

void DepthCurveVector::ClearAllProcessedCurves()
{
    for (DepthCurve& curve : *this) {
        curve.ClearProcessedCurve();
    }
}
