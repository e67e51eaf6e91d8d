// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/BaseCommand.h"
#include "model/DataChannelIdentifier.h"

class UndoTarget;

/// A depth stretch of a channel or, with channel index -1, of a whole log pass. All depths in metres.
class StretchCommand : public BaseCommand
{
public:
    StretchCommand(UndoTarget* target, DataChannelIdentifier const& identifier, float start_depth,
                   float drag_depth, float anchor_depth);

    void Execute() override;
    /// Mirrors the drag about the start depth. The factor is then 2 - f where the stretch had f, so that the
    /// depths come back to first order only.
    void UnExecute() override;

private:
    UndoTarget* target_;
    DataChannelIdentifier identifier_;
    float start_depth_;
    float drag_depth_;
    float anchor_depth_;
};
