// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/BaseDepthDataChannel.h"

#include "ModelFixtures.h"
#include "model/DepthLogDataChannel.h"

using testing::ElementsAre;

TEST(BaseDepthDataChannel, InterpolatesBetweenTrueDepths)
{
    auto const channel = MakeChannel({10, 12, 14}, {0, 20, 60});
    EXPECT_EQ(channel->GetValueAtDepth(9), 0);
    EXPECT_EQ(channel->GetValueAtDepth(10), 0);
    EXPECT_EQ(channel->GetValueAtDepth(11.5), 15);
    EXPECT_EQ(channel->GetValueAtDepth(13), 40);
    EXPECT_EQ(channel->GetValueAtDepth(14), 60);
    EXPECT_EQ(channel->GetValueAtDepth(99), 60);

    // The slope 10000001 / 30000003 is rounded to 0.3333333432674408, and 3e7 times that is 10000000.298.
    auto const steep = MakeChannel({0, 30000003, 60000006}, {-10000000, 1, 1});
    EXPECT_NEAR(steep->GetValueAtDepth(30000000), 0.298F, 0.001F);

    // The step of this axis is 10 / 3, so 2 m falls into the first segment and is extrapolated from it.
    auto const irregular = MakeChannel({0, 1, 2, 10}, {0, 10, 0, 30});
    EXPECT_EQ(irregular->GetValueAtDepth(2), 20);
}

TEST(BaseDepthDataChannel, NeverReadsOutsideItsSamples)
{
    auto const one = MakeChannel({100}, {5});
    EXPECT_EQ(one->GetValueAtDepth(99), 5);
    EXPECT_EQ(one->GetValueAtDepth(101), 5);
    EXPECT_THROW((void)one->GetValueAtDepth(100), std::invalid_argument);
    EXPECT_EQ(one->GetValueInterval(0, 200), Interval(5, 5));
    EXPECT_EQ(one->GetValueInterval(100, 100), Interval(5, 5));

    auto const none = MakeChannel({}, {});
    EXPECT_EQ(none->GetValueInterval(0, 1), Interval());
    EXPECT_THROW((void)none->CalculateAverageValue(Interval(0, 1)), std::invalid_argument);
    EXPECT_THROW((void)none->front(), std::out_of_range);
    EXPECT_THROW((void)none->back(), std::out_of_range);

    auto const short_of_samples = MakeChannel(Depths(0, 1, 5), {1, 2});
    EXPECT_EQ(short_of_samples->GetValueAtDepth(0.5), 1.5F);
    EXPECT_EQ(short_of_samples->GetValueAtDepth(3.5), 2);
    EXPECT_EQ(short_of_samples->CalculateAverageValue(Interval(0, 9)), 3.0F / 5.0F);

    auto const without_samples = MakeChannel(Depths(0, 1, 5), {});
    EXPECT_EQ(without_samples->GetValueAtDepth(2), MISSING_VALUE);
    EXPECT_EQ(without_samples->CalculateAverageValue(Interval(0, 9)), MISSING_VALUE);
    EXPECT_EQ(without_samples->GetValueInterval(0, 9), Interval());

    auto const short_of_depths = MakeChannel({0, 1}, {1, 2, 3});
    EXPECT_EQ(short_of_depths->GetValueAtDepth(1), 3);

    auto const nan_depth = MakeChannel({0, 1, 2}, {1, 2, 3});
    EXPECT_EQ(nan_depth->GetValueAtDepth(std::numeric_limits<double>::quiet_NaN()), 3);
}

