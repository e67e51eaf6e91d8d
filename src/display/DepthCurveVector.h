// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/DepthCurve.h"

#include <QPen>

#include <optional>
#include <utility>
#include <vector>

struct USER_DATAVIEW_STRUCT;

/// The depth curves of one view, in drawing order.
class DepthCurveVector : public std::vector<DepthCurve>
{
public:
    using std::vector<DepthCurve>::vector;

    /// Appends a curve, or finds the one with the same identifier and changes nothing.
    /// @return whether it is new, and the curve (valid until the vector changes), null for a deleted channel
    std::pair<bool, DepthCurve*> AssignDataChannel(std::weak_ptr<BaseDepthDataChannel const> const& channel,
                                                   QPen const& pen);
    /// The curve of exactly this channel, valid until the vector changes; null without one.
    [[nodiscard]] DepthCurve const* Find(DataChannelIdentifier const& identifier) const;
    [[nodiscard]] DepthCurve* Find(DataChannelIdentifier const& identifier);
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

    /// Puts the channels into the record of a project file, in order.
    void WriteState(USER_DATAVIEW_STRUCT& record) const;
    /// Takes scale, pen and selection of those of the record's channels that have a curve here; by channel,
    /// as channels that are gone since leave no gap.
    void RestoreState(USER_DATAVIEW_STRUCT const& record);
};
