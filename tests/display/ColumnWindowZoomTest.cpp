// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnFixture.h"

#include "display/CombinedDataViewWidget.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

/// A column over 0 to 5000 m that shows 1000 to 2000 m in a height that the test sets.
class ColumnWindowZoomTest : public ColumnFixture
{
protected:
    ColumnWindowZoomTest()
    {
        column->SetOverrideAutomaticDisplayedInterval(true);
        column->OnVisibleHeightChanged(501);
        column->SetVisibleDepthInterval({1000, 2000});
        column->UpdateScrollBar();
    }

    [[nodiscard]] QScrollBar* Bar() const
    {
        return column->GetScrollAreaWrapper()->GetScrollArea()->verticalScrollBar();
    }

    void TurnWheel(int delta, Qt::KeyboardModifiers modifiers)
    {
        QWidget* viewport = column->GetScrollAreaWrapper()->GetScrollArea()->viewport();
        QWheelEvent event(QPointF(10, 10), viewport->mapToGlobal(QPointF(10, 10)), QPoint(), QPoint(0, delta),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(viewport, &event);
    }

    void ExpectView(double top, double bottom, char const* what)
    {
        EXPECT_NEAR(column->GetViewDepth().lower, top, 1e-3) << what;
        EXPECT_NEAR(column->GetViewDepth().upper, bottom, 1e-3) << what;
    }
};

TEST_F(ColumnWindowZoomTest, ButtonsZoomByTwoAboutTheCentreAndCanBeUndone)
{
    auto const step = [&](void (ColumnWindow::*action)(), double top, double bottom, char const* what) {
        (column.get()->*action)();
        ExpectView(top, bottom, what);
    };
    step(&ColumnWindow::OnZoomIn, 1250, 1750, "in");
    step(&ColumnWindow::OnZoomIn, 1375, 1625, "in twice");
    step(&ColumnWindow::OnZoomOut, 1250, 1750, "out");
    step(&ColumnWindow::Undo, 1375, 1625, "undone");
    step(&ColumnWindow::Redo, 1250, 1750, "redone");
    column->Undo();
    column->Undo();
    step(&ColumnWindow::Undo, 1000, 2000, "all undone");
    EXPECT_FALSE(column->UndoAvailable());
    EXPECT_TRUE(column->RedoAvailable());
}

TEST_F(ColumnWindowZoomTest, ZoomingStopsAtTheTotalAndAtTheLimit)
{
    for (int i = 0; i < 5; ++i) {
        column->OnZoomOut();
    }
    ExpectView(0, 5000, "out to the total");
    for (int i = 0; i < 40; ++i) {
        column->OnZoomIn();
    }
    // 501 rows of 5 cm / 96.
    EXPECT_NEAR(column->GetViewDepth().Delta(), 0.2609, 5e-4);
    EXPECT_NEAR(column->GetViewDepth().Center(), 2500, 1e-3);
}

TEST_F(ColumnWindowZoomTest, TheScrollBarFollowsTheView)
{
    QSignalSpy scrolls(column->GetScrollAreaWrapper(), &ScrollAreaWrapper::OnscrollContentsBy_Signal);
    auto const expect = [&](int maximum, int value, char const* what) {
        EXPECT_EQ(Bar()->maximum(), maximum) << what;
        EXPECT_EQ(Bar()->value(), value) << what;
    };
    expect(2004, 501, "501 * (5 - 1), a quarter of it");
    column->ApplyZoom(2);
    expect(4509, 1252, "501 * (10 - 1), 1250 / 4500 of it");
    column->ZoomWithDepthStationary(1250, 0.5F);
    expect(2004, 626, "from 1250 on");
    column->SetTotalDisplayedInterval({1000, 3000});
    expect(501, 125, "a shorter total");
    column->SetVisibleDepthInterval({1000, 2000});
    expect(501, 125, "what undo sets leaves the bar");
    column->OnZoomHome();
    expect(0, 0, "all of it");
    column->Undo();
    expect(501, 0, "but an undo itself brings the bar along");
    EXPECT_EQ(scrolls.size(), 0) << "moving the bar does not scroll";
}

TEST_F(ColumnWindowZoomTest, ScrollingMovesTheViewByTheFullHeightAndRecordsNothing)
{
    Bar()->setValue(0);
    ExpectView(0, 1000, "top");
    Bar()->setValue(501);
    ExpectView(1000, 2000, "one whole view further"); // over 500 rows it would be 1002
    Bar()->setValue(Bar()->maximum());
    ExpectView(4000, 5000, "bottom");
    EXPECT_FALSE(column->UndoAvailable());
}

TEST_F(ColumnWindowZoomTest, ControlAndWheelZoomAboutTheCursorWithoutUndo)
{
    TurnWheel(120, Qt::ControlModifier);
    ExpectView(1000, 2000, "the mouse is in no view");
    column->MoveCursors(100, 1200, "");
    TurnWheel(120, Qt::ControlModifier);
    ExpectView(1100, 1600, "1200 m stay on row 100 of 500");
    TurnWheel(-120, Qt::ControlModifier);
    ExpectView(1000, 2000, "out again");
    EXPECT_EQ(Bar()->value(), 501);
    EXPECT_FALSE(column->UndoAvailable());

    TurnWheel(-120, Qt::NoModifier);
    EXPECT_GT(Bar()->value(), 501);
    EXPECT_NEAR(column->GetViewDepth().Delta(), 1000, 1e-3);

    Interval const scrolled = column->GetViewDepth();
    column->RemoveCursors();
    TurnWheel(120, Qt::ControlModifier);
    EXPECT_EQ(column->GetViewDepth(), scrolled) << "the mouse has left the views";
}

TEST_F(ColumnWindowZoomTest, HomeAndAdjustedScalesAreOneStepEach)
{
    auto const pass = MakePass("a", 0, 1000, 1001, {"GR", "CCL"}, [](int curve, double depth) {
        return static_cast<float>(depth + curve * 1000);
    });
    column->AddImportedDepthLog(pass);
    column->SetTotalDisplayedInterval({0, 1000});
    column->SetVisibleDepthInterval({200, 300});
    auto const expect = [&](Interval const& view, Interval const& gr, Interval const& ccl) {
        EXPECT_EQ(column->GetViewDepth(), view);
        EXPECT_EQ(column->FindAllAutomaticDataViews()[0]->GetHorizontalScale(), gr);
        EXPECT_EQ(column->FindAllAutomaticDataViews()[1]->GetHorizontalScale(), ccl);
    };
    expect({200, 300}, {0, 1000}, {1000, 2000});
    column->AdjustScalesToVisibleDepth();
    expect({200, 300}, {200, 300}, {1200, 1300});
    column->OnZoomHome();
    expect({0, 1000}, {0, 1000}, {1000, 2000});
    column->Undo();
    expect({200, 300}, {200, 300}, {1200, 1300});
    column->Undo();
    expect({200, 300}, {0, 1000}, {1000, 2000});
    EXPECT_FALSE(column->UndoAvailable());
}

TEST_F(ColumnWindowZoomTest, ScalesSetTogetherInAUserViewAreOneStep)
{
    auto const pass = MakePass("a", 0, 1000, {"GR", "CCL", "TEMP"});
    CombinedDataViewWidget* mine = column->CreateDataView_Public("Mine", false);
    for (int i = 0; i < 3; ++i) {
        column->AddDepthDataChannelToDataView("Mine", pass->GetDataChannel(i));
    }
    auto const scales = [&] {
        std::vector<Interval> present;
        for (auto const& record : mine->GetScales()) {
            present.push_back(record->scale);
        }
        return present;
    };
    auto const set = [&](std::vector<Interval> const& to) {
        std::vector<std::shared_ptr<ScaleItemParameters>> records;
        for (auto const& record : mine->GetScales()) {
            records.push_back(std::make_shared<ScaleItemParameters>(*record));
            records.back()->scale = to[records.size() - 1];
        }
        mine->SetScales(records);
        EXPECT_EQ(scales(), to);
    };
    std::vector<Interval> const before = scales();
    set(before);
    EXPECT_FALSE(column->UndoAvailable()) << "nothing differs";
    set({before[0], {5, 6}, before[2]});
    set({{7, 8}, {5, 6}, {9, 1}}); // a reversed scale stays reversed
    column->Undo();
    EXPECT_EQ(scales(), (std::vector<Interval>{before[0], {5, 6}, before[2]}));
    column->Undo();
    EXPECT_EQ(scales(), before);
    EXPECT_FALSE(column->UndoAvailable());
}

TEST_F(ColumnWindowZoomTest, NothingIsRecordedWhileATokenLives)
{
    QSignalSpy status(column.get(), &ColumnWindow::UpdateUndoRedoStatus_Signal);
    {
        DisableToken const token = column->GetUndoDisableToken();
        column->OnZoomIn();
        column->OnZoomHome();
        EXPECT_FALSE(column->UndoAvailable());
    }
    column->PushUndo("nothing", DataChannelIdentifier(), {0, 1}, {2, 3}); // the scale of an unknown view
    ASSERT_GE(status.size(), 1);
    EXPECT_EQ(status.last(), QVariantList({true, false}));
    column->Undo();
    column->Redo();
    ExpectView(0, 5000, "unchanged");
}

TEST_F(ColumnWindowZoomTest, AColumnWithoutHeightSurvivesEverything)
{
    ColumnWindow flat(2, bench.context, nullptr);
    flat.OnVisibleHeightChanged(0);
    flat.MoveCursors(10, 0, "");
    flat.OnZoomIn();
    flat.OnZoomOut();
    flat.UpdateScrollBar();
    flat.OnVerticalSelectionEnd(3, 9);
    flat.SetTotalDisplayedInterval({7, 7});
    flat.OnZoomIn();
    flat.OnZoomHome();
    EXPECT_EQ(flat.GetViewDepth(), Interval(7, 7));
}
