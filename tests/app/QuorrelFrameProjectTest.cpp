// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/FrameFixture.h"

#include "app/BusyOverlay.h"
#include "display/AutomaticDataView.h"
#include "display/CombinedDataViewWidget.h"
#include "display/ScrollAreaWrapper.h"
#include "display/UserDataView.h"
#include "formats/project/ViewRecords.h"
#include "model/DepthLogPass.h"

#include <QFileInfo>
#include <QInputDialog>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>

// Saving, opening and starting projects and keeping screens, by the actions of the main frame.

namespace {
class QuorrelFrameProjectTest : public FrameFixture
{
protected:
    QuorrelFrameProjectTest()
    {
        SettingsSingleton::Instance().SetQz4Path(folder_.Path(""));
        SettingsSingleton::Instance().SetRecentFiles({});
    }

    /// Runs `start` and waits for the end of the save or open that it began; what it showed meanwhile.
    template <typename Signal>
    Seen Finish(Signal signal, std::function<void()> const& start,
                std::vector<DialogAnswer::Answer> answers = {})
    {
        DialogAnswer const dialogs(std::move(answers));
        QSignalSpy const finished(frame_.get(), signal);
        start();
        EXPECT_TRUE(WaitFor([&] { return finished.count() > 0; }));
        return {dialogs.GetTitles(), dialogs.GetMessages()};
    }

    Seen Open(QString const& path)
    {
        return Finish(&QuorrelFrame::ProjectLoaded_Signal, [&] { frame_->LoadProject(path); });
    }

    Seen Save(QString const& path)
    {
        return Finish(&QuorrelFrame::ProjectSaved_Signal, [&] { frame_->SaveProject(path); });
    }

    void ExpectBusy()
    {
        EXPECT_NE(frame_->findChild<BusyOverlay*>(), nullptr);
        EXPECT_FALSE(frame_->menuBar()->isEnabled()) << "no key reaches the model";
    }

    ColumnWindow& Column() { return *frame_->GetCurrentColumnWindow(); }
    QComboBox* Screens() { return frame_->findChild<QToolBar*>("Screens Toolbar")->findChild<QComboBox*>(); }
    QString Title() { return frame_->windowTitle().section("      ", 0, 0); }

    static QStringList Entries(QComboBox const* box) { return IndexedTexts(*box, &QComboBox::itemText); }

    [[nodiscard]] COLUMN_WINDOW_Struct Record(int key)
    {
        return frame_->GetColumnWindow(key)->WriteState_ColumnWindow();
    }
};
} // namespace

