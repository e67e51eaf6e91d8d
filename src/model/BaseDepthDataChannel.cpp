// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/BaseDepthDataChannel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {
/// Looks samples up on one axis; what does not change from depth to depth is taken once.
class SampleLookup
{
public:
    SampleLookup(DepthChannel const& axis, BaseDataChannel::SampleVector const& samples)
        : axis_(axis),
          depths_(axis.GetMetricDepths()),
          samples_(samples),
          first_(axis.GetMinDepth_metric()),
          last_(axis.GetMaxDepth_metric()),
          step_(depths_.size() < 2 ? 0 : axis.GetDepthStep_metric()),
          segments_(
              static_cast<double>(std::max<std::size_t>(std::min(depths_.size(), samples.size()), 1) - 1))
    {
    }

    [[nodiscard]] DataValueType ValueAt(double depth) const
    {
        if (samples_.empty()) {
            return MISSING_VALUE;
        }
        if (depth < first_) {
            return samples_.front();
        }
        if (depth > last_) {
            return samples_.back();
        }
        if (depths_.size() < 2) {
            (void)axis_.GetDepthStep_metric(); // throws
        }
        double const position = (depth - first_) / step_;
        if (!(position >= 0 && position < segments_)) {
            return samples_.back();
        }
        auto const i = static_cast<std::size_t>(position);
        double const rise = static_cast<double>(samples_[i + 1] - samples_[i]);
        double const slope = static_cast<double>(static_cast<float>(rise / (depths_[i + 1] - depths_[i])));
        return static_cast<float>(static_cast<double>(samples_[i]) + slope * (depth - depths_[i]));
    }

private:
    DepthChannel const& axis_;
    DepthChannel::DepthVector const& depths_;
    BaseDataChannel::SampleVector const& samples_;
    double first_;
    double last_;
    double step_;
    double segments_;
};

/// Smallest and largest of a run; NaN samples count for neither. Eight lanes, so that the compiler can keep
/// the running extremes in vector registers.
Interval Extent(DataValueType const* samples, std::size_t count)
{
    constexpr std::size_t lanes = 8;
    constexpr float infinity = std::numeric_limits<float>::infinity();
    std::array<float, lanes> low;
    std::array<float, lanes> high;
    low.fill(infinity);
    high.fill(-infinity);
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes) {
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            float const value = samples[i + lane];
            low[lane] = value < low[lane] ? value : low[lane];
            high[lane] = value > high[lane] ? value : high[lane];
        }
    }
    for (; i < count; ++i) {
        low[0] = samples[i] < low[0] ? samples[i] : low[0];
        high[0] = samples[i] > high[0] ? samples[i] : high[0];
    }
    return {static_cast<double>(*std::min_element(low.begin(), low.end())),
            static_cast<double>(*std::max_element(high.begin(), high.end()))};
}
} // namespace

DataValueType BaseDepthDataChannel::GetValueAtDepth(double depth) const
{
    return SampleLookup(GetDepth(), *samples_).ValueAt(depth);
}

BaseDataChannel::SampleVector
BaseDepthDataChannel::GetValuesAtDepths(DepthChannel::DepthVector const& depths) const
{
    SampleLookup const lookup(GetDepth(), *samples_);
    SampleVector values;
    values.reserve(depths.size());
    for (double const depth : depths) {
        values.push_back(lookup.ValueAt(depth));
    }
    return values;
}

Interval BaseDepthDataChannel::GetValueInterval(double from, double to) const
{
    double const first = GetMinDepth_metric();
    double const last = GetMaxDepth_metric();
    // Also true for an axis without depths, whose ends are NaN.
    if (samples_->empty() || !(last >= from && to >= first)) {
        return {};
    }
    auto const count = static_cast<double>(size());
    double const from_position = count * (from - first) / (last - first);
    double const to_position = count * (to - first) / (last - first);
    // An axis without extent gives NaN or infinite positions: it counts whole.
    std::size_t const start =
        from_position > 0 ? static_cast<std::size_t>(std::min(from_position, count)) : 0;
    double const end_position = std::isnan(to_position) ? count - 1 : std::clamp(to_position, 0.0, count - 1);
    auto const end = static_cast<std::size_t>(end_position);
    if (end < start) {
        return {};
    }
    return Extent(samples_->data() + start, end + 1 - start);
}

DataValueType BaseDepthDataChannel::CalculateAverageValue(Interval const& interval) const
{
    std::size_t const from = GetIndexAtDepth(interval.lower);
    std::size_t const to = GetIndexAtDepth(interval.upper);
    if (samples_->empty()) {
        return MISSING_VALUE;
    }
    double sum = 0;
    std::size_t const end = std::min(to + 1, size());
    for (std::size_t i = from; i < end; ++i) {
        sum += static_cast<double>((*samples_)[i]);
    }
    auto const count = static_cast<std::ptrdiff_t>(to) + 1 - static_cast<std::ptrdiff_t>(from);
    return static_cast<float>(sum) / static_cast<float>(count);
}
