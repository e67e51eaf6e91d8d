// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/StretchCommand.h"

#include "app/UndoTarget.h"

StretchCommand::StretchCommand(UndoTarget* target, DataChannelIdentifier const& identifier, float start_depth,
                               float drag_depth, float anchor_depth)
    : target_(target),
      identifier_(identifier),
      start_depth_(start_depth),
      drag_depth_(drag_depth),
      anchor_depth_(anchor_depth)
{
}

void StretchCommand::Execute()
{
    target_->EmitApplyStretch(identifier_, start_depth_, drag_depth_, anchor_depth_);
    target_->RefreshDataViews();
}

void StretchCommand::UnExecute()
{
    target_->EmitApplyStretch(identifier_, start_depth_, 2.0F * start_depth_ - drag_depth_, anchor_depth_);
    target_->RefreshDataViews();
}