TEST_F(QuorrelFrameProjectTest, ASavedProjectOpensAsItWas)
{
    auto const key = frame_->AddNewSurvey("Run");
    auto const las = folder_.Write("a.las", MakeLas());
    Import({las, folder_.Write("b.las", MakeLas())});
    Import({folder_.Write("t.las", MakeLas("1.0", "NULL. -999.25 :\n", "TIME.S : time\n"))},
           {DialogAnswer::Accept()});
    frame_->SetWellName("A/B:1?");
    auto const pass = frame_->GetCurrentLogPassIdentifier();
    frame_->OnApplyShift(DataChannelIdentifier(pass, -1), 1.5F);
    auto* user =
        qobject_cast<UserDataView*>(Column().CreateDataView_Public("Mine", false)->GetBaseDataView());
    for (auto const& hash : frame_->GetDepthLogIdentifierHashes(key)) {
        user->AssignDepthDataChannel(frame_->GetDepthDataChannel(DataChannelIdentifier(key, hash, 0)));
    }
    user->SetSelectedScaleCurveInfo(user->GetScales()[1]);
    Column().UpdateVisibleViewWidgets({"Mine", "Depth", "GR"});
    Column().SaveScreen("one");
    Column().OnZoomIn();
    frame_->AddNewSurvey("Empty");
    frame_->findChild<QComboBox*>("SurveyComboBox")->setCurrentIndex(0);
    auto const before = Record(key);
    EXPECT_EQ(Title(), QString("Quorrel - Build date: ") + frame_->windowTitle().mid(22, 11));

    QString const path = folder_.Path("p.qz4");
    auto seen = Finish(&QuorrelFrame::ProjectSaved_Signal,
                       [&] {
                           Action("&Save Project")->trigger();
                           ExpectBusy();
                       },
                       {[&](QDialog* dialog) {
                           auto* edit = dialog->findChild<QLineEdit*>("fileNameEdit");
                           EXPECT_EQ(edit->text(), "A-B-1-");
                           ChooseFiles({folder_.Path("p")})(dialog);
                       }});
    EXPECT_EQ(seen.titles, QStringList{"Save Quorrel File"});
    ASSERT_TRUE(QFile::exists(path));
    EXPECT_EQ(Title(), "[p.qz4]");
    frame_->SetWellName("changed");
    EXPECT_EQ(Title(), "[p.qz4]*");

    Action("New Project")->trigger();
    EXPECT_TRUE(frame_->GetAllSurveyKeys().isEmpty());
    EXPECT_EQ(Title().left(7), "Quorrel");
    EXPECT_FALSE(Action("Zoom In")->isEnabled());

    seen = Finish(&QuorrelFrame::ProjectLoaded_Signal,
                  [&] {
                      Action("&Open Project")->trigger();
                      ExpectBusy();
                  },
                  {ChooseFiles({path})});
    EXPECT_EQ(seen.titles, QStringList{"Open Quorrel File"});
    EXPECT_EQ(frame_->findChild<BusyOverlay*>(), nullptr);
    EXPECT_EQ(Title(), "[p.qz4]") << "what was opened is not modified";
    EXPECT_EQ(SettingsSingleton::Instance().GetRecentFiles(), QStringList{path});
    EXPECT_EQ(frame_->GetWellName(), "A/B:1?");
    EXPECT_EQ(Entries(frame_->findChild<QComboBox*>("SurveyComboBox")), (QStringList{"Run", "Empty"}));
    EXPECT_EQ(frame_->GetCurrentSurveyKey(), key);
    EXPECT_EQ(PassComboBox()->count(), 2);
    EXPECT_EQ(frame_->GetDepthLogPass(pass)->GetDepth().GetShift(), 1.5);
    EXPECT_EQ(ShownViews(), (QStringList{"Mine", "Depth", "GR"}));
    EXPECT_EQ(Column().GetViewDepth(), before.view_depth_interval);
    EXPECT_EQ(Column().FindUserDataView("Mine")->GetSelectedScaleCurveInfo()->index, 1);
    EXPECT_EQ(Column().FindAllCombinedViewWidgets().size(), 6) << "the column's own views are not doubled";
    EXPECT_EQ(Entries(Screens()), QStringList{"one"});
    EXPECT_FALSE(Action("Undo View Change")->isEnabled());

    auto const again = folder_.Path("again.qz4");
    Save(again);
    EXPECT_EQ(test_files::Read(again), test_files::Read(path));
    EXPECT_EQ(SettingsSingleton::Instance().GetRecentFiles(), (QStringList{again, path}));

    // The first of the recent files is the one just saved, the second the one before.
    auto const recent = frame_->findChildren<QAction*>();
    auto const entry = std::find_if(recent.begin(), recent.end(),
                                    [&](auto const* action) { return action->data().toString() == path; });
    ASSERT_NE(entry, recent.end());
    Finish(&QuorrelFrame::ProjectLoaded_Signal, [&] { (*entry)->trigger(); });
    EXPECT_EQ(Title(), "[p.qz4]");
    frame_->OnApplyShift(DataChannelIdentifier(pass, -1), 1);
    EXPECT_EQ(Title(), "[p.qz4]*");
}

TEST_F(QuorrelFrameProjectTest, KeysFindNoActionWhileAProjectIsSaved)
{
    frame_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame_.get()));
    QSignalSpy const toggled(Action("&Tracking Mode [T]"), &QAction::toggled);
    QTest::keyClick(frame_.get(), Qt::Key_T);
    EXPECT_EQ(toggled.count(), 1);
    Finish(&QuorrelFrame::ProjectSaved_Signal, [&] {
        frame_->SaveProject(folder_.Path("p.qz4"));
        QTest::keyClick(frame_.get(), Qt::Key_T);
        EXPECT_EQ(toggled.count(), 1);
    });
    QTest::keyClick(frame_.get(), Qt::Key_T);
    EXPECT_EQ(toggled.count(), 2);
}

