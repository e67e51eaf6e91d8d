// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/XYChart.h"

#include "support/Pixels.h"

namespace {
BaseChart::Values Make(std::vector<float> values)
{
    return std::make_shared<std::vector<float> const>(std::move(values));
}

/// How many of the chart's 500 x 400 pixels show the colour of the line.
int CountLinePixels(QWidget& chart, QRect const& part = {})
{
    chart.resize(500, 400);
    return pixels::Count(chart.grab().toImage(), chart.palette().color(QPalette::Highlight), part);
}
} // namespace

TEST(XYChartTest, AxesHaveRoundTicks)
{
    // Ticks stand at least 70 px apart: 700 px take up to 10 steps.
    for (auto const& [interval, pixels, expected, step] :
         std::vector<std::tuple<Interval, int, Interval, double>>{
             {{3, 97}, 700, {0, 100}, 10},
             {{0, 101}, 700, {0, 120}, 20},
             {{-13, 4}, 700, {-14, 4}, 2},
             {{0, 0.42}, 700, {0, 0.45}, 0.05},
             {{1.0e6, 1.3e6}, 350, {1.0e6, 1.3e6}, 1e5},
             {{0, 3}, 70, {0, 5}, 5},
             {{0, 3}, 0, {0, 5}, 5},
             {{-5e-4, 5e-4}, 700, {-5e-4, 5e-4}, 1e-4},
         }) {
        BaseChart::Axis const axis = BaseChart::CalculateAxis(interval, pixels);
        EXPECT_NEAR(axis.step, step, step * 1e-9);
        EXPECT_NEAR(axis.interval.lower, expected.lower, step * 1e-6);
        EXPECT_NEAR(axis.interval.upper, expected.upper, step * 1e-6);
    }
    // One value stands inside its axis.
    for (double const value : {0.0, 5.0, -3e6, 1e30}) {
        BaseChart::Axis const axis = BaseChart::CalculateAxis({value, value}, 500);
        EXPECT_LT(axis.interval.lower, value);
        EXPECT_GT(axis.interval.upper, value);
        EXPECT_LE(axis.interval.Delta() / axis.step, 20);
    }
    for (Interval const& none :
         {Interval(), Interval(0, INFINITY), Interval(std::nan(""), 1), Interval(2, 1)}) {
        EXPECT_EQ(BaseChart::CalculateAxis(none, 500).interval, Interval(0, 1));
    }
}

TEST(XYChartTest, DecimalsTellTicksApart)
{
    for (auto const& [step, decimals] :
         {std::pair(500.0, 0), std::pair(1.0, 0), std::pair(0.5, 1), std::pair(0.1, 1), std::pair(0.02, 2),
          std::pair(0.0, 0), std::pair(1e-300, 12)}) {
        EXPECT_EQ(BaseChart::CalculateDecimals(step), decimals) << step;
    }
}

TEST(XYChartTest, AxesSpanTheData)
{
    XYChart chart(Make({0, NAN, 50, 100}), Make({-2, 1000, 3, std::numeric_limits<float>::infinity()}));
    chart.resize(700, 500);
    chart.grab();
    EXPECT_EQ(chart.GetXAxis().interval, Interval(0, 100));
    EXPECT_EQ(chart.GetYAxis().interval, Interval(-200, 1000)) << "NaN and infinity count for nothing";
}

TEST(XYChartTest, DrawsALineThroughItsPoints)
{
    XYChart chart(Make({0, 10}), Make({0, 10}));
    EXPECT_GT(CountLinePixels(chart), 100);

    // Values that are not numbers break it; fewer than two points make none.
    XYChart broken(Make({0, 5, 10}), Make({0, NAN, 10}));
    EXPECT_LT(CountLinePixels(broken), 60);
    for (auto const& [x, y] : {std::pair(Make({}), Make({})), std::pair(Make({1}), Make({2, 3})),
                               std::pair(BaseChart::Values(), BaseChart::Values())}) {
        XYChart none(x, y);
        EXPECT_EQ(CountLinePixels(none), 0);
    }
}

TEST(XYChartTest, DepthsGrowDownwards)
{
    for (bool const downwards : {false, true}) {
        // A curve that is at 10 along most of its way.
        XYChart chart(Make({0, 1, 10}), Make({0, 10, 10}));
        chart.SetYAxisDownwards(downwards);
        int const above = CountLinePixels(chart, QRect(150, 0, 350, 200));
        int const below = CountLinePixels(chart, QRect(150, 200, 350, 200));
        EXPECT_GT(downwards ? below : above, 10);
        EXPECT_EQ(downwards ? above : below, 0);
    }
}

TEST(XYChartTest, AMillionPointsAreThinned)
{
    std::vector<float> x(1'000'000);
    std::vector<float> y(x.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        x[i] = static_cast<float>(i);
        y[i] = i == 500'000 ? 100.0F : static_cast<float>(i % 2);
    }
    XYChart chart(Make(std::move(x)), Make(std::move(y)));
    EXPECT_GT(CountLinePixels(chart, QRect(0, 120, 500, 1)), 0) << "the one high sample is still there";
}
