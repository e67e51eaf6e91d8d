// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnFixture.h"

#include "display/CombinedDataViewWidget.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

#include <algorithm>

/// A column over 0 to 5000 m that shows 1000 to 2000 m in a height that the test sets.
class ColumnWindowZoomTest : public ColumnFixture
{
protected:
    void SetUp() override
    {
        ColumnFixture::SetUp();
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
    column->OnZoomIn();
    ExpectView(1250, 1750, "in");
    column->OnZoomIn();
    ExpectView(1375, 1625, "in twice");
    column->OnZoomOut();
    ExpectView(1250, 1750, "out");
    column->Undo();
    ExpectView(1375, 1625, "undone");
    column->Undo();
    column->Undo();
    ExpectView(1000, 2000, "all undone");
    EXPECT_FALSE(column->UndoAvailable());
    column->Redo();
    ExpectView(1250, 1750, "redone");
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
    // 501 rows at half a millimetre.
    EXPECT_NEAR(column->GetViewDepth().Delta(), 0.2505, 5e-4);
    EXPECT_NEAR(column->GetViewDepth().Center(), 2500, 1e-3);
}

TEST_F(ColumnWindowZoomTest, TheScrollBarFollowsTheView)
{
    auto const expect = [&](int maximum, int value, char const* what) {
        EXPECT_EQ(Bar()->minimum(), 0) << what;
        EXPECT_EQ(Bar()->maximum(), maximum) << what;
        EXPECT_EQ(Bar()->value(), value) << what;
    };
    EXPECT_EQ(Bar()->pageStep(), 50);
    EXPECT_EQ(Bar()->singleStep(), 30);
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

TEST_F(ColumnWindowZoomTest, MovingTheBarFromCodeDoesNotScroll)
{
    QSignalSpy scrolls(column->GetScrollAreaWrapper(), &ScrollAreaWrapper::OnscrollContentsBy_Signal);
    column->GetScrollAreaWrapper()->SetScrollBarRange(0, 100);
    column->GetScrollAreaWrapper()->SetScrollBarPosition(50);
    EXPECT_EQ(scrolls.size(), 0);
    EXPECT_EQ(column->GetScrollAreaWrapper()->GetScrollBarValue(), 50);
    ExpectView(1000, 2000, "unchanged");
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

TEST_F(ColumnWindowZoomTest, HomeResetsDepthAndScalesAsOneStep)
{
    auto const pass = MakePass("a", 1000, 2000, 10, {"GR", "CCL"}, [](int curve, double depth) {
        return static_cast<float>(curve * 100 + depth / 1000);
    });
    column->AddImportedDepthLog(pass);
    column->SetTotalDisplayedInterval({900, 2100});
    column->SetVisibleDepthInterval({1200, 1300});
    AutomaticDataView* gr = column->FindAllAutomaticDataViews()[0];
    gr->SetAutomaticDataViewScales({5, 50});

    column->OnZoomHome();
    ExpectView(900, 2100, "home");
    EXPECT_EQ(gr->GetHorizontalScale(), Interval(1, 2));
    column->Undo();
    ExpectView(1200, 1300, "undone");
    EXPECT_EQ(gr->GetHorizontalScale(), Interval(5, 50));
    EXPECT_FALSE(column->UndoAvailable()) << "one step";
    column->Redo();
    ExpectView(900, 2100, "redone");
    EXPECT_EQ(gr->GetHorizontalScale(), Interval(1, 2));
    EXPECT_FALSE(column->RedoAvailable());
}

TEST_F(ColumnWindowZoomTest, ScalesAdjustToTheVisibleDepthAsOneStep)
{
    auto const pass = MakePass("a", 0, 1000, 1001, {"GR", "CCL"}, [](int curve, double depth) {
        return static_cast<float>(depth + curve * 1000);
    });
    column->AddImportedDepthLog(pass);
    column->SetTotalDisplayedInterval({0, 1000});
    column->SetVisibleDepthInterval({200, 300});
    column->AdjustScalesToVisibleDepth();
    QList<AutomaticDataView*> const views = column->FindAllAutomaticDataViews();
    EXPECT_EQ(views[0]->GetHorizontalScale(), Interval(200, 300));
    EXPECT_EQ(views[1]->GetHorizontalScale(), Interval(1200, 1300));
    column->Undo();
    EXPECT_EQ(views[0]->GetHorizontalScale(), Interval(0, 1000));
    EXPECT_EQ(views[1]->GetHorizontalScale(), Interval(1000, 2000));
    EXPECT_FALSE(column->UndoAvailable());
}

TEST_F(ColumnWindowZoomTest, ScalesSetTogetherInAUserViewAreOneStep)
{
    auto const pass = MakePass("a", 0, 1000, {"GR", "CCL"});
    CombinedDataViewWidget* mine = column->CreateDataView_Public("Mine", false);
    column->AddDepthDataChannelToDataView("Mine", pass->GetDataChannel(0));
    column->AddDepthDataChannelToDataView("Mine", pass->GetDataChannel(1));
    auto const scale = [&](std::size_t index) { return mine->GetScales().at(index)->scale; };
    Interval const first = scale(0);
    Interval const second = scale(1);
    std::vector<std::shared_ptr<ScaleItemParameters>> records;
    for (auto const& record : mine->GetScales()) {
        records.push_back(std::make_shared<ScaleItemParameters>(*record));
        records.back()->scale = Interval(20, 10); // a reversed scale stays reversed
    }
    mine->SetScales(records);
    EXPECT_EQ(scale(0), Interval(20, 10));
    EXPECT_EQ(scale(1), Interval(20, 10));
    column->Undo();
    EXPECT_EQ(scale(0), first);
    EXPECT_EQ(scale(1), second);
    EXPECT_FALSE(column->UndoAvailable());
}

TEST_F(ColumnWindowZoomTest, NothingIsRecordedWhileATokenLives)
{
    {
        DisableToken const token = column->GetUndoDisableToken();
        column->OnZoomIn();
        column->OnZoomHome();
        EXPECT_FALSE(column->UndoAvailable());
    }
    QSignalSpy status(column.get(), &ColumnWindow::UpdateUndoRedoStatus_Signal);
    column->OnZoomIn();
    ASSERT_GE(status.size(), 1);
    EXPECT_TRUE(status.last()[0].toBool());
    EXPECT_FALSE(status.last()[1].toBool());
}

TEST_F(ColumnWindowZoomTest, AScaleOfAnUnknownViewIsNoUndoTarget)
{
    column->PushUndo("nothing", DataChannelIdentifier(), {0, 1}, {2, 3});
    column->Undo();
    column->Redo();
    ExpectView(1000, 2000, "unchanged");
}

TEST_F(ColumnWindowZoomTest, AColumnWithoutHeightSurvivesEverything)
{
    ColumnWindow flat(2, well.Context(), nullptr);
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
