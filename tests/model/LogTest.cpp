// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DepthLogPass.h"
#include "model/LogDepthQuestion.h"
#include "model/TimeLog.h"

#include "ModelFixtures.h"
#include "model/BaseLogPassRecord.h"
#include "model/UndefinedMnem.h"

#include <random>

using testing::ElementsAre;

namespace {
constexpr float N = -999.25F;
LogPassIdentifier const IDENTIFIER(3, "hash");

Samples Mended(Samples samples)
{
    BaseLog::RemoveIllegalValues(samples, N);
    return samples;
}
} // namespace

TEST(BaseLog, MendsNullSamples)
{
    EXPECT_THAT(Mended({N, 2, 3}), ElementsAre(2, 2, 3));
    EXPECT_THAT(Mended({N, N, 5, N, N, N}), ElementsAre(5, 5, 5, 5, 5, 5));
    EXPECT_THAT(Mended({1, N, N, 4, N, 6}), ElementsAre(1, 1, 1, 4, 4, 6));
    EXPECT_THAT(Mended({N, N}), ElementsAre(N, N));
    EXPECT_THAT(Mended({N}), ElementsAre(N));
    EXPECT_THAT(Mended({}), ElementsAre());
    Samples const with_nan = Mended({N, NAN, N, 3, N});
    EXPECT_TRUE(std::isnan(with_nan[0]) && std::isnan(with_nan[1]) && std::isnan(with_nan[2]));
    EXPECT_THAT(Samples(with_nan.begin() + 3, with_nan.end()), ElementsAre(3, 3));
}

TEST(BaseLog, MendsLongColumnsAsAPlainWalkDoes)
{
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round) {
        Samples samples(9000);
        for (std::size_t i = 0; i < samples.size(); ++i) {
            bool const in_hole = (i / 700) % 3 == static_cast<std::size_t>(round % 3);
            samples[i] = in_hole || random() % 50 == 0 ? N : static_cast<float>(random() % 1000);
        }
        Samples expected = samples;
        std::size_t first = 0;
        while (expected[first] == N) {
            ++first;
        }
        for (std::size_t i = 0; i < expected.size(); ++i) {
            expected[i] = i < first ? expected[first] : (expected[i] == N ? expected[i - 1] : expected[i]);
        }
        EXPECT_EQ(Mended(samples), expected);
    }
}

TEST(DepthLogPass, TakesTheDataOutOfTheFile)
{
    LASFile file =
        MakeDepthFile({100, 101, 102}, {{"GR", {N, 2, 3}}, {"RADI[1]", {4, N, 6}}, {"GR", {7, 8, 9}}});
    file.GetLASParameterInfo().push_back(HeaderRow("RUN", "", "1", ""));
    file.GetLASOtherInfo().push_back(HeaderRow("REM", "", "text", ""));
    DepthLogPass const log_pass(file, "/data/well A/run 1.las", IDENTIFIER, QPen(Qt::cyan));

    EXPECT_TRUE(file.GetDataMatrix().empty());
    EXPECT_TRUE(file.GetLASCurveInfo().empty());
    EXPECT_EQ(log_pass.GetDepthInterval_metric(), Interval(100, 102));
    EXPECT_EQ(log_pass.GetVersionHeader().GetData("VERS"), "2.0");
    EXPECT_EQ(log_pass.GetWellInfoHeader().GetData("NULL"), "-999.25");
    EXPECT_EQ(log_pass.GetParameterInfoHeader().GetData("RUN"), "1");
    EXPECT_EQ(log_pass.GetOtherHeader().GetData("REM"), "text");
    EXPECT_EQ(log_pass.GetNullValue(), N);
    EXPECT_EQ(log_pass.GetFileName(), "run 1.las");
    EXPECT_EQ(log_pass.GetProperties().pen, QPen(Qt::cyan));

    ASSERT_EQ(log_pass.GetDataChannels().size(), 3U);
    auto const channel = log_pass.GetDataChannel(1);
    EXPECT_THAT(Values(*channel), ElementsAre(4, 4, 6));
    EXPECT_EQ(channel->GetName(), "RADI[1]");
    EXPECT_EQ(channel->GetDataChannelIdentifier(), DataChannelIdentifier(3, "hash", 1));
    EXPECT_EQ(&channel->GetDepth(), &log_pass.GetDepth());
    EXPECT_EQ(channel->GetValueAtDepth(101.5), 5);
    EXPECT_THROW((void)log_pass.GetDataChannel(3), std::out_of_range);
    EXPECT_THROW((void)log_pass.GetDataChannel(-1), std::out_of_range);

    EXPECT_THAT(log_pass.GetDataChannelNames(), ElementsAre("GR", "RADI[1]", "GR"));
    EXPECT_EQ(log_pass.FindDataChannelByMnem("GR"), 0);
    EXPECT_EQ(log_pass.FindDataChannelByMnem("gr"), -1);
    EXPECT_THAT(log_pass.GetDataChannelIndeces("G?"), ElementsAre(0, 2));
    EXPECT_THAT(log_pass.GetDataChannelIndeces("RADI*"), ElementsAre(1));
    EXPECT_THAT(log_pass.GetDataChannelIndeces("ADI*"), ElementsAre());
}

