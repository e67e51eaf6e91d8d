// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsDialog.h"

#include "model/ProjectAccess.h"
#include "support/DialogAnswer.h"
#include "support/NumberFormats.h"
#include "support/TestFiles.h"
#include "support/Texts.h"
#include "well/SurveyImporter.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

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
    project.SetPipeStringData(
        {casing, PipeString("tubing", 400, true, {PipeComponent(4.5F, 3.9F, 12, 50, "j")})});
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
        writes_.clear();
        EXPECT_TRUE(dialog_->ApplyData());
        return static_cast<int>(writes_.count());
    }
    /// A field or table on the page of a zone track or pipe string.
    template <class Widget>
    Widget* FindOnPage(QString const& tabs, int page, QString const& name = {})
    {
        return Find<QTabWidget>(tabs)->widget(page)->findChild<Widget*>(name);
    }

    NumberFormatScope scope_{{US, false}};
    ProjectAccess project_;
    QSignalSpy writes_{&project_.GetDataContainerWrapper(),
                       &DataContainerWrapper::DataContainerWriteAccessRequested_Signal};
    std::unique_ptr<WellDetailsDialog> dialog_;
};
} // namespace

TEST_F(WellDetailsDialogTest, HasATabForEachKindOfDataAndTellsItsPasteFormat)
{
    auto const* tabs = Find<QTabWidget>("WellDetailsTabs");
    EXPECT_EQ(IndexedTexts(*tabs, &QTabWidget::tabText).join('|'),
              "Survey|Perfos|Zones|Markers A|Markers B|Pipes|Pipe Strings|Components|Misc");
    EXPECT_EQ(tabs->widget(3)->findChild<QLabel*>("PasteFormat")->text(),
              "Paste Format: 12,345.67 <TAB> Description");

    auto const& format = WellDetailsDialog::GeneratePasteFormatString;
    EXPECT_EQ(format("FTFTDTC"),
              "12,345.67 <TAB> 12,345.67 <TAB> Description <TAB>  <Hex-Color, eg. #ffffff> ");
    NumberFormatScope::Set({International, true});
    EXPECT_EQ(format("fTS<\"yes\"/\"no\">TF"), "4,500 <TAB> <\"yes\"/\"no\"> <TAB> 12.345,67");
    EXPECT_EQ(format("DxD"), "DescriptionERRORDescription");
    EXPECT_EQ(format("S<open"), "ERRORERRORERRORERRORERRORERROR");
}

