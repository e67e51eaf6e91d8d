// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellTrajectoryItem.h"

#include <numbers>
#include <ostream>

std::ostream& operator<<(std::ostream& stream, WellTrajectoryItem const& item)
{
    constexpr double factor = 180.0 / std::numbers::pi;
    return stream << "MD: " << item.GetMeasuredDepth() << "  Incl: " << item.GetInclination() * factor
                  << "  azi: " << item.GetAzimuth() * factor << "  TVD: " << item.tvd << "  NS: " << item.ns
                  << "  EW: " << item.ew << "  DLS: " << item.dls;
}
