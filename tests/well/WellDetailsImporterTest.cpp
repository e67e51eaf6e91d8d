// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsImporter.h"

#include "support/TestFiles.h"

namespace {
QByteArray const WELL = R"({
  "Metric Depth": true, "Well Name": "Brønn 7",
  "Inclination Survey": {"TVD_Tie_In": 25, "NS_Tie_In": -2, "EW_Tie_In": 3,
      "MD": [0, 100, 200], "Inclination": [0, 1.5, 3, 9], "Azimuth": [10, 20, 30]},
  "Perforations": [{"Top Depth": 1500, "Bottom Depth": 1490, "Description": "upper"}, 17, null],
  "Casing Strings": [
    {"Description": "9 5/8\"", "Set Depth": 1000, "Outer Cement Description": "G", "Outer Cement Bottom Depth": 1000,
     "Outer Cement Top Depth": 400,
     "Component List": [{"Description": "joint", "Length": 300, "Nominal ID": 8.5, "Nominal OD": 9.5, "Weight": 47},
                        {"Description": "shoe", "Length": 10}]},
    "junk"],
  "Tubing String": {"Description": "3 1/2\"", "Set Depth": 900, "Component List": []},
  "Misc Well Components": [{"Top Depth": 880, "Bottom Depth": 882, "Type": "Packer", "Description": "main"},
                           {"Top Depth": 990, "Bottom Depth": 980, "Type": "packer"}]
})";

void ExpectNothing(WellDetailsImporter const& importer)
{
    EXPECT_EQ(importer.GetWellname(), "");
    EXPECT_TRUE(importer.GetInclinationSurvey().first.empty());
    EXPECT_EQ(importer.GetInclinationSurvey().second, DirectionalSurveyTieInData());
    EXPECT_TRUE(importer.GetPerforaitons().isEmpty());
    EXPECT_TRUE(importer.GetPipeStringVector().empty());
    EXPECT_TRUE(importer.GetMiscComponents().isEmpty());
}
} // namespace

TEST(WellDetailsImporter, ReadsEverythingInMetres)
{
    test_files::Folder const folder;
    WellDetailsImporter const importer(folder.Write("well.json", WELL));
    EXPECT_EQ(importer.GetError(), "");
    EXPECT_EQ(importer.GetWellname(), "Brønn 7");
    auto const [stations, tie_in] = importer.GetInclinationSurvey();
    std::vector<DirectionalSurveyItem> const expected = {{0, 0, 10}, {100, 1.5F, 20}, {200, 3, 30}};
    EXPECT_EQ(stations, expected) << "as many as the shortest array";
    EXPECT_EQ(tie_in, (DirectionalSurveyTieInData{.tvd = 25, .ns = -2, .ew = 3}));
    EXPECT_EQ(importer.GetPerforaitons(), QList<Zone>({Zone({1490, 1500}, "upper", Zone::DEFAULT_COLOR)}));

    std::vector<PipeString> const strings = importer.GetPipeStringVector();
    ASSERT_EQ(strings.size(), 2U);
    PipeString casing(
        "9 5/8\"", 1000, false,
        {PipeComponent(9.5F, 8.5F, 47, 300, "joint"),
         PipeComponent(PipeComponent::NULL_DIAMETER, PipeComponent::NULL_DIAMETER, 0, 10, "shoe")});
    casing.SetOuterCementData(1000, 400, "G");
    EXPECT_EQ(strings[0], casing) << "cement as given, bottom first";
    EXPECT_EQ(strings[1], PipeString("3 1/2\"", 900, true, {}));
    EXPECT_EQ(importer.GetMiscComponents(),
              QList<WellComponent>({WellComponent({880, 882}, "main", WellComponentType::ProductionPacker),
                                    WellComponent({990, 980}, "", WellComponentType::Undefined)}));
}

