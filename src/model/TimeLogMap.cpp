// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/TimeLogMap.h"

#include <algorithm>

Interval TimeLogMap::GetTotalDepthInterval() const
{
    Interval total;
    for (auto const& [hash, log] : *this) {
        auto const depth = static_cast<double>(log->GetLogDepth());
        total.lower = std::min(total.lower, depth);
        total.upper = std::max(total.upper, depth);
    }
    return total;
}
