// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/XYChart.h"

#include "app/kit/SettingsSingleton.h"

#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {
BaseChart::Values Make(std::vector<float> values)
{
    return std::make_shared<std::vector<float> const>(std::move(values));
}

float const nan_value = std::numeric_limits<float>::quiet_NaN();

/// Pixels that show the colour of the line.
int CountLinePixels(QWidget& chart)
{
    QImage const image = chart.grab().toImage();
    QColor const color = chart.palette().color(QPalette::Highlight);
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == color;
        }
    }
    return count;
}
} // namespace

TEST(XYChartTest, AxesHaveRoundTicks)
{
    struct Case
    {
        Interval interval;
        int pixels;
        Interval axis;
        double step;
    };
    // Ticks stand at least 70 px apart: 700 px take up to 10 steps.
    Case const cases[] = {
        {{0, 100}, 700, {0, 100}, 10},
        {{3, 97}, 700, {0, 100}, 10},
        {{0, 101}, 700, {0, 120}, 20},
        {{-13, 4}, 700, {-14, 4}, 2},
        {{0, 0.42}, 700, {0, 0.45}, 0.05},
        {{1.0e6, 1.3e6}, 350, {1.0e6, 1.3e6}, 1e5},
        {{0, 3}, 70, {0, 5}, 5},
        {{0, 3}, 0, {0, 5}, 5},
        {{-5e-4, 5e-4}, 700, {-5e-4, 5e-4}, 1e-4},
    };
    for (Case const& test : cases) {
        BaseChart::Axis const axis = BaseChart::CalculateAxis(test.interval, test.pixels);
        EXPECT_NEAR(axis.step, test.step, test.step * 1e-9);
        EXPECT_NEAR(axis.interval.lower, test.axis.lower, test.step * 1e-6);
        EXPECT_NEAR(axis.interval.upper, test.axis.upper, test.step * 1e-6);
    }
    // One value stands inside its axis.
    for (double const value : {0.0, 5.0, -3e6, 1e30}) {
        BaseChart::Axis const axis = BaseChart::CalculateAxis({value, value}, 500);
        EXPECT_LT(axis.interval.lower, value);
        EXPECT_GT(axis.interval.upper, value);
        EXPECT_LE(axis.interval.Delta() / axis.step, 20);
    }
    double const infinity = std::numeric_limits<double>::infinity();
    for (Interval const& none :
         {Interval(), Interval(0, infinity), Interval(std::nan(""), 1), Interval(2, 1)}) {
        EXPECT_EQ(BaseChart::CalculateAxis(none, 500).interval, Interval(0, 1));
    }
}

TEST(XYChartTest, DecimalsTellTicksApart)
{
    EXPECT_EQ(BaseChart::CalculateDecimals(500), 0);
    EXPECT_EQ(BaseChart::CalculateDecimals(1), 0);
    EXPECT_EQ(BaseChart::CalculateDecimals(0.5), 1);
    EXPECT_EQ(BaseChart::CalculateDecimals(0.1), 1);
    EXPECT_EQ(BaseChart::CalculateDecimals(0.02), 2);
    EXPECT_EQ(BaseChart::CalculateDecimals(0), 0);
    EXPECT_EQ(BaseChart::CalculateDecimals(1e-300), 12);
}

TEST(XYChartTest, AxesSpanTheData)
{
    XYChart chart(Make({0, nan_value, 50, 100}), Make({-2, 1000, 3, std::numeric_limits<float>::infinity()}));
    chart.SetAxesTitles("Vsec", "Depth");
    chart.SetAxesUnits("m", "");
    chart.resize(700, 500);
    chart.grab();
    EXPECT_EQ(chart.GetXAxis().interval, Interval(0, 100));
    EXPECT_EQ(chart.GetYAxis().interval.lower, -200); // NaN and infinity count for nothing
    EXPECT_EQ(chart.GetYAxis().interval.upper, 1000);
    EXPECT_EQ(chart.GetXAxisTitle(), "Vsec [m]");
    EXPECT_EQ(chart.GetYAxisTitle(), "Depth");
}

TEST(XYChartTest, DrawsALineThroughItsPoints)
{
    XYChart chart(Make({0, 10}), Make({0, 10}));
    chart.resize(500, 400);
    EXPECT_GT(CountLinePixels(chart), 100);

    // Values that are not numbers break it; fewer than two points make none.
    XYChart broken(Make({0, 5, 10}), Make({0, nan_value, 10}));
    broken.resize(500, 400);
    EXPECT_LT(CountLinePixels(broken), 60);
    for (auto const& [x, y] : {std::pair(Make({}), Make({})), std::pair(Make({1}), Make({2, 3})),
                               std::pair(BaseChart::Values(), BaseChart::Values())}) {
        XYChart none(x, y);
        none.resize(500, 400);
        EXPECT_EQ(CountLinePixels(none), 0);
    }
}

TEST(XYChartTest, DepthsGrowDownwards)
{
    auto const highest_ink = [](bool downwards) {
        // Short at large values: a line from (0, 0) half way to (10, 10) and a point at (10, 0).
        XYChart chart(Make({0, 0.1F}), Make({10, 9.9F}));
        chart.SetYAxisDownwards(downwards);
        chart.resize(500, 400);
        QImage const image = chart.grab().toImage();
        QColor const color = chart.palette().color(QPalette::Highlight);
        double sum = 0;
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < 90; ++x) {
                if (image.pixelColor(x, y) == color) {
                    sum += y;
                    ++count;
                }
            }
        }
        return count > 0 ? sum / count : -1.0;
    };
    EXPECT_GT(highest_ink(true), highest_ink(false) + 100);
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
    chart.resize(700, 500);
    chart.show();
    // The one high sample is still there: ink in the upper half of the plot.
    QImage const image = chart.grab().toImage();
    QColor const color = chart.palette().color(QPalette::Highlight);
    bool has_peak = false;
    for (int px = 0; px < image.width(); ++px) {
        has_peak = has_peak || image.pixelColor(px, 150) == color;
    }
    EXPECT_TRUE(has_peak);
}
