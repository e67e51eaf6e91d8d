// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "well/PipeComponent.h"

/// A component's volume in barrels, and a warning (empty when there is none) that a nominal diameter was
/// used.
struct ComponentVolume
{
    double volume = 0;
    QString warning;
};

/// A pipe component placed in its string. Depth in metres, diameters in inches.
class CalculatedPipeComponent : public PipeComponent
{
public:
    /// All zero, with the empty interval.
    CalculatedPipeComponent() = default;
    /// Not yet placed: the empty interval.
    CalculatedPipeComponent(PipeComponent const& component, float nominal_id, float nominal_od)
        : PipeComponent(component), nominal_id_(nominal_id), nominal_od_(nominal_od)
    {
    }

    [[nodiscard]] float GetNominalID() const { return nominal_id_; }
    [[nodiscard]] float GetNominalOD() const { return nominal_od_; }
    /// The component's own diameter or, where that is unknown, the string's nominal one.
    [[nodiscard]] float GetNonNullId() const { return GetID() == NULL_DIAMETER ? nominal_id_ : GetID(); }
    [[nodiscard]] float GetNonNullOd() const { return GetOD() == NULL_DIAMETER ? nominal_od_ : GetOD(); }

    [[nodiscard]] Interval const& GetDepth() const { return depth_; }
    [[nodiscard]] double GetMinDepth() const { return depth_.lower; }
    [[nodiscard]] double GetMaxDepth() const { return depth_.upper; }
    /// The setters make the length that of the new interval.
    void SetDepth(Interval const& depth);
    void SetMinDepth(double depth);
    void SetMaxDepth(double depth);
    /// Puts the component at its depth and keeps the length as entered, which the interval may miss by a last
    /// bit.
    void Place(Interval const& depth) { depth_ = depth; }

    /// True when the component is at the depth, both ends included.
    [[nodiscard]] bool operator==(double depth) const { return depth_.Contains(depth); }

    /// Barrels inside `length` metres of the component.
    /// @throws std::invalid_argument without own and nominal ID
    [[nodiscard]] ComponentVolume CalculateVolume(float length) const;
    /// Over the component's own length.
    [[nodiscard]] ComponentVolume CalculateVolume() const;
    /// Barrels that `length` metres of the component displace when closed.
    /// @throws std::invalid_argument without own and nominal OD
    [[nodiscard]] ComponentVolume CalculatePluggedDisplacement(float length) const;
    [[nodiscard]] ComponentVolume CalculatePluggedDisplacement() const;

private:
    float nominal_id_ = 0;
    float nominal_od_ = 0;
    Interval depth_;
};
