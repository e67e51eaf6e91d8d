// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnFixture.h"

#include "display/BaseScaleView.h"
#include "display/ColumnWindowMap.h"
#include "display/CombinedDataViewWidget.h"

#include <QSignalSpy>

namespace {
using CountByName = std::map<QString, std::size_t>;

class ColumnWindowTest : public ColumnFixture
{
protected:
    /// Curves in each automatic view.
    [[nodiscard]] CountByName CurveCounts() const
    {
        CountByName counts;
        for (AutomaticDataView const* view : column->FindAllAutomaticDataViews()) {
            counts[view->GetName()] = view->GetDepthCurves().size() + view->GetTimeCurves().size();
        }
        return counts;
    }
};

TEST_F(ColumnWindowTest, ANewColumnShowsItsDefaultViewsOverADefaultInterval)
{
    EXPECT_EQ(Names(), (QList<QString>{"Depth", "Zones", "Deviation", "Well Sketch"}));
    EXPECT_EQ(VisibleNames(), Names());
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(0, 5000));
    EXPECT_EQ(column->GetViewDepth(), Interval(0, 5000));

    SettingsSingleton::Instance().SetMetricDepth(false);
    ColumnWindow const in_feet(2, bench.context, nullptr);
    EXPECT_EQ(in_feet.GetTotalDisplayedInterval(), Interval(0, 4572)); // 15000 ft
    ASSERT_EQ(in_feet.FindAllCombinedViewWidgets().size(), 1);
}

TEST_F(ColumnWindowTest, LogsJoinTheAutomaticViewsOfTheirNames)
{
    column->CreateDataView_Public("GR", false);    // of the same name, but not an automatic view
    Import("a", 1000, 2000, {"GR", "CCL", "CCL"}); // two curves of one name are both shown
    Import("b", 1500, 2500, {"SPIN", "GR"});
    EXPECT_EQ(Names(),
              (QList<QString>{"Depth", "Zones", "Deviation", "Well Sketch", "GR", "GR", "CCL", "SPIN"}));
    // Restored ones make no views.
    auto const pass = MakePass("c", 1000, 2000, {"TEMP", "GR", "GR"});
    auto const log = MakeTimeLog("t", 2300, {"PRES", "GR_SL", "GR"});
    column->AddRestoredDepthLog(pass);
    column->AddRestoredTimeLog(log);
    EXPECT_EQ(CurveCounts(), (CountByName{{"GR", 6}, {"CCL", 2}, {"SPIN", 1}}));
    EXPECT_TRUE(column->FindUserDataView("GR")->IsEmpty());
}

TEST_F(ColumnWindowTest, TheFirstPassSetsTheIntervalAndShowsViewsByPriority)
{
    column->SetOverrideAutomaticDisplayedInterval(true);
    Import("a", 1000, 2000, {"AAA", "BBB", "TEMP", "GR", "CCL"});
    EXPECT_FALSE(column->GetOverrideAutomaticDisplayedInterval());
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(999, 2001)); // one metre more at each end
    EXPECT_EQ(column->GetViewDepth(), Interval(999, 2001));
    // Three by priority, and the two at indices 3 and 4, of which the sketch is shown anyway.
    EXPECT_EQ(VisibleNames(),
              (QList<QString>{"Depth", "Zones", "Deviation", "Well Sketch", "AAA", "TEMP", "GR", "CCL"}));

    // A later pass leaves what is shown, and widens the interval only through views that are shown.
    Import("b", 500, 1500, {"SPIN"});
    EXPECT_FALSE(VisibleNames().contains("SPIN"));
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(999, 2001));
    Import("c", 800, 900, {"GR"});
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(799, 2001));
}

TEST_F(ColumnWindowTest, StationaryLogsJoinTheViewOfTheNameWithoutPostfix)
{
    for (auto const& [name, postfix] :
         std::map<QString, QString>{{"GR_SLX", ""}, {"_SL", "_SL"}, {"GR_sl", ""}, {"A_SL_SL", "_SL"}}) {
        EXPECT_EQ(ColumnWindow::CheckForTimeLogPostFix(name), postfix) << name.toStdString();
    }
    Import("a", 1000, 2000, {"GR"});
    auto const log = MakeTimeLog("t", 2300, {"GR_SL", "PRES", "PRES"});
    column->OnTimeLogAdded(log);
    EXPECT_EQ(CurveCounts(), (CountByName{{"GR", 2}, {"PRES", 2}}));
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(999, 2301));
}

