// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/CombinedLogMap.h"

#include "ModelFixtures.h"
#include "model/LogDepthQuestion.h"

using testing::ElementsAre;
using testing::EndsWith;

namespace {
constexpr int SURVEY = 4;

/// Adds a depth log over 100 to 101 m, shifted by `shift`.
std::optional<LogPassIdentifier> AddDepth(CombinedLogMap& logs, QString const& path, double shift = 0)
{
    LASFile file = MakeDepthFile({100 + shift, 101 + shift}, {{"GR", {1, 2}}, {"CCL", {3, 4}}});
    return logs.AddLogPass(file, path, SURVEY);
}

std::optional<LogPassIdentifier> AddTime(CombinedLogMap& logs, QString const& path)
{
    LASFile file = MakeTimeFile({0, 1}, {{"PRES", {1, 2}}});
    return logs.AddLogPass(file, path, SURVEY);
}
} // namespace

TEST(CombinedLogMap, HashesThePathAndTakesItOnceAndLeavesTheFileOfASecondAlone)
{
    CombinedLogMap logs(SURVEY);
    auto const identifier = AddDepth(logs, "/data/well/a.las");
    // printf '%s' <path> | md5sum, of the bytes in UTF-8
    EXPECT_EQ(logs.GenerateHash(QString::fromUtf8("/data/brønn/é.las")), "f538bfc487ff97c0f000e9b0f332d618");
    EXPECT_EQ(identifier, LogPassIdentifier(SURVEY, "5238822fa27636fc2540eda82de47dca"));
    LASFile again = MakeDepthFile({1, 2}, {{"NEW", {1, 2}}});
    EXPECT_FALSE(logs.AddLogPass(again, "/data/well/a.las", SURVEY).has_value());
    EXPECT_EQ(again.GetDataMatrix().size(), 1U);
    EXPECT_EQ(logs.GetDepthLogNames().size(), 1);
    EXPECT_THAT(logs.GetDataChannelNames(identifier->hash), ElementsAre("GR", "CCL"));

    CombinedLogMap other_survey(SURVEY + 1);
    EXPECT_TRUE(AddDepth(other_survey, "/data/well/a.las").has_value());
}

TEST(CombinedLogMap, NumbersLogsInTheOrderOfTheirHashes)
{
    // md5 of "/logs/0.las" begins with 3a, of 1 with b0, of 2 with f7, of 3 with ed, of 4 with 54.
    CombinedLogMap logs(SURVEY);
    QList<QString> hashes;
    for (int i = 0; i < 5; ++i) {
        hashes.append(AddDepth(logs, QStringLiteral("/logs/%1.las").arg(i))->hash);
    }
    EXPECT_THAT(logs.GetDepthLogNames(), ElementsAre("0.las", "4.las", "1.las", "3.las", "2.las"));
    EXPECT_THAT(logs.GetDepthLogIdentifierHashes(),
                ElementsAre(hashes[0], hashes[4], hashes[1], hashes[3], hashes[2]));
    EXPECT_EQ(logs.GetLogPassNumber(hashes[3]), 3);
    logs.DeleteLogPass(hashes[4]);
    EXPECT_EQ(logs.GetLogPassNumber(hashes[3]), 2);
    EXPECT_EQ(logs.GetLogPassNumber(hashes[4]), -1);
    EXPECT_EQ(logs.GetLogPassNumber(AddTime(logs, "/logs/time.las")->hash), 0);
}

TEST(CombinedLogMap, ColoursDepthAndTimeLogsApart)
{
    CombinedLogMap logs(SURVEY);
    QList<QColor> depth_colors;
    QList<QColor> time_colors;
    for (int i = 0; i < 7; ++i) {
        auto const depth = AddDepth(logs, QStringLiteral("/depth/%1.las").arg(i));
        depth_colors.append(logs.GetLogPassProperties(depth->hash).pen.color());
        auto const time = AddTime(logs, QStringLiteral("/time/%1.las").arg(i));
        time_colors.append(logs.GetTimeLog(time->hash)->GetProperties().pen.color());
    }
    auto const expected =
        ElementsAre(QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 255, 255), QColor(255, 0, 255),
                    QColor(255, 255, 0), QColor(255, 255, 255), QColor(255, 0, 0));
    EXPECT_THAT(depth_colors, expected);
    EXPECT_THAT(time_colors, expected);
}

