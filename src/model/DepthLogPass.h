// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DepthChannel.h"
#include "model/DepthLogDataChannel.h"
#include "model/GenericLogPass.h"

class QZ4SaveFile;

/// A log over depth; all its channels share one depth axis.
class DepthLogPass final : public GenericLogPass<DepthLogDataChannel>
{
public:
    /// Takes the data out of `file`. @throws UndefinedMnem without "NULL" in the well information section
    DepthLogPass(LASFile& file, QString const& path, LogPassIdentifier const& identifier, QPen const& pen);
    /// Restores a stored pass; shift (metres) before stretch. Takes `data` and `depths` over.
    DepthLogPass(BASE_LOGPASS_STRUCT const& record, DataMatrix data, bool is_metric, float shift,
                 float stretch, std::vector<double>& depths);

    [[nodiscard]] DepthChannel const& GetDepth() const { return depth_; }
    [[nodiscard]] double GetMinDepth_metric() const { return depth_.GetMinDepth_metric(); }
    [[nodiscard]] double GetMaxDepth_metric() const { return depth_.GetMaxDepth_metric(); }
    [[nodiscard]] Interval GetDepthInterval_metric() const { return depth_.GetDepthInterval_metric(); }
    [[nodiscard]] double GetShift() const { return depth_.GetShift(); }
    [[nodiscard]] double GetStretch() const { return depth_.GetStretch(); }

    void ApplyShift(double delta_metres) { depth_.ApplyShift(delta_metres); }
    /// All in metres.
    void ApplyStretch(double start_drag_depth, double drag_depth, double anchor_depth)
    {
        depth_.ApplyStretch(start_drag_depth, drag_depth, anchor_depth);
    }
    /// Note the order: stretch, then shift (metres).
    void SetDepthStretchShift(double stretch, double shift) { depth_.SetDepthStretchShift(stretch, shift); }

    /// The axis, to the project file; defined with its format.
    void WriteState_SpecializedLogPass(QZ4SaveFile& file) const;

private:
    void ProcessLogPassData();

    DepthChannel depth_;
};
