// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "display/CurveBin.h"

#include <cstddef>

/// The passes over samples and bins behind a curve's extent and its bin levels. All ignore NaN.
namespace Quorrel {
/// How many values go into one bin.
inline constexpr std::size_t CURVE_BIN_FACTOR = 3;

/// Number of bins over `size` values; the last one may cover fewer.
[[nodiscard]] constexpr std::size_t BinCount(std::size_t size)
{
    return size / CURVE_BIN_FACTOR + (size % CURVE_BIN_FACTOR != 0 ? 1 : 0);
}

/// Extent of `size` samples; the empty interval without a number among them.
[[nodiscard]] Interval CalculateExtent(float const* samples, std::size_t size);
/// Writes BinCount(size) bins.
void BinSamples(float const* samples, std::size_t size, CurveBin* bins);
/// Writes BinCount(size) bins.
void BinBins(CurveBin const* finer, std::size_t size, CurveBin* bins);
} // namespace Quorrel