TEST(CombinedLogMap, FindsChannelsOfEitherKind)
{
    CombinedLogMap logs(SURVEY);
    QString const depth = AddDepth(logs, "/logs/depth.las")->hash;
    QString const time = AddTime(logs, "/logs/time.las")->hash;
    EXPECT_EQ(logs.GetDataChannel(depth, 1)->GetName(), "CCL");
    EXPECT_EQ(logs.GetDataChannel(time, 0)->GetName(), "PRES");
    EXPECT_EQ(logs.GetDepthDataChannel(depth, 0)->GetMinDepth_metric(), 100);
    EXPECT_EQ(logs.GetTimeDataChannel({SURVEY, time, 0})->GetTime().size(), 2U);
    EXPECT_THAT(logs.GetDataIdentifiers(depth, "*C*"), ElementsAre(DataChannelIdentifier(SURVEY, depth, 1)));
    EXPECT_THROW((void)logs.GetDataChannel(depth, 2), std::out_of_range);
    EXPECT_THROW((void)logs.GetDepthDataChannel(depth, -1), std::out_of_range);
    EXPECT_THROW((void)logs.GetTimeDataChannel({SURVEY, time, 1}), std::out_of_range);

    LogPassProperties properties = logs.GetLogPassProperties(time);
    properties.highlighted = true;
    properties.pen = QPen(Qt::darkCyan, 3);
    logs.SetLogPassProperties(time, properties);
    EXPECT_EQ(logs.GetTimeLog(time)->GetProperties(), properties);
}

TEST(CombinedLogMap, AHeldChannelOutlivesTheDeletionOfItsLog)
{
    CombinedLogMap logs(SURVEY);
    QString const hash = AddDepth(logs, "/logs/depth.las")->hash;
    std::weak_ptr<DepthLogPass> const log_pass = logs.GetDepthLogPass(hash);
    {
        auto const channel = logs.GetDepthDataChannel(hash, 1);
        logs.DeleteLogPass(hash);
        EXPECT_EQ(channel->GetValueAtDepth(100.5), 3.5F);
        EXPECT_EQ(channel->GetLogPassProperties().identifier.hash, hash);
    }
    EXPECT_TRUE(log_pass.expired());
}

TEST(CombinedLogMap, SaysThatAHashIsUnknown)
{
    CombinedLogMap logs(SURVEY);
    CombinedLogMap const& const_logs = logs;
    for (std::function<void()> const& call : std::vector<std::function<void()>>{
             [&] { (void)logs.GetDepthLogPass("x"); }, [&] { (void)const_logs.GetDepthLogPass("x"); },
             [&] { (void)const_logs.GetTimeLog("x"); }, [&] { (void)logs.GetDataChannel("x", 0); },
             [&] { (void)logs.GetLogPassProperties("x"); }, [&] { (void)logs.GetDataChannelNames("x"); }}) {
        EXPECT_THAT(MessageOf<std::runtime_error>(call), EndsWith(": Logpass key does not exist"));
    }
    EXPECT_NO_THROW(logs.DeleteLogPass("x"));
}

TEST(CombinedLogMap, SpansPassDepthsAndLoggingDepths)
{
    CombinedLogMap logs(SURVEY);
    EXPECT_FALSE(logs.GetTotalDepthInterval().IsValid());
    EXPECT_EQ(logs.GetTotalDepthInterval(), Interval());

    QString const first = AddTime(logs, "/time/1.las")->hash;
    QString const second = AddTime(logs, "/time/2.las")->hash;
    logs.GetTimeLog(first)->SetLogDepth(50);
    logs.GetTimeLog(second)->SetLogDepth(70);
    EXPECT_EQ(logs.GetTotalDepthInterval(), Interval(50, 70));

    AddDepth(logs, "/depth/1.las");      // 100 to 101
    AddDepth(logs, "/depth/2.las", -10); // 90 to 91
    EXPECT_EQ(logs.GetTotalDepthInterval(), Interval(50, 101));
    logs.DeleteLogPass(first);
    logs.DeleteLogPass(second);
    EXPECT_EQ(logs.GetTotalDepthInterval(), Interval(90, 101));

    LASFile empty = MakeDepthFile({}, {});
    ASSERT_TRUE(logs.AddLogPass(empty, "/depth/empty.las", SURVEY).has_value());
    EXPECT_EQ(logs.GetTotalDepthInterval(), Interval(90, 101));
}

TEST(CombinedLogMap, KeepsTheFirstOfTwoRestoredLogs)
{
    CombinedLogMap logs(SURVEY);
    auto const restored = [](float value) {
        LASFile file = MakeDepthFile({1, 2}, {{"GR", {value, value}}});
        return std::make_shared<DepthLogPass>(file, "a.las", LogPassIdentifier(SURVEY, "hash"), QPen());
    };
    auto const first = restored(1);
    logs.AddDepthLogPass(first);
    logs.AddDepthLogPass(restored(2));
    EXPECT_EQ(logs.GetDepthLogPass("hash"), first);
}
