// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsImport.h"

#include "model/ProjectAccess.h"
#include "well/WellDetailsImporter.h"

#include <QSignalSpy>

namespace {
QByteArray const WELL = R"({
  "Metric Depth": true, "Well Name": "File",
  "Inclination Survey": {"TVD_Tie_In": 25, "MD": [50, 100], "Inclination": [2, 3], "Azimuth": [10, 20]},
  "Perforations": [{"Top Depth": 10, "Bottom Depth": 20, "Description": "file"}],
  "Tubing String": {"Description": "file", "Set Depth": 90, "Component List": []},
  "Misc Well Components": [{"Top Depth": 88, "Bottom Depth": 89, "Type": "Plug", "Description": "file"}]
})";

using Stations = std::vector<DirectionalSurveyItem>;
Stations const OLD_STATIONS = {{0, 0, 10}, {100, 3, 20}, {200, 4, 30}, {200, 4, 30}};
Zone const OLD_ZONE({1, 2}, "old", Qt::red);
Zone const NEW_ZONE({10, 20}, "file", Zone::DEFAULT_COLOR);
WellComponent const OLD_COMPONENT({1, 2}, "old", WellComponentType::Fish);
WellComponent const NEW_COMPONENT({88, 89}, "file", WellComponentType::Plug);
PipeString const OLD_STRING("old", 50, false, {});
PipeString const NEW_STRING("file", 90, true, {});

class WellDetailsImportTest : public testing::Test
{
protected:
    WellDetailsImportTest()
    {
        project_.SetTrajectorySurvey(OLD_STATIONS, {.tvd = 1, .ns = 2, .ew = 3});
        project_.SetPerforationZones({OLD_ZONE});
        project_.SetComponents({OLD_COMPONENT});
        project_.SetPipeStringData({OLD_STRING});
        project_.SetWellName("Old");
    }

    /// Tubing before casing, as the data are kept.
    [[nodiscard]] std::vector<PipeString> Strings() const
    {
        return project_.GetPipeStringData().GetPipeStringVector();
    }

    ProjectAccess project_;
    WellDetailsImporter const importer_ = WellDetailsImporter::FromJson(WELL);
};

WellDetailsChoice const MERGE_ALL{true, true, true, true, false};
WellDetailsChoice const REPLACE_ALL{true, true, true, true, true};
} // namespace

TEST_F(WellDetailsImportTest, MergesIntoWhatIsThere)
{
    WellDetailsImport::Apply(project_, importer_, MERGE_ALL);
    EXPECT_EQ(project_.GetDirectionalSurveyVector(),
              Stations({{0, 0, 10}, {50, 2, 10}, {100, 3, 20}, {200, 4, 30}, {200, 4, 30}}))
        << "what is there stays, and a station that is there is not added again";
    EXPECT_EQ(project_.GetDirectionalSurveyTieInData(),
              (DirectionalSurveyTieInData{.tvd = 1, .ns = 2, .ew = 3}));
    EXPECT_EQ(project_.GetPerforationZones(), QList<Zone>({OLD_ZONE, NEW_ZONE}));
    EXPECT_EQ(project_.GetComponents(), QList<WellComponent>({OLD_COMPONENT, NEW_COMPONENT}));
    EXPECT_EQ(Strings(), std::vector<PipeString>({NEW_STRING, OLD_STRING}));
    EXPECT_EQ(project_.GetWellName(), "File");
}

TEST_F(WellDetailsImportTest, ReplacesWhatIsThere)
{
    WellDetailsImport::Apply(project_, importer_, REPLACE_ALL);
    EXPECT_EQ(project_.GetDirectionalSurveyVector(), Stations({{50, 2, 10}, {100, 3, 20}}));
    EXPECT_EQ(project_.GetDirectionalSurveyTieInData(),
              (DirectionalSurveyTieInData{.tvd = 25, .ns = 0, .ew = 0}));
    EXPECT_EQ(project_.GetPerforationZones(), QList<Zone>({NEW_ZONE}));
    EXPECT_EQ(project_.GetComponents(), QList<WellComponent>({NEW_COMPONENT}));
    EXPECT_EQ(Strings(), std::vector<PipeString>({NEW_STRING}));
}

TEST_F(WellDetailsImportTest, TakesOnlyWhatIsChosenAndThere)
{
    QSignalSpy const writes(&project_.GetDataContainerWrapper(),
                            &DataContainerWrapper::DataContainerWriteAccessRequested_Signal);
    WellDetailsImport::Apply(project_, WellDetailsImporter::FromJson("{\"Well Name\": \"Old\"}"),
                             REPLACE_ALL);
    WellDetailsImport::Apply(project_, WellDetailsImporter::FromJson("junk"), MERGE_ALL);
    EXPECT_EQ(writes.count(), 0);

    WellDetailsImport::Apply(project_, importer_, {.perforations = true, .replace = true});
    EXPECT_EQ(writes.count(), 2) << "the perforations and the name";
    EXPECT_EQ(project_.GetPerforationZones(), QList<Zone>({NEW_ZONE}));
    EXPECT_EQ(project_.GetDirectionalSurveyVector(), OLD_STATIONS);
    EXPECT_EQ(Strings(), std::vector<PipeString>({OLD_STRING}));
    EXPECT_EQ(project_.GetComponents(), QList<WellComponent>({OLD_COMPONENT}));
}

TEST_F(WellDetailsImportTest, WhatIsTooLongIsNoWell)
{
    EXPECT_EQ(WellDetailsImport::Check(importer_), "");
    QByteArray const zeros = "[0" + QByteArray(",0").repeated(100000) + "]";
    for (auto const& [before, item, after, things, most] :
         std::vector<std::tuple<QByteArray, QByteArray, QByteArray, QString, int>>{
             {"\"Casing Strings\":", "{}", "}", "pipe strings", 1000},
             {"\"Perforations\":", "{}", "}", "perforations", 100000},
             {"\"Misc Well Components\":", "{}", "}", "components", 100000},
             {"\"Tubing String\":{\"Component List\":", "{}", "}}", "components in a pipe string", 100000},
             {"\"Inclination Survey\":{\"MD\":" + zeros + ",\"Inclination\":" + zeros + ",\"Azimuth\":", "0",
              "}}", "stations", 100000}}) {
        QByteArray const full = "{" + before + "[" + item + ("," + item).repeated(most - 1);
        EXPECT_EQ(WellDetailsImport::Check(WellDetailsImporter::FromJson(full + "]" + after)), "");
        EXPECT_EQ(WellDetailsImport::Check(WellDetailsImporter::FromJson(full + "," + item + "]" + after)),
                  QString("The file holds %1 %2, more than %3.").arg(most + 1).arg(things).arg(most));
    }

    QString const text = QString("y").repeated(65536);
    for (QByteArray const& json :
         QList<QByteArray>{R"("Well Name": "%1")", R"("Perforations": [{"Description": "%1"}])",
                           R"("Tubing String": {"Component List": [{"Description": "%1"}]})",
                           R"("Casing Strings": [{"Outer Cement Description": "%1"}])",
                           R"("Misc Well Components": [{"Description": "%1"}])"}) {
        EXPECT_EQ(WellDetailsImport::Check(
                      WellDetailsImporter::FromJson("{" + QString(json).arg(text).toUtf8() + "}")),
                  "The text beginning with \"" + text.left(40) +
                      "...\" is too long for a project file: 65536 bytes of at most 65535. Please shorten "
                      "the text.");
    }
}
