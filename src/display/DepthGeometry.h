// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <cmath>
#include <cstddef>
#include <limits>

/// The one mapping between depths, values, samples and pixels that all views share. `height` and `width` are
/// those of the painted area in pixels; depth intervals in metres. Results that no pixel or index can hold
/// saturate, undefined ones (an interval of no length, NaN) are 0, so that nothing here is ever out of an
/// integer's range.
namespace Quorrel {
/// Truncates towards zero; saturates at the ends of int, 0 for NaN.
[[nodiscard]] inline int TruncateToInt(double value)
{
    // Compared before the conversion, which is undefined outside int's range.
    if (value >= static_cast<double>(std::numeric_limits<int>::max())) {
        return std::numeric_limits<int>::max();
    }
    if (value <= static_cast<double>(std::numeric_limits<int>::min())) {
        return std::numeric_limits<int>::min();
    }
    return std::isnan(value) ? 0 : static_cast<int>(value);
}

/// Rounds to nearest, halves away from zero; saturates at the ends of int, 0 for NaN.
[[nodiscard]] inline int RoundToInt(double value)
{
    int const truncated = TruncateToInt(value);
    double const rest = value - truncated;
    if (rest >= 0.5 && truncated < std::numeric_limits<int>::max()) {
        return truncated + 1;
    }
    if (rest <= -0.5 && truncated > std::numeric_limits<int>::min()) {
        return truncated - 1;
    }
    return truncated;
}

/// Nearest row of `depth`: the interval's top is on row 0, its bottom on row height - 1.
[[nodiscard]] int ConvertDepthToYValue(float depth, int height, Interval const& interval);

/// Depth of row `y`, with the ratio in double; the interval's top for a height below 2.
[[nodiscard]] double ConvertYValueToDepth_metric(int y, int height, Interval const& interval);

/// Estimated index of the sample at `depth` on a regular axis of `size` samples, truncated towards zero, in
/// single precision. Not clamped: a depth outside [first, last] gives an index outside the samples.
[[nodiscard]] int ConvertDepthToIndex(float depth, std::size_t size, float first, float last);

/// Column of `value` on a linear scale, not rounded and not clamped; infinite or NaN on a scale of no length.
[[nodiscard]] inline float ConvertCurveValueToX(float value, Interval const& scale, int width)
{
    return static_cast<float>((static_cast<double>(value) - scale.lower) / (scale.upper - scale.lower) *
                              width);
}

/// Value under column `x`; the scale's lower end for a width below 1.
[[nodiscard]] float ConvertXtoCurveValue(float x, Interval const& scale, int width);
} // namespace Quorrel
