// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/PipeString.h"

#include "support/NumberFormats.h"
#include "well/NominalDiameters.h"
#include "well/PipeData.h"

namespace {
constexpr float NO = PipeComponent::NULL_DIAMETER;

PipeComponent Joint(float od, float id, double length, QString const& name = "joint")
{
    return {od, id, 12, length, name};
}
} // namespace

TEST(NominalDiameters, LongestKnownOrEstimated)
{
    // The longest with an ID is the third, with an OD the second; the fourth is longer but knows neither.
    NominalDiameters const both =
        FindNominalDiameters({Joint(7, 6, 10), Joint(7.5F, NO, 30), Joint(NO, 6.25F, 20), Joint(NO, NO, 99)});
    EXPECT_EQ(both.id, 6.25);
    EXPECT_EQ(both.od, 7.5);
    NominalDiameters const equal = FindNominalDiameters({Joint(7, 6, 10), Joint(9, 8, 10)});
    EXPECT_EQ(equal.id, 6);
    EXPECT_EQ(equal.od, 7);
    EXPECT_EQ(FindNominalDiameters({Joint(10, NO, 5)}).id, 9);
    EXPECT_EQ(FindNominalDiameters({Joint(NO, 100, 5)}).od, 102);
    EXPECT_EQ(FindNominalDiameters({Joint(NO, NO, 5)}).id, NO);
    EXPECT_EQ(FindNominalDiameters({Joint(8, NO, -2)}).od, NO) << "not longer than the start value -1";
}

TEST(PipeString, StacksComponentsUpFromTheSetDepth)
{
    PipeString const string("Casing", 1000, false, {Joint(NO, 8, 100), Joint(9, NO, 250), Joint(10, 7, 50)});
    EXPECT_EQ(string.GetDepthInterval(), Interval(600, 1000));
    EXPECT_EQ(string.GetComponent(1)->GetDepth(), Interval(700, 950));
    EXPECT_EQ(string.GetComponent(3), nullptr);
    EXPECT_EQ(string.GetComponent(0)->GetNonNullOd(), 9);
    EXPECT_EQ(string.GetComponent(1)->GetNonNullId(), 8);
    EXPECT_EQ(string.GetODinterval(), Interval(9, 10));
    EXPECT_EQ(string.GetIDinterval(), Interval(7, 8));

    EXPECT_EQ(string.FindComponentIndexAtDepth(700), 0) << "a joint belongs to the upper component";
    EXPECT_EQ(string.FindComponentIndexAtDepth(700.001), 1);
    EXPECT_EQ(string.FindComponentIndexAtDepth(599.9), -1);
    EXPECT_EQ(string.FindComponentAtDepth(1000), string.GetComponent(2));
    EXPECT_EQ(string.FindComponentAtDepth(std::nan("")), nullptr);

    PipeString const empty("Empty", 1000, false, {});
    EXPECT_EQ(empty.GetDepthInterval(), Interval());
    EXPECT_EQ(empty.GetODinterval(), Interval());
    EXPECT_FALSE(empty == 500.0);
}

TEST(PipeString, LeavesNoGapsBetweenJointsAndKeepsTheirLengths)
{
    std::vector<PipeComponent> joints;
    for (int i = 0; i < 1000; ++i) {
        joints.push_back(Joint(4.5F, 3.9F, 9.6 + 0.001 * (i % 37), QString::number(i)));
    }
    PipeString const string("Tubing", 9876.54, true, joints);
    for (int i = 0; i + 1 < 1000; ++i) {
        double const depth = string.GetComponent(i)->GetMaxDepth();
        ASSERT_EQ(depth, string.GetComponent(i + 1)->GetMinDepth());
        ASSERT_EQ(string.FindComponentIndexAtDepth(depth), i);
        ASSERT_EQ(string.FindComponentIndexAtDepth(std::nextafter(depth, 1e9)), i + 1);
    }
    EXPECT_EQ(string.GetPipeComponentVector(), joints);
    EXPECT_EQ(string, PipeString("Tubing", 9876.54, true, string.GetPipeComponentVector()));
}

