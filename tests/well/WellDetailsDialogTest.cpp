// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsDialog.h"

#include "model/ProjectAccess.h"
#include "support/DialogAnswer.h"
#include "support/NumberFormats.h"
#include "support/TestFiles.h"
#include "well/SurveyImporter.h"
#include "well/WellTrajectoryDialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {
/// Depths that no text of two decimals gives back, intervals and cement upside down.
void FillProject(ProjectAccess& project)
{
    project.SetWellName("Demo");
    project.SetTrajectorySurvey({{0, 0, 0}, {1000.0F / 3, 10.123F, 20.456F}, {500, 12, 22}},
                                {.tvd = 1.0 / 3, .ns = -2.0 / 3, .ew = 5});
    project.SetPerforationZones({Zone({2000.0 / 3, 1000.0 / 3}, "perf", QColor(1, 2, 3, 4))});
    ZoneTrack track("Formations");
    track.SetZones({Zone({100.0 / 3, 200.0 / 3}, "sand", Qt::red)});
    project.SetZoneTracks({track, ZoneTrack("Empty")});
    project.SetMarkersA({DepthMarker(100.0F / 3, "a")});
    project.SetMarkersB({DepthMarker(200.0F / 3, "b")});
    PipeString casing("casing", 3000.0 / 7, false,
                      {PipeComponent(9.625F, -999.25F, 53.5F, 1000.0 / 7, "joint"),
                       PipeComponent(-999.25F, -999.25F, 0, 1.0 / 7, "shoe")});
    casing.SetOuterCementData(1000.0 / 3, 100.0 / 3, "G");
    PipeStringData pipes;
    pipes.SetPipeStringVector(
        {casing, PipeString("tubing", 400, true, {PipeComponent(4.5F, 3.9F, 12, 50, "j")})});
    project.SetPipeStringData(pipes);
    project.SetComponents({WellComponent({20.0 / 3, 10.0 / 3}, "main", WellComponentType::ProductionPacker)});
}

class WellDetailsDialogTest : public testing::Test
{
protected:
    WellDetailsDialogTest() { Open(); }

    void Open()
    {
        FillProject(project_);
        dialog_ = std::make_unique<WellDetailsDialog>(nullptr, project_);
    }

    template <class Widget>
    Widget* Find(QString const& name)
    {
        auto* widget = dialog_->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return widget;
    }

    void Click(QString const& button) { Find<QPushButton>(button)->click(); }
    void SetCell(QString const& table, int row, int column, QVariant const& value)
    {
        auto* model = Find<QTableView>(table)->model();
        EXPECT_TRUE(model->setData(model->index(row, column), value));
    }
    /// Writes that applying takes.
    int CountWrites()
    {
        QSignalSpy const writes(&project_.GetDataContainerWrapper(),
                                &DataContainerWrapper::DataContainerWriteAccessRequested_Signal);
        EXPECT_TRUE(dialog_->ApplyData());
        return static_cast<int>(writes.count());
    }

    NumberFormatScope scope_{{US, false}};
    ProjectAccess project_;
    std::unique_ptr<WellDetailsDialog> dialog_;
};
} // namespace

TEST_F(WellDetailsDialogTest, HasATabForEachKindOfData)
{
    auto const* tabs = Find<QTabWidget>("WellDetailsTabs");
    QStringList titles;
    for (int i = 0; i < tabs->count(); ++i) {
        titles << tabs->tabText(i);
    }
    EXPECT_EQ(titles, QStringList({"Survey", "Perfos", "Zones", "Markers A", "Markers B", "Pipes",
                                   "Pipe Strings", "Components", "Misc"}));
    EXPECT_EQ(tabs->widget(3)->findChild<QLabel*>("PasteFormat")->text(),
              "Paste Format: 12,345.67 <TAB> Description");
}

TEST_F(WellDetailsDialogTest, TellsThePasteFormat)
{
    auto const& format = WellDetailsDialog::GeneratePasteFormatString;
    EXPECT_EQ(format("FTFTDTC"),
              "12,345.67 <TAB> 12,345.67 <TAB> Description <TAB>  <Hex-Color, eg. #ffffff> ");
    EXPECT_EQ(format("FTFTITD"), "12,345.67 <TAB> 12,345.67 <TAB> 12 <TAB> Description");
    NumberFormatScope::Set({International, true});
    EXPECT_EQ(format("fTS<\"yes\"/\"no\">TF"), "4,500 <TAB> <\"yes\"/\"no\"> <TAB> 12.345,67");
    EXPECT_EQ(format("DxD"), "DescriptionERRORDescription");
    EXPECT_EQ(format("S"), "ERROR");
    EXPECT_EQ(format("S<open"), "ERRORERRORERRORERRORERRORERROR");
}

