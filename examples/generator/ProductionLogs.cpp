// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "ProductionLogs.h"

#include "ProductionWell.h"
#include "Signal.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

using namespace ProductionWell;

namespace {
constexpr double GRID_STEP = 0.05; // metres
constexpr double GRID_TOP = 2860;
constexpr std::size_t GRID_COUNT = 4601;
constexpr double FIRST = 2880; // metres
constexpr double LAST = 3070;
constexpr double STEP = 0.1;

// Cable speeds in ft/min, positive upwards like the flow.
constexpr double SPEEDS[ProductionLogs::PASSES] = {-33, -66, -98, 33, 82, 115};
constexpr double DEPTH_ERRORS[ProductionLogs::PASSES] = {0.0, 0.12, 0.2, -0.25, -0.32, -0.4}; // metres
constexpr char const* NAMES[ProductionLogs::PASSES] = {"down-1", "down-2", "down-3", "up-1", "up-2", "up-3"};

constexpr double PITCH_UP = 0.0525;   // rps per ft/min, fluid overtaken from below
constexpr double PITCH_DOWN = 0.0492; // rps per ft/min, fluid met from above
constexpr double THRESHOLD = 5.5;     // ft/min below which the spinner stands still
constexpr double PROFILE_FACTOR = 0.83;

constexpr double BARRELS_PER_CUBIC_FOOT = 0.1781076;

/// Mean velocity in the liner, ft/min, of a rate in barrels per day.
double MeanVelocity(double rate)
{
    double const area = std::numbers::pi * LINER_ID * LINER_ID / (4 * 144); // square feet
    return rate / (area * BARRELS_PER_CUBIC_FOOT * 60 * 24);
}

/// Revolutions per second at a tool speed relative to the fluid, ft/min, both positive upwards.
double Spinner(double relative_velocity)
{
    if (std::abs(relative_velocity) <= THRESHOLD)
        return 0;
    return relative_velocity > 0 ? PITCH_UP * (relative_velocity - THRESHOLD)
                                 : PITCH_DOWN * (relative_velocity + THRESHOLD);
}

double GridDepth(std::size_t i)
{
    return GRID_TOP + GRID_STEP * static_cast<double>(i);
}

/// The part of a perforation's inflow that enters below a depth; the middle produces best.
double PartBelow(Perforation const& perforation, double depth)
{
    double const x =
        std::clamp((perforation.bottom - depth) / (perforation.bottom - perforation.top), 0.0, 1.0);
    return x * x * (3 - 2 * x);
}
} // namespace

ProductionLogs::ProductionLogs()
    : rate_(GRID_COUNT),
      density_(GRID_COUNT),
      temperature_(GRID_COUNT),
      pressure_(GRID_COUNT),
      gamma_ray_(GRID_COUNT),
      collars_(GRID_COUNT),
      turbulence_(GRID_COUNT)
{
    Random random(4711);

    // From the bottom up: standing brine, then what each perforation adds.
    double temperature = RockTemperature(GridDepth(GRID_COUNT - 1));
    for (std::size_t i = GRID_COUNT; i-- > 0;) {
        double const depth = GridDepth(i);
        double rate = 0;
        double mass = 0;
        double entering = 0;
        double entering_temperature = 0;
        for (Perforation const& p : PERFORATIONS) {
            double const inflow = p.rate * PartBelow(p, depth);
            double const new_here = inflow - p.rate * PartBelow(p, depth + GRID_STEP);
            rate += inflow;
            mass += inflow * p.fluid_density;
            entering += new_here;
            entering_temperature += new_here * (RockTemperature(depth) + p.entry_warming);
            turbulence_[i] += new_here > 0 ? 0.045 : 0;
        }
        rate_[i] = rate;
        density_[i] = rate > 0 ? mass / rate : 1.08;
        // Heat: mixing with the inflow, then loss to the rock over a length that grows with the rate (Ramey).
        if (rate > 1) {
            double const before = rate - entering;
            temperature = (temperature * before + entering_temperature) / rate;
            double const relaxation = 0.19 * rate + 2;
            temperature += (RockTemperature(depth) - temperature) * GRID_STEP / relaxation;
        } else {
            temperature = RockTemperature(depth);
        }
        temperature_[i] = temperature;
    }
    // Below the lowest inflow the brine is warmed by conduction, so that the step there is not sharp.
    density_ = Smoothed(density_, 8);
    temperature_ = Smoothed(temperature_, 10);
    turbulence_ = Smoothed(turbulence_, 10);

    double pressure = 3180;
    for (std::size_t i = 0; i < GRID_COUNT; ++i) {
        double const velocity = MeanVelocity(rate_[i]) / 60; // ft/s
        double const friction =
            0.022 * 0.4335 * density_[i] * velocity * velocity / (2 * 32.17 * LINER_ID / 12);
        pressure_[i] = pressure;
        double const drop = VerticalDepth(GridDepth(i) + GRID_STEP) - VerticalDepth(GridDepth(i));
        pressure += (0.4335 * density_[i] * drop + friction * GRID_STEP) / 0.3048;
    }

    // Rock: sands at the perforations between shales.
    std::vector<double> const texture = CorrelatedNoise(random, GRID_COUNT, 25);
    double const sands[][2] = {{2884, 2921}, {2926, 2953}, {3006, 3058}};
    for (std::size_t i = 0; i < GRID_COUNT; ++i) {
        gamma_ray_[i] = 78 + 9 * texture[i];
        for (auto const& sand : sands) {
            if (GridDepth(i) > sand[0] && GridDepth(i) < sand[1])
                gamma_ray_[i] = 27 + 5 * texture[i];
        }
    }
    gamma_ray_ = Smoothed(gamma_ray_, 5);

    // Liner joints are not all of one length; a collar gives a swing to both sides.
    for (double collar = 2863.7; collar < GridDepth(GRID_COUNT - 1);
         collar += LINER_JOINT + 0.35 * random.Normal()) {
        double const strength = 1 + 0.15 * random.Normal();
        for (std::size_t i = 0; i < GRID_COUNT; ++i) {
            double const x = (GridDepth(i) - collar) / 0.11;
            collars_[i] += strength * 1.6 * x * std::exp(0.5 - 0.5 * x * x);
        }
    }
    // Perforated pipe is uneven.
    std::vector<double> const uneven = CorrelatedNoise(random, GRID_COUNT, 2);
    for (std::size_t i = 0; i < GRID_COUNT; ++i) {
        for (Perforation const& p : PERFORATIONS) {
            if (GridDepth(i) > p.top && GridDepth(i) < p.bottom)
                collars_[i] += 0.16 * uneven[i];
        }
    }
}