TEST(BaseDepthDataChannel, EstimatesTheExtentOfValuesByProportion)
{
    // 10 samples over 9 m: from 103 to 106 are the indices 10 * 3 / 9 = 3.3 to 10 * 6 / 9 = 6.7.
    auto const ramp = MakeChannel(Depths(100, 1, 10), {0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_EQ(ramp->GetValueInterval(103, 106), Interval(3, 6));
    EXPECT_EQ(ramp->GetValueInterval(108, 108.5), Interval(8, 9)); // 8.9 to 9.4
    EXPECT_EQ(ramp->GetValueInterval(0, 1000), Interval(0, 9));
    EXPECT_EQ(ramp->GetValueInterval(90, 99.9), Interval());
    EXPECT_EQ(ramp->GetValueInterval(109.1, 120), Interval());
    EXPECT_EQ(ramp->GetValueInterval(109, 120), Interval()); // starts at index 10, behind the last
    EXPECT_EQ(ramp->GetValueInterval(100, 100), Interval(0, 0));

    Samples samples(1000, 0.0F);
    samples[3] = NAN;
    samples[501] = -7;
    samples[999] = 8;
    auto const peaks = MakeChannel(Depths(0, 1, 1000), samples);
    EXPECT_EQ(peaks->GetValueInterval(0, 999), Interval(-7, 8));
    EXPECT_EQ(peaks->GetValueInterval(0, 900), Interval(-7, 0));
    EXPECT_EQ(peaks->GetValueInterval(600, 900), Interval(0, 0));
    EXPECT_EQ(MakeChannel({0, 1}, {NAN, NAN})->GetValueInterval(0, 1), Interval());
}

TEST(BaseDepthDataChannel, AveragesBetweenIndicesBothIncluded)
{
    auto const ramp = MakeChannel(Depths(100, 1, 10), {0, 1, 2, 3, 4, 5, 6, 7, 8, 90});
    EXPECT_EQ(ramp->CalculateAverageValue(Interval(103.9, 106.9)), 4.5F); // indices 3 to 6
    EXPECT_EQ(ramp->CalculateAverageValue(Interval(105, 105)), 5);
    EXPECT_EQ(ramp->CalculateAverageValue(Interval(0, 1000)), 12.6F);
    // 2^24 + 1 + 1 needs the double sum: in single precision the ones would be lost.
    auto const large = MakeChannel({0, 1, 2}, {16777216, 1, 1});
    EXPECT_EQ(large->CalculateAverageValue(Interval(0, 2)), 16777218.0F / 3.0F);
}

TEST(BaseDepthDataChannel, ResamplesIntoACopy)
{
    auto const source = MakeChannel({10, 12, 14}, {0, 20, 60}, "source", DataChannelIdentifier(2, "hash", 4));
    auto const target = MakeChannel(Depths(9, 1, 7), Samples(7, 0.0F));
    auto const copy = source->CopyAndResample(target.get());
    EXPECT_THAT(Values(*copy), ElementsAre(0, 0, 10, 20, 40, 60, 60));
    EXPECT_EQ(copy->GetName(), "S2_L0_GR");
    EXPECT_EQ(copy->GetCurveInfo().unit, "gAPI");
    EXPECT_THAT(Values(*source), ElementsAre(0, 20, 60));
    EXPECT_EQ(source->GetDepth().size(), 3U);
}

TEST(BaseDataChannel, SharesSamplesAndRefusesExpiredOnes)
{
    auto const samples = std::make_shared<Samples>(Samples{1, 2, 3, 4, 5});
    StorageDataChannel const channel(samples, DepthChannel(Depths(0, 1, 5), true), "name", HeaderRow(), {});
    (*samples)[0] = 10;
    EXPECT_EQ(channel.at(0), 10);
    EXPECT_THROW((void)channel.at(5), std::out_of_range);
    EXPECT_EQ(channel.GetPercentiles(0.0F, 0.5F, 0.99F), std::make_tuple(2.0F, 4.0F, 10.0F));
    EXPECT_THROW((void)channel.GetPercentiles(0.0F, 0.5F, 1.0F), std::out_of_range);

    std::weak_ptr<Samples> const expired = std::make_shared<Samples>();
    EXPECT_THROW(DepthLogDataChannel(nullptr, {}, expired, HeaderRow()), std::bad_weak_ptr);
}

TEST(BaseDataChannel, DependsOnEveryPatternOfItsOwnFieldsAndWildcards)
{
    auto const channel = MakeChannel({0}, {0}, "name", DataChannelIdentifier(2, "hash", 3));
    using Id = DataChannelIdentifier;
    for (Id const& pattern : {Id(2, "hash", 3), Id(2, "hash", -1), Id(2, "", -1), Id(-1, "", -1),
                              Id(-1, "hash", 3), Id(2, "", 3)}) {
        EXPECT_TRUE(channel->IsDependentOn(pattern)) << pattern.GetSurveyKey() << ' ' << pattern.GetIndex();
    }
    for (Id const& pattern :
         {Id(3, "hash", 3), Id(2, "other", 3), Id(2, "hash", 0), Id(3, "", -1), Id(-1, "HASH", -1)}) {
        EXPECT_FALSE(channel->IsDependentOn(pattern)) << pattern.GetSurveyKey() << ' ' << pattern.GetIndex();
    }
    EXPECT_EQ(DataChannelIdentifier(LogPassIdentifier(2, "hash"), 3), channel->GetDataChannelIdentifier());
    EXPECT_EQ(DataChannelIdentifier().GetSurveyKey(), -1);
}