TEST_F(WellDetailsDialogTest, WritesNothingWhenNothingChanged)
{
    for (auto const& format : NumberFormat::All()) {
        NumberFormatScope::Set(format);
        ProjectAccess project;
        FillProject(project);
        WellDetailsDialog dialog(nullptr, project);
        QSignalSpy const writes(&project.GetDataContainerWrapper(),
                                &DataContainerWrapper::DataContainerWriteAccessRequested_Signal);
        QSignalSpy const redraws(&dialog, &WellDetailsDialog::UpdateColumnWindow_Signal);
        EXPECT_TRUE(dialog.ApplyData());
        EXPECT_TRUE(dialog.ApplyData()) << "after the form was filled anew";
        EXPECT_EQ(writes.count(), 0);
        EXPECT_EQ(redraws.count(), 2);
    }
}

TEST_F(WellDetailsDialogTest, WritesOnlyWhatChanged)
{
    SetCell("SurveyTable", 2, 1, "45");
    EXPECT_EQ(CountWrites(), 1);
    EXPECT_EQ(
        project_.GetDirectionalSurveyVector(),
        std::vector<DirectionalSurveyItem>({{0, 0, 0}, {1000.0F / 3, 10.123F, 20.456F}, {500, 45, 22}}));
    EXPECT_EQ(project_.GetDirectionalSurveyTieInData().tvd, 1.0 / 3);
    Find<QLineEdit>("TieInTvd")->setText("10");
    EXPECT_EQ(CountWrites(), 1);
    EXPECT_EQ(
        project_.GetDirectionalSurveyTieInData(),
        (DirectionalSurveyTieInData{.tvd = static_cast<double>(10 * 0.3048F), .ns = -2.0 / 3, .ew = 5}));

    SetCell("PerfoTable", 0, 3, "edited");
    EXPECT_EQ(CountWrites(), 1);
    EXPECT_EQ(project_.GetPerforationZones(),
              QList<Zone>({Zone({1000.0 / 3, 2000.0 / 3}, "edited", QColor(1, 2, 3, 4))}));

    SetCell("MarkersATable", 0, 1, "A");
    SetCell("MarkersBTable", 0, 1, "B");
    EXPECT_EQ(CountWrites(), 2);
    EXPECT_EQ(project_.GetMarkersA(), QList<DepthMarker>({DepthMarker(100.0F / 3, "A")}));
    EXPECT_EQ(project_.GetMarkersB(), QList<DepthMarker>({DepthMarker(200.0F / 3, "B")}));

    SetCell("ComponentTable", 0, 2, 2);
    EXPECT_EQ(CountWrites(), 1);
    EXPECT_EQ(project_.GetComponents(),
              QList<WellComponent>({WellComponent({10.0 / 3, 20.0 / 3}, "main", WellComponentType::Plug)}));

    Find<QLineEdit>("WellName")->setText("Other");
    EXPECT_EQ(CountWrites(), 1);
    EXPECT_EQ(project_.GetWellName(), "Other");

    Find<QTabWidget>("ZoneTracks")
        ->widget(1)
        ->findChild<QLineEdit*>("ZoneTrackName")
        ->setText("Full & round");
    EXPECT_EQ(Find<QTabWidget>("ZoneTracks")->tabText(1), "Full && round");
    EXPECT_EQ(CountWrites(), 1);
    EXPECT_EQ(project_.GetZoneTracks()[1].GetName(), "Full & round");
}

TEST_F(WellDetailsDialogTest, PipeStringsAreBuiltFromTheirFields)
{
    auto* tabs = Find<QTabWidget>("PipeStrings");
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->tabText(0), "tubing") << "in the order of the data";
    auto* casing = tabs->widget(1);
    // 1000/3 m and 100/3 m, in ascending order.
    EXPECT_EQ(casing->findChild<QLineEdit*>("CementTop")->text(), "109.36");
    EXPECT_EQ(casing->findChild<QLineEdit*>("CementBottom")->text(), "1,093.61");
    auto* table = casing->findChild<QTableView*>();
    casing->findChild<QLineEdit*>("SetDepth")->setText("1,000");
    EXPECT_EQ(table->model()->index(1, 6).data().toString(), "1,000.00");
    casing->findChild<QLineEdit*>("CementBottom")->setText("50");
    casing->findChild<QLineEdit*>("CementDescription")->setText("H");
    casing->findChild<QCheckBox*>()->setChecked(true);
    EXPECT_EQ(CountWrites(), 1);
    auto const& strings = project_.GetPipeStringData().GetPipeStringVector();
    auto const changed = std::find_if(strings.begin(), strings.end(),
                                      [](PipeString const& string) { return string.GetName() == "casing"; });
    ASSERT_NE(changed, strings.end());
    PipeString expected("casing", static_cast<double>(1000 * 0.3048F), true,
                        {PipeComponent(9.625F, -999.25F, 53.5F, 1000.0 / 7, "joint"),
                         PipeComponent(-999.25F, -999.25F, 0, 1.0 / 7, "shoe")});
    expected.SetOuterCementData(static_cast<double>(50 * 0.3048F), 100.0 / 3, "H");
    EXPECT_EQ(*changed, expected);
}