const char* ProductionLogs::PassName(int number)
{
    return NAMES[number];
}

double ProductionLogs::Grid(std::vector<double> const& log, double depth) const
{
    return ValueAt(log, (depth - GRID_TOP) / GRID_STEP);
}

LasDocument ProductionLogs::Pass(int number) const
{
    std::size_t const count = static_cast<std::size_t>(std::lround((LAST - FIRST) / STEP)) + 1;
    double const speed = SPEEDS[number];
    bool const up = speed > 0;
    Random random(900 + static_cast<std::uint64_t>(number));
    auto const noise = [&](double correlation) { return CorrelatedNoise(random, count, correlation); };
    std::vector<double> const winch = noise(60);
    std::vector<double> const stick = noise(4);
    std::vector<double> const swirl = noise(1.5);
    std::vector<double> const counts = noise(1.3);
    std::vector<double> const pickup = noise(1);
    std::vector<double> const fine = noise(3);

    LasDocument document;
    document.step = up ? -STEP : STEP;
    std::vector<double> index(count), spinner(count), cable(count), temperature(count), pressure(count),
        density(count), collar(count), gamma_ray(count), caliper_x(count), caliper_y(count);
    // The flow and the well head wander a little during the hour of logging.
    double const drift = 1 + 0.006 * random.Normal();
    double const pressure_drift = 1.5 * random.Normal();
    for (std::size_t i = 0; i < count; ++i) {
        double const along = STEP * static_cast<double>(i);
        index[i] = up ? LAST - along : FIRST + along;
        double const depth = index[i] + DEPTH_ERRORS[number];
        cable[i] = speed * (1 + 0.012 * winch[i]) + 0.35 * stick[i];
        double const local = MeanVelocity(Grid(rate_, depth) * drift) / PROFILE_FACTOR;
        double const relative = cable[i] - local;
        double const roughness = 0.012 + Grid(turbulence_, depth);
        double const turn = Spinner(relative);
        spinner[i] = turn == 0 ? 0 : turn * (1 + roughness * swirl[i]) + 0.02 * swirl[i];
        // Moving tools lag behind the temperature by about a second.
        double const lag = speed * 0.3048 / 60 * 1.0;
        temperature[i] = Grid(temperature_, depth + lag) + 0.012 * fine[i];
        pressure[i] = Grid(pressure_, depth) + pressure_drift + 0.08 * fine[i];
        density[i] = Grid(density_, depth) + 0.006 * fine[i];
        collar[i] = Grid(collars_, depth) * std::sqrt(std::abs(speed) / 60) + 0.05 * pickup[i];
        double const activity = Grid(gamma_ray_, depth);
        gamma_ray[i] = activity + 0.028 * std::sqrt(activity) * std::sqrt(std::abs(speed)) * counts[i];
        bool const recess = std::abs(Grid(collars_, depth)) > 1.2;
        caliper_x[i] = LINER_ID + 0.012 * fine[i] + (recess ? 0.05 : 0);
        caliper_y[i] = LINER_ID + 0.012 * swirl[i] + (recess ? 0.05 : 0);
    }
    document.well = WellLines("14-May-2024");
    char speed_text[32];
    std::snprintf(speed_text, sizeof(speed_text), "%.0f", std::abs(speed));
    document.parameters = {
        {"PASS", "", NAMES[number], "Pass"},
        {"LSPD", "ft/min", speed_text, up ? "Nominal speed, logged up" : "Nominal speed, logged down"},
        {"WSTA", "", "FLOWING", "Well status"},
        {"LIND", "IN", "6.184", "Liner inner diameter"},
        {"TOOL", "", "PLT, 3.5 in full-bore spinner", "Tool string"}};
    document.remarks = {
        "Made-up well. Cable speed and spinner are positive when the tool moves upwards in the fluid.",
        "Perforated at 2905-2917 m, 2931.5-2948 m and 3012-3030.5 m."};
    document.columns = {{"DEPT", "M", "Measured depth", 4, index},
                        {"SPIN", "rps", "Spinner", 3, spinner},
                        {"CVEL", "ft/min", "Cable speed, positive upwards", 3, cable},
                        {"WTEP", "DEGC", "Well temperature", 3, temperature},
                        {"WPRE", "PSI", "Well pressure", 2, pressure},
                        {"WFDE", "G/C3", "Well fluid density", 4, density},
                        {"CCL", "MV", "Casing collar locator", 3, collar},
                        {"GR", "GAPI", "Gamma ray", 2, gamma_ray},
                        {"XCAL", "in", "Caliper, first arm pair", 3, caliper_x},
                        {"YCAL", "in", "Caliper, second arm pair", 3, caliper_y}};
    return document;
}

