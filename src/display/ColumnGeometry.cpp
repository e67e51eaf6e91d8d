// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnGeometry.h"

#include <cmath>
#include <limits>

namespace Quorrel {
namespace {
/// Truncated and held to 0 .. the greatest int; 0 for what is not finite.
int TruncateToRange(double value)
{
    if (!std::isfinite(value) || value <= 0) {
        return 0;
    }
    constexpr double greatest = std::numeric_limits<int>::max();
    return value >= greatest ? std::numeric_limits<int>::max() : static_cast<int>(value);
}
} // namespace

Interval ZoomAboutCentre(Interval const& view, float factor)
{
    double const centre = view.lower + 0.5 * view.Delta();
    double const half = view.Delta() / (2.0 * static_cast<double>(factor));
    return {centre - half, centre + half};
}

Interval ZoomAboutDepth(Interval const& view, float depth, float factor)
{
    double const delta = view.Delta();
    if (delta == 0) {
        return view;
    }
    double const d = depth;
    double const fraction = (d - view.lower) / delta;
    double const new_delta = delta / static_cast<double>(factor);
    return {d - fraction * new_delta, d + (1 - fraction) * new_delta};
}

double ConvertRowToDepth(int y, int height, Interval const& view)
{
    if (height < 2) {
        return view.lower;
    }
    float const metres_per_row = static_cast<float>(view.Delta() / (height - 1));
    return static_cast<double>(static_cast<float>(y) * metres_per_row) + view.lower;
}

ScrollBarState CalculateScrollBar(Interval const& total, Interval const& view, int height)
{
    ScrollBarState state;
    double const delta_total = total.Delta();
    double const delta_view = view.Delta();
    state.maximum = TruncateToRange(height * (delta_total / delta_view - 1));
    float const fraction = static_cast<float>((view.lower - total.lower) / (delta_total - delta_view));
    float const position = fraction * static_cast<float>(state.maximum);
    state.position = TruncateToRange(static_cast<double>(position));
    return state;
}

Interval ScrollToPosition(Interval const& total, Interval const& view, int height, int position)
{
    if (height < 1) {
        return view;
    }
    double const delta = view.Delta();
    float const metres_per_unit = static_cast<float>(delta / height);
    double const top = total.lower + static_cast<double>(metres_per_unit * static_cast<float>(position));
    return {top, top + delta};
}
} // namespace Quorrel
