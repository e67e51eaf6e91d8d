// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnFixture.h"

#include <QSignalSpy>
#include <QTest>

class ColumnWindowMouseTest : public ColumnFixture
{
protected:
    ColumnWindowMouseTest()
    {
        column->OnVisibleHeightChanged(501);
        column->SetVisibleDepthInterval({1000, 2000});
    }

    /// All views agree on the row.
    void ExpectRows(int cursor, int selection)
    {
        for (BaseCombinedViewWidget* pair : column->FindAllCombinedViewWidgets()) {
            EXPECT_EQ(pair->GetBaseViewWidget()->GetCursorRow(), cursor);
            EXPECT_EQ(pair->GetBaseViewWidget()->GetSelectionStartRow(), selection);
        }
    }
};

TEST_F(ColumnWindowMouseTest, TheCursorIsSharedByAllViewsAndReported)
{
    QSignalSpy status(column.get(), &ColumnWindow::UpdateStatusBar_Signal);
    View("Zones")->resize(60, 501);
    view_bench::Drag(View("Zones"), QPoint(7, 42));
    ExpectRows(42, -1);
    EXPECT_EQ(status, QList<QVariantList>({{1084.0F, "7"}}));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(View("Zones"), &leave);
    ExpectRows(-1, -1);
    ASSERT_EQ(status.size(), 2);
    EXPECT_TRUE(std::isnan(status[1][0].toFloat()));
}

TEST_F(ColumnWindowMouseTest, TheReadOutFollowsAZoomUnderAMouseThatStandsStill)
{
    ShowOnScreen();
    QSignalSpy status(column.get(), &ColumnWindow::UpdateStatusBar_Signal);
    column->OnZoomIn();
    Settle();
    EXPECT_EQ(status.size(), 0) << "the mouse is in no view";
    view_bench::Drag(View("Zones"), QPoint(7, 100));
    for (auto const& action : {&ColumnWindow::OnZoomIn, &ColumnWindow::OnZoomHome}) {
        status.clear();
        (column.get()->*action)();
        Settle();
        EXPECT_EQ(status, QList<QVariantList>({{View("Zones")->ConvertYValueToDepth_metric(100), "7"}}));
    }
}

TEST_F(ColumnWindowMouseTest, AVerticalSelectionZoomsInZoomMode)
{
    QSignalSpy ends(column.get(), &ColumnWindow::SelectionEnd_Signal);
    column->ZoomVerticalIntervalToggled(true);
    QTest::mousePress(View("Zones"), Qt::LeftButton, {}, QPoint(5, 300));
    ExpectRows(-1, 300);
    QTest::mouseRelease(View("Zones"), Qt::LeftButton, {}, QPoint(5, 100));
    ExpectRows(-1, -1);
    EXPECT_EQ(column->GetViewDepth(), Interval(1200, 1600));
    column->Undo();
    EXPECT_EQ(column->GetViewDepth(), Interval(1000, 2000));

    column->OnVerticalSelectionEnd(200, 200);
    EXPECT_EQ(column->GetViewDepth(), Interval(1000, 2000));
    EXPECT_FALSE(column->UndoAvailable());
    EXPECT_EQ(ends.size(), 2) << "reported all the same";

    // Rows outside the view reach beyond the total and are forced back.
    column->OnVerticalSelectionEnd(-4000, 250);
    EXPECT_EQ(column->GetViewDepth(), Interval(0, 1500));
}

TEST_F(ColumnWindowMouseTest, AVerticalSelectionBuildsAZoneInZoneMode)
{
    QSignalSpy ends(column.get(), &ColumnWindow::SelectionEnd_Signal);
    column->OnVerticalSelectionEnd(0, 250);
    column->InterpretationZoneDefinitionToggled(true);
    column->OnVerticalSelectionEnd(0, 250);
    column->ZoomVerticalIntervalToggled(true); // zoom wins where both are on
    column->OnVerticalSelectionEnd(0, 500);
    ASSERT_EQ(ends.size(), 3);
    EXPECT_EQ(ends[0][0].value<Zone>(), Zone());
    EXPECT_EQ(ends[1][0].value<Zone>(), Zone({1000, 1500}, "Mouse Input", Qt::yellow));
    EXPECT_EQ(ends[2][0].value<Zone>(), Zone());
}

