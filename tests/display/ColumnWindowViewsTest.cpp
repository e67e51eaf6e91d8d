// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnFixture.h"

#include "display/BaseScaleView.h"
#include "display/CombinedDataViewWidget.h"
#include "model/ScaleItemParameters.h"

#include <QScrollBar>
#include <QTest>

class ColumnWindowViewsTest : public ColumnFixture
{
protected:
    ColumnWindowViewsTest()
    {
        passes.push_back(
            MakePass("a", 1000, 2000, 2000, {"GR", "CCL", "TEMP", "QP"},
                     [](int curve, double depth) { return static_cast<float>(depth * (curve + 1)); }));
        column->AddImportedDepthLog(passes[0]);
    }

    void Show(QList<QString> const& names)
    {
        column->UpdateVisibleViewWidgets(names);
        Settle();
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

    void MoveOverAllViews()
    {
        Quorrel::TRACKING_MODE = true;
        column->SetCurrentDepthLogPass(passes[0]);
        for (QString const& name : VisibleNames()) {
            BaseViewWidget* view = View(name);
            QTest::mousePress(view, Qt::LeftButton, {}, QPoint(10, 20));
            for (int y = 25; y < 200; y += 13) {
                view_bench::Drag(view, QPoint(10 + y % 40, y));
                Settle();
            }
            QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(20, 120));
        }
        Quorrel::TRACKING_MODE = false;
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
        // Of 1000 px, the ruler and the three plain views take 38 and 60 each.
        EXPECT_NEAR(Width(name), (1000 - 38 - 3 * 60) / 4, 30) << name.toStdString();
    }
}

TEST_F(ColumnWindowViewsTest, ExactlyTheNamedViewsAreShownInTheOrderOfTheNames)
{
    ShowOnScreen();
    Show({"TEMP", "Depth", "GR"});
    EXPECT_EQ(VisibleNames(), (QList<QString>{"TEMP", "Depth", "GR"}));
    EXPECT_EQ(Names(),
              (QList<QString>{"TEMP", "Depth", "GR", "Zones", "Deviation", "Well Sketch", "CCL", "QP"}));
    EXPECT_LT(Width("Depth"), 100) << "a ruler stays narrow";

    // Hidden views come back in their new place, and none is left without width.
    Show({"CCL", "Depth", "nothing", "TEMP"});
    EXPECT_EQ(VisibleNames(), (QList<QString>{"CCL", "Depth", "TEMP"}));
    for (QString const& name : VisibleNames()) {
        EXPECT_GE(Width(name), 20) << name.toStdString();
    }
    column->UpdateVisibleViewWidgets({});
    EXPECT_TRUE(VisibleNames().isEmpty());
    column->SortViewWidgets({"QP", "nothing", "Depth"});
    EXPECT_EQ(Names(),
              (QList<QString>{"QP", "Depth", "CCL", "TEMP", "GR", "Zones", "Deviation", "Well Sketch"}));
    EXPECT_TRUE(VisibleNames().isEmpty()) << "sorting shows none";
}

TEST_F(ColumnWindowViewsTest, SizesStayWithTheirViews)
{
    ShowOnScreen();
    column->UpdateVisibleViewWidgets({"Depth", "GR", "CCL"});
    column->SetSplitterSizes({50, 300, 600});
    Settle();
    int const gr = Width("GR");
    int const ccl = Width("CCL");
    Show({"CCL", "Depth", "GR"});
    EXPECT_LT(gr, ccl);
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

TEST_F(ColumnWindowViewsTest, ADraggedTitleMovesItsView)
{
    ShowOnScreen();
    Show({"GR", "CCL", "TEMP", "QP"});
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
    column->CreateDataView_Public("Mine", false)->show();
    column->AddDepthDataChannelToDataView("Mine", passes[0]->GetDataChannel(0));
    ShowOnScreen();
    column->SetVisibleDepthInterval({1200, 1400});
    column->UpdateScrollBar();
    Settle();
    auto const expect_renders = [&](char const* what, std::function<void()> const& action, int renders,
                                    QList<QString> const& views) {
        std::map<QString, int> expected = RenderCounts();
        for (QString const& name : views) {
            expected.at(name) += renders;
        }
        action();
        Settle();
        EXPECT_EQ(RenderCounts(), expected) << what;
    };
    QScrollBar* bar = column->GetScrollAreaWrapper()->GetScrollArea()->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 100);
    QList<QString> const shown = VisibleNames();
    for (auto const& [what, action, renders] :
         std::vector<std::tuple<char const*, std::function<void()>, int>>{
             {"mouse moves, tracker and measuring arrow", [&] { MoveOverAllViews(); }, 0},
             {"mouse leave", [&] { emit View("GR")->MouseLeave_Signal(); }, 0},
             {"selection", [&] { column->OnVerticalSelectionBegin(20); }, 0},
             {"end of a selection in no mode", [&] { column->OnVerticalSelectionEnd(20, 60); }, 0},
             {"zoom in", [&] { column->OnZoomIn(); }, 1},
             {"zoom out", [&] { column->OnZoomOut(); }, 1},
             {"undo", [&] { column->Undo(); }, 1},
             {"scroll", [&] { bar->setValue(bar->value() + 30); }, 1},
             {"a new total", [&] { column->SetTotalDisplayedInterval(Interval(1000, 2000)); }, 1},
             {"end of a shift", [&] { column->OnShiftCompleted(); }, 1},
             {"two redraws before the next paint",
              [&] {
                  column->ForceRedraw();
                  column->RedrawAllViewWidgets();
              },
              1},
             {"a higher window", [&] { window->resize(1000, 650); }, 1},
         }) {
        expect_renders(what, action, renders, shown);
    }
    // What is changed in one view renders that view alone.
    auto const more = MakePass("b", 1000, 2000, {"GR"});
    auto* gr = qobject_cast<BaseDataView*>(View("GR"));
    auto const scale = std::make_shared<ScaleItemParameters>();
    expect_renders("data", [&] { column->AddDepthDataChannelToDataView("GR", more->GetDataChannel(0)); }, 1,
                   {"GR"});
    expect_renders("markers", [&] { gr->SetShowMarkersA(true); }, 1, {"GR"});
    expect_renders("scale", [&] { gr->SetScales({scale}); }, 1, {"GR"});
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
    column->show();
    Settle();
    for (QString const& name : VisibleNames()) {
        EXPECT_EQ(RenderCounts().at(name), before.at(name) + 1) << name.toStdString();
    }
}
