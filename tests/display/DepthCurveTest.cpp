// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthCurve.h"

#include "display/CurveSupport.h"
#include "display/DepthCurveVector.h"
#include "model/ScaleItemParameters.h"

#include <gtest/gtest.h>

#include <random>

using namespace curve_support;

namespace {
std::size_t PowerOfThree(std::size_t exponent)
{
    return exponent == 0 ? 1 : 3 * PowerOfThree(exponent - 1);
}

/// Every bin of every level against the samples it stands for.
void ExpectBinsCoverSamples(DepthCurve const& curve, std::vector<float> const& samples)
{
    for (std::size_t level = 0; level < curve.GetBinLevels().size(); ++level) {
        auto const& bins = curve.GetBinLevels()[level];
        std::size_t const width = PowerOfThree(level + 1);
        ASSERT_EQ(bins.size(), (samples.size() + width - 1) / width);
        for (std::size_t bin = 0; bin < bins.size(); ++bin) {
            float minimum = INF;
            float maximum = -INF;
            for (std::size_t i = bin * width; i < std::min((bin + 1) * width, samples.size()); ++i) {
                if (!std::isnan(samples[i])) {
                    minimum = std::min(minimum, samples[i]);
                    maximum = std::max(maximum, samples[i]);
                }
            }
            ASSERT_EQ(bins[bin], CurveBin(maximum, minimum)) << "level " << level << ", bin " << bin;
        }
    }
}
} // namespace

TEST(DepthCurveTest, BinLevelsCoverTheirSamples)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<float> value(-1000.0F, 1000.0F);
    for (std::size_t const size : {1, 2, 3, 4, 5, 31, 8999, 9001, 27001, 100'003}) {
        std::vector<float> samples(size);
        for (float& sample : samples) {
            sample = value(random);
            if (value(random) > 800) {
                sample = NOT_A_NUMBER;
            }
        }
        auto const channel = MakeRegularChannel(size, 0, 0.1, [&](std::size_t i) { return samples[i]; });
        DepthCurve curve(channel);
        EXPECT_TRUE(curve.GetBinLevels().empty());
        curve.ProcessCurve();
        ASSERT_FALSE(curve.GetBinLevels().empty());
        ExpectBinsCoverSamples(curve, samples);
        curve.ClearProcessedCurve();
        EXPECT_TRUE(curve.GetBinLevels().empty());
    }
}

TEST(DepthCurveTest, ALevelOfMoreThan3000BinsGetsACoarserOne)
{
    auto const level_sizes = [](std::size_t size) {
        auto const channel = MakeRegularChannel(size, 0, 1, [](std::size_t) { return 1.0F; });
        DepthCurve curve(channel);
        curve.ProcessCurve();
        std::vector<std::size_t> sizes;
        for (auto const& level : curve.GetBinLevels()) {
            sizes.push_back(level.size());
        }
        return sizes;
    };
    using Sizes = std::vector<std::size_t>;
    EXPECT_EQ(level_sizes(0), Sizes{});
    EXPECT_EQ(level_sizes(9000), Sizes{3000});
    EXPECT_EQ(level_sizes(9001), (Sizes{3001, 1001}));
    EXPECT_EQ(level_sizes(27001), (Sizes{9001, 3001, 1001}));
}

TEST(DepthCurveTest, TakesTheCoarsestLevelWithMoreThanOneBinPerPixel)
{
    // 3001 and 1001 bins over 3000 m: 1 and 3 metres from bin to bin.
    auto const channel = MakeRegularChannel(9001, 0, 3000.0 / 9000, [](std::size_t) { return 1.0F; });
    DepthCurve curve(channel);
    EXPECT_EQ(curve.GetBinCurve(5), nullptr);
    curve.ProcessCurve();
    auto const chosen = [&](double metres_per_pixel) { return curve.GetBinCurve(metres_per_pixel)->size(); };
    EXPECT_EQ(chosen(100), 1001U);
    EXPECT_EQ(chosen(3.001), 1001U);
    EXPECT_EQ(chosen(2.999), 3001U);
    EXPECT_EQ(chosen(1.001), 3001U);
    EXPECT_EQ(chosen(0.1), 3001U); // the finest, for want of a finer one
    EXPECT_NEAR(curve.GetDepthDensity(), 3000.0 / 3001, 1e-9);
    EXPECT_NEAR(curve.GetRawCurveDepthDensity(), 1.0 / 3, 1e-9);
}

