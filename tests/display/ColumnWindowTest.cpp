// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnFixture.h"

#include "display/BaseScaleView.h"
#include "display/ColumnWindowMap.h"
#include "display/CombinedDataViewWidget.h"

#include <QSignalSpy>

#include <stdexcept>

using ColumnWindowTest = ColumnFixture;

TEST_F(ColumnWindowTest, ANewColumnShowsItsDefaultViewsOverADefaultInterval)
{
    EXPECT_EQ(Names(), (QList<QString>{"Depth", "Zones", "Deviation", "Well Sketch"}));
    EXPECT_EQ(VisibleNames(), Names());
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(0, 5000));
    EXPECT_EQ(column->GetViewDepth(), Interval(0, 5000));
    EXPECT_FALSE(column->GetOverrideAutomaticDisplayedInterval());
    EXPECT_FALSE(column->UndoAvailable());

    SettingsSingleton::Instance().SetMetricDepth(false);
    ColumnWindow const in_feet(2, well.Context(), nullptr);
    EXPECT_EQ(in_feet.GetTotalDisplayedInterval(), Interval(0, 4572)); // 15000 ft
    EXPECT_EQ(in_feet.GetViewDepth(), Interval(0, 4572));
    ASSERT_EQ(in_feet.FindAllCombinedViewWidgets().size(), 1);
    EXPECT_EQ(in_feet.FindAllCombinedViewWidgets()[0]->GetBaseViewWidgetName(), "Depth");
}

TEST_F(ColumnWindowTest, OneAutomaticViewStandsForAMnemonicOverAllPasses)
{
    auto const first = MakePass("a", 1000, 2000, {"GR", "CCL", "TEMP"});
    auto const second = MakePass("b", 1500, 2500, {"TEMP", "SPIN", "GR"});
    column->AddImportedDepthLog(first);
    column->AddImportedDepthLog(second);

    EXPECT_EQ(Names(),
              (QList<QString>{"Depth", "Zones", "Deviation", "Well Sketch", "GR", "CCL", "TEMP", "SPIN"}));
    std::map<QString, std::size_t> curves;
    for (AutomaticDataView const* view : column->FindAllAutomaticDataViews()) {
        curves[view->GetName()] = view->GetDepthCurves().size();
    }
    EXPECT_EQ(curves, (std::map<QString, std::size_t>{{"GR", 2}, {"CCL", 1}, {"TEMP", 2}, {"SPIN", 1}}));
}

TEST_F(ColumnWindowTest, TheFirstPassSetsTheIntervalAndShowsViewsByPriority)
{
    column->SetOverrideAutomaticDisplayedInterval(true);
    auto const first = MakePass("a", 1000, 2000, {"AAA", "BBB", "TEMP", "GR", "CCL"});
    column->AddImportedDepthLog(first);
    EXPECT_FALSE(column->GetOverrideAutomaticDisplayedInterval());
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(999, 2001)); // one metre more at each end
    EXPECT_EQ(column->GetViewDepth(), Interval(999, 2001));
    // Three by priority, and the two at indices 3 and 4, of which the sketch is shown anyway.
    EXPECT_EQ(VisibleNames(),
              (QList<QString>{"Depth", "Zones", "Deviation", "Well Sketch", "AAA", "TEMP", "GR", "CCL"}));

    // A later pass leaves what is shown, and widens the interval only through views that are shown.
    auto const second = MakePass("b", 500, 1500, {"SPIN"});
    column->AddImportedDepthLog(second);
    EXPECT_FALSE(VisibleNames().contains("SPIN"));
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(999, 2001));
    auto const third = MakePass("c", 800, 900, {"GR"});
    column->AddImportedDepthLog(third);
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(799, 2001));
}

TEST_F(ColumnWindowTest, WithoutAPriorityNameTheFirstFiveViewsAreShown)
{
    for (BaseCombinedViewWidget* pair : column->FindAllCombinedViewWidgets()) {
        pair->hide();
    }
    auto const pass = MakePass("a", 1000, 2000, {"A1", "A2", "A3"});
    column->AddImportedDepthLog(pass);
    EXPECT_EQ(VisibleNames(), (QList<QString>{"Depth", "Zones", "Deviation", "Well Sketch", "A1"}));
}

