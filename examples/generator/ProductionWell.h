// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "LasDocument.h"

#include <array>

/// The well of demo-well.json, as far as its logs need it. Measured depths in metres, diameters in inches.
namespace ProductionWell {
struct Perforation
{
    double top;
    double bottom;
    double rate;          ///< downhole inflow, barrels per day
    double entry_warming; ///< of the inflow against the rock, degC: oil warms, gas cools on its way in
    double fluid_density; ///< g/cc
};

inline constexpr double TUBING_ID = 3.958; ///< 4 1/2 in 12.6 lb/ft
inline constexpr double TUBING_WALL = 0.271;
inline constexpr double LINER_ID = 6.184;   ///< 7 in 29 lb/ft
inline constexpr double LINER_JOINT = 12.1; ///< mean length, metres

inline constexpr std::array<Perforation, 3> PERFORATIONS = {
    {{2905, 2917, 760, -1.6, 0.66}, {2931.5, 2948, 1490, 0.55, 0.74}, {3012, 3030.5, 640, 0.35, 0.82}}};

/// True vertical depth, metres; good below 2860 m, where the well is straight.
double VerticalDepth(double depth);
/// Rock temperature, degC; below 2860 m.
double RockTemperature(double depth);
/// Header lines common to all logs of the well.
std::vector<LasLine> WellLines(char const* date);
} // namespace ProductionWell
