// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DeviationDataView.h"

#include "display/BaseScaleView.h"
#include "display/ViewBench.h"
#include "model/StorageDataChannel.h"
#include "well/DeviationCombinedViewWidget.h"

namespace {
/// A slanted hole of 60 degrees: every metre drilled is half a metre deeper.
DirectionalSurveyData Slant(float top = 1000, float bottom = 1100)
{
    return {{{top, 60, 0}, {bottom, 60, 0}}, {500, 0, 0}};
}

struct SlantBench : view_bench::Bench
{
    SlantBench() { survey = Slant(); }
};

class DeviationDataViewTest : public testing::Test
{
protected:
    void ScaleDeviation(Interval const& scale)
    {
        view.SetScales(view.GetDeviationChannel()->GetDataChannelIdentifier(), scale);
    }

    SlantBench bench;
    DeviationCombinedViewWidget pair{"Deviation", bench.context};
    DeviationDataView& view = *pair.GetDeviationDataView();
};
} // namespace

TEST_F(DeviationDataViewTest, ShowsInclinationAndTrueDepth)
{
    auto const scales = pair.GetScales();
    ASSERT_EQ(scales.size(), 2U);
    EXPECT_EQ(scales[0]->header.mnemonic + scales[0]->header.unit, "DEVdeg");
    EXPECT_EQ(scales[1]->header.mnemonic + scales[1]->header.unit, "TVDm");
    EXPECT_EQ(pair.GetBaseScaleView()->GetScaleCount(), 2);
    // A constant 60 degrees: floor(59.9) to ceil(60.1). 500 to 549.99 m: whole tens.
    EXPECT_EQ(scales[0]->scale, Interval(59, 61));
    EXPECT_EQ(scales[1]->scale, Interval(500, 550));
    // Foot by foot: 0.3048 * 328 = 99.97 m.
    EXPECT_NEAR(view.GetDepthInterval_metric().value().lower, 1000, 1e-3);
    EXPECT_NEAR(view.GetDepthInterval_metric()->upper, 1099.974, 1e-3);
    EXPECT_NEAR(view.GetTvdChannel()->GetSamples()->back(), 549.987, 1e-3);
}

TEST_F(DeviationDataViewTest, TheUnitChangesTrueDepthAlone)
{
    auto const deviation = view.GetDeviationChannel();
    Interval const zoomed(0, 90);
    ScaleDeviation(zoomed);

    SettingsSingleton::Instance().SetMetricDepth(false);
    view.ToggleTvdUnit();
    EXPECT_EQ(view.GetDeviationChannel(), deviation);
    EXPECT_EQ(view.GetScales()[0]->scale, zoomed);
    EXPECT_EQ(view.GetScales().at(1)->header.unit, "ft");
    EXPECT_NEAR(view.GetTvdChannel()->GetSamples()->front(), 500 * 3.28084, 1e-3);

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
    ScaleDeviation(Interval(0, 90));
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
    view.ToggleTvdUnit(); // no curve to convert
}

TEST_F(DeviationDataViewTest, DrawsCurvesAndTheBaseline)
{
    auto const draw = [&] {
        return pixels::Paint({100, 101}, Qt::black, [&](QPainter& painter) {
            view.RenderToPainter(painter, {1000, 1100}, 96, true);
        });
    };
    // 60 degrees on 59 to 61 stand in the middle, TVD runs from one corner to the other.
    QImage image = draw();
    pixels::Expect(image, Qt::green, {{50, 20}});
    pixels::Expect(image, Qt::cyan, {{25, 25}, {75, 75}});

    // On -60 to 140 they stand at 120 / 200, and zero at 60 / 200.
    ScaleDeviation(Interval(-60, 140));
    image = draw();
    pixels::Expect(image, Qt::green, {{60, 20}});
    EXPECT_GT(pixels::CountInColumn(image, 30, Qt::white), 20);
    EXPECT_GT(pixels::CountInColumn(image, 30, Qt::blue), 20);
    view.SetShowBaseline(false);
    pixels::Expect(draw(), Qt::black, {{30, 80}});

    // A scale that begins at zero has its edge for a baseline.
    view.SetShowBaseline(true);
    ScaleDeviation(Interval(0, 140));
    EXPECT_EQ(pixels::CountInColumn(draw(), 0, Qt::white), 0);
}
