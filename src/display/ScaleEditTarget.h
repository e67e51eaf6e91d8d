// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <memory>
#include <vector>

struct ScaleItemParameters;

/// What the scale dialog edits: the scales of one view.
class ScaleEditTarget
{
public:
    virtual ~ScaleEditTarget() = default;

    /// One record per scale, shared with the header's items; take copies to edit.
    [[nodiscard]] virtual std::vector<std::shared_ptr<ScaleItemParameters>> GetScales() const = 0;
    /// Sets the scales that differ, each with an undo entry, and redraws.
    virtual void SetScales(std::vector<std::shared_ptr<ScaleItemParameters>> scales) = 0;
    /// Extent of the values between two depths (metres), one Interval per scale; not valid where there are
    /// none.
    [[nodiscard]] virtual std::vector<Interval> GetMinMaxInInterval(float top, float bottom) const = 0;
    /// The same for the depths on screen.
    [[nodiscard]] virtual std::vector<Interval> GetMinMaxInVisibleInterval() const = 0;
};
