// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/DisableToken.h"

#include <QObject>

#include <list>
#include <memory>
#include <optional>

class BaseCommand;
class QString;
class UndoTarget;
struct DataChannelIdentifier;
struct Interval;

/// The undo and redo lists of one column of views: zooms and depth corrections, nothing else. Main thread
/// only. A command is recorded after its effect has taken place, and not while anyone holds a disable token.
class UndoRedo : public QObject
{
    Q_OBJECT
public:
    explicit UndoRedo(UndoTarget* owner, QObject* parent = nullptr);
    ~UndoRedo() override;

    // A null target stands for the owner.
    void InsertVerticalZoomCommand(UndoTarget* target, Interval const& before, Interval const& after);
    void InsertHorizontalZoomCommand(UndoTarget* target, QString const& view,
                                     DataChannelIdentifier const& identifier, Interval const& before,
                                     Interval const& after);
    /// `shift` in metres.
    void InsertShiftCommand(UndoTarget* target, DataChannelIdentifier const& identifier, float shift);
    /// Depths in metres.
    void InsertStretchCommand(UndoTarget* target, DataChannelIdentifier const& identifier, float start_depth,
                              float drag_depth, float anchor_depth);

    /// The commands inserted from here to StopBatch() count as one step. Batches do not nest: a second start
    /// moves the beginning, and a stop without a start does nothing. An empty batch is a step as well.
    void StartBatch();
    void StopBatch();

    void Undo();
    void Redo();
    void BatchUndo(int count);
    void BatchRedo(int count);

    [[nodiscard]] bool UndoAvailable() const { return !undo_list_.empty(); }
    [[nodiscard]] bool RedoAvailable() const { return !redo_list_.empty(); }
    /// Emits the present status.
    void UpdateButtons();

    /// Nothing is recorded until the last copy of the token is gone.
    [[nodiscard]] DisableToken GetDisableToken() const { return disable_token_; }

signals:
    void UpdateUndoRedoStatus_Signal(bool undo_available, bool redo_available);

private:
    using CommandList = std::list<std::shared_ptr<BaseCommand>>;

    void InsertCommand(std::shared_ptr<BaseCommand> command);
    [[nodiscard]] UndoTarget* TargetOrOwner(UndoTarget* target) const { return target ? target : owner_; }

    UndoTarget* owner_;
    DisableToken disable_token_;
    std::optional<std::size_t> batch_start_; ///< size of the undo list at StartBatch()
    CommandList undo_list_;                  ///< newest at the back, as in the redo list
    CommandList redo_list_;
};
