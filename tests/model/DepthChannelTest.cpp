// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DepthChannel.h"

#include "ModelFixtures.h"

using testing::ElementsAre;

namespace {
std::vector<double> Metric(DepthChannel const& depth)
{
    return *depth.GetDepthVector_metric().lock();
}

std::vector<double> Imperial(DepthChannel const& depth)
{
    return *depth.GetDepthVector_imperial().lock();
}

// 0.3048F and 3.28084F written out as doubles.
constexpr double METRES_PER_FOOT = 0.30480000376701355;
constexpr double FEET_PER_METRE = 3.2808399200439453;
} // namespace

TEST(DepthChannel, KeepsBothUnitsSideBySide)
{
    DepthChannel const metric({1000, 2000}, true);
    EXPECT_THAT(Metric(metric), ElementsAre(1000, 2000));
    EXPECT_THAT(Imperial(metric), ElementsAre(1000 * FEET_PER_METRE, 2000 * FEET_PER_METRE));
    EXPECT_TRUE(metric.IsNativeDepthMetric());

    DepthChannel const imperial({1000, 2000}, false);
    EXPECT_THAT(Imperial(imperial), ElementsAre(1000, 2000));
    EXPECT_THAT(Metric(imperial), ElementsAre(1000 * METRES_PER_FOOT, 2000 * METRES_PER_FOOT));
    EXPECT_EQ(imperial.GetShift(), 0);
    EXPECT_EQ(imperial.GetStretch(), 1);

    NumberFormatScope const scope;
    EXPECT_EQ(imperial.GetDepthVector_settings_unit().lock(), imperial.GetDepthVector_metric().lock());
    NumberFormatScope::Set({US, false});
    EXPECT_EQ(imperial.GetDepthVector_settings_unit().lock(), imperial.GetDepthVector_imperial().lock());
}

// Two orders of the same two numbers; with 5 and 2 taken the other way round 100 m would become 502 m.
TEST(DepthChannel, TakesShiftBeforeStretchWhenRestoredAndStretchBeforeShiftWhenSet)
{
    float const shift = 5;
    float const stretch = 2;
    std::vector<double> depths{100, 200};
    DepthChannel const restored(true, shift, stretch, depths);
    EXPECT_THAT(Metric(restored), ElementsAre(205, 405));
    EXPECT_EQ(restored.GetShift(), 5);
    EXPECT_EQ(restored.GetStretch(), 2);
    EXPECT_TRUE(depths.empty());

    DepthChannel set({100, 200}, true);
    set.SetDepthStretchShift(2, 5);
    EXPECT_THAT(Metric(set), ElementsAre(205, 405));
    EXPECT_EQ(set.GetShift(), 5);
    EXPECT_EQ(set.GetStretch(), 2);
}

TEST(DepthChannel, NarrowsTheShiftInTheNativeUnitToSinglePrecision)
{
    DepthChannel metric({2000}, true);
    metric.ApplyShift(0.1);
    EXPECT_EQ(Metric(metric)[0], 2000 + 0.10000000149011612);
    EXPECT_EQ(metric.GetShift(), 0.1);

    // One metre is 1 / 0.30480000376701355 = 3.28083985446... ft, in single precision 3.28083992004...
    DepthChannel imperial({1000}, false);
    imperial.ApplyShift(1.0);
    EXPECT_EQ(Imperial(imperial)[0], 1000 + 3.2808399200439453);
    EXPECT_EQ(Metric(imperial)[0], (1000 + 3.2808399200439453) * METRES_PER_FOOT);
    EXPECT_EQ(imperial.GetShift(), 1.0);

    // Added up in double, narrowed only for use.
    for (int i = 0; i < 9; ++i) {
        metric.ApplyShift(0.1);
    }
    EXPECT_EQ(Metric(metric)[0], 2001);
}

