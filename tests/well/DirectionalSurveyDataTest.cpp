// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DirectionalSurveyData.h"

#include "app/kit/SettingsSingleton.h"
#include "model/StorageDataChannel.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <sstream>

namespace {
using std::numbers::pi;
constexpr float NAN_F = std::numeric_limits<float>::quiet_NaN();
constexpr float INF_F = std::numeric_limits<float>::infinity();

DirectionalSurveyData Survey(std::vector<DirectionalSurveyItem> const& stations,
                             DirectionalSurveyTieInData const& tie_in = {})
{
    return {stations, tie_in};
}

/// One well of the reference file and what the program made of its stations.
struct ReferenceWell
{
    DirectionalSurveyTieInData tie_in;
    std::vector<DirectionalSurveyItem> stations;
    std::vector<WellTrajectoryItem> items;
    std::vector<WellTrajectoryItem> interpolated;
};

std::vector<ReferenceWell> ReadReference()
{
    std::vector<ReferenceWell> wells;
    std::istringstream file(test_files::Read(test_files::DataPath("well/trajectories.txt")).toStdString());
    for (std::string line; std::getline(file, line);) {
        std::istringstream text(line);
        std::string word;
        text >> word;
        float v[8] = {};
        if (word == "well") {
            wells.emplace_back();
            text >> wells.back().tie_in.tvd >> wells.back().tie_in.ns >> wells.back().tie_in.ew;
        } else if (word == "station") {
            text >> v[0] >> v[1] >> v[2];
            wells.back().stations.emplace_back(v[0], v[1], v[2]);
        } else if (word == "item" || word == "at") {
            for (float& value : v) {
                text >> value;
            }
            WellTrajectoryItem const item({v[0], v[1], v[2]}, v[3], v[4], v[5], v[6], v[7]);
            (word == "item" ? wells.back().items : wells.back().interpolated).push_back(item);
        }
        EXPECT_TRUE(word == "#" || !text.fail()) << line;
    }
    return wells;
}

/// Within two last bits; the floor is for values that cancel to nearly nothing.
void ExpectSame(float actual, float expected, float floor, char const* what)
{
    float const tolerance = std::max(floor, std::fabs(expected) * 2.4e-7F);
    EXPECT_NEAR(actual, expected, tolerance) << what;
}

void ExpectSame(WellTrajectoryItem const& actual, WellTrajectoryItem const& expected)
{
    SCOPED_TRACE("MD " + std::to_string(expected.GetMeasuredDepth()));
    EXPECT_EQ(actual.GetMeasuredDepth(), expected.GetMeasuredDepth());
    ExpectSame(actual.GetInclination(), expected.GetInclination(), 1e-6F, "inclination");
    ExpectSame(actual.GetAzimuth(), expected.GetAzimuth(), 2e-5F, "azimuth");
    ExpectSame(actual.tvd, expected.tvd, 1e-6F, "TVD");
    ExpectSame(actual.ns, expected.ns, 1e-6F, "NS");
    ExpectSame(actual.ew, expected.ew, 1e-6F, "EW");
    ExpectSame(actual.dls, expected.dls, 1e-6F, "DLS");
    ExpectSame(actual.vertical_section, expected.vertical_section, 1e-6F, "vertical section");
}
} // namespace

TEST(DirectionalSurveyData, AgreesWithReferenceWells)
{
    std::vector<ReferenceWell> const wells = ReadReference();
    ASSERT_EQ(wells.size(), 6U);
    for (std::size_t i = 0; i < wells.size(); ++i) {
        SCOPED_TRACE("well " + std::to_string(i));
        DirectionalSurveyData const survey = Survey(wells[i].stations, wells[i].tie_in);
        auto const& trajectory = survey.GetWellTrajectoryData();
        ASSERT_EQ(trajectory.size(), wells[i].items.size());
        for (std::size_t k = 0; k < trajectory.size(); ++k) {
            ExpectSame(trajectory[k], wells[i].items[k]);
        }
        ASSERT_EQ(wells[i].interpolated.size(), 43U);
        for (WellTrajectoryItem const& expected : wells[i].interpolated) {
            auto const actual = survey.InterpolateWellTrajectory(expected.GetMeasuredDepth());
            ASSERT_TRUE(actual.has_value());
            ExpectSame(*actual, expected);
        }
    }
}

