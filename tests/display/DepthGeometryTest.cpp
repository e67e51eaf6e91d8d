// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthGeometry.h"

constexpr int INT_LEAST = std::numeric_limits<int>::min();
constexpr int INT_GREATEST = std::numeric_limits<int>::max();

TEST(DepthGeometryTest, DepthToRow)
{
    for (auto const& [depth, height, interval, row] : std::vector<std::tuple<float, int, Interval, int>>{
             {200, 501, {100, 200}, 500}, // the bottom is the last row, not the one behind it
             {2.5F, 11, {0, 10}, 3},      // halves go away from zero
             {2.49F, 11, {0, 10}, 2},
             {-2.5F, 11, {0, 10}, -3},
             {25, 11, {0, 10}, 25},
             {7, 1, {0, 10}, 0},
             {7, 0, {0, 10}, -1},
             {7, 100, {5, 5}, 0},
             {1e30F, 100, {0, 1}, INT_GREATEST},
             {-1e30F, 100, {0, 1}, INT_LEAST},
             {INFINITY, 100, {0, 1}, INT_GREATEST},
             {NAN, 100, {0, 1}, 0},
             {3, 100, {-1e300, 1e300}, 50}, // 49.5
             {3, 100, Interval(), 0},
         }) {
        EXPECT_EQ(Quorrel::ConvertDepthToYValue(depth, height, interval), row) << depth << " " << height;
    }
}

TEST(DepthGeometryTest, RowToDepth)
{
    EXPECT_DOUBLE_EQ(Quorrel::ConvertYValueToDepth_metric(-4, 401, {1000, 1100}), 999);
    EXPECT_DOUBLE_EQ(Quorrel::ConvertYValueToDepth_metric(5, 1, {1000, 1100}), 1000);
}

TEST(DepthGeometryTest, DepthToIndexTruncatesTowardsZero)
{
    auto const index = [](float depth) { return Quorrel::ConvertDepthToIndex(depth, 5, 100, 104); };
    for (auto const& [depth, expected] :
         {std::pair(102.9F, 2), std::pair(106.5F, 6), std::pair(99.1F, 0), std::pair(98.5F, -1),
          std::pair(1e30F, INT_GREATEST), std::pair(NAN, 0)}) {
        EXPECT_EQ(index(depth), expected) << depth;
    }
    EXPECT_EQ(Quorrel::ConvertDepthToIndex(7, 1, 7, 7), 0);
    EXPECT_EQ(Quorrel::ConvertDepthToIndex(8, 5, 7, 7), INT_GREATEST);
    EXPECT_EQ(Quorrel::ConvertDepthToIndex(8, 0, 7, 9), 0);
}

TEST(DepthGeometryTest, ValueToColumnAndBack)
{
    EXPECT_FLOAT_EQ(Quorrel::ConvertCurveValueToX(-15, {0, 150}, 200), -20);
    // Reversed, as for porosity.
    EXPECT_FLOAT_EQ(Quorrel::ConvertCurveValueToX(0.15F, {0.45, -0.15}, 200), 100);
    EXPECT_FLOAT_EQ(Quorrel::ConvertXtoCurveValue(50, {0.45, -0.15}, 200), 0.3F);
    EXPECT_FLOAT_EQ(Quorrel::ConvertXtoCurveValue(-20, {0, 150}, 200), -15);
    EXPECT_FLOAT_EQ(Quorrel::ConvertXtoCurveValue(10, {3, 150}, 0), 3);
}