TEST(DepthChannel, StretchMovesTheDraggedDepthAndKeepsTheAnchor)
{
    DepthChannel depth({100, 105, 110}, true);
    depth.ApplyStretch(110, 130, 100);
    EXPECT_THAT(Metric(depth), ElementsAre(100, 115, 130));
    EXPECT_EQ(depth.GetStretch(), 3);
    EXPECT_EQ(depth.GetShift(), -200);

    // On top of an earlier shift and stretch: the depth at 115 goes to 107.5, the one at 100 stays.
    depth.ApplyStretch(115, 107.5, 100);
    EXPECT_THAT(Metric(depth), ElementsAre(100, 107.5, 115));
    EXPECT_EQ(depth.GetStretch(), 1.5);
    EXPECT_EQ(depth.GetShift(), -50);

    DepthChannel anchored({100, 110}, true);
    anchored.ApplyStretch(100, 120, 100);
    EXPECT_FALSE(std::isfinite(Metric(anchored)[0]));
    EXPECT_EQ(anchored.GetIndexAtDepth(105), 0U); // no index can be told; none may be out of range
}

TEST(DepthChannel, ReplacesItsVectorsAndNeverChangesThem)
{
    DepthChannel depth({100, 110}, true);
    auto const former_metric = depth.GetDepthVector_metric().lock();
    auto const former_imperial = depth.GetDepthVector_imperial().lock();
    DepthChannel const copy(std::make_shared<DepthChannel const>(depth));
    DepthChannel const assigned = depth;
    depth.ApplyShift(7);
    EXPECT_THAT(*former_metric, ElementsAre(100, 110));
    EXPECT_EQ((*former_imperial)[0], 100 * FEET_PER_METRE);
    EXPECT_THAT(Metric(copy), ElementsAre(100, 110));
    EXPECT_THAT(Metric(assigned), ElementsAre(100, 110));
    EXPECT_THAT(depth.GetNativeDepthVector(), ElementsAre(100, 110));

    DepthChannel const shifted(std::make_shared<DepthChannel const>(depth));
    EXPECT_THAT(Metric(shifted), ElementsAre(107, 117));
    EXPECT_EQ(shifted.GetShift(), 7);
}

TEST(DepthChannel, FindsIndicesByTheAverageStep)
{
    DepthChannel const regular(Depths(100, 0.5, 5), true);
    EXPECT_EQ(regular.GetDepthStep_metric(), 0.5);
    EXPECT_EQ(regular.GetIndexAtDepth(99), 0U);
    EXPECT_EQ(regular.GetIndexAtDepth(100.99), 1U);
    EXPECT_EQ(regular.GetIndexAtDepth(101), 2U);
    EXPECT_EQ(regular.GetIndexAtDepth(102), 4U);
    EXPECT_EQ(regular.GetIndexAtDepth(103), 4U);
    EXPECT_EQ(regular.GetIndexAtDepth(std::numeric_limits<double>::quiet_NaN()), 0U);

    // Step 10 / 4: an estimate, not a search, which would give 3.
    DepthChannel const irregular({0, 1, 2, 3, 10}, true);
    EXPECT_EQ(irregular.GetDepthStep_metric(), 2.5);
    EXPECT_EQ(irregular.GetIndexAtDepth(3), 1U);

    DepthChannel const standing({50, 50, 50}, true);
    EXPECT_EQ(standing.GetIndexAtDepth(50), 0U);
}

TEST(DepthChannel, SaysWhenItIsTooShortForAStep)
{
    for (std::vector<double> const& depths : {std::vector<double>{}, std::vector<double>{100}}) {
        DepthChannel const depth(depths, true);
        EXPECT_EQ(MessageOf<std::invalid_argument>([&] { (void)depth.GetDepthStep_metric(); }),
                  "DepthType DepthChannel::GetDepthStep_metric() constException thrown: "
                  "Depth vector to short to determine \"step\"");
        EXPECT_THROW((void)depth.GetIndexAtDepth(100), std::invalid_argument);
    }
    DepthChannel const none;
    EXPECT_TRUE(std::isnan(none.GetMinDepth_metric()));
    EXPECT_TRUE(std::isnan(none.GetMaxDepth_metric()));
    EXPECT_EQ(none.GetDepthInterval_metric(), Interval());
    EXPECT_EQ(DepthChannel({100}, true).GetDepthInterval_metric(), Interval(100, 100));
}