TEST_F(ColumnWindowTest, StationaryLogsJoinTheViewOfTheNameWithoutPostfix)
{
    for (auto const& [name, postfix] : std::map<QString, QString>{{"GR_SL", "_SL"},
                                                                  {"GR", ""},
                                                                  {"GR_SLX", ""},
                                                                  {"_SL", "_SL"},
                                                                  {"GR_sl", ""},
                                                                  {"A_SL_SL", "_SL"}}) {
        EXPECT_EQ(ColumnWindow::CheckForTimeLogPostFix(name), postfix) << name.toStdString();
    }
    auto const pass = MakePass("a", 1000, 2000, {"GR"});
    auto const log = MakeTimeLog("t", 2300, {"GR_SL", "PRES"});
    column->AddImportedDepthLog(pass);
    column->OnTimeLogAdded(log);
    QList<AutomaticDataView*> const views = column->FindAllAutomaticDataViews();
    ASSERT_EQ(views.size(), 2);
    EXPECT_EQ(views[0]->GetName(), "GR");
    EXPECT_EQ(views[0]->GetTimeCurves().size(), 1U);
    EXPECT_EQ(views[1]->GetName(), "PRES");
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(999, 2301));
}

TEST_F(ColumnWindowTest, TheOverrideHoldsTheIntervalAgainstData)
{
    auto const first = MakePass("a", 1000, 2000, {"GR"});
    auto const second = MakePass("b", 100, 3000, {"GR"});
    column->AddImportedDepthLog(first);
    column->SetOverrideAutomaticDisplayedInterval(true);
    column->SetTotalDisplayedInterval({1200, 1300});
    EXPECT_EQ(column->GetViewDepth(), Interval(1200, 1300));
    column->AddImportedDepthLog(second);
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(1200, 1300));
    column->SetOverrideAutomaticDisplayedInterval(false);
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(99, 3001));
    EXPECT_EQ(column->GetViewDepth(), Interval(1200, 1300));
}

TEST_F(ColumnWindowTest, OnlyShownDataCount)
{
    auto const pass = MakePass("a", 1000, 2000, {"GR"});
    column->AddImportedDepthLog(pass);
    BaseCombinedViewWidget* pair = column->FindCombinedViewWidget("GR");
    pair->hide();
    EXPECT_EQ(column->GetTotalVisibleDepthInterval(), std::nullopt);
    column->OnVisibleWidgetsChanged();
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(999, 2001)) << "no data leave the interval";
    pair->show();
    EXPECT_EQ(column->GetTotalVisibleDepthInterval(), Interval(999, 2001));
}

TEST_F(ColumnWindowTest, DeletedLogsLeaveTheirViewsAndEmptyAutomaticViewsGo)
{
    auto first = MakePass("a", 1000, 2000, {"GR", "CCL"});
    auto const second = MakePass("b", 1500, 2500, {"GR"});
    column->AddImportedDepthLog(first);
    column->AddImportedDepthLog(second);
    column->CreateDataView_Public("Mine", false)->show();
    column->AddDepthDataChannelToDataView("Mine", first->GetDataChannel(1));
    EXPECT_EQ(column->FindUserDataView("Mine")->GetDepthCurves().size(), 1U);

    column->DeleteDependencies(DataChannelIdentifier(SURVEY, "a", -1));
    first.reset();
    Settle();
    EXPECT_EQ(column->FindCombinedViewWidget("CCL"), nullptr);
    ASSERT_EQ(column->FindAllAutomaticDataViews().size(), 1);
    EXPECT_EQ(column->FindAllAutomaticDataViews()[0]->GetDepthCurves().size(), 1U);
    ASSERT_NE(column->FindUserDataView("Mine"), nullptr);
    EXPECT_TRUE(column->FindUserDataView("Mine")->IsEmpty());
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(1499, 2501));

    column->DeleteDependencies(DataChannelIdentifier(SURVEY, "", -1));
    Settle();
    EXPECT_TRUE(column->FindAllAutomaticDataViews().isEmpty());
}

TEST_F(ColumnWindowTest, NewNamesAreUniqueInTheSettingsNumberFormat)
{
    EXPECT_EQ(column->GenerateUniqueViewWidgetName("View"), "View");
    EXPECT_EQ(column->GenerateUniqueViewWidgetName("Depth"), "Depth_#1");
    for (char const* expected : {"View", "View_#1", "View_#2"}) {
        QString const name = column->GenerateUniqueViewWidgetName("View");
        EXPECT_EQ(name, expected);
        column->CreateDataView_Public(name, false);
    }
    EXPECT_EQ(column->RenameUserDataView("View_#2", "View"), "View_#3");
    EXPECT_EQ(column->RenameUserDataView("View_#3", "View_#3"), "View_#3");
    EXPECT_EQ(column->RenameUserDataView("nothing", "View"), "");
    EXPECT_EQ(column->FindCombinedViewWidget("View_#3")->GetBaseScaleView()->GetName(), "View_#3");
    EXPECT_EQ(column->FindUserDataView("View_#2"), nullptr);

    column->DeleteCustomDataView("View_#1");
    column->DeleteCustomDataView("Depth");
    EXPECT_EQ(column->FindCombinedViewWidget("View_#1"), nullptr);
    EXPECT_NE(column->FindCombinedViewWidget("Depth"), nullptr) << "only custom views can be deleted";
}