TEST_F(ColumnWindowTest, OnlyShownDataCountAndTheOverrideHoldsTheIntervalAgainstThem)
{
    Import("a", 1000, 2000, {"GR"});
    BaseCombinedViewWidget* pair = column->FindCombinedViewWidget("GR");
    pair->hide();
    EXPECT_EQ(column->GetTotalVisibleDepthInterval(), std::nullopt);
    column->OnVisibleWidgetsChanged();
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(999, 2001)) << "no data leave the interval";
    pair->show();
    EXPECT_EQ(column->GetTotalVisibleDepthInterval(), Interval(999, 2001));
    column->SetVisibleDepthInterval({1990, 2001.001});
    column->OnVisibleWidgetsChanged();
    EXPECT_EQ(column->GetViewDepth(), Interval(1990, 2001.001)) << "the same total leaves the zoom";

    column->SetOverrideAutomaticDisplayedInterval(true);
    column->SetTotalDisplayedInterval({1200, 1300});
    EXPECT_EQ(column->GetViewDepth(), Interval(1200, 1300));
    Import("b", 100, 3000, {"GR"});
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(1200, 1300));
    column->SetOverrideAutomaticDisplayedInterval(false);
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(99, 3001));
    EXPECT_EQ(column->GetViewDepth(), Interval(1200, 1300));
}

TEST_F(ColumnWindowTest, DeletedLogsLeaveTheirViewsAndEmptyAutomaticViewsGo)
{
    Import("a", 1000, 2000, {"GR", "CCL"});
    Import("b", 1500, 2500, {"GR"});
    column->CreateDataView_Public("Mine", false)->show();
    column->AddDepthDataChannelToDataView("Mine", passes[0]->GetDataChannel(1));
    EXPECT_EQ(column->FindUserDataView("Mine")->GetDepthCurves().size(), 1U);

    column->DeleteDependencies(DataChannelIdentifier(SURVEY, "a", -1));
    passes[0].reset();
    Settle();
    EXPECT_EQ(CurveCounts(), (CountByName{{"GR", 1}}));
    EXPECT_TRUE(column->FindUserDataView("Mine")->IsEmpty());
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(1499, 2501));

    column->DeleteDependencies(DataChannelIdentifier(SURVEY, "", -1));
    Settle();
    EXPECT_TRUE(column->FindAllAutomaticDataViews().isEmpty());
}

