// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// Extent of the samples that a bin covers; maximum -infinity and minimum +infinity when it holds no number.
struct CurveBin
{
    float maximum;
    float minimum;

    /// Leaves both unset, so that a level of millions of bins is not written twice.
    CurveBin() {} // NOLINT(modernize-use-equals-default): a defaulted one would be zeroed by std::vector
    CurveBin(float greatest, float least) : maximum(greatest), minimum(least) {}

    [[nodiscard]] bool operator==(CurveBin const&) const = default;
};