TEST_F(QuorrelFrameProjectTest, TheChosenNameGetsItsSuffixAndReplacesNothingUnasked)
{
    folder_.Write("kept.qz4", "kept");
    // What is typed, the answers to what is asked, and what is saved, if anything.
    for (auto const& [typed, answers, saved] :
         std::vector<std::tuple<QString, std::vector<DialogAnswer::Answer>, QString>>{
             {"a.b", {}, "a.b.qz4"},
             {"new.qz4", {}, "new.qz4"},
             {"kept", {DialogAnswer::Press(QMessageBox::No)}, ""},
             {"kept", {DialogAnswer::Press(QMessageBox::Yes)}, "kept.qz4"},
             {".qz4", {}, ""},
         }) {
        frame_->OnNewProject();
        QSignalSpy const finished(frame_.get(), &QuorrelFrame::ProjectSaved_Signal);
        auto all = answers;
        all.insert(all.begin(), ChooseFiles({folder_.Path(typed)}));
        DialogAnswer const dialogs(std::move(all));
        Action("&Save Project")->trigger();
        EXPECT_TRUE(saved.isEmpty() || WaitFor([&] { return finished.count() > 0; })) << typed.toStdString();
        EXPECT_EQ(dialogs.GetTitles().size(), 1 + static_cast<qsizetype>(answers.size()))
            << typed.toStdString();
        EXPECT_EQ(Title().left(7), saved.isEmpty() ? QString("Quorrel") : ('[' + saved + ']').left(7));
        EXPECT_TRUE(saved.isEmpty() || test_files::Read(folder_.Path(saved)).startsWith("FILEFORMAT"));
    }
    DialogAnswer const cancelled;
    Action("&Save Project")->trigger();
    EXPECT_EQ(cancelled.GetTitles(), QStringList{"Save Quorrel File"});
    EXPECT_EQ(frame_->findChild<BusyOverlay*>(), nullptr);
}

TEST_F(QuorrelFrameProjectTest, WhatCannotBeOpenedOrSavedIsToldAndLeavesANewProject)
{
    auto const good = folder_.Path("good.qz4");
    frame_->AddNewSurvey("A");
    Save(good);
    auto const bytes = test_files::Read(good);
    std::pair<QString, QString> const cases[] = {
        {folder_.Path("gone.qz4"), "File Not Found"},
        {folder_.Write("old.qz4", "FILEFORMAT_OF_LONG_AGO_"),
         "Exception cought while restoring %1: File format outdated"},
        {folder_.Write("cut.qz4", bytes.chopped(1)),
         "Exception cought while restoring %1.<BR>This could be caused by a corrupted Quorrel file.<BR>(Msg: "
         "Reached premature end-of-file: iostream error - Error Code: 1)"},
    };
    for (auto const& [path, message] : cases) {
        Open(good);
        ASSERT_EQ(Title(), "[good.qz4]");
        EXPECT_EQ(Open(path).messages, QStringList{message.arg(path)});
        EXPECT_TRUE(frame_->GetAllSurveyKeys().isEmpty()) << message.toStdString();
        EXPECT_EQ(Title().left(7), "Quorrel");
        EXPECT_TRUE(frame_->menuBar()->isEnabled());
        frame_->AddNewSurvey("goes on");
        EXPECT_TRUE(Action("Zoom In")->isEnabled());
    }
    Open(good);
    frame_->SetWellName("changed");
    auto const missing = folder_.Path("missing/x.qz4");
    auto const seen = Save(missing);
    ASSERT_EQ(seen.messages.size(), 1);
    EXPECT_TRUE(seen.messages.first().startsWith("Exception cought while saving " + missing + ": "));
    EXPECT_TRUE(seen.messages.first().endsWith("No such file or directory"))
        << seen.messages.first().toStdString();
    EXPECT_EQ(Title(), "[good.qz4]*");
    EXPECT_EQ(SettingsSingleton::Instance().GetRecentFiles(), QStringList{good});
}

