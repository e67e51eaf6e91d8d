// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

/// The arithmetic of a column's vertical model. Depths in metres, heights in pixels. What cannot be
/// calculated (no height, no length) leaves the interval as it is or gives an empty scroll range.
namespace Quorrel {
/// The interval of length delta / factor about the same centre.
[[nodiscard]] Interval ZoomAboutCentre(Interval const& view, float factor);

/// The interval of length delta / factor in which `depth` has the same relative place.
[[nodiscard]] Interval ZoomAboutDepth(Interval const& view, float depth, float factor);

/// Depth of pixel row `y`; row 0 is the top, row height - 1 the bottom. The scale is rounded to single
/// precision.
[[nodiscard]] double ConvertRowToDepth(int y, int height, Interval const& view);

/// Range 0 to `maximum` and position of a scroll bar that shows where `view` stands in `total`.
struct ScrollBarState
{
    int maximum = 0;
    int position = 0;

    [[nodiscard]] bool operator==(ScrollBarState const&) const = default;
};
[[nodiscard]] ScrollBarState CalculateScrollBar(Interval const& total, Interval const& view, int height);

/// The view for a scroll bar position. One unit of the bar is delta / height: by the height itself, not less
/// one.
[[nodiscard]] Interval ScrollToPosition(Interval const& total, Interval const& view, int height,
                                        int position);
} // namespace Quorrel
