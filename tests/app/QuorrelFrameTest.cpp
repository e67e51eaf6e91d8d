// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/FrameFixture.h"

#include "app/kit/Quorrel.h"
#include "display/BaseScaleView.h"
#include "display/ScrollAreaWrapper.h"
#include "display/XYChart.h"
#include "model/DepthLogPass.h"
#include "model/ScaleItemParameters.h"
#include "well/DeviationDataView.h"

#include <QInputDialog>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

using QuorrelFrameTest = FrameFixture;

TEST_F(QuorrelFrameTest, MenusAndToolBarsStandInOrder)
{
    EXPECT_EQ(Texts(frame_->menuBar()->actions(), &QAction::text),
              (QStringList{"&File", "&View", "&Edit", "&Help"}));
    EXPECT_EQ(Texts(frame_->findChildren<QToolBar*>(), &QToolBar::windowTitle),
              (QStringList{"File", "Zoom", "Screens Toolbar", "Settings", "Well", "Survey", "Passes",
                           "Multifinger Caliper", "Interpretation"}));
    for (auto const* title :
         {"Passes", "Zoom", "Survey", "Interpretation", "Screens Toolbar", "Multifinger Caliper"}) {
        EXPECT_FALSE(frame_->findChild<QToolBar*>(title)->isEnabled()) << title;
    }
    EXPECT_FALSE(Action("Set Display Interval")->isEnabled());
    EXPECT_EQ(frame_->statusBar()->currentMessage(), QString("Ready"));
    EXPECT_THAT(
        frame_->windowTitle().toStdString(),
        testing::MatchesRegex("Quorrel - Build date: [0-9]{2}-[A-Z][a-z]{2}-[0-9]{4}        Latest version "
                              "can be found at .+"));
}

TEST_F(QuorrelFrameTest, ANewSurveyGoesStraightToChoosingFiles)
{
    {
        DialogAnswer dialogs({[](QDialog* dialog) {
            qobject_cast<QInputDialog*>(dialog)->setTextValue("Run 1");
            dialog->accept();
        }});
        Action("&New Survey")->trigger();
        EXPECT_EQ(dialogs.GetTitles(), (QStringList{"New Survey", "Open LAS File"}));
    }
    EXPECT_EQ(frame_->GetAllSurveyNames(), QList<QString>{"Run 1"});
    EXPECT_TRUE(frame_->findChild<QToolBar*>("Zoom")->isEnabled());
    EXPECT_TRUE(Action("Set Display Interval")->isEnabled());
    EXPECT_FALSE(frame_->findChild<QToolBar*>("Passes")->isEnabled());

    DialogAnswer dialogs;
    Action("&New Survey")->trigger(); // cancelled
    EXPECT_EQ(dialogs.GetTitles(), (QStringList{"New Survey", "Empty survey name"}));
    EXPECT_EQ(dialogs.GetMessages(), (QStringList{"Please enter valid survey name"}));
    EXPECT_EQ(frame_->GetAllSurveyKeys().size(), 1);
}

TEST_F(QuorrelFrameTest, AnImportedFileBecomesAPassWithAView)
{
    auto const key = frame_->AddNewSurvey("A");
    auto const path = folder_.Write(QString::fromUtf8("Log æ 1.las"), MakeLas());
    auto const dialogs = Import({path});
    EXPECT_EQ(dialogs.titles, (QStringList{"Open LAS File"}));
    ASSERT_EQ(PassComboBox()->count(), 1);
    EXPECT_EQ(PassComboBox()->itemText(0), QString::fromUtf8("Log æ 1.las"));
    EXPECT_EQ(PassComboBox()->itemData(0, Qt::BackgroundRole).value<QColor>(), QColor(Qt::red));
    auto const column = frame_->GetColumnWindow(key);
    ASSERT_NE(column->FindCombinedViewWidget("GR"), nullptr);
    EXPECT_TRUE(column->FindCombinedViewWidget("GR")->isVisible());
    // the data from 1000 to 1010 m and 1 m more at each end
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(999, 1011));

    EXPECT_TRUE(Import({path}).messages.isEmpty()) << "the same file again is dropped silently";
    EXPECT_EQ(PassComboBox()->count(), 1);

    Import({folder_.Write("b.las", MakeLas()), folder_.Write("c.las", MakeLas())});
    EXPECT_EQ(PassComboBox()->count(), 3);
    EXPECT_EQ(column->FindAllAutomaticDataViews().size(), 1) << "one view per mnemonic over all passes";
}

