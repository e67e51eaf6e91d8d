// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

/// One bed. Volumes are parts of the bulk: shale + porosity + the minerals make 1.
struct Bed
{
    double top = 0;    ///< metres
    double bottom = 0; ///< metres
    double shale = 0;
    double porosity = 0; ///< effective
    double quartz = 0;
    double calcite = 0;
    double dolomite = 0;
    double anhydrite = 0;
    double coal = 0;
    double water_saturation = 1;
    double hydrocarbon_density = 0.75; ///< g/cc
    bool permeable = false;
};

/// The rocks of the example exploration well from 850 m to 2450 m: claystones, a deltaic series, an oil and
/// gas sand, a carbonate platform capped by anhydrite, a tight series and a dolomite.
std::vector<Bed> LayEarth(std::uint64_t seed);
