// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DeviationText.h"

#include "support/NumberFormats.h"
#include "support/TestFiles.h"

#include <QBuffer>

namespace {
using Stations = std::vector<DirectionalSurveyItem>;
DeviationTextLayout const COMMA{DeviationText::COMMA_SEPARATOR};

class DeviationTextTest : public testing::Test
{
protected:
    static DeviationTextResult Read(QByteArray text, DeviationTextLayout const& layout = COMMA)
    {
        QBuffer buffer(&text);
        buffer.open(QIODevice::ReadOnly);
        auto result = DeviationText::Read(buffer, layout);
        EXPECT_TRUE(result.stations.empty() || result.error.isEmpty());
        return result;
    }

    NumberFormatScope scope_;
    QString const too_few_ =
        "Not enough data column in imported data. Did you correctly specify the line number "
        "of the first data row??";
};
} // namespace

TEST_F(DeviationTextTest, NumbersFollowTheSettings)
{
    for (auto const& format : NumberFormat::All()) {
        NumberFormatScope::Set(format);
        QString const text = format.Text("1,020.50\t50.25\t60.00");
        EXPECT_EQ(Read(text.toUtf8(), {DeviationText::TAB_SEPARATOR}).stations,
                  Stations({{format.is_metric ? 1020.5F : 1020.5F * 0.3048F, 50.25F, 60}}));
    }
}

TEST_F(DeviationTextTest, RefusesWhatIsNoStation)
{
    EXPECT_EQ(Read("a\nb\n", {",", 3}).error, "");
    for (char const* text : {"1 2 3\n", "1,2,3\n4,5\n", "1,2,3\n\n"}) {
        EXPECT_EQ(Read(text).error, too_few_);
    }
    EXPECT_EQ(Read("1,2,3\n", {",", 1, 0, 2, 3}).error, too_few_);
    for (QString const& azimuth : QStringList{"nan", "inf", "1e39", ""}) {
        EXPECT_TRUE(Read("1,2,3\n4,5," + azimuth.toUtf8()).error.contains("MD: 4  Incl: 5  Azi: " + azimuth));
    }
}

TEST_F(DeviationTextTest, BinaryAndHugeFiles)
{
    test_files::Folder const folder;
    for (auto const* name : {"missing", ""}) {
        EXPECT_TRUE(
            DeviationText::ReadFile(folder.Path(name), COMMA).error.startsWith("Unable to open file: "));
    }
    QByteArray binary;
    for (int i = 0; i < 100'000; ++i) {
        binary.append(static_cast<char>(i % 1000 * i % 251));
    }
    EXPECT_FALSE(Read(binary, {DeviationText::WHITESPACE_SEPARATOR}).error.isEmpty());
    EXPECT_TRUE(Read(QByteArray(20'000'000, ',')).error.startsWith("Error in Survey File"));
    EXPECT_EQ(Read(QByteArray(20'000'000, 'x') + ",2,3").error, too_few_);
    EXPECT_EQ(Read(QByteArray("1,2,3\n").repeated(100'000)).stations.size(), 100'000U);
    EXPECT_EQ(Read(QByteArray("1,2,3\n").repeated(100'001)).error,
              "The file holds more than 100000 stations.");
    // A long first line is skipped as one line.
    EXPECT_EQ(Read(QByteArray(200'000, 'x') + "\n1,2,3", {",", 2}).stations, Stations({{1, 2, 3}}));
}

TEST_F(DeviationTextTest, RealSurveys)
{
    QUORREL_SKIP_WITHOUT_SAMPLES();
    // Lines, columns and last stations as read off the files.
    for (auto const& [name, count, last] : {std::tuple<QString, std::size_t, DirectionalSurveyItem>(
                                                "*P11-A-02_SURV.csv", 91, {2691, 89.66F, 319.61F}),
                                            {"*deviation.csv", 79, {2267, 35.43F, 298.39F}}}) {
        auto const result =
            DeviationText::ReadFile(test_files::SampleFiles("deviation", {name}).value(0), {",", 2});
        EXPECT_EQ(result.error, "");
        ASSERT_EQ(result.stations.size(), count);
        EXPECT_EQ(result.stations.back(), last);
    }
    // This one has a header and remarks, which are no stations.
    QString const report = test_files::SampleFiles("deviation", {"*Projected_to_TD.csv"}).value(0);
    EXPECT_TRUE(DeviationText::ReadFile(report, {",", 1, 2, 3, 4}).error.startsWith("Error in Survey File"));
}