TEST_F(WellDetailsDialogTest, WritesNothingWhenNothingChanged)
{
    for (auto const& format : NumberFormat::All()) {
        NumberFormatScope::Set(format);
        Open();
        QSignalSpy const redraws(dialog_.get(), &WellDetailsDialog::UpdateColumnWindow_Signal);
        EXPECT_EQ(CountWrites(), 0);
        EXPECT_EQ(CountWrites(), 0) << "after the form was filled anew";
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

    FindOnPage<QLineEdit>("ZoneTracks", 1, "ZoneTrackName")->setText("Full & round");
    EXPECT_EQ(Find<QTabWidget>("ZoneTracks")->tabText(1), "Full && round");
    EXPECT_EQ(CountWrites(), 1);
    EXPECT_EQ(project_.GetZoneTracks()[1].GetName(), "Full & round");
}

TEST_F(WellDetailsDialogTest, PipeStringsAreBuiltFromTheirFields)
{
    auto* tabs = Find<QTabWidget>("PipeStrings");
    EXPECT_EQ(tabs->tabText(0), "tubing") << "in the order of the data";
    auto const field = [this](char const* name) { return FindOnPage<QLineEdit>("PipeStrings", 1, name); };
    // 1000/3 m and 100/3 m, in ascending order.
    EXPECT_EQ(field("CementTop")->text(), "109.36");
    EXPECT_EQ(field("CementBottom")->text(), "1,093.61");
    field("SetDepth")->setText("1,000");
    EXPECT_EQ(FindOnPage<QTableView>("PipeStrings", 1)->model()->index(1, 6).data().toString(), "1,000.00");
    field("CementBottom")->setText("50");
    field("CementDescription")->setText("H");
    FindOnPage<QCheckBox>("PipeStrings", 1)->setChecked(true);
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
    std::vector<std::tuple<std::function<void()>, int, QString>> const cases = {
        {[&] { SetCell("SurveyTable", 1, 0, "deep"); }, 0, number_error + "deep \n"},
        {[&] { Find<QLineEdit>("TieInEw")->setText("east"); }, 0, number_error + "east "},
        {[&] { SetCell("PerfoTable", 0, 1, "p"); }, 1, "Row 1, \"Bottom\": " + number_error + "p "},
        {[&] { SetCell("MarkersBTable", 0, 0, ""); }, 4, "Row 1, \"Depth\": " + number_error + " "},
        {[&] {
             Click("AddPipe");
             SetCell("PipeTable", 0, 2, "wide");
         },
         5, number_error + "wide \n"},
        {[&] { FindOnPage<QLineEdit>("PipeStrings", 1, "SetDepth")->clear(); }, 6, number_error},
        {[&] { FindOnPage<QLineEdit>("PipeStrings", 1, "CementTop")->clear(); }, 6,
         "Pipe string \"casing\": the outside cement needs its top and bottom depth."},
        {[&] {
             auto* table = Find<QTableView>("ComponentTable");
             Find<QTabWidget>("WellDetailsTabs")->setCurrentIndex(7);
             dialog_->show();
             dialog_->activateWindow();
             ASSERT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
             table->edit(table->model()->index(0, 0));
             table->findChild<QLineEdit*>()->setText("c"); // the editor stays open
             Find<QTabWidget>("WellDetailsTabs")->setCurrentIndex(7);
         },
         7, "Row 1, \"Top\": " + number_error + "c "},
    };
    for (auto const& [spoil, tab, message] : cases) {
        SCOPED_TRACE(message.toStdString());
        Open();
        dialog_->SetMiscWellDetails("changed");
        spoil();
        DialogAnswer const dialogs;
        writes_.clear();
        QSignalSpy const closed(dialog_.get(), &QDialog::finished);
        dialog_->accept();
        ASSERT_EQ(dialogs.GetMessages().size(), 1);
        EXPECT_TRUE(dialogs.GetMessages()[0].startsWith(message)) << dialogs.GetMessages()[0].toStdString();
        EXPECT_EQ(writes_.count(), 0) << "not even the well's name";
        EXPECT_EQ(closed.count(), 0);
        EXPECT_EQ(Find<QTabWidget>("WellDetailsTabs")->currentIndex(), tab);
    }
}

TEST_F(WellDetailsDialogTest, ATextTooLongIsRefusedWhereItIsEntered)
{
    dialog_->show();
    auto const paste = [&](QLineEdit* edit) {
        DialogAnswer const dialogs;
        QString const before = edit->text();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
        QCoreApplication::processEvents();
        EXPECT_EQ(edit->text(), before);
        EXPECT_EQ(dialogs.GetMessages(),
                  QStringList{"The text is too long for a project file: 65536 bytes of at most 65535. Please "
                              "shorten the text."})
            << edit->objectName().toStdString();
    };
    // The umlaut takes two bytes.
    QApplication::clipboard()->setText(QString("x").repeated(65534) + "ü");
    for (auto const* name : {"WellName", "ZoneTrackName", "PipeStringName", "CementDescription"}) {
        paste(Find<QLineEdit>(name));
    }
    for (auto const* name : {"MarkersATable", "PipeTable"}) {
        auto* table = Find<QTableView>(name);
        Click("AddPipe");
        table->edit(table->model()->index(0, table->model()->columnCount() - 1));
        paste(table->findChild<QLineEdit*>());
    }
    QApplication::clipboard()->setText(QString("x").repeated(65535));
    QTest::keyClick(Find<QLineEdit>("WellName"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(dialog_->GetMiscWellDetails().size(), 65535) << "pasted over the selected text";
}

TEST_F(WellDetailsDialogTest, EnterEndsAnEditAndNotTheDialog)
{
    dialog_->show();
    QSignalSpy const closed(dialog_.get(), &QDialog::finished);
    SurveyImporter importer;
    importer.show();
    for (QWidget* widget :
         std::initializer_list<QWidget*>{Find<QTableWidget>("SurveyTable"), Find<QLineEdit>("TieInTvd"),
                                         importer.findChild<QLineEdit*>("DeviationFile")}) {
        DialogAnswer const dialogs;
        QTest::keyClick(widget, Qt::Key_Return);
        EXPECT_EQ(dialogs.GetTitles(), QStringList());
    }
    EXPECT_EQ(closed.count(), 0);
}

TEST_F(WellDetailsDialogTest, TheFlatTableBecomesPipeStrings)
{
    Click("AddPipe");
    Click("DeletePipe");
    EXPECT_EQ(CountWrites(), 0) << "an empty table leaves the strings alone";

    auto* table = Find<QTableWidget>("PipeTable");
    QApplication::clipboard()->setText("0\t1,000\t4.5\t3.9\t12.6\tno\t4 1/2\"");
    QTest::keyClick(table, Qt::Key_V, Qt::ControlModifier);
    table->item(0, 5)->setCheckState(Qt::Checked);
    EXPECT_EQ(CountWrites(), 1);
    double const depth = static_cast<double>(1000 * 0.3048F);
    EXPECT_EQ(project_.GetPipeStringData().GetPipeStringVector(),
              std::vector<PipeString>(
                  {PipeString("Tubing", depth, true, {PipeComponent(4.5F, 3.9F, 12.6F, depth, "4 1/2\"")})}));
    EXPECT_EQ(table->rowCount(), 0);
}

TEST_F(WellDetailsDialogTest, ButtonsAddAndDelete)
{
    for (auto const& [table, name] :
         {std::pair("SurveyTable", "Survey"), std::pair("PerfoTable", "Perfo"),
          std::pair("MarkersATable", "MarkerA"), std::pair("MarkersBTable", "MarkerB"),
          std::pair("PipeTable", "Pipe"), std::pair("ComponentTable", "Component")}) {
        auto const* model = Find<QTableView>(table)->model();
        int const rows = model->rowCount();
        Click(QString("Add") + name);
        EXPECT_EQ(model->rowCount(), rows + 1) << table;
        Click(QString("Delete") + name); // the new row is the selected one
        EXPECT_EQ(model->rowCount(), rows) << table;
    }
    auto* tracks = Find<QTabWidget>("ZoneTracks");
    auto* strings = Find<QTabWidget>("PipeStrings");
    for (int i = 0; i < 3; ++i) {
        for (auto const* name : {"ZoneTrack", "PipeString", "Zone", "PipeComponent"}) {
            Click(QString("Delete") + name);
        }
    }
    EXPECT_EQ(tracks->count() + strings->count(), 0);
    Click("AddZone"); // makes a track for it
    Click("AddPipeComponent");
    EXPECT_EQ(tracks->currentWidget()->findChild<QTableView*>()->model()->rowCount(), 1);
    EXPECT_EQ(strings->currentWidget()->findChild<QTableView*>()->model()->rowCount(), 1);
    EXPECT_EQ(CountWrites(), 2);
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
    DialogAnswer const dialogs({[](QDialog* dialog) {
        auto const* model = dialog->findChild<QTableView*>()->model();
        ASSERT_EQ(model->rowCount(), 2);
        EXPECT_EQ(model->index(1, 0).data(), "1,000.00");
        EXPECT_EQ(model->index(1, 3).data(), "1,050.00") << "straight down from the tie-in";
        dialog->reject();
    }});
    writes_.clear();
    Click("RecalculateSurvey");
    EXPECT_EQ(dialogs.GetTitles().size(), 1);
    EXPECT_EQ(writes_.count(), 0);

    // A survey of one station is shown until it is applied.
    survey->selectRow(1);
    Click("DeleteSurvey");
    EXPECT_EQ(survey->rowCount(), 1);
    EXPECT_EQ(CountWrites(), 1);
    EXPECT_EQ(survey->rowCount(), 0);
}

TEST_F(WellDetailsDialogTest, ImportPutsTheFilesStationsInTheTable)
{
    test_files::Folder const folder;
    auto const path = folder.Write("deviation.txt", "0 0 10\n100 5 20\n");
    DialogAnswer const dialogs({[&path](QDialog* dialog) {
        dialog->findChild<QLineEdit*>("DeviationFile")->setText(path);
        dialog->accept();
    }});
    Click("ImportSurvey");
    auto const* table = Find<QTableWidget>("SurveyTable");
    ASSERT_EQ(table->rowCount(), 2);
    EXPECT_EQ(table->item(1, 2)->text(), "20.00");
}
