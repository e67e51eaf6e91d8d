// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <cmath>

namespace Quorrel {
/// `<` that stays an order when values are NaN (sorting by the bare operator would not be defined then): NaN
/// goes last.
[[nodiscard]] inline bool AscendingNanLast(double a, double b)
{
    return a < b || (!std::isnan(a) && std::isnan(b));
}

/// The same for intervals, by the lower end, then by the upper.
[[nodiscard]] inline bool AscendingNanLast(Interval const& a, Interval const& b)
{
    if (AscendingNanLast(a.lower, b.lower)) {
        return true;
    }
    return !AscendingNanLast(b.lower, a.lower) && AscendingNanLast(a.upper, b.upper);
}
} // namespace Quorrel