TEST_F(QuorrelFrameTest, FilesThatCannotBeTakenAreToldOf)
{
    frame_->AddNewSurvey("A");
    auto refused = Import({folder_.Write("v1.las", QByteArray(MakeLas()).replace("2.0 :", "1.2 :"))});
    ASSERT_EQ(refused.messages.size(), 1);
    EXPECT_THAT(refused.messages.first().toStdString(),
                testing::AllOf(testing::StartsWith("Exception cought while importing "),
                               testing::EndsWith("v1.las:<BR>Unknown Version: 1.2")));
    EXPECT_EQ(Import({folder_.Write("nonull.las", MakeLas("1.0", ""))}).messages,
              (QStringList{"Undefined MNEM: NULL"}));
    EXPECT_EQ(PassComboBox()->count(), 0);
    EXPECT_EQ(Import({folder_.Write("step0.las", MakeLas("0"))}).messages,
              (QStringList{"NOTICE: LAS File has STEP == 0. It has been resampled to fixed depth steps to be "
                           "compatible with Quorrel."}));
    EXPECT_EQ(PassComboBox()->count(), 1);
}

TEST_F(QuorrelFrameTest, ATimeLogAsksForItsDepth)
{
    auto const key = frame_->AddNewSurvey("A");
    auto const path = folder_.Write("station.las", MakeLas("1.0", "NULL. -999.25 :\n", "TIME.S : time\n"));
    auto const dialogs = Import({path}, {[](QDialog* dialog) {
                                    auto* input = qobject_cast<QInputDialog*>(dialog);
                                    EXPECT_EQ(input->labelText(), QString("station.las"));
                                    input->setDoubleValue(1234.56);
                                    dialog->accept();
                                }});
    EXPECT_EQ(dialogs.titles, (QStringList{"Open LAS File", "Log Depth[m]"}));
    ASSERT_EQ(frame_->GetTimeLogIdentifierHashes(key).size(), 1);
    auto const log = frame_->GetTimeLog({key, frame_->GetTimeLogIdentifierHashes(key).first()});
    EXPECT_FLOAT_EQ(log->GetLogDepth(), 1234.56F);
    EXPECT_EQ(PassComboBox()->count(), 0);
}

TEST_F(QuorrelFrameTest, HideAndHighlightBelongToTheSelectedPass)
{
    auto const key = frame_->AddNewSurvey("A");
    Import({folder_.Write("a.las", MakeLas()), folder_.Write("b.las", MakeLas())});
    ASSERT_EQ(PassComboBox()->count(), 2);
    PassComboBox()->setCurrentIndex(0);
    EXPECT_FALSE(Action("&Previous Pass")->isEnabled());
    EXPECT_TRUE(Action("&Next Pass")->isEnabled());
    Action("&Hide Pass")->trigger();
    auto const first = frame_->GetCurrentLogPassIdentifier();
    EXPECT_TRUE(frame_->GetLogPassProperties(first).hidden);
    Action("&Next Pass")->trigger();
    EXPECT_EQ(PassComboBox()->currentIndex(), 1);
    EXPECT_FALSE(Action("&Hide Pass")->isChecked());
    EXPECT_TRUE(Action("&Previous Pass")->isEnabled());
    EXPECT_FALSE(Action("&Next Pass")->isEnabled());
    Action("&Highlight Pass")->trigger();
    EXPECT_TRUE(frame_->GetLogPassProperties(frame_->GetCurrentLogPassIdentifier()).highlighted);
    EXPECT_FALSE(frame_->GetLogPassProperties(first).highlighted);

    frame_->DeleteLogPass(first);
    EXPECT_EQ(PassComboBox()->count(), 1);
    EXPECT_TRUE(Action("&Highlight Pass")->isChecked()) << "the remembered pass stays selected";
    frame_->DeleteLogPass(frame_->GetCurrentLogPassIdentifier());
    EXPECT_FALSE(frame_->findChild<QToolBar*>("Passes")->isEnabled());
    EXPECT_TRUE(frame_->GetColumnWindow(key)->FindAllAutomaticDataViews().isEmpty());
}

