// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/BaseCommand.h"
#include "app/kit/Interval.h"

class UndoTarget;

/// A change of the visible depth interval.
class VerticalZoomCommand : public BaseCommand
{
public:
    VerticalZoomCommand(Interval const& before, Interval const& after, UndoTarget* target);

    void Execute() override;
    void UnExecute() override;

private:
    Interval before_;
    Interval after_;
    UndoTarget* target_;
};