TEST(DepthCurveTest, ExtentIgnoresNaN)
{
    auto const extent = [](std::vector<float> const& samples) {
        return DepthCurve(MakeRegularChannel(samples.size(), 0, 1, [&](std::size_t i) { return samples[i]; }))
            .GetValueInterval();
    };
    EXPECT_EQ(extent({NOT_A_NUMBER, 3, -7, NOT_A_NUMBER, 5}), Interval(-7, 5));
    EXPECT_EQ(extent({}), Interval());
    EXPECT_EQ(extent({NOT_A_NUMBER}), Interval());
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
    EXPECT_EQ(curve.ConvertDepthToIndex(12.9), 2);
    EXPECT_EQ(curve.ConvertDepthToIndex(8.5), -1);
    EXPECT_EQ(curve.GetValueAtDepth(12.9), 8);
    EXPECT_EQ(curve.GetValueAtDepth(-1e30), 5);
    EXPECT_EQ(curve.GetValueAtDepth(1e30), 2);
    EXPECT_EQ(curve.GetMinMaxValues(11, 13.5), Interval(-3, 8));
    EXPECT_EQ(curve.GetMinMaxValues(-100, 11), Interval(1, 5));
    EXPECT_EQ(curve.GetMinMaxValues(12, 100), Interval(-3, 8));
    EXPECT_EQ(curve.GetMinMaxValues(15, 100), Interval());
    EXPECT_EQ(curve.GetMinMaxValues(-100, 8), Interval());
}

TEST(DepthCurveTest, OutlivesItsChannel)
{
    DataChannelIdentifier const identifier(2, QStringLiteral("abc"), 4);
    auto channel = MakeChannel({1, 2, 3}, {1, 2, 3}, identifier);
    DepthCurve curve(channel);
    curve.ProcessCurve();
    EXPECT_EQ(curve.GetScaleItemParameters()->header.mnemonic, QStringLiteral("GR"));
    channel.reset();
    EXPECT_EQ(curve.GetRawCurve(), nullptr);
    EXPECT_EQ(curve.GetDepthInterval_metric(), Interval());
    EXPECT_TRUE(std::isnan(curve.GetMinDepth_metric()));
    EXPECT_TRUE(std::isnan(curve.GetValueAtDepth(2)));
    EXPECT_EQ(curve.GetMinMaxValues(1, 3), Interval());
    EXPECT_FALSE(curve.IsHidden());
    EXPECT_EQ(curve.GetDataChannelIdentifier(), identifier);
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

TEST(DepthCurveVectorTest, AssignsEachChannelOnce)
{
    auto const first = MakeChannel({10, 20}, {1, 5}, {1, QStringLiteral("a"), 0});
    auto const second = MakeChannel({5, 12}, {-4, 2}, {1, QStringLiteral("b"), 0});
    DepthCurveVector curves;
    EXPECT_FALSE(curves.GetDepthInterval_metric());
    EXPECT_EQ(curves.GetMinMaxValue(), Interval());

    auto const [is_new, curve] = curves.AssignDataChannel(first, QPen(Qt::red));
    EXPECT_TRUE(is_new);
    EXPECT_EQ(curve->GetCurvePen().color(), QColor(Qt::red));
    EXPECT_TRUE(curves.AssignDataChannel(second, QPen(Qt::green)).first);
    auto const again = curves.AssignDataChannel(first, QPen(Qt::blue));
    EXPECT_FALSE(again.first);
    EXPECT_EQ(again.second->GetCurvePen().color(), QColor(Qt::red));
    auto const none = curves.AssignDataChannel(std::weak_ptr<BaseDepthDataChannel const>(), QPen());
    EXPECT_EQ(none.second, nullptr);
    ASSERT_EQ(curves.size(), 2U);

    EXPECT_EQ(curves.GetDepthInterval_metric(), Interval(5, 20));
    EXPECT_EQ(curves.GetMinMaxValue(), Interval(-4, 5));

    curves.ProcessAllCurves();
    EXPECT_EQ(curves[1].GetBinLevels().size(), 1U);
    curves.ClearAllProcessedCurves();
    EXPECT_TRUE(curves[1].GetBinLevels().empty());
}

TEST(DepthCurveVectorTest, RemovesByChannelAndByPattern)
{
    std::vector<std::shared_ptr<StorageDataChannel>> channels;
    DepthCurveVector curves;
    for (char const* hash : {"a", "b"}) {
        for (int index = 0; index < 3; ++index) {
            channels.push_back(MakeChannel({0, 1}, {0, 1}, {7, QString::fromLatin1(hash), index}));
            curves.AssignDataChannel(channels.back(), QPen(QColor(index, 0, 0)));
        }
    }
    curves.RemoveDataChannel({7, QStringLiteral("a"), 1});
    curves.RemoveDataChannel({7, QString(), -1}); // no wildcards here
    ASSERT_EQ(curves.size(), 5U);
    EXPECT_EQ(curves[1].GetDataChannelIdentifier(), DataChannelIdentifier(7, QStringLiteral("a"), 2));
    EXPECT_EQ(curves[1].GetCurvePen().color(), QColor(2, 0, 0));
    curves.DeleteDependencies({7, QStringLiteral("b"), -1});
    ASSERT_EQ(curves.size(), 2U);
    channels.clear(); // curves of deleted channels go, too
    curves.DeleteDependencies({7, QString(), -1});
    EXPECT_TRUE(curves.empty());
}
