// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "CaliperLog.h"

#include "ProductionWell.h"
#include "Signal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>

using namespace ProductionWell;

namespace {
constexpr int FINGERS = 40;
constexpr double FIRST = 2056.2; // metres
constexpr double STEP = 0.02;
constexpr std::size_t COUNT = 7001;
constexpr double RADIUS = TUBING_ID / 2; // inches
constexpr double TURN = 2 * std::numbers::pi;
constexpr double LOW_SIDE = std::numbers::pi; // of the pipe, radians from its top

struct Joint
{
    double top;
    double length;
    double wear;      ///< inches added to the nominal radius
    double ovality;   ///< inches
    double direction; ///< of the long axis, radians
};

/// A local change of the inner wall: a rounded pit, or a deposit when the depth is negative.
struct Mark
{
    double depth;  ///< metres
    double angle;  ///< radians from the top of the pipe
    double deep;   ///< inches
    double length; ///< standard deviation along the pipe, metres
    double width;  ///< standard deviation around it, radians
};

/// Bores of the completion's parts in the logged interval, metres and inches.
constexpr struct
{
    double top;
    double bottom;
    double diameter;
} BORES[] = {{2147.6, 2149.2, 3.890}, {2178.4, 2180.6, 3.880}, {2192.4, 2192.9, 3.688}};

std::vector<Joint> LayJoints(Random& random)
{
    // Joints from the gauge mandrel upwards, then the parts down to the pup joint under the nipple.
    std::vector<double> tops;
    for (double depth = 2147.6; depth > FIRST;) {
        bool const pup = tops.size() == 4; // one short joint makes the string easy to correlate
        depth -= pup ? 3.05 : 9.45 + 0.25 * random.Normal();
        tops.push_back(depth);
    }
    std::reverse(tops.begin(), tops.end());
    for (double const depth :
         {2147.6, 2149.2, 2158.93, 2168.66, 2178.4, 2180.6, 2189.95, 2192.4, 2192.9, 2196.2})
        tops.push_back(depth);

    std::vector<Joint> joints;
    for (std::size_t j = 0; j + 1 < tops.size(); ++j) {
        Joint joint{};
        joint.top = tops[j];
        joint.length = tops[j + 1] - tops[j];
        joint.wear = joint.length > 2.5 ? 0.012 * random.Uniform() : 0; // parts are new, pipe is not
        joint.ovality = 0.008 * random.Uniform();
        joint.direction = TURN * random.Uniform();
        joints.push_back(joint);
    }
    return joints;
}

std::vector<Mark> MakeMarks(Random& random, std::vector<Joint> const& joints)
{
    std::vector<Mark> marks;
    // Isolated pits along the low side, crowded in two bad joints.
    for (std::size_t j = 0; j < joints.size(); ++j) {
        int const pits = j == 2 || j == 8 ? 55 : 4;
        for (int k = 0; k < pits; ++k) {
            Mark mark{};
            mark.depth = joints[j].top + joints[j].length * random.Uniform(0.05, 0.95);
            mark.angle = LOW_SIDE + 0.5 * random.Normal();
            mark.deep = std::min(0.025 - 0.035 * std::log(1 - random.Uniform()), 0.19);
            mark.length = random.Uniform(0.015, 0.06);
            mark.width = random.Uniform(0.06, 0.16);
            marks.push_back(mark);
        }
    }
    marks.push_back({joints[8].top + 4.1, LOW_SIDE + 0.2, 0.33, 0.035, 0.12}); // through the wall
    marks.push_back({joints[4].top + 5.0, LOW_SIDE, 0.07, 2.2, 0.22});         // wire-line groove
    marks.push_back({joints[12].top + 4.6, 0.6, -0.09, 1.3, 0.9});             // scale
    return marks;
}

double AngleBetween(double a, double b)
{
    return std::remainder(a - b, TURN);
}

/// The pipe's change of radius that does not depend on the angle.
double Ring(double depth, std::vector<Joint> const& joints)
{
    double radius = 0;
    for (Joint const& joint : joints) {
        double const from_collar = std::abs(depth - joint.top);
        if (from_collar < 0.045)
            radius += 0.14; // the gap between two pins
        else if (from_collar < 0.11)
            radius -= 0.025; // upset ends
    }
    double const worn = (depth - (joints[5].top + 1.7)) / 0.28;
    radius += 0.085 * std::exp(-0.5 * worn * worn);
    for (auto const& bore : BORES) {
        if (depth > bore.top && depth < bore.bottom)
            radius = bore.diameter / 2 - RADIUS;
    }
    return radius;
}
} // namespace

