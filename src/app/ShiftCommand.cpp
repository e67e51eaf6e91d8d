// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/ShiftCommand.h"

#include "app/UndoTarget.h"

ShiftCommand::ShiftCommand(float shift, DataChannelIdentifier const& identifier, UndoTarget* target)
    : shift_(shift), identifier_(identifier), target_(target)
{
}

void ShiftCommand::Execute()
{
    target_->EmitApplyShift(identifier_, shift_);
    target_->RefreshDataViews();
}

void ShiftCommand::UnExecute()
{
    target_->EmitApplyShift(identifier_, -shift_);
    target_->RefreshDataViews();
}