TEST_F(WellDetailsDialogTest, WrongInputKeepsTheDialogOpenAndShowsItsTab)
{
    QString const number_error = "Error in number format: Unable to convert to number. Number-text: ";
    struct Case
    {
        std::function<void()> spoil;
        int tab;
        QString message;
    };
    QString const too_long =
        " too long for a project file: 65536 bytes of at most 65535. Please shorten the text.";
    std::vector<Case> const cases = {
        {[&] { SetCell("SurveyTable", 1, 0, "deep"); }, 0, number_error + "deep \n"},
        {[&] { Find<QLineEdit>("TieInEw")->setText("east"); }, 0, number_error + "east "},
        {[&] { SetCell("PerfoTable", 0, 1, "p"); }, 1, "Row 1, \"Bottom\": " + number_error + "p "},
        {[&] { SetCell("MarkersBTable", 0, 0, ""); }, 4, "Row 1, \"Depth\": " + number_error + " "},
        {[&] {
             Click("AddPipe");
             SetCell("PipeTable", 0, 2, "wide");
         },
         5, number_error + "wide \n"},
        {[&] { Find<QTabWidget>("PipeStrings")->widget(1)->findChild<QLineEdit*>("SetDepth")->clear(); }, 6,
         number_error},
        {[&] { Find<QTabWidget>("PipeStrings")->widget(1)->findChild<QLineEdit*>("CementTop")->clear(); }, 6,
         "Pipe string \"casing\": the outside cement needs its top and bottom depth."},
        {[&] { SetCell("ComponentTable", 0, 0, "c"); }, 7, "Row 1, \"Top\": " + number_error + "c "},
        {[&] { Find<QLineEdit>("WellName")->setText(QString("x").repeated(65536)); }, 8,
         "The name of the well is" + too_long},
        {[&] {
             Find<QTabWidget>("ZoneTracks")
                 ->widget(0)
                 ->findChild<QLineEdit*>()
                 ->setText(QString("x").repeated(65536));
         },
         2, "The name of the zone track is" + too_long},
    };
    for (auto const& [spoil, tab, message] : cases) {
        SCOPED_TRACE(message.toStdString());
        Open();
        dialog_->SetMiscWellDetails("changed");
        spoil();
        DialogAnswer const dialogs;
        QSignalSpy const writes(&project_.GetDataContainerWrapper(),
                                &DataContainerWrapper::DataContainerWriteAccessRequested_Signal);
        QSignalSpy const closed(dialog_.get(), &QDialog::finished);
        dialog_->accept();
        ASSERT_EQ(dialogs.GetMessages().size(), 1);
        EXPECT_TRUE(dialogs.GetMessages()[0].startsWith(message)) << dialogs.GetMessages()[0].toStdString();
        EXPECT_EQ(writes.count(), 0) << "not even the well's name";
        EXPECT_EQ(closed.count(), 0);
        EXPECT_EQ(Find<QTabWidget>("WellDetailsTabs")->currentIndex(), tab);
    }
}

TEST_F(WellDetailsDialogTest, TheFlatTableBecomesPipeStrings)
{
    Click("AddPipe");
    Click("DeletePipe");
    EXPECT_EQ(CountWrites(), 0) << "an empty table leaves the strings alone";

    Click("AddPipe");
    auto* table = Find<QTableWidget>("PipeTable");
    QStringList const row = {"0", "1,000", "4.5", "3.9", "12.6"};
    for (int column = 0; column < row.size(); ++column) {
        table->item(0, column)->setText(row[column]);
    }
    table->item(0, 5)->setCheckState(Qt::Checked);
    table->item(0, 6)->setText("4 1/2\"");
    EXPECT_EQ(CountWrites(), 1);
    double const depth = static_cast<double>(1000 * 0.3048F);
    EXPECT_EQ(project_.GetPipeStringData().GetPipeStringVector(),
              std::vector<PipeString>(
                  {PipeString("Tubing", depth, true, {PipeComponent(4.5F, 3.9F, 12.6F, depth, "4 1/2\"")})}));
    EXPECT_EQ(table->rowCount(), 0);
    EXPECT_EQ(Find<QTabWidget>("PipeStrings")->count(), 1);
}

