// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DirectionalSurveyData.h"

#include "model/StorageDataChannel.h"
#include "support/NumberFormats.h"
#include "support/TestFiles.h"

#include <numbers>
#include <sstream>

namespace {
using std::numbers::pi;

DirectionalSurveyData Survey(std::vector<DirectionalSurveyItem> const& stations,
                             DirectionalSurveyTieInData const& tie_in = {})
{
    return {stations, tie_in};
}

/// The eight numbers of an item against those that follow in a line of the reference: within two last bits;
/// the floor is for values that cancel to nearly nothing.
void ExpectSame(WellTrajectoryItem const& item, std::istream& reference)
{
    std::tuple<char const*, float, float> const numbers[] = {
        {"MD", item.GetMeasuredDepth(), 0.0F},
        {"inclination", item.GetInclination(), 1e-6F},
        {"azimuth", item.GetAzimuth(), 2e-5F},
        {"TVD", item.tvd, 1e-6F},
        {"NS", item.ns, 1e-6F},
        {"EW", item.ew, 1e-6F},
        {"DLS", item.dls, 1e-6F},
        {"vertical section", item.vertical_section, 1e-6F}};
    for (auto const& [name, actual, floor] : numbers) {
        float expected = NAN;
        reference >> expected;
        EXPECT_NEAR(actual, expected, std::max(floor, std::fabs(expected) * 2.4e-7F)) << name;
    }
}
} // namespace

TEST(DirectionalSurveyData, AgreesWithReferenceWells)
{
    std::istringstream file(test_files::Read(test_files::DataPath("well/trajectories.txt")).toStdString());
    DirectionalSurveyTieInData tie_in;
    std::vector<DirectionalSurveyItem> stations;
    DirectionalSurveyData survey;
    std::size_t item = 0;
    int compared = 0;
    for (std::string line; std::getline(file, line);) {
        SCOPED_TRACE(line);
        std::istringstream text(line);
        std::string word;
        text >> word;
        if (word == "well") {
            text >> tie_in.tvd >> tie_in.ns >> tie_in.ew;
            stations.clear();
            item = 0;
        } else if (word == "station") {
            DirectionalSurveyItem& station = stations.emplace_back();
            text >> station.measured_depth >> station.inclination >> station.azimuth;
            survey = Survey(stations, tie_in);
        } else if (word == "item") {
            ExpectSame(survey.GetWellTrajectoryData().at(item++), text);
            ++compared;
        } else if (word == "at") {
            float depth = NAN;
            std::istringstream(line.substr(word.size())) >> depth;
            ExpectSame(survey.InterpolateWellTrajectory(depth).value(), text);
            ++compared;
        }
    }
    EXPECT_EQ(compared, 6 * (40 + 43));
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

TEST(DirectionalSurveyData, FollowsCirclesAndStraightLines)
{
    auto const quarter = static_cast<float>(150 * pi);
    double const turn = 180 / pi;
    struct
    {
        char const* name;
        DirectionalSurveyItem from;
        DirectionalSurveyItem to;
        double tvd, ns, ew, dls; // at the end
        float share;             // of the course: there inclination and azimuth are those of the arc
        double inclination, azimuth;
    } const courses[] = {
        {"quarter circle of radius 300 m", {0, 0, 90}, {quarter, 90, 90}, 300, 0, 300, 18 / pi, 0.5F, 45, 90},
        {"straight", {1000, 60, 0}, {1100, 60, 0}, 50, 100 * std::sin(pi / 3), 0, 0, 0.25F, 60, 0},
        {"horizontal, north to east", {0, 90, 0}, {90, 90, 90}, 0, turn, turn, 30, 1 / 3.0F, 90, 30},
        // The candidate 0 lies outside 40..100, so it becomes 360.
        {"vertical, azimuths differ", {0, 0, 40}, {30, 0, 100}, 30, 0, 0, 0, 0.5F, 0, 360}};
    for (auto const& course : courses) {
        SCOPED_TRACE(course.name);
        DirectionalSurveyData const survey =
            Survey({course.to, course.from}, {.tvd = 100, .ns = 7, .ew = -5});
        auto const& trajectory = survey.GetWellTrajectoryData();
        ASSERT_EQ(trajectory.size(), 2U);
        EXPECT_NEAR(trajectory[1].tvd, 100 + course.tvd, 1e-4);
        EXPECT_NEAR(trajectory[1].ns, 7 + course.ns, 1e-4);
        EXPECT_NEAR(trajectory[1].ew, -5 + course.ew, 1e-4);
        EXPECT_NEAR(trajectory[1].dls, course.dls, 1e-4);

        float const length = course.to.measured_depth - course.from.measured_depth;
        auto const part =
            survey.InterpolateWellTrajectory(course.from.measured_depth + course.share * length);
        EXPECT_NEAR(part->GetInclination(), course.inclination, 1e-4);
        EXPECT_NEAR(part->GetAzimuth(), course.azimuth, 1e-4);
        EXPECT_NEAR(part->tvd, 100 + course.share * course.tvd, 1e-4) << "the position is that of the chord";
        EXPECT_NEAR(part->ew, -5 + course.share * course.ew, 1e-4);
    }
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

TEST(DirectionalSurveyData, InterpolatesBetweenTheFirstAndTheLastStationOnly)
{
    DirectionalSurveyData const survey = Survey({{100, 0, 0}, {130, 10, 0}, {160, 40, 0}});
    for (float const depth : {std::nextafter(100.0F, 0.0F), std::nextafter(160.0F, 999.0F), NAN}) {
        EXPECT_FALSE(survey.InterpolateWellTrajectory(depth).has_value()) << depth;
    }
    for (float const depth : {130.0F, 160.0F}) {
        EXPECT_NEAR(survey.InterpolateWellTrajectory(depth)->dls, 30, 1e-4)
            << "of the interval that starts there, or of the last one";
    }
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
            EXPECT_NEAR(survey.InterpolateWellTrajectory((from + to) / 2)->GetInclination(), 0.4 * i + 0.2,
                        1e-4);
        }
    }
}