TEST(WellDetailsImporter, AnythingButMetricTrueIsFeet)
{
    // As in the well in metres, with 0.3048 as a double; the stations in single precision.
    for (char const* metric :
         {"", "\"Metric Depth\": false,", "\"Metric Depth\": 1,", "\"Metric Depth\": \"true\","}) {
        SCOPED_TRACE(metric);
        WellDetailsImporter const importer =
            WellDetailsImporter::FromJson(QByteArray(WELL).replace("\"Metric Depth\": true,", metric));
        EXPECT_EQ(importer.GetInclinationSurvey().first.at(1), DirectionalSurveyItem(30.48F, 1.5F, 20));
        EXPECT_DOUBLE_EQ(importer.GetInclinationSurvey().second.tvd, 25 * 0.3048);
        EXPECT_EQ(importer.GetPerforaitons()[0].GetDepth(), Interval(1490 * 0.3048, 1500 * 0.3048));
        PipeString const casing = importer.GetPipeStringVector().at(0);
        EXPECT_DOUBLE_EQ(casing.GetSetDepth_metric(), 304.8);
        EXPECT_DOUBLE_EQ(casing.GetComponent(0)->GetLength(), 300 * 0.3048);
        EXPECT_EQ(casing.GetNominalOD(), 9.5);
        EXPECT_EQ(casing.GetOuterCementData().second, Interval(1000 * 0.3048, 400 * 0.3048));
        EXPECT_EQ(importer.GetMiscComponents()[0].depth, Interval(880 * 0.3048, 882 * 0.3048));
    }
}

TEST(WellDetailsImporter, WordsOfTheTypes)
{
    // The word of each type by its number; 0 and the others have none.
    QStringList const words =
        QString(
            "|HUD|Plug|Fish|Restriction|DownholeSafetyValve|SidePocketMandrel|PermanentDownholeGauge||Nipple|"
            "Packer|Tubing Leak||Cut|AnnularSafetyValve|||Straddle|Cement Plug|Punch")
            .split('|');
    auto const& convert = WellDetailsImporter::ConvertStringTypeToComponentType;
    for (int number = 0; number < words.size(); ++number) {
        EXPECT_EQ(static_cast<int>(convert(words[number])), words[number].isEmpty() ? 0 : number);
    }
    EXPECT_EQ(convert("Production Packer"), WellComponentType::Undefined);
}

TEST(WellDetailsImporter, WrongTypesAndJunkGiveNothing)
{
    test_files::Folder const folder;
    WellDetailsImporter const missing(folder.Path("missing.json"));
    ExpectNothing(missing);
    EXPECT_FALSE(missing.GetError().isEmpty());
    EXPECT_EQ(WellDetailsImporter::FromJson("{}").GetError(), "");

    for (QByteArray const& junk :
         {QByteArray(), QByteArray("[1, 2]"), QByteArray("{\"Well Name\": \"cut off"),
          QByteArray("\0\1\2\xff", 4), QByteArray(5'000'000, '['), QByteArray("{\"a\":").repeated(100'000)}) {
        WellDetailsImporter const importer = WellDetailsImporter::FromJson(junk);
        ExpectNothing(importer);
        EXPECT_FALSE(importer.GetError().isEmpty());
    }
    ExpectNothing(WellDetailsImporter::FromJson(
        R"({"Well Name": 5, "Inclination Survey": [1], "Perforations": {"Top Depth": 1}, "Casing Strings": "x",
            "Tubing String": null, "Misc Well Components": 3})"));

    WellDetailsImporter const odd = WellDetailsImporter::FromJson(
        R"({"Metric Depth": true, "Inclination Survey": {"MD": ["5", 1e300], "Inclination": [null, 1], "Azimuth": [{}, 2]},
            "Casing Strings": [{"Set Depth": "deep", "Component List": [{"Nominal ID": "8", "Length": -1e308}, 4]}]})");
    EXPECT_EQ(odd.GetInclinationSurvey().first.at(0), DirectionalSurveyItem(0, 0, 0));
    PipeString const string = odd.GetPipeStringVector().at(0);
    EXPECT_EQ(string.size(), 1U);
    EXPECT_EQ(string.GetComponent(0)->GetID(), PipeComponent::NULL_DIAMETER);
    EXPECT_EQ(string.GetSetDepth_metric(), 0);
}