TEST_F(QuorrelFrameProjectTest, ViewsAreRestoredAsTheProjectTells)
{
    // A project as another program may have written it, made by editing the records of one of ours.
    auto const key = frame_->AddNewSurvey("A");
    Import({folder_.Write("a.las", MakeLas())});
    auto records = project_file::ColumnWindowRecords{{key, Record(key)}};
    auto& record = records.at(key);
    auto const save = [&](int current) {
        auto const path = folder_.Path("edited.qz4");
        project_file::Save(path, frame_->GetDataContainerWrapper().GetReadAccess(), records, current);
        return path;
    };
    auto const view = [&](QString const& name) {
        return std::dynamic_pointer_cast<VIEW_WIDGET_STRUCT>(*std::find_if(
            record.views.begin(), record.views.end(), [&](std::shared_ptr<VIEW_WIDGET_BASE_STRUCT> const& v) {
                return dynamic_cast<VIEW_WIDGET_STRUCT const&>(*v).name == name;
            }));
    };
    // A user view in front that is called as the automatic one; flags that disagree with the widths; a
    // renamed depth axis; a view that no program can build; fewer widths than views; no interval at all.
    auto user = std::make_shared<USER_DATAVIEW_STRUCT>();
    user->object_name = UserDataView::OBJECT_NAME_;
    user->name = "GR";
    auto later = std::make_shared<VIEW_WIDGET_STRUCT>();
    later->object_name = "VIEW_WIDGET_OF_LATER";
    later->name = "Later";
    view("Depth")->is_visible = false;
    view("Depth")->name = "MD";
    view("Zones")->is_visible = true;
    record.views.insert(record.views.begin(), {user, later});
    record.splitter_sizes = {0, 0, 100, 0};
    record.total_displayed_interval = record.view_depth_interval = Interval(0, 0);
    record.override_interval = true;

    auto const path = save(777);
    EXPECT_EQ(Open(path).messages, QStringList{"Unable to restore ViewWidget named: Later. Program will most "
                                               "likely not be able to continue."});
    EXPECT_EQ(frame_->GetCurrentSurveyKey(), -1) << "the project names a survey that it does not have";
    EXPECT_TRUE(frame_->GetCurrentColumnWindow().isNull());
    frame_->findChild<QComboBox*>("SurveyComboBox")->setCurrentIndex(0);
    ASSERT_EQ(frame_->GetCurrentSurveyKey(), key);

    EXPECT_TRUE(ShownViews().contains("Zones"));
    EXPECT_FALSE(ShownViews().contains("MD"));
    EXPECT_NE(Column().FindCombinedViewWidget("MD"), nullptr);
    EXPECT_TRUE(Column().FindUserDataView("GR")->IsEmpty());
    EXPECT_FALSE(Column().FindAllAutomaticDataViews().first()->IsEmpty());
    EXPECT_EQ(Column().GetTotalDisplayedInterval(), Interval(999, 1011)) << "as the data go";
    EXPECT_EQ(Column().GetViewDepth(), Interval(999, 1011));

    auto const again = Record(key);
    EXPECT_EQ(again.splitter_sizes, record.splitter_sizes);
    ASSERT_EQ(again.views.size(), record.views.size());
    for (std::size_t i = 0; i < again.views.size(); ++i) {
        EXPECT_EQ(again.views[i]->object_name, record.views[i]->object_name) << i;
        EXPECT_EQ(again.views[i]->is_visible, record.views[i]->is_visible) << i;
    }

    // The header of an automatic view is that of the pass that made it, whatever the order of the passes.
    Import({folder_.Write("b.las", MakeLas().replace("gamma", "another gamma"))});
    record = Record(key);
    auto const gr = std::dynamic_pointer_cast<INTERMEDIATE_DATAVIEW_STRUCT>(
        *std::find_if(record.views.begin(), record.views.end(),
                      [](auto const& v) { return v->object_name == AutomaticDataView::OBJECT_NAME_; }));
    for (auto const* description : {"gamma", "another gamma"}) {
        gr->scales.front()->header.description = description;
        Open(save(key));
        EXPECT_EQ(Column().FindAllAutomaticDataViews().first()->GetDescription(), description);
    }

    // A stored interval stays when the column is shown, although the data would give another.
    record.override_interval = false;
    record.total_displayed_interval = Interval(500, 2500);
    record.view_depth_interval = Interval(600, 700);
    Open(save(key));
    EXPECT_EQ(Column().GetTotalDisplayedInterval(), Interval(500, 2500));
    EXPECT_EQ(Column().GetViewDepth(), Interval(600, 700));
    Column().UpdateVisibleViewWidgets({"GR"});
    EXPECT_EQ(Column().GetTotalDisplayedInterval(), Interval(999, 1011)) << "until views come or go";
}

