// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/TimeCurveVector.h"

#include "display/CurveColors.h"
#include "model/TimeLogDataChannel.h"

#include <algorithm>
#include <cmath>

TimeCurveOverlay* TimeCurveVector::AssignDataChannel(QWidget* parent_view,
                                                     std::weak_ptr<TimeLogDataChannel const> const& channel)
{
    if (channel.expired()) {
        return nullptr;
    }
    auto overlay = std::make_shared<TimeCurveOverlay>(parent_view, channel);
    overlay->SetCurvePen(QPen(Quorrel::CurveCycleColor(size())));
    push_back(std::move(overlay));
    return back().get();
}

void TimeCurveVector::DeleteDependencies(DataChannelIdentifier const& identifier)
{
    std::erase_if(*this, [&](auto const& overlay) { return overlay->IsDependentOn(identifier); });
}

std::optional<Interval> TimeCurveVector::GetDepthInterval_metric() const
{
    std::optional<Interval> result;
    for (auto const& overlay : *this) {
        double const depth = static_cast<double>(overlay->GetLogDepth());
        if (!std::isfinite(depth)) {
            continue;
        }
        if (!result) {
            result.emplace();
        }
        result->lower = std::min(result->lower, depth);
        result->upper = std::max(result->upper, depth);
    }
    return result;
}

Interval TimeCurveVector::GetMinMaxValue() const
{
    Interval result;
    for (auto const& overlay : *this) {
        result.lower = std::min(result.lower, overlay->GetMinMax().lower);
        result.upper = std::max(result.upper, overlay->GetMinMax().upper);
    }
    return result;
}
