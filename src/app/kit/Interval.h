// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cmath>
#include <limits>
#include <utility>

/// Two doubles, `lower` then `upper`, without any order between them unless Sort() was called.
/// The default is the empty interval (+infinity, -infinity), the identity for growing by minimum and maximum.
struct Interval
{
    double lower = std::numeric_limits<double>::infinity();
    double upper = -std::numeric_limits<double>::infinity();

    constexpr Interval() = default;
    /// Takes the ends as given; does not sort.
    constexpr Interval(double lower_end, double upper_end) : lower(lower_end), upper(upper_end) {}

    [[nodiscard]] constexpr bool IsInside(Interval const& other) const
    {
        return lower >= other.lower && other.upper >= upper;
    }

    /// Both ends count as inside.
    [[nodiscard]] constexpr bool Contains(double x) const { return upper >= x && x >= lower; }

    /// Replaces each end that lies outside `other`, independently, by the same end of `other`.
    constexpr void ForceInside(Interval const& other)
    {
        if (!other.Contains(lower)) {
            lower = other.lower;
        }
        if (!other.Contains(upper)) {
            upper = other.upper;
        }
    }

    [[nodiscard]] constexpr double Delta() const { return upper - lower; }
    [[nodiscard]] constexpr double Center() const { return (lower + upper) * 0.5; }

    /// Moves each end outwards by `factor` times the length (so 0.05 widens by 10 percent in all);
    /// changes the object and returns a copy.
    constexpr Interval Expand(double factor)
    {
        double const delta = (upper - lower) * factor;
        lower -= delta;
        upper += delta;
        return *this;
    }

    /// False when an end is infinite. A NaN end passes.
    [[nodiscard]] bool IsValid() const
    {
        constexpr double greatest = std::numeric_limits<double>::max();
        return !(std::fabs(lower) > greatest) && !(std::fabs(upper) > greatest);
    }

    constexpr void Sort()
    {
        if (lower > upper) {
            std::swap(lower, upper);
        }
    }

    constexpr Interval& operator+=(double value)
    {
        lower += value;
        upper += value;
        return *this;
    }

    constexpr Interval& operator-=(double value)
    {
        lower -= value;
        upper -= value;
        return *this;
    }

    /// By the lower end, then by the upper.
    [[nodiscard]] constexpr bool operator<(Interval const& other) const
    {
        return lower != other.lower ? lower < other.lower : upper < other.upper;
    }
};

[[nodiscard]] constexpr bool operator==(Interval const& a, Interval const& b)
{
    return a.lower == b.lower && a.upper == b.upper;
}

[[nodiscard]] constexpr Interval operator+(Interval interval, double value)
{
    return interval += value;
}
[[nodiscard]] constexpr Interval operator-(Interval interval, double value)
{
    return interval -= value;
}
