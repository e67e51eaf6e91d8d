// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/TimeCurve.h"

#include "app/kit/SettingsSingleton.h"
#include "display/TimeCurveOverlay.h"
#include "display/TimeCurveVector.h"
#include "model/BaseLogPassRecord.h"
#include "model/TimeLog.h"

#include <QApplication>
#include <QEnterEvent>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

namespace {
/// A log of one channel, with a time for each sample.
std::shared_ptr<TimeLog> MakeTimeLog(std::vector<float> const& samples, float depth,
                                     char const* hash = "time")
{
    BASE_LOGPASS_STRUCT record;
    record.properties.identifier = LogPassIdentifier(1, QString::fromLatin1(hash));
    record.well_info_header.push_back(HeaderRow("NULL", "", "-999.25", ""));
    record.curve_info_header.push_back(HeaderRow("SPIN", "RPS", "", "Spinner"));
    std::vector<double> time(samples.size());
    for (std::size_t i = 0; i < time.size(); ++i) {
        time[i] = 0.5 * static_cast<double>(i);
    }
    return std::make_shared<TimeLog>(
        record, BaseLog::DataMatrix{std::make_shared<std::vector<float>>(samples)}, time, depth);
}

constexpr int T = 6;

QImage PaintOverlay(TimeCurveOverlay const& overlay, int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    overlay.RenderToPainter(painter, width, height, T);
    return image;
}
} // namespace

TEST(TimeCurveTest, AverageAndPopulationDeviation)
{
    auto const log = MakeTimeLog({2, 4, 4, 4, 5, 5, 7, 9}, 1234.5F);
    TimeCurve const curve(log->GetDataChannel(0));
    EXPECT_EQ(curve.GetMinMax(), Interval(2, 9));
    EXPECT_FLOAT_EQ(curve.GetAverageValue(), 5);
    EXPECT_FLOAT_EQ(curve.GetStandardDeviation(), 2); // squares of differences add up to 32
    EXPECT_FLOAT_EQ(curve.GetLogDepth(), 1234.5F);

    // A million samples around a large number: a running sum in single precision would be off.
    std::vector<float> many(1'000'000);
    for (std::size_t i = 0; i < many.size(); ++i) {
        many[i] = i % 2 == 0 ? 4000.25F : 4000.75F;
    }
    auto const long_log = MakeTimeLog(many, 1);
    TimeCurve const steady(long_log->GetDataChannel(0));
    EXPECT_FLOAT_EQ(steady.GetAverageValue(), 4000.5F);
    EXPECT_NEAR(steady.GetStandardDeviation(), 0.25F, 1e-4F);
}

TEST(TimeCurveTest, WithoutSamplesAndWithoutChannel)
{
    auto log = MakeTimeLog({}, 10);
    TimeCurve const curve(log->GetDataChannel(0));
    EXPECT_EQ(curve.GetMinMax(), Interval());
    EXPECT_EQ(curve.GetAverageValue(), 0);
    EXPECT_EQ(curve.GetStandardDeviation(), 0);
    DataChannelIdentifier const identifier = curve.GetDataChannelIdentifier();
    EXPECT_EQ(identifier, DataChannelIdentifier(1, QStringLiteral("time"), 0));
    log.reset();
    EXPECT_TRUE(std::isnan(curve.GetLogDepth()));
    EXPECT_EQ(curve.GetDataChannelIdentifier(), identifier);
    EXPECT_TRUE(curve.IsDependentOn(identifier));
}

TEST(TimeCurveOverlayTest, Geometry)
{
    Interval const view(100, 200);
    // Columns 40 to 119, rows 44 to 55: six rows above the depth's row, five below.
    QRect const place(QPoint(40, 44), QPoint(119, 55));
    EXPECT_EQ(TimeCurveOverlay::CalculateGeometry({20, 60}, {0, 100}, 150, view, 200, 101, T), place);
    EXPECT_EQ(TimeCurveOverlay::CalculateGeometry({20, 60}, {80, 0}, 150, view, 160, 101, T), place);
    EXPECT_EQ(TimeCurveOverlay::CalculateGeometry({20, 20}, {0, 100}, 150, view, 200, 101, T).width(), 0);
    QRect const huge = TimeCurveOverlay::CalculateGeometry({-1e30, 1e30}, {0, 1}, 1e30F, view, 200, 101, T);
    EXPECT_LT(huge.width(), QWIDGETSIZE_MAX);
    EXPECT_EQ(huge.height(), 2 * T);
    EXPECT_GE(TimeCurveOverlay::CalculateGeometry(Interval(), {5, 5}, 150, view, 200, 101, T).height(), 0);
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

    auto const log = MakeTimeLog({20, 60}, 150);
    QWidget view;
    TimeCurveOverlay overlay(&view, log->GetDataChannel(0));
    overlay.Place({0, 100}, 150, {100, 200}, 200, 101, 300);
    int const half_height = TimeCurveOverlay::GetHalfHeight(96);
    EXPECT_EQ(overlay.geometry(), QRect(QPoint(40, 50 - half_height), QPoint(119, 49 + half_height)));
    EXPECT_FALSE(overlay.isHidden());
}

