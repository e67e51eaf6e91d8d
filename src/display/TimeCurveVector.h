// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/TimeCurveOverlay.h"

#include <memory>
#include <optional>
#include <vector>

/// The time curves of one view. The overlays are child widgets of the view, which must outlive this vector.
class TimeCurveVector : public std::vector<std::shared_ptr<TimeCurveOverlay>>
{
public:
    using std::vector<std::shared_ptr<TimeCurveOverlay>>::vector;

    /// Appends a hidden overlay; its pen's colour follows the position in the vector. Null for a deleted
    /// channel.
    TimeCurveOverlay* AssignDataChannel(QWidget* parent_view,
                                        std::weak_ptr<TimeLogDataChannel const> const& channel);
    /// Removes all overlays that depend on `identifier`, whose fields may be wildcards.
    void DeleteDependencies(DataChannelIdentifier const& identifier);

    /// Range of the log depths, metres; no value when there is none.
    [[nodiscard]] std::optional<Interval> GetDepthInterval_metric() const;
    /// Union of the value intervals; the empty interval without curves.
    [[nodiscard]] Interval GetMinMaxValue() const;
};