TEST_F(ColumnWindowTest, NewNamesAreUniqueInTheSettingsNumberFormat)
{
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

TEST_F(ColumnWindowTest, UserViewsKeepPensScalesAndFillsAndUnknownOnesAreSkipped)
{
    auto const pass = MakePass("a", 1000, 2000, {"GR", "CCL"});
    DataChannelIdentifier const identifier(SURVEY, "a", 1);
    FillAreaDefinition fill;
    fill.name = "sand";
    column->CreateDataView_Public("Mine", false);
    for (QString const view : {"Mine", "nothing"}) {
        column->AddDepthDataChannelToDataView(view, pass->GetDataChannel(1));
        column->SetUserDataViewPen(view, identifier, QPen(Qt::blue, 3));
        column->SetUserDataViewScaleInterval(view, identifier, {7, -7});
        column->SetAreaFillDefinitions(view, {fill});
    }
    EXPECT_EQ(column->GetUserDataViewPen("Mine", identifier), QPen(Qt::blue, 3));
    EXPECT_EQ(column->FindUserDataView("Mine")->GetScales().at(0)->scale, Interval(7, -7));
    EXPECT_EQ(column->GetAreaFillDefinitions("Mine"), std::vector{fill});
    EXPECT_TRUE(column->GetAreaFillDefinitions("nothing").empty());
    column->RemoveDataFromUserDataView("nothing", identifier);
    column->DeleteCustomDataView("nothing");
    column->RemoveDataFromUserDataView("Mine", identifier);
    EXPECT_TRUE(column->FindUserDataView("Mine")->IsEmpty());
    EXPECT_EQ(column->FindCombinedViewWidget("nothing"), nullptr);
}

TEST_F(ColumnWindowTest, FingerChannelsAreKnownByPrefixNumberAndInches)
{
    for (auto const& [names, unit, expected] : std::vector<std::tuple<QStringList, QString, QStringList>>{
             {{"RADI[0]", "RADI[1]"}, "in", {"RADI["}},
             {{"fing01"}, "INCHES", {"FING"}},
             {{"FING01"}, "mm", {}},
             {{"GR", "TEMP"}, "in", {}},
             {{"CRAD[12]", "R07"}, "in", {"CRAD[", "R"}}}) {
        auto const pass = MakePass("a", 0, 1, names, unit);
        EXPECT_EQ(column->ContainsMFCData(pass.get()), expected);
    }
}

TEST_F(ColumnWindowTest, AClickOnAComponentOpensItsBoxWithTheDepthsThatAreKnown)
{
    std::vector<DirectionalSurveyItem> stations(2);
    stations[1].measured_depth = 1000; // vertical, so measured and true depth are the same
    bench.survey = DirectionalSurveyData(stations, {});
    factory.clicks.at("Well Sketch")(Interval(500, 600), "packer");
    factory.clicks.at("Zones")(Interval(900, 1100), "zone");
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
    auto const channel = QVariant::fromValue(DataChannelIdentifier(3, "x", 4));
    EXPECT_EQ(drops, QList<QVariantList>({{"Mine", channel}}));
    EXPECT_EQ(zooms.size(), 1);
}

TEST_F(ColumnWindowTest, TheHandleColourOfTheSettingsColoursTheSplitter)
{
    SettingsSingleton& settings = SettingsSingleton::Instance();
    settings.SetSplitterHandleColor("#12ab34");
    settings.SetOverrideDefaultSplitterHandleColor(true);
    ColumnWindow const coloured(2, bench.context, nullptr);
    settings.SetOverrideDefaultSplitterHandleColor(false);
    ColumnWindow const plain(3, bench.context, nullptr);
    auto const style = [](ColumnWindow const& of) {
        return of.FindAllCombinedViewWidgets()[0]->parentWidget()->styleSheet();
    };
    EXPECT_EQ(style(coloured), "QSplitter::handle{background: #12ab34;}");
    EXPECT_EQ(style(plain), "");
}

TEST_F(ColumnWindowTest, TheMapChecksItsKeysAndReachesAllColumns)
{
    ColumnWindowMap map;
    EXPECT_THROW(map.DeleteColumnWindow(7), std::out_of_range);
    EXPECT_THROW((void)map.GetColumnWindow(7), std::out_of_range);
    EXPECT_THROW((void)std::as_const(map).GetColumnWindow(7), std::out_of_range);
    auto const pass = MakePass("a", 1000, 2000, {"GR"});
    QPointer<ColumnWindow> const replaced = new ColumnWindow(1, bench.context, nullptr);
    map.CreateColumnWindow(1, replaced);
    for (int const key : {2, 1}) {
        map.CreateColumnWindow(key, new ColumnWindow(key, bench.context, nullptr));
        map.GetColumnWindow(key)->AddImportedDepthLog(pass);
    }
    EXPECT_TRUE(replaced.isNull());
    map.DeleteDependencies(DataChannelIdentifier(SURVEY, "a", -1));
    EXPECT_TRUE(map.GetColumnWindow(1)->FindAllAutomaticDataViews().isEmpty());
    EXPECT_TRUE(map.GetColumnWindow(2)->FindAllAutomaticDataViews().isEmpty());

    map.GetColumnWindow(2)->show();
    map.HideAll();
    EXPECT_TRUE(map.GetColumnWindow(2)->GetScrollAreaWrapper()->GetScrollArea()->isHidden());
    map.Clear();
    EXPECT_TRUE(map.GetColumnWindows().empty());
}

TEST_F(ColumnWindowTest, AColumnOnScreenGoesWithItsViews)
{
    Import("a", 1000, 2000, {"GR", "CCL"});
    ShowOnScreen();
    QPointer<MyAbstractScrollArea> const area = column->GetScrollAreaWrapper()->GetScrollArea();
    column.reset();
    EXPECT_TRUE(area.isNull());
    column = MakeColumn();
    ShowOnScreen();
    window.reset(); // the layout's parent may go first
    EXPECT_TRUE(column != nullptr);
}
} // namespace
