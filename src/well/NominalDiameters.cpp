// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/NominalDiameters.h"

#include <cmath>

namespace {
/// The diameter of the longest component that has it, null when none has.
double FindLongest(std::vector<PipeComponent> const& components, float (PipeComponent::*get)() const)
{
    double diameter = PipeComponent::NULL_DIAMETER;
    double longest = -1.0;
    for (PipeComponent const& component : components) {
        float const candidate = (component.*get)();
        if (candidate != PipeComponent::NULL_DIAMETER && component.GetLength() > longest) {
            diameter = candidate;
            longest = component.GetLength();
        }
    }
    return diameter;
}
} // namespace

NominalDiameters FindNominalDiameters(std::vector<PipeComponent> const& components)
{
    constexpr double null = PipeComponent::NULL_DIAMETER;
    NominalDiameters nominal{.id = FindLongest(components, &PipeComponent::GetID),
                             .od = FindLongest(components, &PipeComponent::GetOD)};
    if (nominal.id == null && nominal.od != null) {
        nominal.id = nominal.od - std::log10(nominal.od);
    } else if (nominal.od == null && nominal.id != null) {
        nominal.od = nominal.id + std::log10(nominal.id);
    }
    return nominal;
}
