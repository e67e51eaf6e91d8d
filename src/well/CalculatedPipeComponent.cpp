// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/CalculatedPipeComponent.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"

#include <numbers>
#include <stdexcept>

namespace {
constexpr float SQUARE_METRES_PER_SQUARE_INCH = 0.00064516F;
constexpr double BARRELS_PER_CUBIC_METRE = 6.28981077;

/// Barrels in a cylinder; diameter in inches, length in metres. The disc's area is single precision.
double CylinderVolume(float diameter, float length)
{
    return static_cast<double>(diameter * diameter * 0.25F) * std::numbers::pi * static_cast<double>(length) *
           static_cast<double>(SQUARE_METRES_PER_SQUARE_INCH) * BARRELS_PER_CUBIC_METRE;
}

/// What differs between the inside and the outside of a pipe.
struct Diameter
{
    float own;
    float nominal;
    QString name;
    QString calculation;
};

ComponentVolume CalculateCylinder(PipeComponent const& component, float length, Diameter const& diameter)
{
    if (diameter.own != PipeComponent::NULL_DIAMETER) {
        return {CylinderVolume(diameter.own, length), QString()};
    }
    if (diameter.nominal == PipeComponent::NULL_DIAMETER) {
        QString const message = "Error: Null-value in " + diameter.calculation +
                                " calculation of following component: " + component.GetDescription();
        throw std::invalid_argument(message.toStdString());
    }
    float const total_length =
        Quorrel::MetricsDepthToSettingsDepth(static_cast<float>(component.GetLength()));
    QString const warning = diameter.name + " not available for component \"" + component.GetDescription() +
                            "\" w/ Length: " + Quorrel::FloatTypeToString(total_length, 3, false) +
                            SettingsSingleton::Instance().GetDepthUnit() + ". Substituted with " +
                            diameter.name + " = " + Quorrel::FloatTypeToString(diameter.nominal, 3, false) +
                            ".";
    return {CylinderVolume(diameter.nominal, length), warning};
}
} // namespace

void CalculatedPipeComponent::SetDepth(Interval const& depth)
{
    depth_ = depth;
    SetLength(depth_.Delta());
}

void CalculatedPipeComponent::SetMinDepth(double depth)
{
    SetDepth(Interval(depth, depth_.upper));
}

void CalculatedPipeComponent::SetMaxDepth(double depth)
{
    SetDepth(Interval(depth_.lower, depth));
}

ComponentVolume CalculatedPipeComponent::CalculateVolume(float length) const
{
    return CalculateCylinder(*this, length, {GetID(), nominal_id_, "ID", "volume"});
}

ComponentVolume CalculatedPipeComponent::CalculateVolume() const
{
    return CalculateVolume(static_cast<float>(GetLength()));
}

ComponentVolume CalculatedPipeComponent::CalculatePluggedDisplacement(float length) const
{
    return CalculateCylinder(*this, length, {GetOD(), nominal_od_, "OD", "displacement"});
}

ComponentVolume CalculatedPipeComponent::CalculatePluggedDisplacement() const
{
    return CalculatePluggedDisplacement(static_cast<float>(GetLength()));
}
