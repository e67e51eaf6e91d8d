// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/PipeString.h"

#include <QList>

#include <cstddef>
#include <list>
#include <optional>
#include <vector>

/// A sum of component volumes in barrels, with the warnings of the components in order.
struct VolumeResult
{
    float volume = 0;
    QList<QString> warnings;
};

/// All pipe strings of the well, from the inside to the outside: tubing strings first, then the others, each
/// group by ascending nominal ID. Lookups return pointers into the vector, valid until the next
/// SetPipeStringVector; null or an empty list when nothing is found. Depths in metres, both ends of an
/// interval included.
class PipeStringData
{
public:
    using ComponentList = std::list<CalculatedPipeComponent>;

    /// Copies and sorts; the order of equal strings is undefined. O(n^2) in the number of strings.
    void SetPipeStringVector(std::vector<PipeString> const& strings);
    [[nodiscard]] std::vector<PipeString> const& GetPipeStringVector() const { return strings_; }
    /// Union of the strings' intervals; no value without strings.
    [[nodiscard]] std::optional<Interval> GetDepthInterval_metric() const;

    [[nodiscard]] PipeString const* FindTubing() const;
    [[nodiscard]] PipeString const* FindLargestPipe() const;
    /// The string other than tubing that begins highest up.
    [[nodiscard]] PipeString const* FindUpperCasing() const;
    [[nodiscard]] PipeString const* FindLargestPipeAtDepth(double depth) const;
    [[nodiscard]] PipeString const* FindInnerPipeAtDepth(double depth) const;
    [[nodiscard]] CalculatedPipeComponent const* FindInnerPipeComponentAtDepth(double depth) const;
    [[nodiscard]] PipeString const* FindSmallestCasingAtDepth(double depth) const;
    [[nodiscard]] CalculatedPipeComponent const* FindTubingComponentAtDepth(double depth) const;
    /// The next pipe around `string` at the depth.
    [[nodiscard]] PipeString const* FindOutsidePipeAtDepth(PipeString const& string, double depth) const;
    [[nodiscard]] CalculatedPipeComponent const* FindOutsideComponentAtDepth(PipeString const& string,
                                                                             double depth) const;
    /// The uppermost liner hung off `string` that reaches below the depth.
    [[nodiscard]] PipeString const* FindAttachedLiner(PipeString const& string, double depth) const;

    // Flow paths, from the top down, clipped to the part that belongs to the path.

    /// The inner wall from a depth of `string` to the bottom of the well: into a liner where one is hung off,
    /// out to the next pipe at a shoe. Ends where strings lead back to a place already passed.
    [[nodiscard]] ComponentList TraceDownwards(PipeString const& string, double depth) const;
    /// The wall around the annulus between tubing and casing.
    [[nodiscard]] ComponentList Find_A_AnnulusAssembly() const;
    [[nodiscard]] ComponentList FindInnerComponentsFromTop() const;
    [[nodiscard]] ComponentList FindProductionCasings(double depth) const;
    /// The outermost wall over an interval. When the first component of a pipe reaches past the interval's
    /// end, it is given with its part below that end.
    [[nodiscard]] ComponentList TraceOuterPipeDownwards(Interval const& interval) const;
    /// The whole first tubing string.
    [[nodiscard]] ComponentList FindCompleteTubingAssembly() const;
    /// The first tubing string down to the top of a liner attached to it.
    [[nodiscard]] ComponentList FindAccessibleTubingAssembly() const;

    // Volumes in barrels. Each appends a line per component to `log` when one is given.
    // They throw std::invalid_argument for a component without any diameter.

    /// The interval's start is cut off exactly; the component that straddles it counts down to its own
    /// bottom, and a next component that begins below the interval's end then counts a negative length.
    [[nodiscard]] static VolumeResult CalculateVolume(ComponentList list, Interval const& interval,
                                                      QString* log);
    [[nodiscard]] static VolumeResult CalculateDisplacement(ComponentList list, Interval const& interval,
                                                            QString* log);
    /// Summed from the end upwards; stretches in which two components overlap count once.
    [[nodiscard]] static VolumeResult CalculateVolumeBelowDepth(ComponentList list, double depth,
                                                                QString* log);
    [[nodiscard]] static float CalculateTotalVolume(ComponentList list);
    /// One line of the log; depths in metres, shown in the settings' unit.
    [[nodiscard]] static QString GenerateDebugString(CalculatedPipeComponent const& component, double from,
                                                     double to, double volume, double accumulated);

    [[nodiscard]] friend bool operator==(PipeStringData const& a, PipeStringData const& b)
    {
        return a.strings_ == b.strings_;
    }

private:
    std::vector<PipeString> strings_;
    /// For each string the index of the pipe around its top, -1 where there is none: what a path asks of
    /// every string at every step.
    std::vector<std::ptrdiff_t> outside_at_top_;
};
