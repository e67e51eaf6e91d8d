// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ZoneTrack.h"

#include "well/SortOrder.h"

#include <algorithm>

void ZoneTrack::SortZones()
{
    std::stable_sort(zones_.begin(), zones_.end(), [](Zone const& a, Zone const& b) {
        return Quorrel::AscendingNanLast(a.GetDepth(), b.GetDepth());
    });
}
