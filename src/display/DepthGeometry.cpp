// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthGeometry.h"

#include <cmath>
#include <limits>

namespace Quorrel {
int TruncateToInt(double value)
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

int RoundToInt(double value)
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

int ConvertDepthToYValue(float depth, int height, Interval const& interval)
{
    double const delta = interval.upper - interval.lower;
    if (delta == 0) {
        return 0;
    }
    return RoundToInt((height - 1.0) * (static_cast<double>(depth) - interval.lower) / delta);
}

double ConvertYValueToDepth_metric(int y, int height, Interval const& interval)
{
    if (height < 2) {
        return interval.lower;
    }
    return y * ((interval.upper - interval.lower) / (height - 1)) + interval.lower;
}

int ConvertDepthToIndex(float depth, std::size_t size, float first, float last)
{
    float const last_index = size > 0 ? static_cast<float>(size - 1) : 0.0F;
    return TruncateToInt((depth - first) / (last - first) * last_index);
}

float ConvertXtoCurveValue(float x, Interval const& scale, int width)
{
    if (width < 1) {
        return static_cast<float>(scale.lower);
    }
    return static_cast<float>(static_cast<double>(x) / width * (scale.upper - scale.lower) + scale.lower);
}
} // namespace Quorrel