TEST(DirectionalSurveyData, AgreesWithPublishedSurvey)
{
    QUORREL_SKIP_WITHOUT_SAMPLES();
    QStringList const files = test_files::SampleFiles("deviation", {"*deviation.csv"});
    ASSERT_EQ(files.size(), 1);
    std::vector<DirectionalSurveyItem> stations;
    std::vector<std::vector<double>> rows;
    for (QByteArray const& line : test_files::Read(files[0]).split('\n').mid(1)) {
        QList<QByteArray> const cells = line.split(',');
        if (cells.size() == 7) {
            rows.emplace_back();
            for (QByteArray const& cell : cells) {
                rows.back().push_back(cell.trimmed().toDouble());
            }
            stations.emplace_back(rows.back()[0], rows.back()[1], rows.back()[2]);
        }
    }
    ASSERT_GT(rows.size(), 70U);
    DirectionalSurveyData const survey =
        Survey(stations, {.tvd = rows[0][3], .ns = rows[0][4], .ew = rows[0][5]});
    for (std::size_t i = 1; i < rows.size(); ++i) {
        WellTrajectoryItem const& item = survey.GetWellTrajectoryData()[i];
        // Its angles are rounded to hundredths of a degree, its positions to centimetres.
        EXPECT_NEAR(item.tvd, rows[i][3], 0.3) << "row " << i;
        EXPECT_NEAR(item.ns, rows[i][4], 0.3) << "row " << i;
        EXPECT_NEAR(item.ew, rows[i][5], 0.3) << "row " << i;
        // The last two rows are projections, whose printed doglegs do not follow from their own angles.
        if (i + 2 < rows.size()) {
            EXPECT_NEAR(item.dls, rows[i][6], 0.02) << "row " << i;
        }
    }
}

TEST(DirectionalSurveyData, FollowsACircle)
{
    // A quarter circle of radius 300 m towards the east: from vertical to horizontal over 300 pi / 2 metres.
    auto const length = static_cast<float>(150 * pi);
    DirectionalSurveyData const survey =
        Survey({{length, 90, 90}, {0, 0, 90}}, {.tvd = 100, .ns = 7, .ew = -5});
    auto const& trajectory = survey.GetWellTrajectoryData();
    ASSERT_EQ(trajectory.size(), 2U);
    EXPECT_EQ(trajectory[0].tvd, 100);
    EXPECT_EQ(trajectory[0].ns, 7);
    EXPECT_EQ(trajectory[0].ew, -5);
    EXPECT_EQ(trajectory[0].dls, 0);
    EXPECT_NEAR(trajectory[1].tvd, 400, 1e-4);
    EXPECT_NEAR(trajectory[1].ew, 295, 1e-4);
    EXPECT_NEAR(trajectory[1].ns, 7, 1e-4);
    EXPECT_NEAR(trajectory[1].dls, 90 * 30 / (150 * pi), 1e-5);

    // Half way the direction is that of the arc, the position that of the chord.
    auto const middle = survey.InterpolateWellTrajectory(length / 2);
    ASSERT_TRUE(middle.has_value());
    EXPECT_NEAR(middle->GetInclination(), 45, 1e-4);
    EXPECT_EQ(middle->GetAzimuth(), 90);
    EXPECT_NEAR(middle->tvd, 250, 1e-4);
    EXPECT_NEAR(middle->ew, 145, 1e-4);
    EXPECT_EQ(middle->vertical_section, 0);
}