TEST_F(QuorrelFrameTest, MouseToolsExcludeEachOther)
{
    frame_->AddNewSurvey("A");
    Import({folder_.Write("a.las", MakeLas())});
    auto const column = frame_->GetCurrentColumnWindow();
    Action("Zoom to Horizontal Interval [Z]")->trigger();
    EXPECT_TRUE(column->GetParameters().GetHorizontalZoomChecked());
    Action("&Shift Pass [S]")->trigger();
    EXPECT_FALSE(Action("Zoom to Horizontal Interval [Z]")->isChecked());
    EXPECT_TRUE(Action("&Shift Pass [S]")->isChecked());
    EXPECT_FALSE(column->GetParameters().GetHorizontalZoomChecked());
    EXPECT_TRUE(column->GetParameters().GetShiftChecked());
    {
        DialogAnswer refuse;
        Action("&Stretch Pass")->trigger();
        EXPECT_EQ(refuse.GetTitles(), (QStringList{"Stretch Anchor Depth"}));
    }
    EXPECT_FALSE(Action("&Stretch Pass")->isChecked()) << "no anchor, no stretch";
    EXPECT_FALSE(column->GetParameters().GetStretchChecked());
    DialogAnswer accept({DialogAnswer::Accept()});
    Action("&Stretch Pass")->trigger();
    EXPECT_TRUE(Action("&Stretch Pass")->isChecked());
    EXPECT_FALSE(Action("&Shift Pass [S]")->isChecked());
}

TEST_F(QuorrelFrameTest, UnitAndSeparatorFollowTheirActions)
{
    auto& settings = SettingsSingleton::Instance();
    settings.SetSeparatorSelection(International);
    QuorrelFrame frame;
    auto* separator = frame.GetAction("&Toggle Separator");
    EXPECT_FALSE(separator->isChecked());
    separator->trigger();
    EXPECT_EQ(settings.GetSeparatorSelection(), US);
    separator->trigger();
    EXPECT_EQ(settings.GetSeparatorSelection(), AlternativeInternational);
    auto* unit = frame.GetAction("&Toggle Depth Unit");
    EXPECT_TRUE(unit->isChecked());
    unit->trigger();
    EXPECT_FALSE(settings.IsMetricDepth());
}

TEST_F(QuorrelFrameTest, TheStatusBarReadsDepthAndWellPath)
{
    frame_->OnUpdateStatusBar(1000.0F, "GR: 45.00GAPI");
    EXPECT_EQ(frame_->statusBar()->currentMessage(), QString("Depth: 1,000.00m. GR: 45.00GAPI"));
    // A straight hole at 60 degrees: half of the length along it is depth.
    frame_->SetTrajectorySurvey({{0.0F, 60.0F, 90.0F}, {2000.0F, 60.0F, 90.0F}}, {});
    frame_->OnUpdateStatusBar(1000.0F, "x");
    EXPECT_EQ(frame_->statusBar()->currentMessage(),
              QString("Depth: 1,000.00m  ( 500.0m TVD, incl.: 60.00deg, DLS: 0.00deg/30m ). x"));
    SettingsSingleton::Instance().SetMetricDepth(false);
    frame_->OnUpdateStatusBar(1000.0F, "x");
    EXPECT_EQ(frame_->statusBar()->currentMessage(),
              QString("Depth: 3,280.84ft  ( 1,640.4ft TVD, incl.: 60.00deg, DLS: 0.00deg/100ft ). x"));
    frame_->OnUpdateStatusBar(std::numeric_limits<float>::quiet_NaN(), "x");
    EXPECT_EQ(frame_->statusBar()->currentMessage(), QString());
}

