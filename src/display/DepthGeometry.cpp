// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthGeometry.h"

namespace Quorrel {
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
