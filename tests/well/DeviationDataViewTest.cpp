// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DeviationDataView.h"

#include "display/BaseScaleView.h"
#include "display/ViewBench.h"
#include "model/StorageDataChannel.h"
#include "well/DeviationCombinedViewWidget.h"

#include <QImage>
#include <QPainter>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {
/// A slanted hole of 60 degrees: every metre drilled is half a metre deeper.
DirectionalSurveyData Slant(float top = 1000, float bottom = 1100)
{
    return {{{top, 60, 0}, {bottom, 60, 0}}, {500, 0, 0}};
}

class DeviationDataViewTest : public testing::Test
{
protected:
    DeviationDataViewTest() { bench.survey = Slant(); }

    view_bench::Bench bench;
};
} // namespace

TEST_F(DeviationDataViewTest, ShowsInclinationAndTrueDepth)
{
    DeviationCombinedViewWidget const pair("Deviation", bench.context);
    DeviationDataView const& view = *pair.GetDeviationDataView();
    EXPECT_EQ(view.objectName(), "VIEW_WIDGET_DEVIATION_DATAVIEW");
    EXPECT_EQ(view.GetDescription(), "Inclination Survey View");
    auto const scales = pair.GetScales();
    ASSERT_EQ(scales.size(), 2U);
    EXPECT_EQ(scales[0]->header.mnemonic, "DEV");
    EXPECT_EQ(scales[0]->header.unit, "deg");
    EXPECT_EQ(scales[1]->header.mnemonic, "TVD");
    EXPECT_EQ(scales[1]->header.unit, "m");
    EXPECT_EQ(pair.GetBaseScaleView()->GetScaleCount(), 2);
    // A constant 60 degrees: floor(59.9) to ceil(60.1). 500 to 549.99 m: whole tens.
    EXPECT_EQ(scales[0]->scale, Interval(59, 61));
    EXPECT_EQ(scales[1]->scale, Interval(500, 550));
    // Foot by foot: 0.3048 * 328 = 99.97 m.
    ASSERT_TRUE(view.GetDepthInterval_metric());
    EXPECT_NEAR(view.GetDepthInterval_metric()->lower, 1000, 1e-3);
    EXPECT_NEAR(view.GetDepthInterval_metric()->upper, 1099.974, 1e-3);
    EXPECT_NEAR(view.GetTvdChannel()->GetSamples()->back(), 549.987, 1e-3);
}

TEST_F(DeviationDataViewTest, TheUnitChangesTrueDepthAlone)
{
    DeviationCombinedViewWidget pair("Deviation", bench.context);
    DeviationDataView& view = *pair.GetDeviationDataView();
    auto const deviation = view.GetDeviationChannel();
    Interval const zoomed(0, 90);
    view.SetScales(deviation->GetDataChannelIdentifier(), zoomed);

    SettingsSingleton::Instance().SetMetricDepth(false);
    view.ToggleTvdUnit();
    EXPECT_EQ(view.GetDeviationChannel(), deviation);
    EXPECT_EQ(view.GetScales()[0]->scale, zoomed);
    auto scales = view.GetScales();
    ASSERT_EQ(scales.size(), 2U);
    EXPECT_EQ(scales[1]->header.mnemonic, "TVD");
    EXPECT_EQ(scales[1]->header.unit, "ft");
    EXPECT_NEAR(view.GetTvdChannel()->GetSamples()->front(), 500 * 3.28084, 1e-3);
    EXPECT_NEAR(view.GetTvdChannel()->GetDepth().GetMinDepth_metric(), 1000, 1e-3);

    // There and back, however often, without drift.
    SettingsSingleton::Instance().SetMetricDepth(true);
    for (int i = 0; i < 3; ++i) {
        view.ToggleTvdUnit();
    }
    EXPECT_EQ(view.GetScales()[1]->header.unit, "m");
    EXPECT_EQ(view.GetTvdChannel()->GetSamples()->front(), 500.0F);

    // A view made while feet are set has them from the start.
    SettingsSingleton::Instance().SetMetricDepth(false);
    DeviationCombinedViewWidget const in_feet("Deviation", bench.context);
    EXPECT_EQ(in_feet.GetScales()[1]->header.unit, "ft");
}

TEST_F(DeviationDataViewTest, FollowsTheWellPath)
{
    DeviationCombinedViewWidget pair("Deviation", bench.context);
    DeviationDataView& view = *pair.GetDeviationDataView();
    view.SetScales(view.GetDeviationChannel()->GetDataChannelIdentifier(), Interval(0, 90));
    view.SetupDataChannels(); // the path is the same: scales stay
    EXPECT_EQ(view.GetScales()[0]->scale, Interval(0, 90));

    bench.survey = Slant(2000, 2100);
    view.SetupDataChannels();
    EXPECT_NEAR(view.GetDepthInterval_metric()->lower, 2000, 1e-3);
    EXPECT_EQ(view.GetScales()[0]->scale, Interval(59, 61));

    bench.survey = DirectionalSurveyData({{0, 0, 0}}, {});
    view.SetupDataChannels();
    EXPECT_TRUE(view.GetScales().empty());
    EXPECT_EQ(view.GetDepthInterval_metric(), std::nullopt);
    EXPECT_EQ(pair.GetBaseScaleView()->GetScaleCount(), 2); // not wired to a column here
    view.ToggleTvdUnit();
    EXPECT_TRUE(view.GetScales().empty());
}

TEST_F(DeviationDataViewTest, DrawsCurvesAndTheBaseline)
{
    DeviationCombinedViewWidget pair("Deviation", bench.context);
    DeviationDataView& view = *pair.GetDeviationDataView();
    auto const draw = [&] {
        QImage image(100, 101, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        view.RenderToPainter(painter, {1000, 1100}, 96, true);
        return image;
    };
    // 60 degrees on 59 to 61 stand in the middle, on -60 to 140 at 120 / 200.
    QImage image = draw();
    EXPECT_EQ(image.pixelColor(50, 20), QColor(Qt::green));
    // TVD runs from one corner to the other.
    EXPECT_EQ(image.pixelColor(25, 25), QColor(Qt::cyan));
    EXPECT_EQ(image.pixelColor(75, 75), QColor(Qt::cyan));

    view.SetScales(view.GetDeviationChannel()->GetDataChannelIdentifier(), Interval(-60, 140));
    image = draw();
    EXPECT_EQ(image.pixelColor(60, 20), QColor(Qt::green));
    int white = 0;
    int blue = 0;
    for (int y = 0; y < 101; ++y) {
        white += image.pixelColor(30, y) == QColor(Qt::white);
        blue += image.pixelColor(30, y) == QColor(Qt::blue);
    }
    EXPECT_GT(white, 20);
    EXPECT_GT(blue, 20);
    view.SetShowBaseline(false);
    EXPECT_EQ(draw().pixelColor(30, 80), QColor(Qt::black));
}
