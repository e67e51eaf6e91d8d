// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnFixture.h"

#include <QSignalSpy>

#include <cmath>

class ColumnWindowMouseTest : public ColumnFixture
{
protected:
    void SetUp() override
    {
        ColumnFixture::SetUp();
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

    void ConnectModel(DepthLogPass& pass)
    {
        QObject::connect(column.get(), &ColumnWindow::ApplyShift_Signal, column.get(),
                         [&](DataChannelIdentifier const&, float delta) { pass.ApplyShift(delta); });
    }
};

TEST_F(ColumnWindowMouseTest, TheCursorIsSharedByAllViewsAndReported)
{
    QSignalSpy status(column.get(), &ColumnWindow::UpdateStatusBar_Signal);
    emit View("Zones")->MouseMove_Signal(42, 1084.5F, "GR: 3");
    ExpectRows(42, -1);
    ASSERT_EQ(status.size(), 1);
    EXPECT_EQ(status[0][0].toFloat(), 1084.5F);
    EXPECT_EQ(status[0][1].toString(), "GR: 3");
    emit View("Zones")->MouseLeave_Signal();
    ExpectRows(-1, -1);
    ASSERT_EQ(status.size(), 2);
    EXPECT_TRUE(std::isnan(status[1][0].toFloat()));
    EXPECT_EQ(status[1][1].toString(), "");
}

TEST_F(ColumnWindowMouseTest, AVerticalSelectionZoomsInZoomMode)
{
    QSignalSpy ends(column.get(), &ColumnWindow::SelectionEnd_Signal);
    column->ZoomVerticalIntervalToggled(true);
    column->OnVerticalSelectionBegin(100);
    ExpectRows(-1, 100);
    column->OnVerticalSelectionEnd(100, 300);
    ExpectRows(-1, -1);
    EXPECT_EQ(column->GetViewDepth(), Interval(1200, 1600));
    ASSERT_EQ(ends.size(), 1);
    EXPECT_EQ(ends[0][0].value<Zone>(), Zone());
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

TEST_F(ColumnWindowMouseTest, ModesAreKeptForTheViews)
{
    BaseViewWidgetParameters const& parameters = column->GetParameters();
    column->ZoomVerticalIntervalToggled(true);
    column->ZoomHorizontalIntervalToggled(true);
    column->InterpretationZoneDefinitionToggled(true);
    column->ShiftToggled(true);
    EXPECT_TRUE(parameters.GetVerticalZoomChecked() && parameters.GetHorizontalZoomChecked() &&
                parameters.GetInterpretationZonesDefinitionChecked() && parameters.GetShiftChecked());
    column->ZoomVerticalIntervalToggled(false);
    column->ZoomHorizontalIntervalToggled(false);
    column->InterpretationZoneDefinitionToggled(false);
    column->ShiftToggled(false);
    EXPECT_FALSE(parameters.GetVerticalZoomChecked() || parameters.GetHorizontalZoomChecked() ||
                 parameters.GetInterpretationZonesDefinitionChecked() || parameters.GetShiftChecked());
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
    ASSERT_EQ(asked.size(), 2U);
    EXPECT_EQ(asked[0], 0);
    EXPECT_NEAR(asked[1], 1000, 1e-2);
}

TEST_F(ColumnWindowMouseTest, AShiftDragIsOneStepOfSmallCommands)
{
    auto const pass = MakePass("a", 1000, 2000, {"GR"});
    ConnectModel(*pass);
    QSignalSpy shifts(column.get(), &ColumnWindow::ApplyShift_Signal);
    QSignalSpy completed(column.get(), &ColumnWindow::DepthShiftCompleted_Signal);
    QSignalSpy intervals(column.get(), &ColumnWindow::UpdateAllDepthIntervals_Signal);
    DataChannelIdentifier const identifier(SURVEY, "a", 0);

    column->OnShiftStart();
    column->OnShift(&identifier, 1.5F);
    column->OnShift(&identifier, 2.25F);
    column->OnShiftCompleted();
    ASSERT_EQ(shifts.size(), 2);
    EXPECT_EQ(shifts[0][0].value<DataChannelIdentifier>(), identifier);
    EXPECT_EQ(shifts[1][1].toFloat(), 2.25F);
    EXPECT_EQ(completed.size(), 1);
    EXPECT_EQ(intervals.size(), 1);
    EXPECT_EQ(pass->GetShift(), 3.75);

    column->Undo();
    EXPECT_EQ(pass->GetShift(), 0);
    EXPECT_FALSE(column->UndoAvailable());
    column->Redo();
    EXPECT_EQ(pass->GetShift(), 3.75);
}

TEST_F(ColumnWindowMouseTest, WithoutAnIdentifierTheWholeCurrentPassIsMeant)
{
    auto pass = MakePass("a", 1000, 2000, {"GR"});
    QSignalSpy shifts(column.get(), &ColumnWindow::ApplyShift_Signal);
    QSignalSpy stretches(column.get(), &ColumnWindow::ApplyStretch_Signal);
    column->OnShift(nullptr, 1);
    column->OnStretch(nullptr, 1, 2, 3);
    EXPECT_EQ(shifts.size() + stretches.size(), 0) << "no pass is chosen";

    column->SetCurrentDepthLogPass(pass);
    column->OnShift(nullptr, 1);
    column->OnStretch(nullptr, 1, 2, 3);
    ASSERT_EQ(shifts.size(), 1);
    ASSERT_EQ(stretches.size(), 1);
    EXPECT_EQ(shifts[0][0].value<DataChannelIdentifier>(), DataChannelIdentifier(SURVEY, "a", -1));
    EXPECT_EQ(stretches[0][0].value<DataChannelIdentifier>(), DataChannelIdentifier(SURVEY, "a", -1));
    EXPECT_EQ(stretches[0][1].toFloat(), 1);
    EXPECT_EQ(stretches[0][2].toFloat(), 2);
    EXPECT_EQ(stretches[0][3].toFloat(), 3);

    pass.reset();
    column->OnShift(nullptr, 1);
    column->OnStretch(nullptr, 1, 2, 3);
    EXPECT_EQ(shifts.size() + stretches.size(), 2) << "the pass is gone";
}

TEST_F(ColumnWindowMouseTest, AStretchIsUndoneByTheMirroredDrag)
{
    QSignalSpy stretches(column.get(), &ColumnWindow::ApplyStretch_Signal);
    QSignalSpy completed(column.get(), &ColumnWindow::DepthStretchCompleted_Signal);
    DataChannelIdentifier const identifier(SURVEY, "a", 0);
    column->OnDepthStretchStarted();
    column->OnStretch(&identifier, 1000, 1010, 500);
    column->OnDepthStretchCompleted();
    EXPECT_EQ(completed.size(), 1);
    column->Undo();
    ASSERT_EQ(stretches.size(), 2);
    EXPECT_EQ(stretches[1][1].toFloat(), 1000);
    EXPECT_EQ(stretches[1][2].toFloat(), 990);
    EXPECT_EQ(stretches[1][3].toFloat(), 500);
    EXPECT_FALSE(column->UndoAvailable());
}
