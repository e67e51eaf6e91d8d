// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/UndoRedo.h"

#include "app/BatchCommand.h"
#include "app/HorizontalZoomCommand.h"
#include "app/ShiftCommand.h"
#include "app/StretchCommand.h"
#include "app/UndoTarget.h"
#include "app/VerticalZoomCommand.h"

#include <utility>

void BatchCommand::Execute()
{
    undo_redo_->BatchRedo(count_);
}

void BatchCommand::UnExecute()
{
    undo_redo_->BatchUndo(count_);
}

UndoRedo::UndoRedo(UndoTarget* owner, QObject* parent) : QObject(parent), owner_(owner)
{
    qRegisterMetaType<DisableToken>("DisableToken");
}

UndoRedo::~UndoRedo() = default;

void UndoRedo::InsertVerticalZoomCommand(UndoTarget* target, Interval const& before, Interval const& after)
{
    if (!disable_token_.IsDisabled()) {
        InsertCommand(std::make_shared<VerticalZoomCommand>(before, after, TargetOrOwner(target)));
    }
}

void UndoRedo::InsertHorizontalZoomCommand(UndoTarget* target, QString const& view,
                                           DataChannelIdentifier const& identifier, Interval const& before,
                                           Interval const& after)
{
    if (!disable_token_.IsDisabled()) {
        InsertCommand(
            std::make_shared<HorizontalZoomCommand>(TargetOrOwner(target), view, identifier, before, after));
    }
}

void UndoRedo::InsertShiftCommand(UndoTarget* target, DataChannelIdentifier const& identifier, float shift)
{
    if (!disable_token_.IsDisabled()) {
        InsertCommand(std::make_shared<ShiftCommand>(shift, identifier, TargetOrOwner(target)));
    }
}

void UndoRedo::InsertStretchCommand(UndoTarget* target, DataChannelIdentifier const& identifier,
                                    float start_depth, float drag_depth, float anchor_depth)
{
    if (!disable_token_.IsDisabled()) {
        InsertCommand(std::make_shared<StretchCommand>(TargetOrOwner(target), identifier, start_depth,
                                                       drag_depth, anchor_depth));
    }
}

void UndoRedo::InsertCommand(std::shared_ptr<BaseCommand> command)
{
    undo_list_.push_back(std::move(command));
    redo_list_.clear();
    UpdateButtons();
}

void UndoRedo::StartBatch()
{
    if (!disable_token_.IsDisabled()) {
        batch_start_ = undo_list_.size();
    }
}

void UndoRedo::StopBatch()
{
    std::optional<std::size_t> const start = std::exchange(batch_start_, std::nullopt);
    if (!start || disable_token_.IsDisabled()) {
        return;
    }
    // An undo within the batch may have taken off more than the batch had put on.
    std::size_t const count = undo_list_.size() > *start ? undo_list_.size() - *start : 0;
    InsertCommand(std::make_shared<BatchCommand>(this, static_cast<int>(count)));
}

void UndoRedo::Undo()
{
    if (undo_list_.empty()) {
        return;
    }
    std::shared_ptr<BaseCommand> const command = undo_list_.back();
    undo_list_.pop_back();
    command->UnExecute();
    redo_list_.push_back(command);
    UpdateButtons();
}

void UndoRedo::Redo()
{
    if (redo_list_.empty()) {
        return;
    }
    std::shared_ptr<BaseCommand> const command = redo_list_.back();
    redo_list_.pop_back();
    command->Execute();
    undo_list_.push_back(command);
    UpdateButtons();
}

void UndoRedo::BatchUndo(int count)
{
    for (int i = 0; i < count; ++i) {
        Undo();
    }
}

void UndoRedo::BatchRedo(int count)
{
    for (int i = 0; i < count; ++i) {
        Redo();
    }
}

void UndoRedo::UpdateButtons()
{
    emit UpdateUndoRedoStatus_Signal(UndoAvailable(), RedoAvailable());
}