TEST(DepthLogPass, ChannelsSeeChangesOfDepthAndProperties)
{
    LASFile file = MakeDepthFile({100, 101}, {{"GR", {1, 2}}});
    DepthLogPass log_pass(file, "a.las", IDENTIFIER, QPen(Qt::red));
    auto const channel = log_pass.GetDataChannel(0);

    log_pass.SetDepthStretchShift(2, 5);
    EXPECT_EQ(channel->GetDepthInterval_metric(), Interval(205, 207));
    log_pass.ApplyShift(1);
    EXPECT_EQ(channel->GetMinDepth_metric(), 206);
    EXPECT_EQ(log_pass.GetShift(), 6);
    EXPECT_EQ(log_pass.GetStretch(), 2);

    LogPassProperties properties;
    properties.hidden = true;
    properties.pen = QPen(Qt::blue);
    log_pass.SetProperties(properties);
    EXPECT_TRUE(channel->GetLogPassProperties().hidden);
    EXPECT_EQ(channel->GetLogPassProperties().pen, QPen(Qt::blue));
    EXPECT_EQ(log_pass.GetLogPassIdentifier(), IDENTIFIER);

    StorageDataChannel calculated(&log_pass, "calculated");
    EXPECT_EQ(calculated.size(), 0U);
    EXPECT_EQ(calculated.GetMinDepth_metric(), 206);
    log_pass.ApplyShift(1);
    EXPECT_EQ(calculated.GetMinDepth_metric(), 206); // an axis of its own
}

TEST(DepthLogPass, BearsMalformedFiles)
{
    LASFile without_null = MakeDepthFile({100}, {{"GR", {1}}});
    without_null.GetLASWellInfo().delete_element(0);
    EXPECT_THROW(DepthLogPass(without_null, "a.las", IDENTIFIER, QPen()), UndefinedMnem);
    EXPECT_EQ(without_null.GetDataMatrix().size(), 1U);

    LASFile odd_null = MakeDepthFile({100, 101}, {{"GR", {4, 0}}});
    odd_null.GetLASWellInfo().at(0).data = "none";
    EXPECT_THAT(Values(*DepthLogPass(odd_null, "a.las", IDENTIFIER, QPen()).GetDataChannel(0)),
                ElementsAre(4, 4));

    // Fewer curve rows than columns, a column too short, one too long, one without samples, one missing.
    LASFile ragged =
        MakeDepthFile({100, 101, 102}, {{"A", {N, 2}}, {"B", {1, 2, 3, 4}}, {"C", {}}, {"D", {1, 1, 1}}});
    ragged.GetDataMatrix()[3] = nullptr;
    ragged.GetLASCurveInfo().delete_element(3);
    DepthLogPass const log_pass(ragged, "a.las", IDENTIFIER, QPen());
    EXPECT_THAT(Values(*log_pass.GetDataChannel(0)), ElementsAre(2, 2, MISSING_VALUE));
    EXPECT_THAT(Values(*log_pass.GetDataChannel(1)), ElementsAre(1, 2, 3));
    EXPECT_EQ(log_pass.GetDataChannel(2)->size(), 3U);
    EXPECT_EQ(log_pass.GetDataChannel(3)->size(), 3U);
    EXPECT_THAT(log_pass.GetDataChannelNames(), ElementsAre("A", "B", "C", ""));

    LASFile more_rows = MakeDepthFile({100}, {{"A", {1}}});
    more_rows.GetLASCurveInfo().push_back(HeaderRow("GHOST", "", "", ""));
    EXPECT_EQ(DepthLogPass(more_rows, "a.las", IDENTIFIER, QPen()).FindDataChannelByMnem("GHOST"), -1);

    LASFile empty = MakeDepthFile({}, {});
    EXPECT_EQ(DepthLogPass(empty, "a.las", IDENTIFIER, QPen()).GetDepthInterval_metric(), Interval());
}

