// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnWindow.h"

#include "display/BaseDataView.h"
#include "display/ColumnGeometry.h"
#include "display/CombinedDataViewWidget.h"
#include "display/ScrollAreaWrapper.h"

#include <QWheelEvent>

#include <algorithm>

// The vertical model, zoom, the scroll bar and undo.

void ColumnWindow::SetVisibleDepthInterval(Interval const& view)
{
    params_.SetViewDepthMetric(view);
    RedrawAllViewWidgets();
}

void ColumnWindow::SetTotalDisplayedInterval(Interval const& total)
{
    params_.SetTotalDisplayedDepthInterval(total);
    UpdateScrollBar();
    RedrawAllViewWidgets();
}

void ColumnWindow::SetOverrideAutomaticDisplayedInterval(bool override_interval)
{
    override_automatic_interval_ = override_interval;
    OnVisibleWidgetDataChanged();
}

std::optional<Interval> ColumnWindow::GetTotalVisibleDepthInterval() const
{
    Interval total;
    bool has_data = false;
    for (BaseCombinedViewWidget const* pair : FindAllVisibleCombinedViewWidgets()) {
        if (std::optional<Interval> const interval = pair->GetDepthInterval_metric()) {
            total.lower = std::min(total.lower, interval->lower);
            total.upper = std::max(total.upper, interval->upper);
            has_data = true;
        }
    }
    if (!has_data || !total.IsValid()) {
        return std::nullopt;
    }
    return Interval(total.lower - 1.0, total.upper + 1.0);
}

void ColumnWindow::OnVisibleWidgetDataChanged()
{
    if (override_automatic_interval_) {
        return;
    }
    std::optional<Interval> const total = GetTotalVisibleDepthInterval();
    if (!total) {
        return;
    }
    if (*total == params_.GetTotalDisplayedDepthInterval()) {
        // Not set again: that would undo a zoom whose view sticks out of the total.
        UpdateScrollBar();
        RedrawAllViewWidgets();
    } else {
        SetTotalDisplayedInterval(*total);
    }
}

void ColumnWindow::ApplyZoom(float factor)
{
    params_.SetViewDepthMetric(Quorrel::ZoomAboutCentre(params_.GetViewDepthMetric(), factor));
    params_.CheckZoomLevel();
    UpdateScrollBar();
    RedrawAllViewWidgets();
}

void ColumnWindow::ZoomWithDepthStationary(float depth, float factor)
{
    params_.SetViewDepthMetric(Quorrel::ZoomAboutDepth(params_.GetViewDepthMetric(), depth, factor));
    params_.CheckZoomLevel();
    UpdateScrollBar();
    RedrawAllViewWidgets();
}

void ColumnWindow::ZoomByButton(float factor)
{
    Interval const before = params_.GetViewDepthMetric();
    ApplyZoom(factor);
    undo_redo_.InsertVerticalZoomCommand(this, before, params_.GetViewDepthMetric());
}

void ColumnWindow::OnZoomIn()
{
    ZoomByButton(zoom_factor_);
}

void ColumnWindow::OnZoomOut()
{
    ZoomByButton(1 / zoom_factor_);
}

void ColumnWindow::OnZoomHome()
{
    undo_redo_.StartBatch();
    Interval const before = params_.GetViewDepthMetric();
    params_.SetViewDepthMetric(params_.GetTotalDisplayedDepthInterval());
    undo_redo_.InsertVerticalZoomCommand(this, before, params_.GetViewDepthMetric());
    scroll_area_->ResetHorizontalScale_Clicked();
    undo_redo_.StopBatch();
    RedrawAllViewWidgets();
    UpdateScrollBar();
}

void ColumnWindow::AdjustScalesToVisibleDepth()
{
    undo_redo_.StartBatch();
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        if (auto* data_pair = qobject_cast<CombinedDataViewWidget*>(pair)) {
            data_pair->ResetScalesToVisibleDepth_Clicked();
        }
    }
    undo_redo_.StopBatch();
}

