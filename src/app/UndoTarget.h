// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;
struct DataChannelIdentifier;
struct Interval;

/// What undo and redo do to a column of views. The column implements it and outlives the commands that name
/// it.
class UndoTarget
{
public:
    virtual ~UndoTarget() = default;

    /// Shows this depth interval (metres) without recording it.
    virtual void SetVisibleDepthInterval(Interval const& interval) = 0;
    /// Sets the value scale of one channel in the data view of this name; an unknown name does nothing.
    virtual void SetDataViewScale(QString const& view_name, DataChannelIdentifier const& identifier,
                                  Interval const& interval) = 0;
    /// Asks for a depth shift in metres of one channel, or of its whole log pass at channel index -1.
    virtual void EmitApplyShift(DataChannelIdentifier const& identifier, float shift) = 0;
    /// Asks for a depth stretch; all depths in metres.
    virtual void EmitApplyStretch(DataChannelIdentifier const& identifier, float start_depth,
                                  float drag_depth, float anchor_depth) = 0;
    /// Recalculates and redraws every data view.
    virtual void RefreshDataViews() = 0;
};
