// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthCurveVector.h"

#include "formats/project/ViewRecords.h"
#include "model/BaseDepthDataChannel.h"

#include <algorithm>

std::pair<bool, DepthCurve*>
DepthCurveVector::AssignDataChannel(std::weak_ptr<BaseDepthDataChannel const> const& channel, QPen const& pen)
{
    auto const data = channel.lock();
    if (!data) {
        return {false, nullptr};
    }
    if (DepthCurve* const present = Find(data->GetDataChannelIdentifier())) {
        return {false, present};
    }
    DepthCurve& curve = emplace_back(channel);
    curve.SetCurvePen(pen);
    return {true, &curve};
}

DepthCurve const* DepthCurveVector::Find(DataChannelIdentifier const& identifier) const
{
    auto const curve = std::find_if(begin(), end(), [&](DepthCurve const& candidate) {
        return candidate.GetDataChannelIdentifier() == identifier;
    });
    return curve != end() ? &*curve : nullptr;
}

DepthCurve* DepthCurveVector::Find(DataChannelIdentifier const& identifier)
{
    return const_cast<DepthCurve*>(std::as_const(*this).Find(identifier));
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

void DepthCurveVector::WriteState(USER_DATAVIEW_STRUCT& record) const
{
    record.curves.clear();
    for (DepthCurve const& curve : *this) {
        record.curves.push_back(curve.GetDataChannelIdentifier());
    }
}

void DepthCurveVector::RestoreState(USER_DATAVIEW_STRUCT const& record)
{
    for (auto const& stored : record.scales) {
        auto const index = static_cast<std::size_t>(stored->index);
        DepthCurve* const curve = index < record.curves.size() ? Find(record.curves[index]) : nullptr;
        if (curve != nullptr) {
            curve->SetScales(stored->scale);
            curve->SetCurvePen(stored->pen);
            curve->GetScaleItemParameters()->is_selected = stored->is_selected;
        }
    }
}
