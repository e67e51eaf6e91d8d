// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/PipeString.h"

#include "well/NominalDiameters.h"

#include <algorithm>

namespace {
void Widen(Interval& interval, double value)
{
    interval.lower = std::min(interval.lower, value);
    interval.upper = std::max(interval.upper, value);
}
} // namespace

PipeString::PipeString(QString const& name, double set_depth, bool is_tubing,
                       std::vector<PipeComponent> const& components)
    : name_(name), set_depth_(set_depth), is_tubing_(is_tubing)
{
    if (components.empty()) {
        return;
    }
    NominalDiameters const nominal = FindNominalDiameters(components);
    nominal_id_ = nominal.id;
    nominal_od_ = nominal.od;
    components_.reserve(components.size());
    for (PipeComponent const& component : components) {
        components_.emplace_back(component, static_cast<float>(nominal_id_), static_cast<float>(nominal_od_));
    }

    double const first_od = components_.front().GetNonNullOd();
    double const first_id = components_.front().GetNonNullId();
    od_interval_ = Interval(first_od, first_od);
    id_interval_ = Interval(first_id, first_id);
    // The top is the difference from which the bottom of the component above is made, so that no gap of a
    // last bit opens between two joints.
    double running = 0;
    double bottom = set_depth_;
    for (auto component = components_.rbegin(); component != components_.rend(); ++component) {
        running += component->GetLength();
        double const top = set_depth_ - running;
        component->Place(Interval(top, bottom));
        bottom = top;
        Widen(od_interval_, component->GetNonNullOd());
        Widen(id_interval_, component->GetNonNullId());
    }
    depth_interval_ = Interval(components_.front().GetMinDepth(), components_.back().GetMaxDepth());
}

CalculatedPipeComponent const* PipeString::GetComponent(std::size_t index) const
{
    return index < components_.size() ? &components_[index] : nullptr;
}

std::vector<PipeComponent> PipeString::GetPipeComponentVector() const
{
    return {components_.cbegin(), components_.cend()};
}

void PipeString::SetOuterCementData(double min, double max, QString const& description)
{
    outer_cement_interval_ = Interval(min, max);
    outer_cement_description_ = description;
}

std::pair<QString, Interval> PipeString::GetOuterCementData() const
{
    return {outer_cement_description_, outer_cement_interval_};
}

PipeString::ComponentVector::const_iterator PipeString::FindPipeComponentIterator(double depth) const
{
    return std::find_if(components_.cbegin(), components_.cend(),
                        [depth](CalculatedPipeComponent const& component) { return component == depth; });
}

CalculatedPipeComponent const* PipeString::FindComponentAtDepth(double depth) const
{
    auto const component = FindPipeComponentIterator(depth);
    return component != components_.cend() ? &*component : nullptr;
}

int PipeString::FindComponentIndexAtDepth(double depth) const
{
    auto const component = FindPipeComponentIterator(depth);
    return component != components_.cend() ? static_cast<int>(component - components_.cbegin()) : -1;
}

bool operator==(PipeString const& a, PipeString const& b)
{
    auto const same_part = [](PipeComponent const& x, PipeComponent const& y) { return x == y; };
    return a.set_depth_ == b.set_depth_ && a.name_ == b.name_ && a.is_tubing_ == b.is_tubing_ &&
           a.outer_cement_interval_ == b.outer_cement_interval_ &&
           a.outer_cement_description_ == b.outer_cement_description_ &&
           std::equal(a.components_.cbegin(), a.components_.cend(), b.components_.cbegin(),
                      b.components_.cend(), same_part);
}