TEST(DepthLogPass, RestoresWithShiftBeforeStretch)
{
    BASE_LOGPASS_STRUCT record;
    record.properties.identifier = IDENTIFIER;
    std::vector<double> depths{100, 200};
    DepthLogPass const log_pass(record, {std::make_shared<Samples>(Samples{1, N})}, true, 5, 2, depths);
    EXPECT_EQ(log_pass.GetDepthInterval_metric(), Interval(205, 405));
    EXPECT_THAT(Values(*log_pass.GetDataChannel(0)),
                ElementsAre(1, N)); // stored samples are taken as they are
    EXPECT_EQ(log_pass.GetDataChannel(0)->GetDataChannelIdentifier(), DataChannelIdentifier(IDENTIFIER, 0));
}

TEST(TimeLog, AsksForItsDepth)
{
    QString asked_title;
    QString asked_label;
    std::optional<double> answer = 1000.0;
    LogDepthQuestion::Install([&](QString const& title, QString const& label) {
        asked_title = title;
        asked_label = label;
        return answer;
    });
    auto const depth_of_new_log = [] {
        LASFile file = MakeTimeFile({0, 1, 2}, {{"PRES", {N, 5, 6}}});
        return TimeLog(file, "/data/stop 1.las", IDENTIFIER, QPen()).GetLogDepth();
    };
    NumberFormatScope const scope;
    EXPECT_EQ(depth_of_new_log(), 1000);
    EXPECT_EQ(asked_title + asked_label, "Log Depth[m]stop 1.las");
    NumberFormatScope::Set({US, false});
    EXPECT_EQ(depth_of_new_log(), 1000 * 0.3048F);
    EXPECT_EQ(asked_title, "Log Depth[ft]");
    answer.reset();
    EXPECT_EQ(depth_of_new_log(), 0);
    LogDepthQuestion::Install({});
    EXPECT_EQ(depth_of_new_log(), 0);
}

TEST(TimeLog, ChannelsLookIntoTheLog)
{
    LASFile file = MakeTimeFile({0, 1.5, 2}, {{"PRES", {N, 5, N}}});
    TimeLog log(file, "stop.las", IDENTIFIER, QPen(Qt::green));
    log.SetLogDepth(321);
    auto const channel = log.GetDataChannel(0);
    EXPECT_THAT(channel->GetTime(), ElementsAre(0, 1.5, 2));
    EXPECT_EQ(channel->GetLogDepth(), 321);
    EXPECT_THAT(Values(*channel), ElementsAre(5, 5, 5));
    EXPECT_EQ(channel->GetLogPassProperties().pen, QPen(Qt::green));
    EXPECT_TRUE(channel->IsDependentOn({3, "hash", 0}));
    EXPECT_FALSE(channel->IsDependentOn({3, "hash", 1}));
}
