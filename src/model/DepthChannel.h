// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "app/kit/ScalarTypes.h"

#include <memory>
#include <vector>

class QZ4SaveFile;

/// The depth axis of a log, shared by all its channels. Keeps the depths as they stood in the file and, side
/// by side, the metric and imperial depths after shift and stretch. The two working vectors are always
/// replaced by new ones, never changed in place, so that a reader that holds a former vector keeps valid
/// data. The vectors are in file order and must be ascending; they are not searched.
class DepthChannel
{
public:
    using DepthVector = std::vector<DepthType>;

    DepthChannel() = default;
    /// Shift 0 and stretch 1. `depths` in metres or feet as `is_metric` says.
    DepthChannel(DepthVector const& depths, bool is_metric);
    DepthChannel(DepthVector&& depths, bool is_metric);
    /// Restores a stored axis; note the order: shift (metres), then stretch. Takes `depths` over.
    DepthChannel(bool is_metric, float shift, float stretch, DepthVector& depths);
    /// Copies the native vector, the unit, shift and stretch.
    explicit DepthChannel(std::shared_ptr<DepthChannel const> const& other);

    [[nodiscard]] std::weak_ptr<DepthVector const> GetDepthVector_metric() const { return metric_depths_; }
    [[nodiscard]] std::weak_ptr<DepthVector const> GetDepthVector_imperial() const
    {
        return imperial_depths_;
    }
    [[nodiscard]] std::weak_ptr<DepthVector const> GetDepthVector_settings_unit() const;
    /// The metric working vector for use on the spot; the next shift or stretch ends it.
    [[nodiscard]] DepthVector const& GetMetricDepths() const { return *metric_depths_; }
    /// The depths as they stood in the file, in the file's unit.
    [[nodiscard]] DepthVector const& GetNativeDepthVector() const { return native_depths_; }

    /// Accumulated shift in metres.
    [[nodiscard]] double GetShift() const { return shift_; }
    /// Accumulated factor.
    [[nodiscard]] double GetStretch() const { return stretch_; }
    [[nodiscard]] bool IsNativeDepthMetric() const { return is_native_metric_; }
    [[nodiscard]] std::size_t size() const { return native_depths_.size(); }

    /// First and last element in metres; NaN and an empty Interval for an axis without depths.
    [[nodiscard]] double GetMinDepth_metric() const;
    [[nodiscard]] double GetMaxDepth_metric() const;
    [[nodiscard]] Interval GetDepthInterval_metric() const;

    void ApplyShift(double delta_metres);
    /// Moves the depth `start_drag_depth` to `drag_depth` and leaves `anchor_depth` where it is; all in
    /// metres.
    void ApplyStretch(double start_drag_depth, double drag_depth, double anchor_depth);
    /// Note the order: stretch, then shift (metres).
    void SetDepthStretchShift(double stretch, double shift);
    void RecalculateDepth();

    /// Average step in metres, (last - first) / (count - 1).
    /// @throws std::invalid_argument with fewer than two depths
    [[nodiscard]] DepthType GetDepthStep_metric() const;
    /// Index by the average step, not a search: 0 above the first depth, the last index below the last depth.
    [[nodiscard]] std::size_t GetIndexAtDepth(double depth) const;

    /// To the project file; defined with its format.
    void WriteState_DepthChannel(QZ4SaveFile& file) const;

private:
    void AssignAndConvertDepth();

    std::shared_ptr<DepthVector const> imperial_depths_ = std::make_shared<DepthVector>();
    std::shared_ptr<DepthVector const> metric_depths_ = std::make_shared<DepthVector>();
    DepthVector native_depths_;
    bool is_native_metric_ = true;
    double shift_ = 0;
    double stretch_ = 1;
};