TEST_F(QuorrelFrameTest, EachSurveyHasItsColumnAndOnlyTheCurrentOneShows)
{
    auto const a = frame_->AddNewSurvey("Run");
    auto const b = frame_->AddNewSurvey("Run");
    EXPECT_EQ(frame_->GetSurveyName(b), QString("Run_#1"));
    EXPECT_EQ(frame_->GetCurrentColumnWindow(), frame_->GetColumnWindow(b));
    auto* combo = frame_->findChild<QComboBox*>("SurveyComboBox");
    combo->setCurrentIndex(0);
    EXPECT_EQ(frame_->GetCurrentSurveyKey(), a);
    EXPECT_EQ(frame_->GetCurrentColumnWindow(), frame_->GetColumnWindow(a));
    frame_->OnSurveyDeleted(a);
    EXPECT_EQ(frame_->GetCurrentSurveyKey(), b);
    EXPECT_EQ(frame_->GetCurrentColumnWindow(), frame_->GetColumnWindow(b));
    EXPECT_TRUE(Action("Zoom In")->isEnabled());
    frame_->OnSurveyDeleted(b);
    EXPECT_FALSE(Action("Zoom In")->isEnabled());
    EXPECT_TRUE(frame_->GetCurrentColumnWindow().isNull());
    EXPECT_EQ(combo->count(), 0);
}

TEST_F(QuorrelFrameTest, ADepthCorrectionTakesOnlyWhatLeavesDepths)
{
    auto const key = frame_->AddNewSurvey("A");
    Import({folder_.Write("a.las", MakeLas())});
    auto const identifier = frame_->GetCurrentLogPassIdentifier();
    DataChannelIdentifier const whole_pass(identifier, -1);
    auto const pass = frame_->GetDepthLogPass(identifier);
    frame_->OnApplyStretch(whole_pass, 1005, 1010, 1000); // by 2
    EXPECT_EQ(pass->GetStretch(), 2);
    EXPECT_EQ(pass->GetMaxDepth_metric(), 1020);
    frame_->OnApplyStretch(whole_pass, 1005, 1000, 1000); // the mirrored drag of its undo ends on the anchor
    frame_->OnApplyStretch(whole_pass, 1005, 990, 1000);
    frame_->OnApplyStretch(whole_pass, 1000, 1005, 1000);
    EXPECT_EQ(pass->GetStretch(), 2);
    EXPECT_EQ(pass->GetMaxDepth_metric(), 1020);

    auto const column = frame_->GetColumnWindow(key);
    column->OnShift(&whole_pass, 1.5F);
    column->OnStretch(&whole_pass, 1010, 1011, 1000);
    EXPECT_EQ(pass->GetShift(), -1000 + 1.5 + (1000 - (-1000 + 1.5)) * (1 - 1.1)) << "both were applied";
    frame_->DeleteLogPass(identifier);
    EXPECT_NO_THROW(Action("Undo View Change")->trigger());
    EXPECT_NO_THROW(Action("Undo View Change")->trigger());
    EXPECT_TRUE(Action("Redo View Change")->isEnabled());
    frame_->OnApplyShift(DataChannelIdentifier(key, Survey::DATA_STORAGE_NAME_IDENTIFIER, 0), 1);
}

