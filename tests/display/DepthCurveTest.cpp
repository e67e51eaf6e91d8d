// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthCurve.h"

#include "model/ModelFixtures.h"
#include "model/ScaleItemParameters.h"

#include <random>

namespace {
/// Every bin of every level against the samples it stands for.
void ExpectBinsCoverSamples(DepthCurve const& curve, std::vector<float> const& samples)
{
    std::size_t width = 1;
    for (auto const& bins : curve.GetBinLevels()) {
        width *= 3;
        for (std::size_t bin = 0; bin < bins.size(); ++bin) {
            CurveBin expected(-INFINITY, INFINITY);
            for (std::size_t i = bin * width; i < std::min((bin + 1) * width, samples.size()); ++i) {
                expected.minimum = std::fmin(expected.minimum, samples[i]); // the one that is a number
                expected.maximum = std::fmax(expected.maximum, samples[i]);
            }
            ASSERT_EQ(bins[bin], expected) << "bin " << bin << " of " << width << " samples";
        }
    }
}
} // namespace

TEST(DepthCurveTest, BinLevelsCoverTheirSamples)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<float> value(-1000.0F, 1000.0F);
    using Sizes = std::vector<std::size_t>;
    // A level of more than 3000 bins gets a coarser one.
    for (auto const& [size, levels] : std::map<std::size_t, Sizes>{{0, {}},
                                                                   {1, {1}},
                                                                   {3, {1}},
                                                                   {4, {2}},
                                                                   {31, {11}},
                                                                   {9000, {3000}},
                                                                   {9001, {3001, 1001}},
                                                                   {27'001, {9001, 3001, 1001}},
                                                                   {100'003, {33'335, 11'112, 3704, 1235}}}) {
        std::vector<float> samples(size);
        for (float& sample : samples) {
            sample = value(random) > 800 ? NAN : value(random);
        }
        auto const channel = MakeRegularChannel(size, 0, 0.1, [&](std::size_t i) { return samples[i]; });
        DepthCurve curve(channel);
        curve.ProcessCurve();
        Sizes sizes;
        for (auto const& level : curve.GetBinLevels()) {
            sizes.push_back(level.size());
        }
        EXPECT_EQ(sizes, levels);
        ExpectBinsCoverSamples(curve, samples);
        curve.ClearProcessedCurve();
        EXPECT_TRUE(curve.GetBinLevels().empty());
    }
}

TEST(DepthCurveTest, TakesTheCoarsestLevelWithMoreThanOneBinPerPixel)
{
    // 3001 and 1001 bins over 3000 m: 1 and 3 metres from bin to bin.
    auto const channel = MakeRegularChannel(9001, 0, 3000.0 / 9000, [](std::size_t) { return 1.0F; });
    DepthCurve curve(channel);
    EXPECT_EQ(curve.GetBinCurve(5), nullptr);
    curve.ProcessCurve();
    for (auto const& [metres_per_pixel, bins] :
         {std::pair(100.0, 1001U), std::pair(3.001, 1001U), std::pair(2.999, 3001U), std::pair(1.001, 3001U),
          std::pair(0.1, 3001U)}) { // the finest, for want of a finer one
        EXPECT_EQ(curve.GetBinCurve(metres_per_pixel)->size(), bins) << metres_per_pixel;
    }
    EXPECT_NEAR(curve.GetDepthDensity(), 3000.0 / 3001, 1e-9);
    EXPECT_NEAR(curve.GetRawCurveDepthDensity(), 1.0 / 3, 1e-9);
}

TEST(DepthCurveTest, ExtentIgnoresNaN)
{
    auto const extent = [](std::vector<float> const& samples) {
        return DepthCurve(MakeRegularChannel(samples.size(), 0, 1, [&](std::size_t i) { return samples[i]; }))
            .GetValueInterval();
    };
    EXPECT_EQ(extent({NAN, 3, -7, NAN, 5}), Interval(-7, 5));
    EXPECT_EQ(extent({}), Interval());
    EXPECT_EQ(extent({NAN}), Interval());
    std::vector<float> ramp(1000); // through the vector part and its remainder
    for (std::size_t i = 0; i < ramp.size(); ++i) {
        ramp[i] = static_cast<float>(i) - 300;
    }
    EXPECT_EQ(extent(ramp), Interval(-300, 699));
}

TEST(DepthCurveTest, LooksUpSamplesByDepth)
{
    auto const channel = MakeChannel({10, 11, 12, 13, 14}, {5, 1, 8, -3, 2});
    DepthCurve const curve(channel);
    for (auto const& [depth, value] :
         {std::pair(12.9, 8.0F), std::pair(-1e30, 5.0F), std::pair(1e30, 2.0F)}) {
        EXPECT_EQ(curve.GetValueAtDepth(depth), value) << depth;
    }
    for (auto const& [part, extent] :
         {std::pair(Interval(11, 13.5), Interval(-3, 8)), std::pair(Interval(-100, 11), Interval(1, 5)),
          std::pair(Interval(12, 100), Interval(-3, 8)), std::pair(Interval(15, 100), Interval()),
          std::pair(Interval(-100, 8), Interval())}) {
        EXPECT_EQ(curve.GetMinMaxValues(part.lower, part.upper), extent) << part.lower;
    }
}

TEST(DepthCurveTest, OutlivesItsChannel)
{
    auto channel = MakeChannel({1, 2, 3}, {1, 2, 3}, "abc", {2, "abc", 4});
    DepthCurve curve(channel);
    curve.ProcessCurve();
    channel.reset();
    EXPECT_EQ(curve.GetRawCurve(), nullptr);
    EXPECT_EQ(curve.GetDepthInterval_metric(), Interval());
    EXPECT_TRUE(std::isnan(curve.GetMinDepth_metric()));
    EXPECT_TRUE(std::isnan(curve.GetValueAtDepth(2)));
    EXPECT_EQ(curve.GetMinMaxValues(1, 3), Interval());
    EXPECT_FALSE(curve.IsHidden());
    EXPECT_TRUE(curve.IsDependentOn(DataChannelIdentifier(2, QString(), -1)));
    EXPECT_FALSE(curve.IsDependentOn(DataChannelIdentifier(3, QString(), -1)));
    curve.ProcessCurve();
    EXPECT_TRUE(curve.GetBinLevels().empty());
}

TEST(DepthCurveTest, ACopySharesTheScaleRecord)
{
    auto const channel = MakeChannel({1, 2}, {1, 2});
    DepthCurve curve(channel);
    DepthCurve const copy = curve;
    curve.SetScales({10, -10});
    EXPECT_EQ(copy.GetScale(), Interval(10, -10));
    EXPECT_DOUBLE_EQ(copy.ConvertValueToPercentage(5), 0.25);
}