TEST_F(ColumnWindowMouseTest, StretchAsksForItsAnchorInTheSettingsUnit)
{
    BaseViewWidgetParameters const& parameters = column->GetParameters();
    SettingsSingleton::Instance().SetMetricDepth(false);
    std::vector<double> asked;
    std::optional<double> answer = 1000; // ft
    column->SetAskAnchor([&](double present) {
        asked.push_back(present);
        return answer;
    });
    EXPECT_TRUE(column->StretchToggled(true));
    EXPECT_TRUE(parameters.GetStretchChecked());
    EXPECT_NEAR(parameters.GetStretchAnchorDepth(), 304.8F, 1e-3F);

    EXPECT_FALSE(column->StretchToggled(false)) << "always false when turning off";
    EXPECT_FALSE(parameters.GetStretchChecked());
    EXPECT_EQ(asked.size(), 1U) << "and without a question";

    answer = std::nullopt;
    EXPECT_FALSE(column->StretchToggled(true));
    EXPECT_TRUE(parameters.GetStretchChecked()) << "the caller takes it back";
    EXPECT_NEAR(parameters.GetStretchAnchorDepth(), 304.8F, 1e-3F);
    EXPECT_EQ(asked.front(), 0);
    EXPECT_NEAR(asked.back(), 1000, 1e-2);
}

TEST_F(ColumnWindowMouseTest, AShiftOrStretchDragIsOneStepOfSmallCommands)
{
    QSignalSpy shifts(column.get(), &ColumnWindow::ApplyShift_Signal);
    QSignalSpy stretches(column.get(), &ColumnWindow::ApplyStretch_Signal);
    QSignalSpy shifted(column.get(), &ColumnWindow::DepthShiftCompleted_Signal);
    QSignalSpy stretched(column.get(), &ColumnWindow::DepthStretchCompleted_Signal);
    QSignalSpy intervals(column.get(), &ColumnWindow::UpdateAllDepthIntervals_Signal);
    DataChannelIdentifier const identifier(SURVEY, "a", 0);
    auto const curve = QVariant::fromValue(identifier);

    column->OnShiftStart();
    column->OnShift(&identifier, 1.5F);
    column->OnShift(&identifier, 2.25F);
    column->OnShiftCompleted();
    EXPECT_EQ(shifted.size(), 1);
    EXPECT_EQ(intervals.size(), 1);
    column->Undo();
    EXPECT_FALSE(column->UndoAvailable());
    column->Redo();
    QList<float> deltas;
    for (QVariantList const& shift : shifts) {
        EXPECT_EQ(shift[0], curve);
        deltas << shift[1].toFloat();
    }
    EXPECT_EQ(deltas, (QList<float>{1.5F, 2.25F, -2.25F, -1.5F, 1.5F, 2.25F}));
    column->Undo();

    column->OnDepthStretchStarted();
    column->OnStretch(&identifier, 1000, 1010, 500);
    column->OnDepthStretchCompleted();
    EXPECT_EQ(stretched.size(), 1);
    column->Undo(); // by the mirrored drag
    ASSERT_EQ(stretches.size(), 2);
    EXPECT_EQ(stretches[1], QVariantList({curve, 1000.0F, 990.0F, 500.0F}));
    EXPECT_FALSE(column->UndoAvailable());
}

TEST_F(ColumnWindowMouseTest, WithoutAnIdentifierTheWholeCurrentPassIsMeant)
{
    auto pass = MakePass("a", 1000, 2000, {"GR"});
    QSignalSpy shifts(column.get(), &ColumnWindow::ApplyShift_Signal);
    QSignalSpy stretches(column.get(), &ColumnWindow::ApplyStretch_Signal);
    auto const correct = [&] {
        column->OnShift(nullptr, 1);
        column->OnStretch(nullptr, 1, 2, 3);
    };
    correct();
    EXPECT_EQ(shifts.size() + stretches.size(), 0) << "no pass is chosen";

    column->SetCurrentDepthLogPass(pass);
    correct();
    auto const whole_pass = QVariant::fromValue(DataChannelIdentifier(SURVEY, "a", -1));
    EXPECT_EQ(shifts, QList<QVariantList>({{whole_pass, 1.0F}}));
    EXPECT_EQ(stretches, QList<QVariantList>({{whole_pass, 1.0F, 2.0F, 3.0F}}));

    pass.reset();
    correct();
    EXPECT_EQ(shifts.size() + stretches.size(), 2) << "the pass is gone";
}
