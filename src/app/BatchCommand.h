// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/BaseCommand.h"

class UndoRedo;

/// Makes one step of the `count` commands that lie under it in the list of its UndoRedo object, which owns
/// it. Its members are defined beside those of UndoRedo.
class BatchCommand : public BaseCommand
{
public:
    BatchCommand(UndoRedo* undo_redo, int count) : undo_redo_(undo_redo), count_(count) {}

    void Execute() override;
    void UnExecute() override;

private:
    UndoRedo* undo_redo_;
    int count_;
};