TEST(DirectionalSurveyData, StraightAndTurningCourses)
{
    // Straight at 60 degrees: TVD grows by half the course, north by sin 60.
    DirectionalSurveyData const straight = Survey({{1000, 60, 0}, {1100, 60, 0}});
    EXPECT_NEAR(straight.GetWellTrajectoryData()[1].tvd, 50, 1e-5);
    EXPECT_NEAR(straight.GetWellTrajectoryData()[1].ns, 100 * std::sin(pi / 3), 1e-5);
    EXPECT_EQ(straight.GetWellTrajectoryData()[1].dls, 0);
    EXPECT_NEAR(straight.InterpolateWellTrajectory(1025)->tvd, 12.5, 1e-5);

    // Horizontal, from north to east: inclination stays, azimuth follows the arc.
    DirectionalSurveyData const turn = Survey({{0, 90, 0}, {90, 90, 90}});
    EXPECT_NEAR(turn.GetWellTrajectoryData()[1].dls, 30, 1e-4);
    auto const third = turn.InterpolateWellTrajectory(30);
    EXPECT_EQ(third->GetInclination(), 90);
    EXPECT_NEAR(third->GetAzimuth(), 30, 1e-4);

    // Vertical with differing azimuths: the candidate 0 lies outside 40..100, so it becomes 360.
    auto const vertical = Survey({{0, 0, 40}, {30, 0, 100}}).InterpolateWellTrajectory(15);
    EXPECT_EQ(vertical->GetInclination(), 0);
    EXPECT_EQ(vertical->GetAzimuth(), 360);
    EXPECT_EQ(vertical->tvd, 15);
}

TEST(DirectionalSurveyData, KickOffFromVerticalKeepsItsAzimuth)
{
    // The path leaves the vertical in the plane of the lower station, so the azimuth is the lower station's
    // all along: rounding must not turn it into 360 minus that.
    for (float azimuth = 1; azimuth < 180; azimuth += 0.37F) {
        DirectionalSurveyData const survey = Survey({{500, 0, 0}, {530, 3, azimuth}});
        for (float md = 501; md <= 530; md += 1.3F) {
            ASSERT_NEAR(survey.InterpolateWellTrajectory(md)->GetAzimuth(), azimuth, 2e-4) << md;
        }
    }
}

TEST(DirectionalSurveyData, InterpolatesFromTheStationsOnly)
{
    DirectionalSurveyData const survey = Survey({{100, 0, 0}, {130, 10, 0}, {160, 40, 0}});
    auto const& trajectory = survey.GetWellTrajectoryData();
    EXPECT_FALSE(survey.InterpolateWellTrajectory(std::nextafter(100.0F, 0.0F)).has_value());
    EXPECT_FALSE(survey.InterpolateWellTrajectory(std::nextafter(160.0F, 999.0F)).has_value());
    EXPECT_FALSE(survey.InterpolateWellTrajectory(NAN_F).has_value());

    auto const inside = survey.InterpolateWellTrajectory(130);
    EXPECT_NEAR(inside->GetInclination(), 10, 1e-5);
    EXPECT_EQ(inside->tvd, trajectory[1].tvd);
    EXPECT_NEAR(inside->dls, 30, 1e-4) << "the interval that starts here, 30 degrees over 30 m";
    auto const last = survey.InterpolateWellTrajectory(160);
    EXPECT_NEAR(last->GetInclination(), 40, 1e-5);
    EXPECT_NEAR(last->tvd, trajectory[2].tvd, 1e-4);
    EXPECT_NEAR(last->dls, 30, 1e-4);
}

