// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsImport.h"

#include "model/ProjectAccess.h"
#include "well/JsonImporterDialog.h"
#include "well/WellDetailsImporter.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {
QByteArray const WELL = R"({
  "Metric Depth": true, "Well Name": "File",
  "Inclination Survey": {"TVD_Tie_In": 25, "MD": [50, 100], "Inclination": [2, 3], "Azimuth": [10, 20]},
  "Perforations": [{"Top Depth": 10, "Bottom Depth": 20, "Description": "file"}],
  "Tubing String": {"Description": "file", "Set Depth": 90, "Component List": []},
  "Misc Well Components": [{"Top Depth": 88, "Bottom Depth": 89, "Type": "Plug", "Description": "file"}]
})";

using Stations = std::vector<DirectionalSurveyItem>;
Stations const OLD_STATIONS = {{0, 0, 10}, {100, 3, 20}, {200, 4, 30}};
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
        PipeStringData pipes;
        pipes.SetPipeStringVector({OLD_STRING});
        project_.SetPipeStringData(pipes);
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

WellDetailsChoice Everything(bool replace)
{
    return {.inclination = true,
            .perforations = true,
            .pipe_strings = true,
            .components = true,
            .replace = replace};
}
} // namespace

TEST_F(WellDetailsImportTest, MergesIntoWhatIsThere)
{
    WellDetailsImport::Apply(project_, importer_, Everything(false));
    EXPECT_EQ(project_.GetDirectionalSurveyVector(),
              Stations({{0, 0, 10}, {50, 2, 10}, {100, 3, 20}, {200, 4, 30}}))
        << "a station that is there already is not doubled";
    EXPECT_EQ(project_.GetDirectionalSurveyTieInData(),
              (DirectionalSurveyTieInData{.tvd = 1, .ns = 2, .ew = 3}));
    EXPECT_EQ(project_.GetPerforationZones(), QList<Zone>({OLD_ZONE, NEW_ZONE}));
    EXPECT_EQ(project_.GetComponents(), QList<WellComponent>({OLD_COMPONENT, NEW_COMPONENT}));
    EXPECT_EQ(Strings(), std::vector<PipeString>({NEW_STRING, OLD_STRING}));
    EXPECT_EQ(project_.GetWellName(), "File");
}

TEST_F(WellDetailsImportTest, ReplacesWhatIsThere)
{
    WellDetailsImport::Apply(project_, importer_, Everything(true));
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
                             Everything(true));
    WellDetailsImport::Apply(project_, WellDetailsImporter::FromJson("junk"), Everything(false));
    EXPECT_EQ(writes.count(), 0);

    WellDetailsImport::Apply(project_, importer_, {.perforations = true, .replace = true});
    EXPECT_EQ(writes.count(), 2) << "the perforations and the name";
    EXPECT_EQ(project_.GetPerforationZones(), QList<Zone>({NEW_ZONE}));
    EXPECT_EQ(project_.GetDirectionalSurveyVector(), OLD_STATIONS);
    EXPECT_EQ(Strings(), std::vector<PipeString>({OLD_STRING}));
    EXPECT_EQ(project_.GetComponents(), QList<WellComponent>({OLD_COMPONENT}));
}

TEST_F(WellDetailsImportTest, TextsTooLongForAProjectFileAreFound)
{
    EXPECT_EQ(WellDetailsImport::Check(importer_), "");
    QByteArray const text = QByteArray("y").repeated(65536);
    for (QByteArray const& json : QList<QByteArray>{
             "{\"Well Name\": \"" + text + "\"}", "{\"Perforations\": [{\"Description\": \"" + text + "\"}]}",
             "{\"Tubing String\": {\"Component List\": [{\"Description\": \"" + text + "\"}]}}",
             "{\"Casing Strings\": [{\"Outer Cement Description\": \"" + text + "\"}]}",
             "{\"Misc Well Components\": [{\"Description\": \"" + text + "\"}]}"}) {
        EXPECT_EQ(WellDetailsImport::Check(WellDetailsImporter::FromJson(json)),
                  "The text beginning with \"" + QString("y").repeated(40) +
                      "...\" is too long for a project file: 65536 bytes of at most 65535. Please shorten "
                      "the text.");
    }
}

TEST_F(WellDetailsImportTest, ThousandsOfStringsAreNoWell)
{
    auto const make = [](int count) {
        return WellDetailsImporter::FromJson("{\"Casing Strings\": [" + QByteArray("{},").repeated(count) +
                                             "{}]}");
    };
    EXPECT_EQ(WellDetailsImport::Check(make(999)), "");
    EXPECT_EQ(WellDetailsImport::Check(make(1000)), "The file holds 1001 pipe strings, more than 1000.");
}

TEST(JsonImporterDialog, OffersWhatTheFileHas)
{
    JsonImporterDialog dialog(nullptr, true, false, true, false);
    QStringList enabled;
    for (auto const* box : dialog.findChildren<QCheckBox*>()) {
        if (box->isEnabled()) {
            enabled << box->text();
        }
    }
    EXPECT_EQ(enabled, QStringList({"Inclination", "Casing/Tubing Strings"}));
    EXPECT_TRUE(dialog.InclinationChecked());
    EXPECT_FALSE(dialog.PerfChecked());
    EXPECT_TRUE(dialog.PipeStringChecked());
    EXPECT_FALSE(dialog.WellComponentsChecked());
    EXPECT_FALSE(dialog.ReplaceDataMode());
    for (auto* button : dialog.findChildren<QRadioButton*>()) {
        button->setChecked(button->text().startsWith("Replace"));
    }
    EXPECT_TRUE(dialog.ReplaceDataMode());
}
