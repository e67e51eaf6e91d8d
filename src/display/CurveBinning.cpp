// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/CurveBinning.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {
constexpr float INFINITE = std::numeric_limits<float>::infinity();

// With the new value first, a NaN compares false and the former extreme stays; the compilers make one vector
// instruction of each.
float Greater(float value, float former)
{
    return value > former ? value : former;
}
float Less(float value, float former)
{
    return value < former ? value : former;
}
} // namespace

namespace Quorrel {
Interval CalculateExtent(float const* samples, std::size_t size)
{
    // Independent lanes, so that the comparisons do not wait for each other.
    constexpr std::size_t lanes = 32;
    std::array<float, lanes> greatest;
    std::array<float, lanes> least;
    greatest.fill(-INFINITE);
    least.fill(INFINITE);
    std::size_t i = 0;
    for (; i + lanes <= size; i += lanes) {
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            float const value = samples[i + lane];
            greatest[lane] = Greater(value, greatest[lane]);
            least[lane] = Less(value, least[lane]);
        }
    }
    for (; i < size; ++i) {
        greatest[0] = Greater(samples[i], greatest[0]);
        least[0] = Less(samples[i], least[0]);
    }
    return {*std::min_element(least.begin(), least.end()),
            *std::max_element(greatest.begin(), greatest.end())};
}

void BinSamples(float const* samples, std::size_t size, CurveBin* bins)
{
    std::size_t const whole = size / CURVE_BIN_FACTOR;
    for (std::size_t bin = 0; bin < whole; ++bin) {
        float const* const s = samples + CURVE_BIN_FACTOR * bin;
        bins[bin].maximum = Greater(s[2], Greater(s[1], Greater(s[0], -INFINITE)));
        bins[bin].minimum = Less(s[2], Less(s[1], Less(s[0], INFINITE)));
    }
    if (whole < BinCount(size)) {
        CurveBin rest(-INFINITE, INFINITE);
        for (std::size_t i = CURVE_BIN_FACTOR * whole; i < size; ++i) {
            rest.maximum = Greater(samples[i], rest.maximum);
            rest.minimum = Less(samples[i], rest.minimum);
        }
        bins[whole] = rest;
    }
}

void BinBins(CurveBin const* finer, std::size_t size, CurveBin* bins)
{
    std::size_t const whole = size / CURVE_BIN_FACTOR;
    for (std::size_t bin = 0; bin < whole; ++bin) {
        CurveBin const* const f = finer + CURVE_BIN_FACTOR * bin;
        bins[bin].maximum = Greater(f[2].maximum, Greater(f[1].maximum, f[0].maximum));
        bins[bin].minimum = Less(f[2].minimum, Less(f[1].minimum, f[0].minimum));
    }
    if (whole < BinCount(size)) {
        CurveBin rest = finer[CURVE_BIN_FACTOR * whole];
        for (std::size_t i = CURVE_BIN_FACTOR * whole + 1; i < size; ++i) {
            rest.maximum = Greater(finer[i].maximum, rest.maximum);
            rest.minimum = Less(finer[i].minimum, rest.minimum);
        }
        bins[whole] = rest;
    }
}
} // namespace Quorrel