TEST(PipeString, EqualityIsWhatWasEntered)
{
    PipeString const string("A", 100, false, {Joint(7, 6, 10)});
    EXPECT_EQ(string, PipeString("A", 100, false, {Joint(7, 6, 10)}));
    for (PipeString const& other :
         {PipeString("B", 100, false, {Joint(7, 6, 10)}), PipeString("A", 101, false, {Joint(7, 6, 10)}),
          PipeString("A", 100, true, {Joint(7, 6, 10)}), PipeString("A", 100, false, {Joint(7, 6, 11)}),
          PipeString("A", 100, false, {Joint(7, 6, 10), Joint(7, 6, 10)})}) {
        EXPECT_FALSE(string == other) << qPrintable(other.GetName());
    }
    PipeString cemented = string;
    cemented.SetOuterCementData(90, 20, "class G");
    EXPECT_FALSE(string == cemented);
}

TEST(CalculatedPipeComponent, VolumesInBarrels)
{
    NumberFormatScope const scope;
    // pi / 4 * 4^2 square inches * 0.00064516 * 100 m * 6.28981077
    CalculatedPipeComponent const known(Joint(5, 4, 200), 3, 3);
    EXPECT_DOUBLE_EQ(known.CalculateVolume(100).volume, 5.099350469532682);
    EXPECT_DOUBLE_EQ(known.CalculatePluggedDisplacement(100).volume, 7.967735108644816);
    EXPECT_TRUE(known.CalculateVolume(100).warning.isEmpty());
    EXPECT_DOUBLE_EQ(known.CalculateVolume(-100).volume, -5.099350469532682);

    CalculatedPipeComponent const unknown(Joint(NO, NO, 1200.5, "pup %1"), 4, 5);
    EXPECT_DOUBLE_EQ(unknown.CalculateVolume(100).volume, 5.099350469532682);
    EXPECT_EQ(
        unknown.CalculatePluggedDisplacement().warning,
        "OD not available for component \"pup %1\" w/ Length: 1,200.500m. Substituted with OD = 5.000.");

    CalculatedPipeComponent const nothing(Joint(NO, NO, 10, "bad"), NO, NO);
    EXPECT_THAT([&] { (void)nothing.CalculateVolume(); },
                testing::ThrowsMessage<std::invalid_argument>(
                    "Error: Null-value in volume calculation of following component: bad"));
    EXPECT_THAT([&] { (void)nothing.CalculatePluggedDisplacement(); },
                testing::ThrowsMessage<std::invalid_argument>(
                    "Error: Null-value in displacement calculation of following component: bad"));
}

TEST(PipeData, ConvertsTheFlatTable)
{
    QList<Pipe> const pipes = {
        Pipe({500, 700}, 4.5F, 4, 12, true, "lower"), Pipe({0, 1000}, 9.6F, 8.7F, 47, false, "casing"),
        Pipe({0, 300}, 5, 4.3F, 15, true, "upper"), Pipe({900, 1500}, 7, 6, 29, false, "liner")};
    std::vector<PipeString> strings = {PipeString("kept", 1, false, {})};
    ConvertPipeListToPipeStringVector(pipes, strings);
    ASSERT_EQ(strings.size(), 4U);
    EXPECT_EQ(strings[1], PipeString("casing", 1000, false, {PipeComponent(9.6F, 8.7F, 47, 1000, "casing")}));
    EXPECT_EQ(strings[2], PipeString("liner", 1500, false, {PipeComponent(7, 6, 29, 600, "liner")}));
    EXPECT_EQ(strings[3], PipeString("Tubing", 700, true,
                                     {PipeComponent(5, 4.3F, 15, 300, "upper"),
                                      PipeComponent(4.5F, 4, 12, 200, "lower")}));
    EXPECT_EQ(strings[3].GetDepthInterval(), Interval(200, 700)) << "the gap is closed from below";
}
