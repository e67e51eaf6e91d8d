// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnFixture.h"

#include "display/BaseScaleView.h"
#include "display/CombinedDataViewWidget.h"
#include "model/ScaleItemParameters.h"

#include <QScrollBar>

class ColumnWindowViewsTest : public ColumnFixture
{
protected:
    void SetUp() override
    {
        ColumnFixture::SetUp();
        passes.push_back(
            MakePass("a", 1000, 2000, 2000, {"GR", "CCL", "TEMP", "QP"},
                     [](int curve, double depth) { return static_cast<float>(depth * (curve + 1)); }));
        column->AddImportedDepthLog(passes[0]);
    }

    [[nodiscard]] int Width(QString const& name) const
    {
        return column->FindCombinedViewWidget(name)->width();
    }

    [[nodiscard]] double MiddleOf(QString const& name) const
    {
        QWidget const* widget = column->FindCombinedViewWidget(name);
        return widget->mapToGlobal(QPointF(widget->width() / 2.0, 0)).x();
    }

    /// How often each shown view rendered since `before`; -1 when they differ among each other.
    [[nodiscard]] int RendersSince(std::map<QString, int> const& before) const
    {
        std::map<QString, int> const now = RenderCounts();
        int renders = -2;
        for (QString const& name : VisibleNames()) {
            int const own = now.at(name) - before.at(name);
            renders = renders == -2 || renders == own ? own : -1;
        }
        return renders;
    }
};

TEST_F(ColumnWindowViewsTest, TheFirstDataViewsShareTheWidthThatTheOthersLeave)
{
    column->DisplayDefaultViews();
    ShowOnScreen();
    column->DisplayFirstCVWs();
    Settle();
    EXPECT_LT(Width("Depth"), 100) << "a ruler stays narrow";
    for (QString const name : {"GR", "CCL", "TEMP", "QP"}) {
        // Of 1000 px, the ruler and the three plain views take 40 and 60 each.
        EXPECT_NEAR(Width(name), (1000 - 40 - 3 * 60) / 4, 30) << name.toStdString();
    }
}

TEST_F(ColumnWindowViewsTest, ExactlyTheNamedViewsAreShownInTheOrderOfTheNames)
{
    ShowOnScreen();
    column->UpdateVisibleViewWidgets({"TEMP", "Depth", "GR"});
    Settle();
    EXPECT_EQ(VisibleNames(), (QList<QString>{"TEMP", "Depth", "GR"}));
    EXPECT_EQ(Names(),
              (QList<QString>{"TEMP", "Depth", "GR", "Zones", "Deviation", "Well Sketch", "CCL", "QP"}));
    EXPECT_LT(Width("Depth"), 100) << "a ruler stays narrow";

    // Hidden views come back in their new place, and none is left without width.
    column->UpdateVisibleViewWidgets({"CCL", "Depth", "nothing", "TEMP"});
    Settle();
    EXPECT_EQ(VisibleNames(), (QList<QString>{"CCL", "Depth", "TEMP"}));
    for (QString const& name : VisibleNames()) {
        EXPECT_GE(Width(name), 20) << name.toStdString();
    }
    column->UpdateVisibleViewWidgets({});
    EXPECT_TRUE(VisibleNames().isEmpty());
}

TEST_F(ColumnWindowViewsTest, SizesStayWithTheirViews)
{
    ShowOnScreen();
    column->UpdateVisibleViewWidgets({"Depth", "GR", "CCL"});
    column->SetSplitterSizes({50, 300, 600});
    Settle();
    int const gr = Width("GR");
    int const ccl = Width("CCL");
    ASSERT_LT(gr, ccl);
    column->UpdateVisibleViewWidgets({"CCL", "Depth", "GR"});
    Settle();
    EXPECT_NEAR(Width("GR"), gr, 3);
    EXPECT_NEAR(Width("CCL"), ccl, 3);
}

TEST_F(ColumnWindowViewsTest, ASizeOfZeroHides)
{
    ShowOnScreen();
    column->SetSplitterSizes({40, 0, 0, 0, 300, 0, 200, 100});
    Settle();
    EXPECT_EQ(VisibleNames(), (QList<QString>{"Depth", "GR", "TEMP", "QP"}));
    // Shown again by hand, such a view has a width.
    column->FindCombinedViewWidget("CCL")->show();
    Settle();
    EXPECT_GE(Width("CCL"), 20);
    column->SetSplitterSizes({40, 0}); // the others stay as they are
    EXPECT_FALSE(VisibleNames().contains("Zones"));
    EXPECT_TRUE(VisibleNames().contains("CCL"));
}

TEST_F(ColumnWindowViewsTest, SortingMovesTheNamedViewsToTheFront)
{
    column->SortViewWidgets({"QP", "nothing", "Depth"});
    EXPECT_EQ(Names(),
              (QList<QString>{"QP", "Depth", "Zones", "Deviation", "Well Sketch", "GR", "CCL", "TEMP"}));
}

