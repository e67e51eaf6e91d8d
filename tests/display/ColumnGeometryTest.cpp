// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnGeometry.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Quorrel;

TEST(ColumnGeometryTest, ZoomAboutCentreScalesTheLength)
{
    EXPECT_EQ(ZoomAboutCentre({1000, 2000}, 2.0F), Interval(1250, 1750));
    EXPECT_EQ(ZoomAboutCentre({1000, 2000}, 0.5F), Interval(500, 2500));
    EXPECT_EQ(ZoomAboutCentre({-10, 10}, 4.0F), Interval(-2.5, 2.5));
}

TEST(ColumnGeometryTest, ZoomAboutDepthKeepsTheDepthInPlace)
{
    struct Case
    {
        float depth;
        float factor;
        Interval expected;
    };
    // A fifth of the way down stays a fifth of the way down.
    Case const cases[] = {
        {1200, 2.0F, {1100, 1600}}, {1200, 0.5F, {800, 2800}},  {1000, 2.0F, {1000, 1500}},
        {2000, 2.0F, {1500, 2000}}, {1500, 4.0F, {1375, 1625}}, {2500, 2.0F, {1750, 2250}},
    };
    for (Case const& c : cases) {
        Interval const zoomed = ZoomAboutDepth({1000, 2000}, c.depth, c.factor);
        EXPECT_DOUBLE_EQ(zoomed.lower, c.expected.lower) << c.depth << " by " << c.factor;
        EXPECT_DOUBLE_EQ(zoomed.upper, c.expected.upper) << c.depth << " by " << c.factor;
    }
    EXPECT_EQ(ZoomAboutDepth({7, 7}, 7, 2.0F), Interval(7, 7));
}

TEST(ColumnGeometryTest, RowToDepthRoundsTheScaleToSinglePrecision)
{
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(0, 501, {1000, 2000}), 1000);
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(250, 501, {1000, 2000}), 1500);
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(500, 501, {1000, 2000}), 2000);
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(-1, 501, {1000, 2000}), 998);
    // A third in single precision is 0.3333333432674407958984375.
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(1, 4, {1000, 1001}), 1000.3333333432674407958984375);
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(5, 1, {1000, 1001}), 1000);
    EXPECT_DOUBLE_EQ(ConvertRowToDepth(5, 0, {1000, 1001}), 1000);
}

TEST(ColumnGeometryTest, ScrollBarShowsThePlaceOfTheView)
{
    double const infinity = std::numeric_limits<double>::infinity();
    struct Case
    {
        char const* what;
        Interval total;
        Interval view;
        int height;
        ScrollBarState expected;
    };
    Case const cases[] = {
        {"a quarter of the way", {0, 5000}, {1000, 2000}, 600, {2400, 600}},
        {"at the top", {0, 5000}, {0, 1000}, 600, {2400, 0}},
        {"at the bottom", {0, 5000}, {4000, 5000}, 600, {2400, 2400}},
        {"a total that does not begin at 0", {-100, 900}, {150, 650}, 300, {300, 150}},
        {"100 * (10 / 3 - 1) = 233.3, half of it 116.5", {0, 1000}, {350, 650}, 100, {233, 116}},
        {"all of it", {0, 5000}, {0, 5000}, 600, {0, 0}},
        {"a view longer than the total", {0, 1000}, {-10, 1010}, 600, {0, 0}},
        {"a view above the total", {1000, 2000}, {900, 1100}, 100, {400, 0}},
        {"no height", {0, 5000}, {1000, 2000}, 0, {0, 0}},
        {"a view without length", {0, 5000}, {1000, 1000}, 600, {0, 0}},
        {"nothing at all", Interval(), Interval(), 600, {0, 0}},
        {"more than an int holds", {0, 1e12}, {0, 1e-3}, 1000, {std::numeric_limits<int>::max(), 0}},
        {"endless", {0, infinity}, {0, 1}, 600, {0, 0}},
    };
    for (Case const& c : cases) {
        ScrollBarState const state = CalculateScrollBar(c.total, c.view, c.height);
        EXPECT_EQ(state.maximum, c.expected.maximum) << c.what;
        EXPECT_EQ(state.position, c.expected.position) << c.what;
    }
}

TEST(ColumnGeometryTest, OneUnitOfTheBarIsTheLengthByTheFullHeight)
{
    // 1000 m over 500 px are 2 m a unit; over 499 px they would be 2.004 m.
    EXPECT_EQ(ScrollToPosition({0, 5000}, {1000, 2000}, 500, 100), Interval(200, 1200));
    EXPECT_EQ(ScrollToPosition({-50, 5000}, {1000, 2000}, 500, 0), Interval(-50, 950));
    EXPECT_EQ(ScrollToPosition({0, 5000}, {1000, 2000}, 0, 100), Interval(1000, 2000));
    // The bar's own end shows the end of the total, and the place goes through the bar unchanged.
    ScrollBarState const end = CalculateScrollBar({0, 5000}, {4000, 5000}, 500);
    EXPECT_EQ(ScrollToPosition({0, 5000}, {0, 1000}, 500, end.maximum), Interval(4000, 5000));
}
