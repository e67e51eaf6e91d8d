// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseCurve.h"
#include "model/DataChannelIdentifier.h"

#include <memory>

class TimeLogDataChannel;
struct HeaderRow;

/// One stationary measurement in a view, shown by the extent and the average of its samples. Observes the
/// channel.
class TimeCurve : public virtual BaseCurve
{
public:
    explicit TimeCurve(std::weak_ptr<TimeLogDataChannel const> const& channel);
    ~TimeCurve() override;

    /// Takes extent, average and population standard deviation from the samples; 0 and 0 without any.
    void CalculateProperties(TimeLogDataChannel const* channel);

    /// Depth at which the tool stood, metres; NaN when the channel is gone.
    [[nodiscard]] float GetLogDepth() const;
    [[nodiscard]] Interval const& GetMinMax() const { return GetValueInterval(); }
    [[nodiscard]] float GetAverageValue() const { return average_; }
    [[nodiscard]] float GetStandardDeviation() const { return standard_deviation_; }
    /// Null when the channel is gone.
    [[nodiscard]] std::shared_ptr<TimeLogDataChannel const> GetDataChannel() const { return channel_.lock(); }
    [[nodiscard]] HeaderRow GetCurveInfo() const;
    /// Also known after the channel is gone.
    [[nodiscard]] DataChannelIdentifier GetDataChannelIdentifier() const;
    [[nodiscard]] bool IsDependentOn(DataChannelIdentifier const& identifier) const;

private:
    std::weak_ptr<TimeLogDataChannel const> channel_;
    DataChannelIdentifier identifier_; ///< as it was at construction
    float average_ = 0;
    float standard_deviation_ = 0;
};