TEST(DirectionalSurveyData, FindsTheIntervalAmongUnevenStations)
{
    // Built in one plane, so that half way between two stations the inclination is their mean.
    for (bool const is_dense_at_top : {true, false}) {
        std::vector<DirectionalSurveyItem> stations;
        for (int i = 0; i <= 200; ++i) {
            auto const cube = static_cast<float>(
                is_dense_at_top ? i * i * i : 8'000'000 - (200 - i) * (200 - i) * (200 - i));
            stations.emplace_back(cube, 0.4F * static_cast<float>(i), 0.0F);
        }
        DirectionalSurveyData const survey = Survey(stations);
        for (std::size_t i = 0; i + 1 < stations.size(); ++i) {
            float const from = stations[i].measured_depth;
            float const to = stations[i + 1].measured_depth;
            EXPECT_NEAR(survey.InterpolateWellTrajectory(from)->GetInclination(), 0.4 * i, 1e-4);
            EXPECT_NEAR(survey.InterpolateWellTrajectory((from + to) / 2)->GetInclination(), 0.4 * i + 0.2,
                        1e-4);
        }
    }
}

TEST(DirectionalSurveyData, AzimuthOfAPoint)
{
    EXPECT_EQ(DirectionalSurveyData::CalculateAzimuth(0, 5), 0);
    EXPECT_EQ(DirectionalSurveyData::CalculateAzimuth(0, 0), 0);
    EXPECT_EQ(DirectionalSurveyData::CalculateAzimuth(0, -5), 2 * pi);
    EXPECT_DOUBLE_EQ(DirectionalSurveyData::CalculateAzimuth(2, 2), pi / 4);
    EXPECT_DOUBLE_EQ(DirectionalSurveyData::CalculateAzimuth(2, -2), 7 * pi / 4);
    EXPECT_DOUBLE_EQ(DirectionalSurveyData::CalculateAzimuth(-2, -2), 5 * pi / 4);
    EXPECT_DOUBLE_EQ(DirectionalSurveyData::CalculateAzimuth(-2, 2), 3 * pi / 4);
    // A last point due east counts as due north: the section of (3 north, 4 east) is then its north part.
    EXPECT_NEAR(DirectionalSurveyData::CalculateVerticalSection(3, 4, 0), 3, 1e-12);
}

TEST(DirectionalSurveyData, StationsComeBackSortedAndAreAppended)
{
    DirectionalSurveyData survey =
        Survey({{300, 3, 30}, {100, 1, 10}, {200, 2, 20}}, {.tvd = 1, .ns = 2, .ew = 3});
    std::vector<DirectionalSurveyItem> const sorted = {{100, 1, 10}, {200, 2, 20}, {300, 3, 30}};
    EXPECT_EQ(survey.GetDirectionalSurveyVector(), sorted);
    EXPECT_EQ(survey.GetDirectionalSurveyTieInData(),
              (DirectionalSurveyTieInData{.tvd = 1, .ns = 2, .ew = 3}));
    survey.SetSurveyData({{400, 0, 0}, {500, 0, 0}});
    EXPECT_EQ(survey.GetWellTrajectoryData().size(), 5U);

    for (auto const& stations : {std::vector<DirectionalSurveyItem>{}, {{100, 1, 10}}}) {
        DirectionalSurveyData const lost = Survey(stations);
        EXPECT_TRUE(lost.GetDirectionalSurveyVector().empty());
        EXPECT_FALSE(lost.InterpolateWellTrajectory(100).has_value());
    }
}

