// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnGeometry.h"

using namespace Quorrel;

TEST(ColumnGeometryTest, ZoomAboutDepthKeepsTheDepthInPlace)
{
    // An end stays the end, and a depth beyond the view stays as far beyond it.
    for (auto const& [depth, expected] :
         {std::pair(1000.0F, Interval(1000, 1500)), std::pair(2000.0F, Interval(1500, 2000)),
          std::pair(2500.0F, Interval(1750, 2250))}) {
        EXPECT_EQ(ZoomAboutDepth({1000, 2000}, depth, 2.0F), expected) << depth;
    }
    EXPECT_EQ(ZoomAboutDepth({7, 7}, 7, 2.0F), Interval(7, 7));
}

TEST(ColumnGeometryTest, RowToDepthRoundsTheScaleToSinglePrecision)
{
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(-1, 501, {1000, 2000}), 998);
    // A third in single precision is 0.3333333432674407958984375.
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(1, 4, {1000, 1001}), 1000.3333333432674407958984375);
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(5, 1, {1000, 1001}), 1000);
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(5, 0, {1000, 1001}), 1000);
}

TEST(ColumnGeometryTest, ScrollBarShowsThePlaceOfTheView)
{
    using Case = std::tuple<char const*, Interval, Interval, int, ScrollBarState>;
    for (auto const& [what, total, view, height, expected] : std::vector<Case>{
             {"a total that does not begin at 0", {-100, 900}, {150, 650}, 300, {300, 150}},
             {"100 * (10 / 3 - 1) = 233.3, half of it 116.5", {0, 1000}, {350, 650}, 100, {233, 116}},
             {"a view longer than the total", {0, 1000}, {-10, 1010}, 600, {0, 0}},
             {"a view above the total", {1000, 2000}, {900, 1100}, 100, {400, 0}},
             {"no height", {0, 5000}, {1000, 2000}, 0, {0, 0}},
             {"a view without length", {0, 5000}, {1000, 1000}, 600, {0, 0}},
             {"nothing at all", Interval(), Interval(), 600, {0, 0}},
             {"more than an int holds", {0, 1e12}, {0, 1e-3}, 1000, {std::numeric_limits<int>::max(), 0}},
             {"endless", {0, INFINITY}, {0, 1}, 600, {0, 0}},
         }) {
        ScrollBarState const state = CalculateScrollBar(total, view, height);
        EXPECT_EQ(state.maximum, expected.maximum) << what;
        EXPECT_EQ(state.position, expected.position) << what;
    }
}

TEST(ColumnGeometryTest, OneUnitOfTheBarIsTheLengthByTheFullHeight)
{
    EXPECT_EQ(ScrollToPosition({-50, 5000}, {1000, 2000}, 500, 0), Interval(-50, 950));
    EXPECT_EQ(ScrollToPosition({0, 5000}, {1000, 2000}, 0, 100), Interval(1000, 2000));
}
