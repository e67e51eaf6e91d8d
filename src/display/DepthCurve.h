// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/ScalarTypes.h"
#include "display/BaseCurve.h"
#include "display/CurveBinning.h"
#include "model/DataChannelIdentifier.h"

#include <cstdint>
#include <memory>
#include <vector>

class BaseDepthDataChannel;
struct HeaderRow;
struct LogPassProperties;

/// A depth channel in a view, and its pyramid of minimum-maximum bins that bounds the cost of drawing by the
/// height in pixels. Observes the channel: once that is deleted, the curve has no samples, depths are NaN and
/// intervals empty. All depths in metres unless a name says otherwise.
class DepthCurve : public virtual BaseCurve
{
public:
    using SampleVector = std::vector<DataValueType>;
    using DepthVector = std::vector<DepthType>;
    using BinLevel = std::vector<CurveBin>;

    explicit DepthCurve(std::weak_ptr<BaseDepthDataChannel const> const& channel);
    ~DepthCurve() override;
    DepthCurve(DepthCurve const&) = default;
    DepthCurve(DepthCurve&&) noexcept = default;
    DepthCurve& operator=(DepthCurve const&) = default;
    DepthCurve& operator=(DepthCurve&& other) noexcept;

    /// Builds the bin levels anew from the samples.
    void ProcessCurve();
    /// Frees the bin levels.
    void ClearProcessedCurve();
    /// How many values or bins of one level go into a bin of the next.
    [[nodiscard]] static constexpr int GetBinFactor() { return static_cast<int>(Quorrel::CURVE_BIN_FACTOR); }
    /// The finest level first.
    [[nodiscard]] std::vector<BinLevel> const& GetBinLevels() const { return bin_levels_; }
    /// The coarsest level that still has more than one bin per pixel, otherwise the finest; null without
    /// levels.
    [[nodiscard]] BinLevel const* GetBinCurve(double metres_per_pixel) const;

    /// Null when the channel is gone.
    [[nodiscard]] std::shared_ptr<BaseDepthDataChannel const> GetDataChannel() const
    {
        return channel_.lock();
    }
    [[nodiscard]] std::shared_ptr<SampleVector const> GetRawCurve() const;
    [[nodiscard]] std::shared_ptr<DepthVector const> GetDepth_settings_unit() const;

    [[nodiscard]] double GetMinDepth_metric() const;
    [[nodiscard]] double GetMaxDepth_metric() const;
    [[nodiscard]] Interval GetDepthInterval_metric() const;
    /// @throws std::invalid_argument with fewer than two depths
    [[nodiscard]] DepthType GetDepthStep_metric() const;

    [[nodiscard]] HeaderRow GetCurveInfo() const;
    /// Also known after the channel is gone.
    [[nodiscard]] DataChannelIdentifier GetDataChannelIdentifier() const;
    /// Valid while the log lives; of a deleted channel, default properties.
    [[nodiscard]] LogPassProperties const& GetLogPassProperties() const;
    [[nodiscard]] bool IsHidden() const;
    [[nodiscard]] QPen GetLogPassPen() const;
    [[nodiscard]] bool IsDependentOn(DataChannelIdentifier const& identifier) const;

    /// Metres per raw sample. @throws std::invalid_argument with fewer than two depths
    [[nodiscard]] double GetRawCurveDepthDensity() const { return GetDepthStep_metric(); }
    /// Metres per bin of the first level; infinite without levels.
    [[nodiscard]] double GetDepthDensity() const;
    /// Estimated index of a depth, truncated towards zero and not clamped; 0 for a channel of no length.
    [[nodiscard]] std::int64_t ConvertDepthToIndex(double depth) const;
    /// The sample at the estimated index, of the nearest end for a depth outside; NaN without samples.
    [[nodiscard]] DataValueType GetValueAtDepth(double depth) const;
    /// Extent of the samples between two depths; the empty interval when they miss the curve.
    [[nodiscard]] Interval GetMinMaxValues(double top, double bottom) const;

private:
    void ProcessCurve(BinLevel const& finer);

    std::vector<BinLevel> bin_levels_;
    std::weak_ptr<BaseDepthDataChannel const> channel_;
    DataChannelIdentifier identifier_; ///< as it was at construction
};