TEST(DirectionalSurveyData, AzimuthOfAPoint)
{
    double const points[][3] = {{0, 5, 0},          {0, 0, 0},           {0, -5, 2 * pi},
                                {2, 2, pi / 4},     {2, -2, 7 * pi / 4}, {-2, -2, 5 * pi / 4},
                                {-2, 2, 3 * pi / 4}};
    for (auto const& [ns, ew, azimuth] : points) {
        EXPECT_DOUBLE_EQ(DirectionalSurveyData::CalculateAzimuth(ns, ew), azimuth) << ns << ' ' << ew;
    }
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

    DirectionalSurveyData const lost = Survey({{100, 1, 10}});
    EXPECT_TRUE(lost.GetDirectionalSurveyVector().empty());
    EXPECT_FALSE(lost.InterpolateWellTrajectory(100).has_value());
    EXPECT_EQ(lost.GenerateWellSurveyStorageDataChannels({}, {}).first->size(), 0U);
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
        float const depths[] = {NAN, static_cast<float>(i % 90), -INFINITY, static_cast<float>(-i), INFINITY};
        stations.emplace_back(depths[i % 5], i % 13 == 0 ? NAN : 400.0F * (i % 7),
                              i % 17 == 0 ? INFINITY : -720.0F);
    }
    DirectionalSurveyData const junk = Survey(stations);
    EXPECT_EQ(junk.GetWellTrajectoryData().size(), stations.size());
    for (float md : {-INFINITY, 0.0F, 45.5F, 1e30F, INFINITY, NAN}) {
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
    NumberFormatScope const scope;
    EXPECT_EQ(survey.GenerateIntervalDepthString({101.4, 999.6}), "     MD[101 - 1,000]m  /  TVD[50 - 499]m");
    EXPECT_EQ(survey.GenerateIntervalDepthString({101.4, 1001}), "     MD[101 - 1,001]m");
    NumberFormatScope::Set({US, false});
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
    EXPECT_EQ(deviation->at(32), 60);
    EXPECT_NEAR(tvd->at(32), 40 + 0.5 * 32 * 0.3048, 1e-4);
    EXPECT_NEAR(tvd->GetDepth().GetMaxDepth_metric(), 50 + 32 * 0.3048, 1e-5);
    EXPECT_EQ(tvd->GetDepth().GetMinDepth_metric(), 50);
    EXPECT_EQ(deviation->GetCurveInfo(), HeaderRow("DEV", "deg", "", "Deviation survey channel"));
    EXPECT_EQ(deviation->GetDataChannelIdentifier(), DataChannelIdentifier(1, "A", 2));
    EXPECT_EQ(tvd->GetCurveInfo(), HeaderRow("TVD", "m", "", "TVD channel"));
    EXPECT_EQ(tvd->GetDataChannelIdentifier(), DataChannelIdentifier(3, "B", 4));
}
