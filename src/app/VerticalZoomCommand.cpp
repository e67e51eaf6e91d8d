// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/VerticalZoomCommand.h"

#include "app/UndoTarget.h"

VerticalZoomCommand::VerticalZoomCommand(Interval const& before, Interval const& after, UndoTarget* target)
    : before_(before), after_(after), target_(target)
{
}

void VerticalZoomCommand::Execute()
{
    target_->SetVisibleDepthInterval(after_);
}

void VerticalZoomCommand::UnExecute()
{
    target_->SetVisibleDepthInterval(before_);
}
