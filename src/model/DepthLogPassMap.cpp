// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DepthLogPassMap.h"

#include <algorithm>

Interval DepthLogPassMap::GetTotalDepthInterval() const
{
    Interval total;
    for (auto const& [hash, log_pass] : *this) {
        Interval const depth = log_pass->GetDepthInterval_metric();
        total.lower = std::min(total.lower, depth.lower);
        total.upper = std::max(total.upper, depth.upper);
    }
    return total;
}