TEST_F(QuorrelFrameTest, UndoAndRedoFollowTheCurrentColumn)
{
    auto const key = frame_->AddNewSurvey("A");
    Import({folder_.Write("a.las", MakeLas())});
    auto const column = frame_->GetColumnWindow(key);
    auto const before = column->GetViewDepth();
    EXPECT_FALSE(Action("Undo View Change")->isEnabled());
    Action("Zoom In")->trigger();
    EXPECT_NE(column->GetViewDepth(), before);
    ASSERT_TRUE(Action("Undo View Change")->isEnabled());
    frame_->AddNewSurvey("B");
    EXPECT_FALSE(Action("Undo View Change")->isEnabled()) << "the new survey has nothing to undo";
    frame_->findChild<QComboBox*>("SurveyComboBox")->setCurrentIndex(0);
    ASSERT_TRUE(Action("Undo View Change")->isEnabled());
    Action("Undo View Change")->trigger();
    EXPECT_EQ(column->GetViewDepth(), before);
    EXPECT_TRUE(Action("Redo View Change")->isEnabled());
}

TEST_F(QuorrelFrameTest, AWellShowsInEveryColumn)
{
    int const first = frame_->AddNewSurvey("First");
    int const second = frame_->AddNewSurvey("Second");
    EXPECT_EQ(ShownViews(), QStringList({"Depth", "Zones", "Deviation", "Well Sketch"}));
    EXPECT_EQ(frame_->GetCurrentColumnWindow()->GetTotalDisplayedInterval(), Interval(0, 5000));

    frame_->SetTrajectorySurvey({{0, 0, 0}, {1000, 0, 0}}, {});
    frame_->SetPipeStringData({{"Casing", 2000, false, {{10, 9, 40, 2000, "casing"}}}});
    frame_->RedrawAllColumnWindows();
    auto const deviation_of = [this](int key) {
        return frame_->GetColumnWindow(key)->FindCombinedViewWidget("Deviation");
    };
    for (int const key : {first, second}) {
        EXPECT_EQ(frame_->GetColumnWindow(key)->GetTotalDisplayedInterval(), Interval(-1, 2001)) << key;
        EXPECT_EQ(deviation_of(key)->GetBaseScaleView()->GetScaleCount(), 2);
    }
    frame_->OnIsMetricDepthToggled(false);
    for (int const key : {first, second}) {
        auto const* deviation = qobject_cast<DeviationDataView*>(deviation_of(key)->GetBaseViewWidget());
        ASSERT_EQ(deviation->GetScales().size(), 2U);
        EXPECT_EQ(deviation->GetScales()[1]->header.unit, "ft") << "also in the column that is not shown";
    }
}

TEST_F(QuorrelFrameTest, TheVerticalSectionIsAChartOfItsOwn)
{
    // Due north at 90 degrees: the section equals the measured depth, the true depth stays at the tie-in.
    frame_->SetTrajectorySurvey({{0, 90, 0}, {100, 90, 0}}, {50, 0, 0});
    Action("&Show Vertical Section")->trigger();
    auto const* chart = frame_->findChild<XYChart*>();
    ASSERT_NE(chart, nullptr);
    EXPECT_TRUE(chart->isWindow());
    EXPECT_TRUE(chart->isVisible());
    EXPECT_EQ(chart->GetChartTitle(), "Vertical Section");
    EXPECT_EQ(chart->GetXAxisTitle(), "Vsec [m]");
    EXPECT_EQ(chart->GetYAxisTitle(), "Depth [m]");
    EXPECT_EQ(chart->GetXAxis().interval, Interval(0, 100));
    EXPECT_TRUE(chart->GetYAxis().interval.Contains(50));
}

TEST_F(QuorrelFrameTest, ClosingWhileAFileLoadsWaitsForTheReader)
{
    frame_->AddNewSurvey("A");
    auto const path =
        folder_.Write("long.las", MakeLas("1.0", "NULL. -999.25 :\n", "DEPT.M : depth\n", 400000));
    DialogAnswer const dialogs({ChooseFiles({path})});
    Action("Add LAS File to Survey")->trigger();
    EXPECT_FALSE(frame_->findChildren<QThread*>().isEmpty());
    frame_.reset(); // a thread destroyed while it runs would end the process
}
