// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/HorizontalZoomCommand.h"

#include "app/UndoTarget.h"

HorizontalZoomCommand::HorizontalZoomCommand(UndoTarget* target, QString const& view_name,
                                             DataChannelIdentifier const& identifier, Interval const& before,
                                             Interval const& after)
    : target_(target), view_name_(view_name), identifier_(identifier), before_(before), after_(after)
{
}

void HorizontalZoomCommand::Execute()
{
    target_->SetDataViewScale(view_name_, identifier_, after_);
}

void HorizontalZoomCommand::UnExecute()
{
    target_->SetDataViewScale(view_name_, identifier_, before_);
}
