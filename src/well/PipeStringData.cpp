// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/PipeStringData.h"

#include "well/SortOrder.h"

#include <algorithm>

void PipeStringData::SetPipeStringVector(std::vector<PipeString> const& strings)
{
    strings_ = strings;
    std::stable_sort(strings_.begin(), strings_.end(), [](PipeString const& a, PipeString const& b) {
        if (a.GetIsTubing() != b.GetIsTubing()) {
            return a.GetIsTubing();
        }
        return Quorrel::AscendingNanLast(a.GetNominalID(), b.GetNominalID());
    });
    outside_at_top_.clear();
    for (PipeString const& string : strings_) {
        PipeString const* const outside = FindOutsidePipeAtDepth(string, string.GetDepthInterval().lower);
        outside_at_top_.push_back(outside != nullptr ? outside - strings_.data() : -1);
    }
}

std::optional<Interval> PipeStringData::GetDepthInterval_metric() const
{
    if (strings_.empty()) {
        return std::nullopt;
    }
    Interval all;
    for (PipeString const& string : strings_) {
        all.lower = std::min(all.lower, string.GetDepthInterval().lower);
        all.upper = std::max(all.upper, string.GetDepthInterval().upper);
    }
    return all;
}

PipeString const* PipeStringData::FindTubing() const
{
    auto const found = std::find_if(strings_.cbegin(), strings_.cend(),
                                    [](PipeString const& string) { return string.GetIsTubing(); });
    return found != strings_.cend() ? &*found : nullptr;
}

PipeString const* PipeStringData::FindLargestPipe() const
{
    return strings_.empty() ? nullptr : &strings_.back();
}

PipeString const* PipeStringData::FindUpperCasing() const
{
    PipeString const* upper = nullptr;
    for (PipeString const& string : strings_) {
        if (!string.GetIsTubing() &&
            (upper == nullptr || string.GetDepthInterval().lower < upper->GetDepthInterval().lower)) {
            upper = &string;
        }
    }
    return upper;
}

PipeString const* PipeStringData::FindLargestPipeAtDepth(double depth) const
{
    auto const found = std::find_if(strings_.crbegin(), strings_.crend(),
                                    [depth](PipeString const& string) { return string == depth; });
    return found != strings_.crend() ? &*found : nullptr;
}

PipeString const* PipeStringData::FindInnerPipeAtDepth(double depth) const
{
    auto const found = std::find_if(strings_.cbegin(), strings_.cend(),
                                    [depth](PipeString const& string) { return string == depth; });
    return found != strings_.cend() ? &*found : nullptr;
}

CalculatedPipeComponent const* PipeStringData::FindInnerPipeComponentAtDepth(double depth) const
{
    PipeString const* const string = FindInnerPipeAtDepth(depth);
    return string != nullptr ? string->FindComponentAtDepth(depth) : nullptr;
}

PipeString const* PipeStringData::FindSmallestCasingAtDepth(double depth) const
{
    auto const found = std::find_if(strings_.cbegin(), strings_.cend(), [depth](PipeString const& string) {
        return !string.GetIsTubing() && string == depth;
    });
    return found != strings_.cend() ? &*found : nullptr;
}

CalculatedPipeComponent const* PipeStringData::FindTubingComponentAtDepth(double depth) const
{
    PipeString const* const tubing = FindTubing();
    return tubing != nullptr ? tubing->FindComponentAtDepth(depth) : nullptr;
}

PipeString const* PipeStringData::FindOutsidePipeAtDepth(PipeString const& string, double depth) const
{
    CalculatedPipeComponent const* const inner = string.FindComponentAtDepth(depth);
    if (inner == nullptr) {
        return nullptr;
    }
    PipeString const* outside = nullptr;
    float smallest_id = 0;
    for (PipeString const& candidate : strings_) {
        if (!(candidate == depth) || !(candidate.GetODinterval().upper > inner->GetOD())) {
            continue;
        }
        CalculatedPipeComponent const* const component = candidate.FindComponentAtDepth(depth);
        if (component == nullptr || !(component->GetNonNullOd() > inner->GetNonNullOd())) {
            continue;
        }
        if (outside == nullptr || component->GetNonNullId() < smallest_id) {
            outside = &candidate;
            smallest_id = component->GetNonNullId();
        }
    }
    return outside;
}

CalculatedPipeComponent const* PipeStringData::FindOutsideComponentAtDepth(PipeString const& string,
                                                                           double depth) const
{
    PipeString const* const outside = FindOutsidePipeAtDepth(string, depth);
    return outside != nullptr ? outside->FindComponentAtDepth(depth) : nullptr;
}

