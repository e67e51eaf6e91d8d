// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/ScalarTypes.h"
#include "formats/las/LASDataFileMatrix.h"

#include <cstddef>
#include <vector>

/// How a LAS file's rows come into the order and spacing that a log needs. Index and columns are equally
/// long.
namespace Quorrel {
/// Reverses the index and every column in place.
void ReverseVectors(std::vector<DepthType>& index, LASDataFileMatrix const& matrix);

/// `count` points from `start` to `stop` in equal steps, summed up in double precision and stored in single.
[[nodiscard]] std::vector<float> GenerateUniformDepthVector(float start, float stop, std::size_t count);

/// One column at new depths, linear between the old ones, in single precision. At or above the first old
/// depth it is the first value, beyond the last one the last value; next to a missing value it is missing.
[[nodiscard]] std::vector<DataValueType> ResampleColumn(std::vector<float> const& old_depths,
                                                        std::vector<DataValueType> const& old_values,
                                                        std::vector<float> const& new_depths);

/// Gives an ascending but irregular index equal steps, with the same number of rows and the same ends, and
/// resamples the columns into new vectors. Missing is -999.25 here, whatever the file's NULL says.
void ResampleDataMatrix(std::vector<DepthType>& index, LASDataFileMatrix& matrix);
} // namespace Quorrel