TEST(TimeCurveOverlayTest, DrawsTheBarAndTheAverage)
{
    auto const log = MakeTimeLog({0, 0, 0, 100}, 150); // a quarter up the extent
    TimeCurveOverlay overlay(nullptr, log->GetDataChannel(0));
    overlay.SetCurvePen(QPen(QColor(0, 0, 255)));
    QImage const image = PaintOverlay(overlay, 200, 12);
    QColor const blue(0, 0, 255);
    EXPECT_EQ(image.pixelColor(100, 6), blue);
    EXPECT_EQ(image.pixelColor(100, 1), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(5, 6), blue); // the round end
    EXPECT_EQ(image.pixelColor(1, 6), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(198, 6), QColor(Qt::black));
    // 200 * 0.25 - 3 = 47, three pixels to each side, over the whole height
    for (int const y : {0, 11}) {
        EXPECT_EQ(image.pixelColor(45, y), blue);
        EXPECT_EQ(image.pixelColor(48, y), blue);
        EXPECT_EQ(image.pixelColor(42, y), QColor(Qt::black));
        EXPECT_EQ(image.pixelColor(52, y), QColor(Qt::black));
    }

    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(&overlay, &enter);
    EXPECT_EQ(PaintOverlay(overlay, 200, 12).pixelColor(100, 6), QColor(255, 255, 0)); // the opposite hue
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&overlay, &leave);
    EXPECT_EQ(PaintOverlay(overlay, 200, 12), image);

    // On a scale from right to left the smaller values are at the right.
    QWidget view;
    TimeCurveOverlay mirrored(&view, log->GetDataChannel(0));
    mirrored.SetCurvePen(QPen(blue));
    mirrored.Place({100, 0}, 150, {100, 200}, 200, 101, 96);
    QImage const reversed = PaintOverlay(mirrored, 200, 12);
    EXPECT_EQ(reversed.pixelColor(147, 0), blue);
    EXPECT_EQ(reversed.pixelColor(47, 0), QColor(Qt::black));
}

TEST(TimeCurveOverlayTest, AConstantMeasurementHasNoAverageStroke)
{
    auto const log = MakeTimeLog({7, 7, 7}, 150);
    TimeCurveOverlay overlay(nullptr, log->GetDataChannel(0));
    overlay.SetCurvePen(QPen(Qt::red));
    QImage const image = PaintOverlay(overlay, 100, 12);
    for (int x = 0; x < 100; ++x) {
        EXPECT_EQ(image.pixelColor(x, 0), QColor(Qt::black));
    }
}

TEST(TimeCurveOverlayTest, AClickOpensAChartOfTheSamples)
{
    SettingsSingleton::Instance().SetSeparatorSelection(US);
    auto log = MakeTimeLog({1, 2, 3, 4}, 150);
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
    EXPECT_EQ(chart.window_title, QStringLiteral("Time Log"));
    EXPECT_EQ(chart.title, QStringLiteral("SPIN"));
    EXPECT_EQ(chart.x_axis_title, QStringLiteral("Time"));
    ASSERT_TRUE(chart.x && chart.y);
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
    EXPECT_FALSE(curves.GetDepthInterval_metric());
    EXPECT_EQ(curves.GetMinMaxValue(), Interval());
    std::vector<std::shared_ptr<TimeLog>> logs;
    Qt::GlobalColor const colors[] = {Qt::red,    Qt::green, Qt::cyan, Qt::magenta,
                                      Qt::yellow, Qt::white, Qt::red};
    for (int i = 0; i < 7; ++i) {
        auto const value = static_cast<float>(i);
        logs.push_back(MakeTimeLog({value, -value}, 100 + value, i < 3 ? "first" : "second"));
        TimeCurveOverlay const* overlay = curves.AssignDataChannel(&view, logs.back()->GetDataChannel(0));
        ASSERT_NE(overlay, nullptr);
        EXPECT_EQ(overlay->GetCurvePen().color(), QColor(colors[i]));
        EXPECT_EQ(overlay->parentWidget(), &view);
        EXPECT_TRUE(overlay->isHidden());
    }
    EXPECT_EQ(curves.GetDepthInterval_metric(), Interval(100, 106));
    EXPECT_EQ(curves.GetMinMaxValue(), Interval(-6, 6));
    EXPECT_EQ(curves.AssignDataChannel(&view, {}), nullptr);

    curves.DeleteDependencies({1, QStringLiteral("second"), -1});
    EXPECT_EQ(curves.size(), 3U);
    EXPECT_EQ(view.findChildren<TimeCurveOverlay*>().size(), 3);
    logs.clear();
    EXPECT_FALSE(curves.GetDepthInterval_metric());
}
