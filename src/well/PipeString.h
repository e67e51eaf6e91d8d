// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/CalculatedPipeComponent.h"

#include <utility>
#include <vector>

/// One casing, liner or tubing string. Its components are stacked upwards from the set depth, so the string's
/// top follows from their lengths. Depths in metres, diameters in inches.
class PipeString
{
public:
    using ComponentVector = std::vector<CalculatedPipeComponent>;

    PipeString() = default;
    /// `components` from the top down.
    PipeString(QString const& name, double set_depth, bool is_tubing,
               std::vector<PipeComponent> const& components);

    [[nodiscard]] QString const& GetName() const { return name_; }
    /// Depth of the bottom of the last component.
    [[nodiscard]] double GetSetDepth_metric() const { return set_depth_; }
    [[nodiscard]] bool GetIsTubing() const { return is_tubing_; }
    [[nodiscard]] std::size_t size() const { return components_.size(); }
    [[nodiscard]] ComponentVector const& GetComponents() const { return components_; }
    /// Null past the end.
    [[nodiscard]] CalculatedPipeComponent const* GetComponent(std::size_t index) const;
    /// The components as given to the constructor.
    [[nodiscard]] std::vector<PipeComponent> GetPipeComponentVector() const;

    [[nodiscard]] double GetNominalOD() const { return nominal_od_; }
    [[nodiscard]] double GetNominalID() const { return nominal_id_; }
    /// Smallest and largest non-null diameter of the components; the empty interval without components.
    [[nodiscard]] Interval const& GetODinterval() const { return od_interval_; }
    [[nodiscard]] Interval const& GetIDinterval() const { return id_interval_; }
    /// From the first component's top to the last one's bottom; the empty interval without components.
    [[nodiscard]] Interval const& GetDepthInterval() const { return depth_interval_; }

    [[nodiscard]] bool ContainsOuterCementData() const { return !outer_cement_description_.isEmpty(); }
    /// Keeps the interval as given, in either order.
    void SetOuterCementData(double min, double max, QString const& description);
    [[nodiscard]] std::pair<QString, Interval> GetOuterCementData() const;

    /// The first component at the depth, both ends included: a depth on a joint belongs to the upper
    /// component.
    [[nodiscard]] ComponentVector::const_iterator FindPipeComponentIterator(double depth) const;
    /// Null when there is none.
    [[nodiscard]] CalculatedPipeComponent const* FindComponentAtDepth(double depth) const;
    /// -1 when there is none.
    [[nodiscard]] int FindComponentIndexAtDepth(double depth) const;

    /// True when the string is at the depth, both ends included.
    [[nodiscard]] bool operator==(double depth) const { return depth_interval_.Contains(depth); }
    /// What was entered: set depth, name, tubing flag, components and cement.
    friend bool operator==(PipeString const& a, PipeString const& b);

private:
    ComponentVector components_;
    QString name_;
    double set_depth_ = 0;
    bool is_tubing_ = false;
    QString outer_cement_description_;
    Interval outer_cement_interval_;
    double nominal_od_ = PipeComponent::NULL_DIAMETER;
    double nominal_id_ = PipeComponent::NULL_DIAMETER;
    Interval od_interval_;
    Interval id_interval_;
    Interval depth_interval_;
};
