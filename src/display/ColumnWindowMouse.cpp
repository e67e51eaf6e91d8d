// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnWindow.h"

#include "app/kit/Quorrel.h"
#include "display/BaseCombinedViewWidget.h"
#include "display/ScrollAreaWrapper.h"
#include "model/DepthLogPass.h"
#include "well/DirectionalSurveyData.h"

#include <limits>

// The shared cursor, selections, mouse modes and the depth corrections made with the mouse.

void ColumnWindow::MoveCursors(int y, float depth, QString const& text)
{
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        pair->MoveCursor(y); // repaints what changes
    }
    emit UpdateStatusBar_Signal(depth, text);
    cursor_y_ = y;
}

void ColumnWindow::RemoveCursors()
{
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        pair->RemoveCursor();
    }
    emit UpdateStatusBar_Signal(std::numeric_limits<float>::quiet_NaN(), QString());
    cursor_y_ = -1;
}

void ColumnWindow::OnVerticalSelectionBegin(int y)
{
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        pair->VerticalSelectionBegin(y);
    }
    scroll_area_->UpdateViewport();
}

void ColumnWindow::OnVerticalSelectionEnd(int y1, int y2)
{
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        pair->VerticalSelectionEnd();
    }
    Zone zone;
    if (y1 != y2) {
        Interval const selected(ConvertYValueToDepth_metric(y1), ConvertYValueToDepth_metric(y2));
        if (params_.GetVerticalZoomChecked()) {
            Interval const before = params_.GetViewDepthMetric();
            params_.SetViewDepthMetric(selected);
            params_.CheckZoomLevel();
            undo_redo_.InsertVerticalZoomCommand(this, before, params_.GetViewDepthMetric());
            UpdateScrollBar();
            RedrawAllViewWidgets();
        } else if (params_.GetInterpretationZonesDefinitionChecked()) {
            zone = Zone(selected, "Mouse Input", Qt::yellow);
        }
    }
    scroll_area_->UpdateViewport();
    emit SelectionEnd_Signal(zone);
}

void ColumnWindow::ZoomVerticalIntervalToggled(bool checked)
{
    params_.SetVerticalZoomChecked(checked);
}

void ColumnWindow::ZoomHorizontalIntervalToggled(bool checked)
{
    params_.SetHorizontalZoomChecked(checked);
}

void ColumnWindow::InterpretationZoneDefinitionToggled(bool checked)
{
    params_.SetInterpretationZonesDefinitionChecked(checked);
}

void ColumnWindow::ShiftToggled(bool checked)
{
    params_.SetShiftChecked(checked);
}

bool ColumnWindow::StretchToggled(bool checked)
{
    std::optional<double> anchor;
    if (checked) {
        float const present = Quorrel::MetricsDepthToSettingsDepth(params_.GetStretchAnchorDepth());
        anchor = ask_anchor_(static_cast<double>(present));
        if (anchor) {
            params_.SetStretchAnchorDepth(Quorrel::SettingsDepthToMetricDepth(static_cast<float>(*anchor)));
        }
    }
    params_.SetStretchChecked(checked);
    return anchor.has_value();
}

std::optional<DataChannelIdentifier>
ColumnWindow::ResolveIdentifier(DataChannelIdentifier const* identifier) const
{
    if (identifier) {
        return *identifier;
    }
    if (std::shared_ptr<DepthLogPass const> const pass = depth_log_pass_.pass.lock()) {
        return DataChannelIdentifier(pass->GetLogPassIdentifier(), -1);
    }
    return std::nullopt;
}

void ColumnWindow::OnShiftStart()
{
    undo_redo_.StartBatch();
}

void ColumnWindow::OnShift(DataChannelIdentifier const* identifier, float delta)
{
    if (std::optional<DataChannelIdentifier> const target = ResolveIdentifier(identifier)) {
        undo_redo_.InsertShiftCommand(this, *target, delta);
        emit ApplyShift_Signal(*target, delta);
    }
}

void ColumnWindow::OnShiftCompleted()
{
    undo_redo_.StopBatch();
    emit DepthShiftCompleted_Signal();
    emit UpdateAllDepthIntervals_Signal();
    RedrawAllViewWidgets();
}

void ColumnWindow::OnDepthStretchStarted()
{
    undo_redo_.StartBatch();
}

void ColumnWindow::OnStretch(DataChannelIdentifier const* identifier, float start, float drag, float anchor)
{
    if (std::optional<DataChannelIdentifier> const target = ResolveIdentifier(identifier)) {
        undo_redo_.InsertStretchCommand(this, *target, start, drag, anchor);
        emit ApplyStretch_Signal(*target, start, drag, anchor);
    }
}

void ColumnWindow::OnDepthStretchCompleted()
{
    undo_redo_.StopBatch();
    emit DepthStretchCompleted_Signal();
    emit UpdateAllDepthIntervals_Signal();
    RedrawAllViewWidgets();
}

void ColumnWindow::OnWellComponentClicked(Interval const& md, QString const& text)
{
    // An end outside the survey has no true vertical depth and stays 0.
    Interval tvd(0, 0);
    if (context_.directional_survey) {
        if (auto const top =
                context_.directional_survey->InterpolateWellTrajectory(static_cast<float>(md.lower))) {
            tvd.lower = static_cast<double>(top->tvd);
        }
        if (auto const bottom =
                context_.directional_survey->InterpolateWellTrajectory(static_cast<float>(md.upper))) {
            tvd.upper = static_cast<double>(bottom->tvd);
        }
    }
    scroll_area_->AddOverlay(md, tvd, text);
}
