// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/PipeComponent.h"

#include <vector>

/// Nominal diameters of a pipe string in inches; -999.25 where nothing is known.
struct NominalDiameters
{
    double id = PipeComponent::NULL_DIAMETER;
    double od = PipeComponent::NULL_DIAMETER;
};

/// Those of the longest component that has them (the upper among equals), each for itself. A diameter that no
/// component has is estimated from the other with a wall of log10 of the diameter.
[[nodiscard]] NominalDiameters FindNominalDiameters(std::vector<PipeComponent> const& components);