TEST_F(ColumnWindowViewsTest, ADraggedTitleMovesItsView)
{
    ShowOnScreen();
    column->UpdateVisibleViewWidgets({"GR", "CCL", "TEMP", "QP"});
    Settle();
    auto const drag = [&](QString const& name, double global_x) {
        emit column->FindCombinedViewWidget(name)->GetBaseScaleView()->MoveViewWidget_Signal(
            QPointF(global_x, 0));
        Settle();
    };
    drag("GR", MiddleOf("CCL") - 5);
    EXPECT_EQ(VisibleNames(), (QList<QString>{"GR", "CCL", "TEMP", "QP"}));
    drag("GR", MiddleOf("CCL") + 5);
    EXPECT_EQ(VisibleNames(), (QList<QString>{"CCL", "GR", "TEMP", "QP"}));
    drag("QP", MiddleOf("CCL") - 5);
    EXPECT_EQ(VisibleNames(), (QList<QString>{"QP", "CCL", "GR", "TEMP"}));
    QWidget stranger;
    column->OnMoveViewWidget(&stranger, QPointF(0, 0));
    EXPECT_EQ(VisibleNames(), (QList<QString>{"QP", "CCL", "GR", "TEMP"}));
}

TEST_F(ColumnWindowViewsTest, AViewDroppedAboveOrBelowTheColumnIsHidden)
{
    ShowOnScreen();
    BaseCombinedViewWidget* pair = column->FindCombinedViewWidget("GR");
    int const top = pair->mapToGlobal(QPoint(0, 0)).y();
    pair->MoveButtonReleased(top + 10);
    EXPECT_FALSE(pair->isHidden());
    pair->MoveButtonReleased(top - 1);
    EXPECT_TRUE(pair->isHidden());
}

TEST_F(ColumnWindowViewsTest, AllShownHeadersAreAsHighAsTheHighest)
{
    ShowOnScreen();
    CombinedDataViewWidget* mine = column->CreateDataView_Public("Mine", false);
    mine->show();
    Settle();
    EXPECT_EQ(View("GR")->height(), View("Depth")->height());
    int const height_before = View("GR")->height();
    for (int i = 0; i < 3; ++i) {
        column->AddDepthDataChannelToDataView("Mine", passes[0]->GetDataChannel(i));
    }
    Settle();
    for (QString const& name : VisibleNames()) {
        BaseCombinedViewWidget const* pair = column->FindCombinedViewWidget(name);
        EXPECT_EQ(pair->GetBaseScaleView()->height(), 80) << name.toStdString(); // the name and three curves
        EXPECT_EQ(pair->GetBaseViewWidget()->height(), Height()) << name.toStdString();
    }
    EXPECT_EQ(Height(), height_before - 40);
    mine->hide();
    Settle();
    EXPECT_EQ(Height(), height_before);
}

TEST_F(ColumnWindowViewsTest, EveryChangeRendersEachShownViewOnceAndNoHiddenOne)
{
    column->SetOverrideAutomaticDisplayedInterval(true);
    ShowOnScreen();
    column->SetVisibleDepthInterval({1200, 1400});
    column->UpdateScrollBar();
    Settle();
    QScrollBar* bar = column->GetScrollAreaWrapper()->GetScrollArea()->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 100);
    struct Case
    {
        char const* what;
        std::function<void()> action;
        int renders;
    };
    Case const cases[] = {
        {"nothing", [] {}, 0},
        {"mouse move", [&] { emit View("GR")->MouseMove_Signal(50, 1, ""); }, 0},
        {"mouse leave", [&] { emit View("GR")->MouseLeave_Signal(); }, 0},
        {"selection", [&] { column->OnVerticalSelectionBegin(20); }, 0},
        {"end of a selection in no mode", [&] { column->OnVerticalSelectionEnd(20, 60); }, 0},
        {"tracking", [&] { column->MoveCursors(90, 1, ""); }, 0},
        {"zoom in", [&] { column->OnZoomIn(); }, 1},
        {"zoom out", [&] { column->OnZoomOut(); }, 1},
        {"undo", [&] { column->Undo(); }, 1},
        {"scroll", [&] { bar->setValue(bar->value() + 30); }, 1},
        {"a new total",
         [&] {
             column->SetTotalDisplayedInterval({1000, 2000});
         },
         1},
        {"home", [&] { column->OnZoomHome(); }, 1},
        {"end of a shift", [&] { column->OnShiftCompleted(); }, 1},
        {"a forced redraw", [&] { column->ForceRedraw(); }, 1},
        {"a higher window", [&] { window->resize(1000, 650); }, 1},
    };
    for (Case const& c : cases) {
        QList<QString> hidden = Names();
        for (QString const& name : VisibleNames()) {
            hidden.removeOne(name);
        }
        std::map<QString, int> const before = RenderCounts();
        c.action();
        Settle();
        EXPECT_EQ(RendersSince(before), c.renders) << c.what;
        for (QString const& name : hidden) {
            EXPECT_EQ(RenderCounts().at(name), before.at(name)) << c.what << ": " << name.toStdString();
        }
    }
    // New data in one view render that view alone.
    auto const more = MakePass("b", 1000, 2000, {"GR"});
    std::map<QString, int> const before = RenderCounts();
    column->AddDepthDataChannelToDataView("GR", more->GetDataChannel(0));
    Settle();
    EXPECT_EQ(RenderCounts().at("GR") - before.at("GR"), 1);
    EXPECT_EQ(RenderCounts().at("CCL") - before.at("CCL"), 0);
}

TEST_F(ColumnWindowViewsTest, AHiddenColumnRendersNothing)
{
    ShowOnScreen();
    column->hide();
    Settle();
    std::map<QString, int> const before = RenderCounts();
    column->OnZoomIn();
    column->ForceRedraw();
    Settle();
    EXPECT_EQ(RenderCounts(), before);
    EXPECT_EQ(VisibleNames().size(), 8) << "the views keep their own state";
    EXPECT_EQ(column->GetTotalDisplayedInterval(), Interval(999, 2001));
    column->show();
    Settle();
    EXPECT_EQ(RendersSince(before), 1);
}