LasDocument MakeCaliperLog()
{
    Random random(40);
    std::vector<Joint> const joints = LayJoints(random);
    std::vector<Mark> const marks = MakeMarks(random, joints);
    std::vector<double> const wander_x = CorrelatedNoise(random, COUNT, 350);
    std::vector<double> const wander_y = CorrelatedNoise(random, COUNT, 350);
    std::vector<double> const turning = CorrelatedNoise(random, COUNT, 900);

    std::vector<double> index(COUNT), rotation(COUNT), mean(COUNT);
    std::array<std::vector<double>, FINGERS> radii;
    radii.fill(std::vector<double>(COUNT));
    for (std::size_t i = 0; i < COUNT; ++i) {
        double const depth = FIRST + STEP * static_cast<double>(i);
        index[i] = depth;
        // The tool turns slowly on its cable and lies a little below the pipe's centre.
        double const bearing = 0.35 + 0.004 * static_cast<double>(i) * TURN / 10 + 0.25 * turning[i];
        rotation[i] = std::fmod(std::fmod(bearing, TURN) + TURN, TURN) * 360 / TURN;
        double const off_x = 0.012 * wander_x[i];
        double const off_y = -0.035 + 0.012 * wander_y[i];
        double const ring = Ring(depth, joints);
        std::size_t j = 0;
        while (j + 1 < joints.size() && joints[j + 1].top <= depth)
            ++j;
        std::array<double, FINGERS> local{};
        for (Mark const& mark : marks) {
            double const along = (depth - mark.depth) / mark.length;
            if (std::abs(along) > 4)
                continue;
            for (int f = 0; f < FINGERS; ++f) {
                double const around = AngleBetween(bearing + TURN * f / FINGERS, mark.angle) / mark.width;
                double const change = mark.deep * std::exp(-0.5 * (along * along + around * around));
                double& finger = local[static_cast<std::size_t>(f)];
                finger = mark.deep < 0 ? finger + change : std::max(finger, change);
            }
        }
        double sum = 0;
        for (int f = 0; f < FINGERS; ++f) {
            double const angle = bearing + TURN * f / FINGERS;
            double const wall = RADIUS + ring + joints[j].wear +
                                joints[j].ovality * std::cos(2 * (angle - joints[j].direction)) +
                                local[static_cast<std::size_t>(f)];
            // Distance from the tool, off the centre by (off_x, off_y), to a circle of that radius. The
            // angle runs clockwise from the top of the pipe.
            double const forward = off_x * std::sin(angle) + off_y * std::cos(angle);
            double const across = off_x * std::cos(angle) - off_y * std::sin(angle);
            double const reading =
                std::sqrt(wall * wall - across * across) - forward + 0.0025 * random.Normal();
            radii[static_cast<std::size_t>(f)][i] = reading;
            sum += reading;
        }
        mean[i] = 2 * sum / FINGERS;
    }

    LasDocument document;
    document.step = STEP;
    document.well = WellLines("16-May-2024");
    document.parameters = {{"NFIN", "", "40", "Number of fingers"},
                           {"TUBS", "IN", "4.500", "Tubing size"},
                           {"TUBW", "LB/F", "12.6", "Tubing weight"},
                           {"TUBI", "IN", "3.958", "Tubing nominal inner diameter"},
                           {"TUBT", "IN", "0.271", "Tubing wall"}};
    document.remarks = {"Made-up well. Finger 1 points to the bearing MITROT, the others follow clockwise."};
    document.columns = {{"DEPT", "M", "Measured depth", 4, index},
                        {"MITROT", "DEG", "Bearing of finger 1 from the top of the pipe", 1, rotation},
                        {"CALA", "in", "Mean inner diameter", 3, mean}};
    for (int f = 0; f < FINGERS; ++f) {
        char name[16];
        std::snprintf(name, sizeof(name), "FING%02d", f + 1);
        char text[32];
        std::snprintf(text, sizeof(text), "Radius of finger %d", f + 1);
        document.columns.push_back({name, "in", text, 3, radii[static_cast<std::size_t>(f)]});
    }
    return document;
}
