// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/BaseCommand.h"
#include "model/DataChannelIdentifier.h"

class UndoTarget;

/// A depth shift in metres of a channel or, with channel index -1, of a whole log pass.
class ShiftCommand : public BaseCommand
{
public:
    ShiftCommand(float shift, DataChannelIdentifier const& identifier, UndoTarget* target);

    void Execute() override;
    void UnExecute() override;

private:
    float shift_;
    DataChannelIdentifier identifier_;
    UndoTarget* target_;
};