void ColumnWindow::OnScrollZoomEvent(QWheelEvent* event)
{
    int const steps = event->angleDelta().y();
    if (cursor_y_ < 0 || steps == 0) {
        return;
    }
    auto const depth = static_cast<float>(ConvertYValueToDepth_metric(cursor_y_));
    ZoomWithDepthStationary(depth, steps > 0 ? zoom_factor_ : 1 / zoom_factor_);
}

void ColumnWindow::UpdateScrollBar()
{
    Quorrel::ScrollBarState const state =
        Quorrel::CalculateScrollBar(params_.GetTotalDisplayedDepthInterval(), params_.GetViewDepthMetric(),
                                    params_.GetVisibleHeightPixels());
    scroll_area_->SetScrollBarRange(0, state.maximum);
    scroll_area_->SetScrollBarPosition(state.position);
}

void ColumnWindow::OnscrollContentsBy(int /*dx*/, int /*dy*/)
{
    SetVisibleDepthInterval(
        Quorrel::ScrollToPosition(params_.GetTotalDisplayedDepthInterval(), params_.GetViewDepthMetric(),
                                  params_.GetVisibleHeightPixels(), scroll_area_->GetScrollBarValue()));
}

void ColumnWindow::OnScrollAreaShowEvent()
{
    ApplyRestoredSizes();
    OnScaleHeightChanged();
    UpdateScrollBar();
}

void ColumnWindow::OnVisibleHeightChanged(int height)
{
    params_.SetVisibleHeightPixels(height);
    UpdateScrollBar();
}

double ColumnWindow::ConvertYValueToDepth_metric(int y) const
{
    return Quorrel::ConvertRowToDepth(y, params_.GetVisibleHeightPixels(), params_.GetViewDepthMetric());
}

void ColumnWindow::RedrawAllViewWidgets()
{
    for (BaseCombinedViewWidget* pair : FindAllVisibleCombinedViewWidgets()) {
        pair->ForceRedraw();
    }
}

void ColumnWindow::ForceRedraw()
{
    RedrawAllViewWidgets();
    scroll_area_->UpdateAll();
}

void ColumnWindow::Undo()
{
    undo_redo_.Undo();
    UpdateScrollBar();
}

void ColumnWindow::Redo()
{
    undo_redo_.Redo();
    UpdateScrollBar();
}

bool ColumnWindow::UndoAvailable() const
{
    return undo_redo_.UndoAvailable();
}

bool ColumnWindow::RedoAvailable() const
{
    return undo_redo_.RedoAvailable();
}

DisableToken ColumnWindow::GetUndoDisableToken() const
{
    return undo_redo_.GetDisableToken();
}

void ColumnWindow::UpdateUndoRedoStatus()
{
    undo_redo_.UpdateButtons();
}

void ColumnWindow::PushUndo(QString const& view, DataChannelIdentifier const& identifier,
                            Interval const& before, Interval const& after)
{
    undo_redo_.InsertHorizontalZoomCommand(this, view, identifier, before, after);
}

void ColumnWindow::OnUndoBatchStarted()
{
    undo_redo_.StartBatch();
}

void ColumnWindow::OnUndoBatchCompleted()
{
    undo_redo_.StopBatch();
}

void ColumnWindow::SetDataViewScale(QString const& view, DataChannelIdentifier const& identifier,
                                    Interval const& scale)
{
    for (BaseDataView* data_view : FindAllDataViews()) {
        if (data_view->GetName() == view) {
            data_view->SetScales(identifier, scale);
            data_view->UpdateScales();
            data_view->ForceRedraw();
            return;
        }
    }
}

void ColumnWindow::EmitApplyShift(DataChannelIdentifier const& identifier, float shift)
{
    emit ApplyShift_Signal(identifier, shift);
}

void ColumnWindow::EmitApplyStretch(DataChannelIdentifier const& identifier, float start, float drag,
                                    float anchor)
{
    emit ApplyStretch_Signal(identifier, start, drag, anchor);
}

void ColumnWindow::RefreshDataViews()
{
    OnVisibleWidgetDataChanged();
    RedrawAllViewWidgets();
}