TEST_F(ColumnWindowTest, WorkOnAnUnknownUserViewIsSkipped)
{
    DataChannelIdentifier const identifier(SURVEY, "a", 0);
    column->SetUserDataViewPen("nothing", identifier, QPen(Qt::blue));
    column->SetUserDataViewScaleInterval("nothing", identifier, {0, 1});
    column->SetAreaFillDefinitions("nothing", {FillAreaDefinition()});
    column->RemoveDataFromUserDataView("nothing", identifier);
    column->DeleteCustomDataView("nothing");
    column->AddDepthDataChannelToDataView("nothing", {});
    EXPECT_TRUE(column->GetAreaFillDefinitions("nothing").empty());
    EXPECT_EQ(column->FindCombinedViewWidget("nothing"), nullptr);
}

TEST_F(ColumnWindowTest, UserViewsKeepPensScalesAndFills)
{
    auto const pass = MakePass("a", 1000, 2000, {"GR", "CCL"});
    column->CreateDataView_Public("Mine", false);
    DataChannelIdentifier const identifier(SURVEY, "a", 1);
    column->AddDepthDataChannelToDataView("Mine", pass->GetDataChannel(1));
    column->SetUserDataViewPen("Mine", identifier, QPen(Qt::blue, 3));
    EXPECT_EQ(column->GetUserDataViewPen("Mine", identifier), QPen(Qt::blue, 3));
    column->SetUserDataViewScaleInterval("Mine", identifier, {7, -7});
    EXPECT_EQ(column->FindUserDataView("Mine")->GetScales().at(0)->scale, Interval(7, -7));
    FillAreaDefinition fill;
    fill.name = "sand";
    column->SetAreaFillDefinitions("Mine", {fill});
    ASSERT_EQ(column->GetAreaFillDefinitions("Mine").size(), 1U);
    EXPECT_EQ(column->GetAreaFillDefinitions("Mine")[0].name, "sand");
    column->RemoveDataFromUserDataView("Mine", identifier);
    EXPECT_TRUE(column->FindUserDataView("Mine")->IsEmpty());
}

TEST_F(ColumnWindowTest, FingerChannelsAreKnownByPrefixNumberAndInches)
{
    auto const mnemonics = [&](QStringList const& names, QString const& unit) {
        BASE_LOGPASS_STRUCT record;
        BaseLog::DataMatrix data;
        for (QString const& name : names) {
            record.curve_info_header.push_back(HeaderRow(name, unit, "", ""));
            data.push_back(std::make_shared<std::vector<float>>(2));
        }
        std::vector<double> depths{0, 1};
        DepthLogPass const pass(record, data, true, 0.0F, 1.0F, depths);
        return column->ContainsMFCData(&pass);
    };
    EXPECT_EQ(mnemonics({"RADI[0]", "RADI[1]"}, "in"), QStringList({"RADI["}));
    EXPECT_EQ(mnemonics({"fing01"}, "INCHES"), QStringList({"FING"}));
    EXPECT_EQ(mnemonics({"FING01"}, "mm"), QStringList());
    EXPECT_EQ(mnemonics({"GR", "TEMP"}, "in"), QStringList());
    EXPECT_EQ(mnemonics({"CRAD[12]", "R07"}, "in"), QStringList({"CRAD[", "R"}));
}

TEST_F(ColumnWindowTest, AClickOnAComponentOpensItsBoxWithTheDepthsThatAreKnown)
{
    std::vector<DirectionalSurveyItem> stations(2);
    stations[1].measured_depth = 1000; // vertical, so measured and true depth are the same
    well.directional_survey = DirectionalSurveyData(stations, {});
    ASSERT_TRUE(factory.clicks.contains("Well Sketch"));
    ASSERT_TRUE(factory.clicks.contains("Zones"));
    factory.clicks["Well Sketch"](Interval(500, 600), "packer");
    factory.clicks["Zones"](Interval(900, 1100), "zone");
    ASSERT_EQ(factory.overlays.size(), 2U);
    EXPECT_EQ(factory.overlays[0].text, "packer");
    EXPECT_EQ(factory.overlays[0].md, Interval(500, 600));
    EXPECT_NEAR(factory.overlays[0].tvd.lower, 500, 1e-3);
    EXPECT_NEAR(factory.overlays[0].tvd.upper, 600, 1e-3);
    EXPECT_NEAR(factory.overlays[1].tvd.lower, 900, 1e-3);
    EXPECT_EQ(factory.overlays[1].tvd.upper, 0);
}