PipeString const* PipeStringData::FindAttachedLiner(PipeString const& string, double depth) const
{
    PipeString const* liner = nullptr;
    for (std::size_t i = 0; i < strings_.size(); ++i) {
        PipeString const& candidate = strings_[i];
        Interval const& interval = candidate.GetDepthInterval();
        bool const qualifies = !candidate.GetIsTubing() && !(depth >= interval.upper) &&
                               string == interval.lower &&
                               string.GetIDinterval().upper > candidate.GetIDinterval().upper &&
                               outside_at_top_[i] >= 0 && strings_[outside_at_top_[i]] == string;
        if (qualifies && (liner == nullptr || interval.lower < liner->GetDepthInterval().lower)) {
            liner = &candidate;
        }
    }
    return liner;
}

PipeStringData::ComponentList PipeStringData::TraceDownwards(PipeString const& string, double depth) const
{
    ComponentList path;
    PipeString const* current = &string;
    while (current != nullptr) {
        PipeString const* const liner = FindAttachedLiner(*current, depth);
        bool const ends_at_liner = liner != nullptr && liner->GetDepthInterval().lower > depth;
        double const end =
            ends_at_liner ? liner->GetDepthInterval().lower : current->GetDepthInterval().upper;
        auto component = current->FindPipeComponentIterator(depth);
        if (component == current->GetComponents().cend()) {
            break;
        }
        path.push_back(*component);
        path.back().SetMinDepth(depth);
        for (++component; component != current->GetComponents().cend() && component->GetMinDepth() < end;
             ++component) {
            path.push_back(*component);
        }
        path.back().SetMaxDepth(end);
        // Each further stretch lies deeper or, at the same depth, in a wider pipe; only a string with
        // negative lengths leads upwards, and would lead back here for ever.
        if (!(end >= depth)) {
            break;
        }
        current = ends_at_liner ? liner : FindOutsidePipeAtDepth(*current, end);
        depth = end;
    }
    return path;
}

PipeStringData::ComponentList PipeStringData::Find_A_AnnulusAssembly() const
{
    PipeString const* const tubing = FindTubing();
    if (tubing == nullptr) {
        return {};
    }
    double const tubing_top = tubing->GetDepthInterval().lower;
    PipeString const* casing = FindSmallestCasingAtDepth(tubing_top);
    if (casing == nullptr) {
        casing = FindUpperCasing();
    }
    if (casing == nullptr) {
        return {};
    }
    return TraceDownwards(*casing, std::max(casing->GetDepthInterval().lower, tubing_top));
}

PipeStringData::ComponentList PipeStringData::FindInnerComponentsFromTop() const
{
    PipeString const* string = FindTubing();
    if (string == nullptr) {
        string = FindUpperCasing();
    }
    return string != nullptr ? TraceDownwards(*string, string->GetDepthInterval().lower) : ComponentList();
}

PipeStringData::ComponentList PipeStringData::FindProductionCasings(double depth) const
{
    PipeString const* const casing = FindSmallestCasingAtDepth(depth);
    return casing != nullptr ? TraceDownwards(*casing, depth) : ComponentList();
}

PipeStringData::ComponentList PipeStringData::TraceOuterPipeDownwards(Interval const& interval) const
{
    ComponentList path;
    double depth = interval.lower;
    PipeString const* pipe = FindLargestPipeAtDepth(depth);
    while (pipe != nullptr) {
        auto component = pipe->FindPipeComponentIterator(depth);
        if (component == pipe->GetComponents().cend()) {
            break;
        }
        path.push_back(*component);
        path.back().SetMinDepth(depth);
        if (component->GetMaxDepth() > interval.upper) {
            path.back().SetMinDepth(interval.upper);
            return path;
        }
        for (++component; component != pipe->GetComponents().cend(); ++component) {
            path.push_back(*component);
            if (component->GetMaxDepth() > interval.upper) {
                path.back().SetMaxDepth(interval.upper);
                return path;
            }
        }
        double const shoe = path.back().GetMaxDepth();
        // Past the shoe for the choice of the pipe only.
        PipeString const* const next = FindLargestPipeAtDepth(shoe + 0.01);
        if (!(shoe >= depth) || (shoe == depth && next == pipe)) {
            break; // negative lengths or depths beyond all precision would lead round in circles
        }
        pipe = next;
        depth = shoe;
    }
    return path;
}

PipeStringData::ComponentList PipeStringData::FindCompleteTubingAssembly() const
{
    PipeString const* const tubing = FindTubing();
    return tubing != nullptr ? ComponentList(tubing->GetComponents().cbegin(), tubing->GetComponents().cend())
                             : ComponentList();
}

PipeStringData::ComponentList PipeStringData::FindAccessibleTubingAssembly() const
{
    ComponentList path;
    PipeString const* const tubing = FindTubing();
    if (tubing == nullptr) {
        return path;
    }
    PipeString const* const liner = FindAttachedLiner(*tubing, tubing->GetDepthInterval().lower);
    double const limit =
        liner != nullptr ? liner->GetDepthInterval().lower : tubing->GetDepthInterval().upper;
    for (CalculatedPipeComponent const& component : tubing->GetComponents()) {
        path.push_back(component);
        if (component.GetMaxDepth() > limit) {
            path.back().SetMaxDepth(limit);
            break;
        }
    }
    return path;
}
