// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/BaseDataChannel.h"
#include "model/DepthChannel.h"

class StorageDataChannel;

/// A channel over depth. All depths in metres; all lookups use the average step of the axis, so they cost
/// constant time and are estimates on irregular axes.
class BaseDepthDataChannel : public BaseDataChannel
{
public:
    using BaseDataChannel::BaseDataChannel;

    [[nodiscard]] virtual DepthChannel const& GetDepth() const = 0;

    [[nodiscard]] double GetMinDepth_metric() const { return GetDepth().GetMinDepth_metric(); }
    [[nodiscard]] double GetMaxDepth_metric() const { return GetDepth().GetMaxDepth_metric(); }
    [[nodiscard]] Interval GetDepthInterval_metric() const { return GetDepth().GetDepthInterval_metric(); }
    /// @throws std::invalid_argument with fewer than two depths
    [[nodiscard]] DepthType GetDepthStep_metric() const { return GetDepth().GetDepthStep_metric(); }
    [[nodiscard]] std::size_t GetIndexAtDepth(double depth) const
    {
        return GetDepth().GetIndexAtDepth(depth);
    }

    /// Linear interpolation, rounded to single precision; the first or last sample outside the range.
    /// MISSING_VALUE for a channel without samples.
    /// @throws std::invalid_argument for a depth inside the range of a channel with fewer than two depths
    [[nodiscard]] DataValueType GetValueAtDepth(double depth) const;
    /// GetValueAtDepth for each of many depths (metres).
    [[nodiscard]] SampleVector GetValuesAtDepths(DepthChannel::DepthVector const& depths) const;
    /// Extent of the samples between two depths, found by proportion; the empty Interval when they miss the
    /// channel.
    [[nodiscard]] Interval GetValueInterval(double from, double to) const;
    /// Mean of the samples from the index of the lower to the index of the upper depth, both included.
    [[nodiscard]] DataValueType CalculateAverageValue(Interval const& interval) const;

    /// A storage channel with this channel's values at the target's depths; defined with StorageDataChannel.
    /// @throws std::invalid_argument without depth overlap
    [[nodiscard]] std::shared_ptr<StorageDataChannel>
    CopyAndResample(BaseDepthDataChannel const* target) const;
};
