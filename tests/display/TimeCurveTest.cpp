// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/TimeCurve.h"

#include "ColumnFixture.h"
#include "display/CurveColors.h"
#include "display/TimeCurveOverlay.h"
#include "display/TimeCurveVector.h"

#include <QApplication>
#include <QEnterEvent>
#include <cstdlib>

namespace {
std::shared_ptr<TimeLog> MakeLog(std::vector<float> const& samples, float depth = 150,
                                 char const* hash = "time")
{
    return MakeTimeLog(QString::fromLatin1(hash), depth, {"SPIN"}, samples);
}

constexpr int T = 6;

QImage PaintOverlay(TimeCurveOverlay const& overlay)
{
    return pixels::Paint({200, 12}, Qt::black,
                         [&](QPainter& painter) { overlay.RenderToPainter(painter, 200, 12, T); });
}
} // namespace

TEST(TimeCurveTest, AverageAndPopulationDeviation)
{
    auto const log = MakeLog({2, 4, 4, 4, 5, 5, 7, 9}, 1);
    TimeCurve const curve(log->GetDataChannel(0));
    EXPECT_EQ(curve.GetMinMax(), Interval(2, 9));
    EXPECT_FLOAT_EQ(curve.GetAverageValue(), 5);
    EXPECT_FLOAT_EQ(curve.GetStandardDeviation(), 2); // squares of differences add up to 32

    // A million samples around a large number: a running sum in single precision would be off.
    std::vector<float> many(1'000'000);
    for (std::size_t i = 0; i < many.size(); ++i) {
        many[i] = i % 2 == 0 ? 4000.25F : 4000.75F;
    }
    auto const long_log = MakeLog(many, 1);
    TimeCurve const steady(long_log->GetDataChannel(0));
    EXPECT_FLOAT_EQ(steady.GetAverageValue(), 4000.5F);
    EXPECT_NEAR(steady.GetStandardDeviation(), 0.25F, 1e-4F);
}

TEST(TimeCurveTest, WithoutSamplesAndWithoutChannel)
{
    auto log = MakeLog({}, 10);
    TimeCurve const curve(log->GetDataChannel(0));
    EXPECT_EQ(curve.GetMinMax(), Interval());
    EXPECT_EQ(curve.GetAverageValue(), 0);
    EXPECT_EQ(curve.GetStandardDeviation(), 0);
    log.reset();
    EXPECT_TRUE(std::isnan(curve.GetLogDepth()));
    EXPECT_TRUE(curve.IsDependentOn({1, QStringLiteral("time"), 0}));
}

TEST(TimeCurveOverlayTest, Geometry)
{
    auto const place = [](Interval const& values, Interval const& scale, int width, float depth = 150) {
        return TimeCurveOverlay::CalculateGeometry(values, scale, depth, {100, 200}, width, 101, T);
    };
    // Columns 40 to 119, rows 44 to 55: six rows above the depth's row, five below.
    QRect const expected(QPoint(40, 44), QPoint(119, 55));
    EXPECT_EQ(place({20, 60}, {0, 100}, 200), expected);
    EXPECT_EQ(place({20, 60}, {80, 0}, 160), expected);
    EXPECT_EQ(place({20, 20}, {0, 100}, 200).width(), 0);
    QRect const huge = place({-1e30, 1e30}, {0, 1}, 200, 1e30F);
    EXPECT_LT(huge.width(), QWIDGETSIZE_MAX);
    EXPECT_EQ(huge.height(), 2 * T);
    EXPECT_GE(place(Interval(), {5, 5}, 200).height(), 0);
}

