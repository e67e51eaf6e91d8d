// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/DepthCurve.h"

#include <QPen>

#include <optional>
#include <utility>
#include <vector>

/// The depth curves of one view, in drawing order.
class DepthCurveVector : public std::vector<DepthCurve>
{
public:
    using std::vector<DepthCurve>::vector;

    /// Appends a curve, or finds the one with the same identifier and changes nothing.
    /// @return whether it is new, and the curve (valid until the vector changes), null for a deleted channel
    std::pair<bool, DepthCurve*> AssignDataChannel(std::weak_ptr<BaseDepthDataChannel const> const& channel,
                                                   QPen const& pen);
    /// Removes the curve of exactly this channel.
    void RemoveDataChannel(DataChannelIdentifier const& identifier);
    /// Removes all curves that depend on `identifier`, whose fields may be wildcards.
    void DeleteDependencies(DataChannelIdentifier const& identifier);

    /// Union over the curves, metres; no value when no curve has a depth.
    [[nodiscard]] std::optional<Interval> GetDepthInterval_metric() const;
    /// Union of the value intervals; the empty interval without curves.
    [[nodiscard]] Interval GetMinMaxValue() const;

    /// Builds or frees the bin levels of all curves.
    void ProcessAllCurves();
    void ClearAllProcessedCurves();
};