TEST(DirectionalSurveyData, FaultyStationsPassThrough)
{
    DirectionalSurveyData const repeated = Survey({{100, 0, 0}, {200, 5, 0}, {200, 5, 0}, {300, 5, 0}});
    EXPECT_TRUE(std::isnan(repeated.GetWellTrajectoryData()[2].dls)) << "0 / 0";
    EXPECT_EQ(repeated.GetWellTrajectoryData()[2].tvd, repeated.GetWellTrajectoryData()[1].tvd);
    EXPECT_TRUE(std::isfinite(repeated.InterpolateWellTrajectory(200)->tvd));
    DirectionalSurveyData const bent = Survey({{100, 0, 0}, {100, 5, 0}});
    EXPECT_TRUE(std::isinf(bent.GetWellTrajectoryData()[1].dls));

    std::vector<DirectionalSurveyItem> stations;
    for (int i = 0; i < 2000; ++i) {
        float const depth = i % 3 == 0    ? NAN_F
                            : i % 7 == 0  ? -INF_F
                            : i % 11 == 0 ? INF_F
                                          : static_cast<float>(i % 90);
        stations.emplace_back(depth, i % 13 == 0 ? NAN_F : 400.0F * (i % 5), i % 17 == 0 ? INF_F : -720.0F);
    }
    DirectionalSurveyData const junk = Survey(stations);
    EXPECT_EQ(junk.GetWellTrajectoryData().size(), stations.size());
    for (float md : {-INF_F, 0.0F, 45.5F, 1e30F, INF_F, NAN_F}) {
        (void)junk.InterpolateWellTrajectory(md);
    }
    (void)junk.GenerateIntervalDepthString({-1e300, std::nan("")});
    EXPECT_EQ(junk.GenerateWellSurveyStorageDataChannels({}, {}).first->size(), 0U);
    EXPECT_EQ(Survey({{0, 0, 0}, {3e38F, 0, 0}}).GenerateWellSurveyStorageDataChannels({}, {}).first->size(),
              0U);
}

TEST(DirectionalSurveyData, IntervalLabelsInBothUnits)
{
    // At 60 degrees the TVD is half the depth.
    DirectionalSurveyData const survey = Survey({{0, 60, 0}, {1000, 60, 0}});
    SettingsSingleton& settings = SettingsSingleton::Instance();
    settings.SetSeparatorSelection(US);
    settings.SetMetricDepth(true);
    EXPECT_EQ(survey.GenerateIntervalDepthString({101.4, 999.6}), "     MD[101 - 1,000]m  /  TVD[50 - 499]m");
    EXPECT_EQ(survey.GenerateIntervalDepthString({101.4, 1001}), "     MD[101 - 1,001]m");
    settings.SetMetricDepth(false);
    // 101.4 m are 332.68 ft, of which half is 166.3; 999.6 m are 3279.53 and 1639.8 ft: rounded MD, truncated
    // TVD.
    EXPECT_EQ(survey.GenerateIntervalDepthString({101.4, 999.6}),
              "     MD[333 - 3,280]ft  /  TVD[166 - 1,639]ft");
}

TEST(DirectionalSurveyData, ResamplesAtOneFoot)
{
    DirectionalSurveyData const survey = Survey({{50, 60, 0}, {60, 60, 0}}, {.tvd = 40});
    auto const [tvd, deviation] = survey.GenerateWellSurveyStorageDataChannels({1, "A", 2}, {3, "B", 4});
    // 10 m are 32.8 feet: 33 samples with the first.
    ASSERT_EQ(tvd->size(), 33U);
    ASSERT_EQ(deviation->size(), 33U);
    EXPECT_EQ(deviation->at(32), 60);
    EXPECT_NEAR(tvd->at(32), 40 + 0.5 * 32 * 0.3048, 1e-4);
    EXPECT_NEAR(tvd->GetDepth().GetMaxDepth_metric(), 50 + 32 * 0.3048, 1e-5);
    EXPECT_EQ(tvd->GetDepth().GetMinDepth_metric(), 50);
    EXPECT_EQ(deviation->GetName(), "Deviation");
    EXPECT_EQ(deviation->GetCurveInfo(), HeaderRow("DEV", "deg", "", "Deviation survey channel"));
    EXPECT_EQ(deviation->GetDataChannelIdentifier(), DataChannelIdentifier(1, "A", 2));
    EXPECT_EQ(tvd->GetName(), "TVD");
    EXPECT_EQ(tvd->GetCurveInfo(), HeaderRow("TVD", "m", "", "TVD channel"));
    EXPECT_EQ(tvd->GetDataChannelIdentifier(), DataChannelIdentifier(3, "B", 4));

    auto const none = DirectionalSurveyData().GenerateWellSurveyStorageDataChannels({}, {});
    EXPECT_EQ(none.first->size() + none.second->size(), 0U);
}
