// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/BaseCommand.h"
#include "app/kit/Interval.h"
#include "model/DataChannelIdentifier.h"

#include <QString>

class UndoTarget;

/// A change of the value scale of one channel in one data view.
class HorizontalZoomCommand : public BaseCommand
{
public:
    HorizontalZoomCommand(UndoTarget* target, QString const& view_name,
                          DataChannelIdentifier const& identifier, Interval const& before,
                          Interval const& after);

    void Execute() override;
    void UnExecute() override;

private:
    UndoTarget* target_;
    QString view_name_;
    DataChannelIdentifier identifier_;
    Interval before_;
    Interval after_;
};