TEST_F(WellDetailsDialogTest, ButtonsAddAndDelete)
{
    for (auto const& [table, add, remove] :
         {std::tuple("SurveyTable", "AddSurvey", "DeleteSurvey"),
          std::tuple("PerfoTable", "AddPerfo", "DeletePerfo"),
          std::tuple("MarkersATable", "AddMarkerA", "DeleteMarkerA"),
          std::tuple("MarkersBTable", "AddMarkerB", "DeleteMarkerB"),
          std::tuple("PipeTable", "AddPipe", "DeletePipe"),
          std::tuple("ComponentTable", "AddComponent", "DeleteComponent")}) {
        auto const* model = Find<QTableView>(table)->model();
        int const rows = model->rowCount();
        Click(add);
        EXPECT_EQ(model->rowCount(), rows + 1) << table;
        Click(remove); // the new row is the selected one
        EXPECT_EQ(model->rowCount(), rows) << table;
    }
    auto* tracks = Find<QTabWidget>("ZoneTracks");
    auto* strings = Find<QTabWidget>("PipeStrings");
    for (int i = 0; i < 3; ++i) {
        Click("DeleteZoneTrack");
        Click("DeletePipeString");
        Click("DeleteZone");
        Click("DeletePipeComponent");
    }
    EXPECT_EQ(tracks->count() + strings->count(), 0);
    Click("AddZone"); // makes a track for it
    Click("AddPipeComponent");
    EXPECT_EQ(tracks->currentWidget()->findChild<QTableView*>()->model()->rowCount(), 1);
    EXPECT_EQ(strings->currentWidget()->findChild<QTableView*>()->model()->rowCount(), 1);
    EXPECT_EQ(CountWrites(), 2);
    EXPECT_EQ(project_.GetZoneTracks().size(), 1);
}

TEST_F(WellDetailsDialogTest, AOneStationSurveyIsShownUntilApplied)
{
    auto* table = Find<QTableWidget>("SurveyTable");
    table->selectAll();
    Click("DeleteSurvey");
    Click("AddSurvey");
    EXPECT_EQ(table->rowCount(), 1);
    EXPECT_EQ(CountWrites(), 1);
    EXPECT_EQ(table->rowCount(), 0);
}

TEST_F(WellDetailsDialogTest, RecalculateShowsTheFormsTrajectoryAndStoresNothing)
{
    auto* survey = Find<QTableWidget>("SurveyTable");
    survey->selectAll();
    Click("DeleteSurvey");
    Click("AddSurvey");
    Click("AddSurvey");
    SetCell("SurveyTable", 1, 0, "1,000");
    Find<QLineEdit>("TieInTvd")->setText("50");
    QStringList row;
    DialogAnswer const dialogs({[&row](QDialog* dialog) {
        ASSERT_NE(qobject_cast<WellTrajectoryDialog*>(dialog), nullptr);
        auto const* model = dialog->findChild<QTableView*>()->model();
        ASSERT_EQ(model->rowCount(), 2);
        for (int column = 0; column < model->columnCount(); ++column) {
            row << model->index(1, column).data().toString();
        }
        dialog->reject();
    }});
    QSignalSpy const writes(&project_.GetDataContainerWrapper(),
                            &DataContainerWrapper::DataContainerWriteAccessRequested_Signal);
    Click("RecalculateSurvey");
    EXPECT_EQ(row[0], "1,000.00");
    EXPECT_EQ(row[3], "1,050.00") << "straight down from the tie-in";
    EXPECT_EQ(writes.count(), 0);
    EXPECT_EQ(dialogs.GetMessages(), QStringList());
}

TEST_F(WellDetailsDialogTest, ImportPutsTheFilesStationsInTheTable)
{
    test_files::Folder const folder;
    auto const path = folder.Write("deviation.txt", "0 0 10\n100 5 20\n");
    DialogAnswer const dialogs({[&path](QDialog* dialog) {
        ASSERT_NE(qobject_cast<SurveyImporter*>(dialog), nullptr);
        dialog->findChild<QLineEdit*>("DeviationFile")->setText(path);
        dialog->accept();
    }});
    Click("ImportSurvey");
    auto const* table = Find<QTableWidget>("SurveyTable");
    ASSERT_EQ(table->rowCount(), 2);
    EXPECT_EQ(table->item(1, 0)->text(), "100.00");
    EXPECT_EQ(table->item(1, 2)->text(), "20.00");
}
