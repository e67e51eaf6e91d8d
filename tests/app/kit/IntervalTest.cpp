// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/Interval.h"

namespace {

void ExpectInterval(Interval const& actual, double lower, double upper)
{
    EXPECT_EQ(actual.lower, lower);
    EXPECT_EQ(actual.upper, upper);
}
} // namespace

TEST(Interval, KeepsTheOrderOfItsEndsUntilSorted)
{
    Interval reversed(3, 1);
    ExpectInterval(reversed, 3, 1);
    for (double const x : {0.0, 1.0, 2.0, 3.0, 4.0}) {
        EXPECT_FALSE(reversed.Contains(x)) << x;
    }
    EXPECT_EQ(reversed.Delta(), -2);
    reversed.Sort();
    ExpectInterval(reversed, 1, 3);
    EXPECT_TRUE(reversed.Contains(1));
    EXPECT_TRUE(reversed.Contains(3));
    EXPECT_FALSE(reversed.Contains(std::nextafter(3.0, 4.0)));
    EXPECT_FALSE(reversed.Contains(NAN));
}

TEST(Interval, IsInside)
{
    EXPECT_TRUE(Interval(1, 2).IsInside(Interval(1, 2)));
    EXPECT_TRUE(Interval(1, 2).IsInside(Interval(0, 3)));
    EXPECT_FALSE(Interval(0, 2).IsInside(Interval(1, 3)));
    EXPECT_FALSE(Interval(1, 4).IsInside(Interval(1, 3)));
    EXPECT_TRUE(Interval().IsInside(Interval(5, 6)));
}

TEST(Interval, ForcesEachEndInsideOnItsOwn)
{
    Interval const other(5, 6);
    // Wholly below, wholly above, one end inside, both inside, both outside.
    for (auto const& [start, expected] :
         {std::pair(Interval(1, 2), other), std::pair(Interval(7, 8), other),
          std::pair(Interval(1, 5.5), Interval(5, 5.5)), std::pair(Interval(5.5, 9), Interval(5.5, 6)),
          std::pair(Interval(5.2, 5.4), Interval(5.2, 5.4)), std::pair(Interval(0, 9), other)}) {
        Interval interval = start;
        interval.ForceInside(other);
        EXPECT_EQ(interval, expected);
    }
}

TEST(Interval, ValidUnlessAnEndIsInfinite)
{
    constexpr double greatest = std::numeric_limits<double>::max();
    ExpectInterval(Interval(), INFINITY, -INFINITY); // grows to whatever is put into it
    EXPECT_FALSE(Interval().IsValid());
    EXPECT_FALSE(Interval(0, INFINITY).IsValid());
    EXPECT_FALSE(Interval(-INFINITY, 0).IsValid());
    EXPECT_TRUE(Interval(-greatest, greatest).IsValid());
    EXPECT_TRUE(Interval(NAN, NAN).IsValid());
}

TEST(Interval, OrdersByLowerThenUpperEnd)
{
    std::vector<Interval> intervals{{2, 3}, {1, 9}, {2, 1}, {1, 4}};
    std::sort(intervals.begin(), intervals.end());
    EXPECT_EQ(intervals, (std::vector<Interval>{{1, 4}, {1, 9}, {2, 1}, {2, 3}}));
    EXPECT_FALSE(Interval(1, 2) < Interval(1, 2));
    EXPECT_FALSE(Interval(1, NAN) == Interval(1, NAN));
}

TEST(Interval, MovesByANumberAndExpandsByAFactor)
{
    Interval interval(1, 4);
    interval += 2.5;
    ExpectInterval(interval, 3.5, 6.5);
    interval -= 0.5;
    ExpectInterval(interval, 3, 6);
    ExpectInterval(interval + 1, 4, 7);
    ExpectInterval(interval - 3, 0, 3);
    ExpectInterval(interval.Expand(0.25), 2.25, 6.75);
    ExpectInterval(interval, 2.25, 6.75);
    EXPECT_EQ(interval.Center(), 4.5);
}
