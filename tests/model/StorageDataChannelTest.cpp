// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/StorageDataChannel.h"

#include "ModelFixtures.h"

using testing::ElementsAre;
using testing::FloatEq;

TEST(StorageDataChannel, AveragesInPlaceOverACentredWindow)
{
    Samples const samples{1, 2, 3, 4, 10, 20};
    for (auto const& [length, expected] : std::vector<std::pair<float, Samples>>{
             {3.9F, {1, 2, 3, 17.0F / 3, 34.0F / 3, 20}}, // windows of 3
             {4.0F, {1, 2.5F, 4.75F, 9.25F, 10, 20}},     // windows of 4 reach two back and one forward
             {6.0F, {1, 2, 40.0F / 6, 4, 10, 20}},
             {1.0F, samples},
             {0.9F, samples},
             {0.0F, samples},
             {-5.0F, samples},
             {7.0F, samples},
             {1e30F, samples},
         }) {
        auto const channel = MakeChannel(Depths(100, 1, 6), samples);
        channel->MovingAverage(length);
        EXPECT_THAT(Values(*channel), testing::Pointwise(FloatEq(), expected)) << length;
    }
    EXPECT_THROW(MakeChannel({100}, {1})->MovingAverage(3), std::invalid_argument);
}

TEST(StorageDataChannel, AverageRunsInSinglePrecisionAndInMetresWhateverTheSetting)
{
    // 1e8 + 1 is 1e8 in single precision; taking 1e8 off again leaves nothing of the 1.
    auto const large = MakeChannel({0, 1, 2}, {1e8F, 1, 1});
    large->MovingAverage(1);
    EXPECT_THAT(Values(*large), ElementsAre(1e8F, 0, 0));

    NumberFormatScope const scope({US, false});
    auto const channel = MakeChannel(Depths(0, 0.5, 5), {0, 0, 6, 0, 0});
    channel->MovingAverage(1.5F);
    EXPECT_THAT(Values(*channel), ElementsAre(0, 2, 2, 2, 0));
}

TEST(StorageDataChannel, DifferentiatesForwardInTheSettingsUnit)
{
    NumberFormatScope const scope;
    for (float const factor : {1.0F, 3.28084F}) {
        auto const channel = MakeChannel({0, 2, 3}, {1, 5, 2});
        channel->Differentiate();
        EXPECT_THAT(Values(*channel),
                    ElementsAre(FloatEq(2 / factor), FloatEq(-3 / factor), FloatEq(-3 / factor)));
        NumberFormatScope::Set({US, false});
    }
    EXPECT_EQ(MessageOf<std::invalid_argument>([] { MakeChannel({0}, {1})->Differentiate(); }),
              "StorageDataChannel too short for differentiation");
    EXPECT_THROW(MakeChannel({0}, {1, 2})->Differentiate(), std::invalid_argument);
}

TEST(StorageDataChannel, ResamplingTakesTheWholeAxisOfTheTarget)
{
    auto const channel = MakeChannel({10, 12, 14}, {0, 20, 60});
    auto const target = MakeChannel(Depths(8, 1, 7), Samples(7, 0.0F));
    target->GetDepth().SetDepthStretchShift(1, 1); // 9 to 15 m
    auto const former_samples = channel->GetSamples();
    channel->ResampleDepth(target.get());
    EXPECT_THAT(Values(*channel), ElementsAre(0, 0, 10, 20, 40, 60, 60));
    EXPECT_EQ(channel->GetDepth().GetShift(), 1);
    EXPECT_THAT(channel->GetDepth().GetNativeDepthVector(), ElementsAre(8, 9, 10, 11, 12, 13, 14));
    EXPECT_THAT(*former_samples, ElementsAre(0, 20, 60));

    auto const touching = MakeChannel({14, 16}, {0, 0});
    EXPECT_NO_THROW(MakeChannel({10, 12, 14}, {0, 20, 60})->ResampleDepth(touching.get()));
    for (auto const& apart :
         {MakeChannel({14.5, 16}, {0, 0}), MakeChannel({1, 9.5}, {0, 0}), MakeChannel({}, {})}) {
        auto const source = MakeChannel({10, 12, 14}, {0, 20, 60});
        EXPECT_EQ(MessageOf<std::invalid_argument>([&] { source->ResampleDepth(apart.get()); }),
                  "No depth overlap between datachannels");
        EXPECT_THAT(Values(*source), ElementsAre(0, 20, 60));
    }
}

TEST(StorageDataChannel, CopiesDeeplyUnderAComposedName)
{
    NumberFormatScope const scope({International, true});
    auto const source = MakeChannel({1, 2}, {3, 4}, "source", DataChannelIdentifier(1234, "hash", 1));
    StorageDataChannel const copy(source.get(), 7);
    source->GetDepth().ApplyShift(1);
    source->MovingAverage(2);
    EXPECT_THAT(Values(copy), ElementsAre(3, 4));
    EXPECT_EQ(copy.GetMinDepth_metric(), 1);
    EXPECT_EQ(copy.GetName(), "S1.234_L7_GR");
    EXPECT_EQ(copy.GetDataChannelIdentifier(), DataChannelIdentifier());
}

TEST(StorageDataChannel, TakesOnlyAnAxisOfItsOwnLength)
{
    StorageDataChannel channel("new");
    channel.push_back(1);
    channel.push_back(2);
    EXPECT_EQ(MessageOf<std::invalid_argument>([&] {
                  channel.AddDepth(DepthChannel({1, 2, 3}, true));
              }),
              "ERROR: Length of depth DataChannel does not match this->size() ");
    channel.AddDepth(DepthChannel({1, 2}, true));
    EXPECT_EQ(channel.GetDepthInterval_metric(), Interval(1, 2));
    EXPECT_EQ(channel.GetName(), "new");
}