TEST(TimeCurveOverlayTest, TheFirstResolutionIsKept)
{
    // In a process of its own, as other tests may have drawn overlays before.
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            bool const is_kept = TimeCurveOverlay::GetHalfHeight(0) == 0 &&  // no screen yet
                                 TimeCurveOverlay::GetHalfHeight(96) == 6 && // 6.72
                                 TimeCurveOverlay::GetHalfHeight(300) == 6;
            std::exit(is_kept ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");

    auto const log = MakeLog({20, 60});
    QWidget view;
    TimeCurveOverlay overlay(&view, log->GetDataChannel(0));
    overlay.Place({0, 100}, 150, {100, 200}, 200, 101, 300);
    int const half_height = TimeCurveOverlay::GetHalfHeight(96);
    EXPECT_EQ(overlay.geometry(), QRect(QPoint(40, 50 - half_height), QPoint(119, 49 + half_height)));
    EXPECT_FALSE(overlay.isHidden());
}

TEST(TimeCurveOverlayTest, DrawsTheBarAndTheAverage)
{
    auto const log = MakeLog({0, 0, 0, 100}); // a quarter up the extent
    TimeCurveOverlay overlay(nullptr, log->GetDataChannel(0));
    overlay.SetCurvePen(QPen(QColor(0, 0, 255)));
    QImage const image = PaintOverlay(overlay);
    QColor const blue(0, 0, 255);
    // The bar with its round ends; the average at 200 * 0.25 - 3 = 47, three pixels to each side, over the
    // whole height.
    pixels::Expect(image, blue, {{100, 6}, {5, 6}, {45, 0}, {48, 0}, {45, 11}, {48, 11}});
    pixels::Expect(image, Qt::black, {{100, 1}, {1, 6}, {198, 6}, {42, 0}, {52, 0}, {42, 11}, {52, 11}});

    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(&overlay, &enter);
    pixels::Expect(PaintOverlay(overlay), QColor(255, 255, 0), {{100, 6}}); // the opposite hue
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&overlay, &leave);
    EXPECT_EQ(PaintOverlay(overlay), image);

    // On a scale from right to left the smaller values are at the right.
    QWidget view;
    TimeCurveOverlay mirrored(&view, log->GetDataChannel(0));
    mirrored.SetCurvePen(QPen(blue));
    mirrored.Place({100, 0}, 150, {100, 200}, 200, 101, 96);
    pixels::Expect(PaintOverlay(mirrored), blue, {{147, 0}});
    pixels::Expect(PaintOverlay(mirrored), Qt::black, {{47, 0}});

    auto const constant = MakeLog({7, 7, 7});
    TimeCurveOverlay const no_average(nullptr, constant->GetDataChannel(0));
    EXPECT_EQ(pixels::Count(PaintOverlay(no_average), Qt::black, QRect(0, 0, 200, 1)), 200);
}

TEST(TimeCurveOverlayTest, AClickOpensAChartOfTheSamples)
{
    SettingsSingleton::Instance().SetSeparatorSelection(US);
    auto log = MakeLog({1, 2, 3, 4});
    TimeCurveOverlay overlay(nullptr, log->GetDataChannel(0));
    EXPECT_EQ(overlay.toolTip(), QStringLiteral("Average value: 2.500, Standard Deviation: 1.118"));

    overlay.click(); // nobody opens charts yet
    int opened = 0;
    TimeLogChart chart;
    TimeCurveOverlay::SetChartOpener([&](TimeLogChart const& shown, QWidget*) {
        ++opened;
        chart = shown;
    });
    overlay.click();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(chart.title, QStringLiteral("SPIN"));
    EXPECT_EQ(*chart.x, (std::vector<float>{0, 0.5F, 1, 1.5F}));
    EXPECT_EQ(*chart.y, (std::vector<float>{1, 2, 3, 4}));
    log.reset();
    overlay.click();
    EXPECT_EQ(opened, 1);
    TimeCurveOverlay::SetChartOpener(nullptr);
}

TEST(TimeCurveVectorTest, ColoursFollowThePosition)
{
    QWidget view;
    TimeCurveVector curves;
    EXPECT_EQ(curves.AssignDataChannel(&view, {}), nullptr);
    std::vector<std::shared_ptr<TimeLog>> logs;
    for (std::size_t i = 0; i < 7; ++i) {
        auto const value = static_cast<float>(i);
        logs.push_back(MakeLog({value, -value}, 100 + value, i < 3 ? "first" : "second"));
        TimeCurveOverlay const* overlay = curves.AssignDataChannel(&view, logs.back()->GetDataChannel(0));
        EXPECT_EQ(overlay->GetCurvePen().color(), Quorrel::CurveCycleColor(i));
    }
    EXPECT_EQ(curves.GetDepthInterval_metric(), Interval(100, 106));
    EXPECT_EQ(curves.GetMinMaxValue(), Interval(-6, 6));
    curves.DeleteDependencies({1, QStringLiteral("second"), -1});
    EXPECT_EQ(view.findChildren<TimeCurveOverlay*>().size(), 3);
    logs.clear();
    EXPECT_FALSE(curves.GetDepthInterval_metric());
}