TEST_F(ColumnWindowTest, DropsAndPropertiesGoOnToTheFrame)
{
    CombinedDataViewWidget* pair = column->CreateDataView_Public("Mine", false);
    QSignalSpy drops(column.get(), &ColumnWindow::DataChannelDroppedOnUserDataView_Signal);
    QSignalSpy zooms(column.get(), &ColumnWindow::HorizontalZoomEnd_Signal);
    emit pair->DataChannelDroppedOnUserDataView_Signal("Mine", DataChannelIdentifier(3, "x", 4));
    emit pair->HorizontalZoomEnd_Signal();
    ASSERT_EQ(drops.size(), 1);
    EXPECT_EQ(drops[0][0].toString(), "Mine");
    EXPECT_EQ(drops[0][1].value<DataChannelIdentifier>(), DataChannelIdentifier(3, "x", 4));
    EXPECT_EQ(zooms.size(), 1);
}

TEST_F(ColumnWindowTest, TheHandleColourOfTheSettingsColoursTheSplitter)
{
    SettingsSingleton& settings = SettingsSingleton::Instance();
    settings.SetSplitterHandleColor("#12ab34");
    settings.SetOverrideDefaultSplitterHandleColor(true);
    ColumnWindow const coloured(2, well.Context(), nullptr);
    settings.SetOverrideDefaultSplitterHandleColor(false);
    ColumnWindow const plain(3, well.Context(), nullptr);
    auto const style = [](ColumnWindow const& of) {
        return of.FindAllCombinedViewWidgets()[0]->parentWidget()->styleSheet();
    };
    EXPECT_EQ(style(coloured), "QSplitter::handle{background: #12ab34;}");
    EXPECT_EQ(style(plain), "");
}

TEST_F(ColumnWindowTest, TheMapChecksItsKeysAndReachesAllColumns)
{
    ColumnWindowMap map;
    for (auto const& access : std::vector<std::function<void()>>{
             [&] { map.DeleteColumnWindow(7); }, [&] { (void)map.GetColumnWindow(7); },
             [&] { (void)std::as_const(map).GetColumnWindow(7); }}) {
        try {
            access();
            ADD_FAILURE() << "nothing thrown";
        } catch (std::out_of_range const& error) {
            EXPECT_STREQ(error.what(), "map::at");
        }
    }
    auto const pass = MakePass("a", 1000, 2000, {"GR"});
    auto* first = new ColumnWindow(1, well.Context(), nullptr);
    auto* second = new ColumnWindow(2, well.Context(), nullptr);
    QPointer<ColumnWindow> const replaced = first;
    map.CreateColumnWindow(1, first);
    map.CreateColumnWindow(2, second);
    map.CreateColumnWindow(1, new ColumnWindow(1, well.Context(), nullptr));
    EXPECT_TRUE(replaced.isNull());
    EXPECT_EQ(map.GetColumnWindow(2), second);

    map.GetColumnWindow(1)->AddImportedDepthLog(pass);
    second->AddImportedDepthLog(pass);
    map.DeleteDependencies(DataChannelIdentifier(SURVEY, "a", -1));
    EXPECT_TRUE(map.GetColumnWindow(1)->FindAllAutomaticDataViews().isEmpty());
    EXPECT_TRUE(second->FindAllAutomaticDataViews().isEmpty());

    second->show();
    map.HideAll();
    EXPECT_TRUE(second->GetScrollAreaWrapper()->GetScrollArea()->isHidden());
    map.Clear();
    EXPECT_TRUE(map.GetColumnWindows().empty());
}

TEST_F(ColumnWindowTest, AColumnOnScreenGoesWithItsViews)
{
    auto const pass = MakePass("a", 1000, 2000, {"GR", "CCL"});
    column->AddImportedDepthLog(pass);
    ShowOnScreen();
    QPointer<MyAbstractScrollArea> const area = column->GetScrollAreaWrapper()->GetScrollArea();
    column.reset();
    EXPECT_TRUE(area.isNull());
    column = std::make_unique<ColumnWindow>(SURVEY, well.Context(), &factory);
    ShowOnScreen();
    window.reset(); // the layout's parent may go first
    EXPECT_TRUE(column != nullptr);
}