TEST_F(QuorrelFrameProjectTest, ScreensAreKeptForEachSurvey)
{
    auto const manage = [&](std::function<void(QDialog*)> const& steps) {
        DialogAnswer const dialogs({[&](QDialog* dialog) {
            EXPECT_EQ(dialog->windowTitle(), "Screens Manager");
            steps(dialog);
            dialog->findChild<QPushButton*>("pb_close")->click();
        }});
        Action("&Screens Manager")->trigger();
        EXPECT_EQ(dialogs.GetTitles().size(), 1);
    };
    auto const select = [](QDialog* dialog, int row) {
        dialog->findChild<QListWidget*>("lw_screens")->setCurrentRow(row);
    };
    auto const press = [](QDialog* dialog, char const* button, QString const& text) {
        auto* push_button = dialog->findChild<QPushButton*>(button);
        EXPECT_EQ(push_button->text(), text);
        EXPECT_TRUE(push_button->isEnabled());
        push_button->click();
    };
    // Stores the present screen under a name that is typed over the proposed one.
    auto const save = [&](QDialog* dialog, QString const& name, QString const& proposal = "Screen Name") {
        DialogAnswer const question({[&](QDialog* asked) {
            EXPECT_EQ(asked->windowTitle(), "Name");
            auto* input = qobject_cast<QInputDialog*>(asked);
            EXPECT_EQ(input->textValue(), proposal);
            input->setTextValue(name);
            asked->accept();
        }});
        press(dialog, "pb_save", "Save Current Screen");
    };

    auto const key = frame_->AddNewSurvey("A");
    Import({folder_.Write("a.las", MakeLas())});
    Save(folder_.Path("s.qz4"));
    EXPECT_TRUE(Entries(Screens()).isEmpty());
    EXPECT_EQ(Screens()->windowTitle(), "Select stored screen");

    Column().UpdateVisibleViewWidgets({"GR", "Depth"});
    manage([&](QDialog* dialog) { save(dialog, "B"); });
    EXPECT_EQ(Title(), "[s.qz4]*") << "screens belong to the project";
    Column().CreateDataView_Public("New", false);
    QSignalSpy const written(&frame_->GetDataContainerWrapper(),
                             &DataContainerWrapper::DataContainerWriteAccessRequested_Signal);
    EXPECT_EQ(frame_->RenameUserDataView(key, "New", "GR"), "GR_#1");
    EXPECT_EQ(frame_->RenameUserDataView(key, "GR_#1", "Mine"), "Mine");
    EXPECT_EQ(written.count(), 2);
    Column().UpdateVisibleViewWidgets({"Depth", "Mine", "Zones"});
    manage([&](QDialog* dialog) {
        save(dialog, "A");
        save(dialog, ""); // stores nothing
    });
    EXPECT_EQ(Entries(Screens()), (QStringList{"A", "B"}));

    auto const choose = [&](QString const& name) {
        Screens()->setCurrentText(name);
        emit Screens()->textActivated(name);
    };
    choose("B");
    EXPECT_EQ(ShownViews(), (QStringList{"GR", "Depth"}));
    Column().DeleteCustomDataView("Mine");
    choose("A");
    EXPECT_EQ(ShownViews(), (QStringList{"Depth", "Zones"})) << "without the view that is gone";
    manage([&](QDialog* dialog) {
        select(dialog, 1);
        save(dialog, "B", "B");
    });
    choose("B");
    EXPECT_EQ(ShownViews(), (QStringList{"Depth", "Zones"})) << "replaced";

    frame_->AddNewSurvey("other");
    EXPECT_TRUE(Entries(Screens()).isEmpty());
    frame_->findChild<QComboBox*>("SurveyComboBox")->setCurrentIndex(0);
    EXPECT_EQ(Entries(Screens()), (QStringList{"A", "B"}));
    EXPECT_EQ(Screens()->currentText(), "B");

    // Screens that differ in nothing but widths, in a project that was opened.
    for (auto const& [name, sizes] :
         {std::pair("narrow", QList<int>{200, 1000}), std::pair("wide", QList<int>{1000, 200})}) {
        Column().UpdateVisibleViewWidgets({"GR", "Zones"});
        Column().SetSplitterSizes(sizes);
        Column().SaveScreen(name);
    }
    auto const width = [&] { return Column().GetScrollAreaWrapper()->GetSplitterWidth(0); };
    int const wide = width();
    Save(folder_.Path("s.qz4"));
    Open(folder_.Path("s.qz4"));
    EXPECT_EQ(Entries(Screens()), (QStringList{"A", "B", "narrow", "wide"}));
    EXPECT_EQ(Screens()->currentText(), "wide");
    EXPECT_NEAR(width(), wide, 2);
    choose("narrow");
    int const narrow = width();
    EXPECT_LT(narrow, wide);
    EXPECT_EQ(Record(key).splitter_sizes.first(), narrow) << "not as it was opened";
    Column().hide();
    Column().show();
    EXPECT_EQ(width(), narrow);

    manage([&](QDialog* dialog) {
        select(dialog, 2);
        press(dialog, "pb_delete", "Delete Selection");
    });
    EXPECT_EQ(Entries(Screens()), (QStringList{"A", "B", "wide"}));
    EXPECT_EQ(Screens()->currentIndex(), -1) << "the present screen has no name any more";
}
