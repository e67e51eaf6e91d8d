// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DeviationText.h"

#include "app/kit/SettingsSingleton.h"
#include "support/TestFiles.h"

#include <QBuffer>

#include <gtest/gtest.h>

namespace {
constexpr char const* TOO_FEW =
    "Not enough data column in imported data. Did you correctly specify the line number "
    "of the first data row??";

class DeviationTextTest : public testing::Test
{
protected:
    DeviationTextTest()
    {
        SettingsSingleton::Instance().SetSeparatorSelection(US);
        SettingsSingleton::Instance().SetMetricDepth(true);
    }

    static DeviationTextResult Read(QByteArray text, DeviationTextLayout const& layout)
    {
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        return DeviationText::Read(buffer, layout);
    }
};

using Stations = std::vector<DirectionalSurveyItem>;
} // namespace

TEST_F(DeviationTextTest, Separators)
{
    Stations const expected = {{10.5F, 1, 350}, {1020, 2.25F, 0}};
    EXPECT_EQ(
        Read("  10.5 \t 1   350\r\n1,020\t2.25  0  \r\n", {DeviationText::WHITESPACE_SEPARATOR}).stations,
        expected);
    EXPECT_EQ(Read("10.5\t1\t 350 \n1,020\t2.25\t0", {DeviationText::TAB_SEPARATOR}).stations, expected);
    EXPECT_EQ(Read("10.5 1 350\n1,020 2.25 0", {DeviationText::BLANK_SEPARATOR}).stations, expected);
    EXPECT_EQ(Read("\xEF\xBB\xBF"
                   "10.5, 1,350\n1020,2.25 ,0\n",
                   {DeviationText::COMMA_SEPARATOR})
                  .stations,
              expected);
    EXPECT_EQ(
        Read("h\nname,350,x,10.5,1\nname,0,,1020,2.25,more\n", {DeviationText::COMMA_SEPARATOR, 2, 4, 5, 2})
            .stations,
        expected);
    EXPECT_EQ(Read("a\nb\n", {DeviationText::COMMA_SEPARATOR, 3}).error, "");
}

TEST_F(DeviationTextTest, NumbersFollowTheSettings)
{
    SettingsSingleton::Instance().SetMetricDepth(false);
    EXPECT_EQ(Read("1000 50 60", {DeviationText::BLANK_SEPARATOR}).stations,
              Stations({{1000 * 0.3048F, 50, 60}}));
    SettingsSingleton::Instance().SetMetricDepth(true);
    SettingsSingleton::Instance().SetSeparatorSelection(International);
    EXPECT_EQ(Read("1.020,5 50,25 60", {DeviationText::BLANK_SEPARATOR}).stations,
              Stations({{1020.5F, 50.25F, 60}}));
    SettingsSingleton::Instance().SetSeparatorSelection(AlternativeInternational);
    EXPECT_EQ(Read("1\u202F"
                   "020,5\t50,25\t60",
                   {DeviationText::TAB_SEPARATOR})
                  .stations,
              Stations({{1020.5F, 50.25F, 60}}));
}

TEST_F(DeviationTextTest, RefusesWhatIsNoStation)
{
    auto const error = [](QByteArray const& text, DeviationTextLayout const& layout) {
        DeviationTextResult const result = Read(text, layout);
        EXPECT_TRUE(result.stations.empty());
        return result.error;
    };
    EXPECT_EQ(error("1,2,3\n4,5\n", {DeviationText::COMMA_SEPARATOR}), TOO_FEW);
    EXPECT_EQ(error("1 2 3\n", {DeviationText::COMMA_SEPARATOR}), TOO_FEW);
    EXPECT_EQ(error("1,2,3\n\n", {DeviationText::COMMA_SEPARATOR}), TOO_FEW);
    EXPECT_EQ(error("1,2,3\n", {DeviationText::COMMA_SEPARATOR, 1, 0, 2, 3}), TOO_FEW);
    QString const tail =
        "\nConfirm import number-format matches application settings and try again. Aborting!!";
    EXPECT_EQ(error("1,2,3\nMD,Inc,Az", {DeviationText::COMMA_SEPARATOR}),
              "Error in Survey File: Unable to convert to number. MD: MD  Incl: Inc  Azi: Az" + tail);
    for (QByteArray const& number :
         {QByteArray("nan"), QByteArray("inf"), QByteArray("1e39"), QByteArray("")}) {
        EXPECT_EQ(error("1,2,3\n4,5," + number, {DeviationText::COMMA_SEPARATOR}),
                  "Error in Survey File: Unable to convert to number. MD: 4  Incl: 5  Azi: " + number + tail);
    }
}

TEST_F(DeviationTextTest, BinaryAndHugeFiles)
{
    test_files::Folder const folder;
    EXPECT_TRUE(
        DeviationText::ReadFile(folder.Path("missing"), {",", 1}).error.startsWith("Unable to open file: "));
    EXPECT_FALSE(DeviationText::ReadFile(folder.Path(""), {",", 1}).error.isEmpty());

    QByteArray binary;
    for (int i = 0; i < 100'000; ++i) {
        binary.append(static_cast<char>(i % 1000 * i % 251));
    }
    EXPECT_FALSE(Read(binary, {DeviationText::WHITESPACE_SEPARATOR}).error.isEmpty());
    DeviationTextResult const line = Read(QByteArray(20'000'000, ','), {DeviationText::COMMA_SEPARATOR});
    EXPECT_TRUE(line.error.startsWith("Error in Survey File"));
    DeviationTextResult const word =
        Read(QByteArray(20'000'000, 'x') + ",2,3", {DeviationText::COMMA_SEPARATOR});
    EXPECT_EQ(word.error, TOO_FEW);
    // A long first line is skipped as one line.
    EXPECT_EQ(Read(QByteArray(200'000, 'x') + "\n1,2,3", {DeviationText::COMMA_SEPARATOR, 2}).stations,
              Stations({{1, 2, 3}}));
}

TEST_F(DeviationTextTest, RealSurveys)
{
    QUORREL_SKIP_WITHOUT_SAMPLES();
    struct Sample
    {
        QString name;
        DeviationTextLayout layout;
        std::size_t stations;
        DirectionalSurveyItem last;
    };
    // Lines, columns and last stations as read off the files.
    std::vector<Sample> const samples = {{"*P11-A-02_SURV.csv", {",", 2}, 91, {2691, 89.66F, 319.61F}},
                                         {"*deviation.csv", {",", 2}, 79, {2267, 35.43F, 298.39F}}};
    for (Sample const& sample : samples) {
        DeviationTextResult const result = DeviationText::ReadFile(
            test_files::SampleFiles("deviation", {sample.name}).value(0), sample.layout);
        EXPECT_EQ(result.error, "");
        ASSERT_EQ(result.stations.size(), sample.stations);
        EXPECT_EQ(result.stations.back(), sample.last);
    }
    // This one has a header and remarks, which are no stations.
    QString const report = test_files::SampleFiles("deviation", {"*Projected_to_TD.csv"}).value(0);
    EXPECT_TRUE(DeviationText::ReadFile(report, {",", 1, 2, 3, 4}).error.startsWith("Error in Survey File"));
}