LasDocument ProductionLogs::ShutInStation() const
{
    constexpr double depth = 2895;
    constexpr double step = 2; // seconds
    constexpr std::size_t count = 1801;
    constexpr double shut_in = 300;        // seconds after the station began
    constexpr double flowing_time = 86400; // seconds of flow before
    constexpr double slope = 42;           // psi per log cycle of Horner time
    constexpr double storage = 95;         // seconds, time constant of the well bore
    Random random(77);
    std::vector<double> const fine = CorrelatedNoise(random, count, 2);
    double const flowing_pressure = Grid(pressure_, depth);
    double const flowing_temperature = Grid(temperature_, depth);
    double const extrapolated = flowing_pressure + 285;
    double const flowing_turn = Spinner(-MeanVelocity(Grid(rate_, depth)) / PROFILE_FACTOR);

    std::vector<double> time(count), pressure(count), temperature(count), spinner(count), density(count);
    for (std::size_t i = 0; i < count; ++i) {
        time[i] = step * static_cast<double>(i);
        double const since = time[i] - shut_in;
        pressure[i] = flowing_pressure + 0.15 * fine[i];
        temperature[i] = flowing_temperature + 0.004 * fine[i];
        spinner[i] = flowing_turn * (1 + 0.012 * fine[i]);
        density[i] = Grid(density_, depth) + 0.004 * fine[i];
        if (since > 0) {
            double const horner = extrapolated - slope * std::log10((flowing_time + since) / since);
            double const filled = 1 - std::exp(-since / storage);
            pressure[i] = flowing_pressure + filled * (horner - flowing_pressure) + 0.04 * fine[i];
            temperature[i] += (RockTemperature(depth) - flowing_temperature) * (1 - std::exp(-since / 9000));
            double const after_flow = flowing_turn * std::exp(-since / storage);
            spinner[i] = std::abs(after_flow) < 0.08 ? 0 : after_flow * (1 + 0.03 * fine[i]);
        }
    }
    LasDocument document;
    document.step = step;
    document.well = WellLines("14-May-2024");
    document.parameters = {{"STAD", "M", "2895.0", "Station depth"},
                           {"TSHI", "S", "300", "Time of shut-in"},
                           {"WSTA", "", "FLOWING THEN SHUT IN", "Well status"}};
    document.remarks = {"Made-up well. Pressure build-up at one depth."};
    document.columns = {{"TIME", "S", "Elapsed time", 4, time},
                        {"WPRE", "PSI", "Well pressure", 3, pressure},
                        {"WTEP", "DEGC", "Well temperature", 3, temperature},
                        {"SPIN", "rps", "Spinner", 3, spinner},
                        {"WFDE", "G/C3", "Well fluid density", 4, density}};
    return document;
}
