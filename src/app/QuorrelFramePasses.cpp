// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/FrameActions.h"
#include "app/LogPassComboBox.h"
#include "app/QuorrelFrame.h"
#include "app/SurveyComboBox.h"
#include "display/ColumnWindow.h"
#include "display/ViewFactory.h"
#include "model/DepthLogPass.h"

#include <QSignalBlocker>

// Log passes of the main frame: the pass selector, how passes are shown, and their depth corrections.

QString QuorrelFrame::GetCurrentLogIdentifierHash() const
{
    return log_pass_combo_box_ ? log_pass_combo_box_->GetCurrentLogIdentifierHash() : QString();
}

LogPassIdentifier QuorrelFrame::GetCurrentLogPassIdentifier() const
{
    return {GetCurrentSurveyKey(), GetCurrentLogIdentifierHash()};
}

std::weak_ptr<DepthLogPass const> QuorrelFrame::GetCurrentDepthLogPass() const
{
    auto const identifier = GetCurrentLogPassIdentifier();
    return identifier.hash.isEmpty() ? std::weak_ptr<DepthLogPass const>() : GetDepthLogPass(identifier);
}

void QuorrelFrame::UpdatePassComboBox()
{
    auto const remembered = GetCurrentLogIdentifierHash();
    auto const key = GetCurrentSurveyKey();
    {
        QSignalBlocker const blocker(log_pass_combo_box_);
        log_pass_combo_box_->ClearLogPassComboBox();
        for (auto const& hash : GetDepthLogIdentifierHashes(key)) {
            auto const pass = GetDepthLogPass(LogPassIdentifier(key, hash));
            log_pass_combo_box_->AddLogPass(hash, pass->GetFileName(), pass->GetProperties().pen.color());
        }
        log_pass_combo_box_->SelectLogPass(remembered);
    }
    OnPassComboboxSelection();
}

void QuorrelFrame::UpdatePassToolbar()
{
    UpdateAvailability();
    auto const identifier = GetCurrentLogPassIdentifier();
    bool const has_pass = !identifier.hash.isEmpty();
    auto const properties = has_pass ? GetLogPassProperties(identifier) : LogPassProperties();
    actions_->Get(ActionId::HidePass)->setChecked(properties.hidden);
    actions_->Get(ActionId::HighlightPass)->setChecked(properties.highlighted);
}

void QuorrelFrame::OnPassComboboxSelection()
{
    UpdatePassToolbar();
    if (current_column_window_) {
        current_column_window_->SetCurrentDepthLogPass(GetCurrentDepthLogPass());
    }
}

void QuorrelFrame::OnPreviousPass()
{
    log_pass_combo_box_->SelectPreviousPass();
}

void QuorrelFrame::OnNextPass()
{
    log_pass_combo_box_->SelectNextPass();
}

void QuorrelFrame::SetCurrentPassProperties(bool LogPassProperties::*flag, bool on)
{
    auto const identifier = GetCurrentLogPassIdentifier();
    if (identifier.hash.isEmpty()) {
        return;
    }
    auto properties = GetLogPassProperties(identifier);
    if (properties.*flag == on) {
        return; // the action followed the model
    }
    properties.*flag = on;
    SetLogPassProperties(identifier, properties);
    RedrawCurrentColumnWindow();
}

void QuorrelFrame::OnHidePassToggled(bool on)
{
    SetCurrentPassProperties(&LogPassProperties::hidden, on);
}

void QuorrelFrame::OnHighLightPassToggled(bool on)
{
    SetCurrentPassProperties(&LogPassProperties::highlighted, on);
}

bool QuorrelFrame::HasDepth(DataChannelIdentifier const& identifier) const
{
    auto const key = identifier.GetSurveyKey();
    return identifier.GetHash() == Survey::DATA_STORAGE_NAME_IDENTIFIER
               ? GetStorageKeys(key).contains(identifier.index)
               : GetDepthLogIdentifierHashes(key).contains(identifier.GetHash());
}

void QuorrelFrame::OnApplyShift(DataChannelIdentifier const& identifier, float shift)
{
    if (!HasDepth(identifier)) {
        return; // deleted since the command was recorded
    }
    if (identifier.index == -1) {
        ApplyShift(identifier.GetLogPassIdentifier(), shift);
    } else {
        ApplyShift(identifier, shift);
    }
}

void QuorrelFrame::OnApplyStretch(DataChannelIdentifier const& identifier, float start_drag_depth,
                                  float drag_depth, float anchor_depth)
{
    // On the anchor the factor is 0 or infinite, across it negative: no length would be left, or the depths
    // would run upwards. The mirrored drag of an undo gets there when the stretch was by 2 or more.
    bool const keeps_side = (drag_depth > anchor_depth && start_drag_depth > anchor_depth) ||
                            (drag_depth < anchor_depth && start_drag_depth < anchor_depth);
    if (!keeps_side || !HasDepth(identifier)) {
        return;
    }
    if (identifier.index == -1) {
        ApplyStretch(identifier.GetLogPassIdentifier(), start_drag_depth, drag_depth, anchor_depth);
    } else {
        ApplyStretch(identifier, start_drag_depth, drag_depth, anchor_depth);
    }
}

void QuorrelFrame::DeleteLogPass(LogPassIdentifier const& identifier)
{
    column_windows_.DeleteDependencies(DataChannelIdentifier(identifier, -1));
    ProjectAccess::DeleteLogPass(identifier);
    if (identifier.survey_key == GetCurrentSurveyKey()) {
        UpdatePassComboBox();
        UpdateMfcMenuBar();
    }
}

void QuorrelFrame::DeleteStorageDataChannel(DataChannelIdentifier const& identifier)
{
    column_windows_.DeleteDependencies(identifier);
    ProjectAccess::DeleteStorageDataChannel(identifier);
}
