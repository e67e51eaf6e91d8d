// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DepthChannel.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"

#include <algorithm>
#include <array>
#include <limits>
#include <stdexcept>
#include <utility>

DepthChannel::DepthChannel(DepthVector const& depths, bool is_metric)
    : native_depths_(depths), is_native_metric_(is_metric)
{
    AssignAndConvertDepth();
}

DepthChannel::DepthChannel(DepthVector&& depths, bool is_metric)
    : native_depths_(std::move(depths)), is_native_metric_(is_metric)
{
    AssignAndConvertDepth();
}

DepthChannel::DepthChannel(bool is_metric, float shift, float stretch, DepthVector& depths)
    : native_depths_(std::move(depths)), is_native_metric_(is_metric), shift_(shift), stretch_(stretch)
{
    depths.clear();
    AssignAndConvertDepth();
}

DepthChannel::DepthChannel(std::shared_ptr<DepthChannel const> const& other)
    : native_depths_(other->native_depths_),
      is_native_metric_(other->is_native_metric_),
      shift_(other->shift_),
      stretch_(other->stretch_)
{
    AssignAndConvertDepth();
}

std::weak_ptr<DepthChannel::DepthVector const> DepthChannel::GetDepthVector_settings_unit() const
{
    return SettingsSingleton::Instance().IsMetricDepth() ? metric_depths_ : imperial_depths_;
}

double DepthChannel::GetMinDepth_metric() const
{
    return metric_depths_->empty() ? std::numeric_limits<double>::quiet_NaN() : metric_depths_->front();
}

double DepthChannel::GetMaxDepth_metric() const
{
    return metric_depths_->empty() ? std::numeric_limits<double>::quiet_NaN() : metric_depths_->back();
}

Interval DepthChannel::GetDepthInterval_metric() const
{
    return metric_depths_->empty() ? Interval() : Interval(metric_depths_->front(), metric_depths_->back());
}

void DepthChannel::ApplyShift(double delta_metres)
{
    shift_ += delta_metres;
    AssignAndConvertDepth();
}

void DepthChannel::ApplyStretch(double start_drag_depth, double drag_depth, double anchor_depth)
{
    double const factor = (drag_depth - anchor_depth) / (start_drag_depth - anchor_depth);
    stretch_ *= factor;
    shift_ = (anchor_depth - shift_) * (1 - factor) + shift_;
    AssignAndConvertDepth();
}

void DepthChannel::SetDepthStretchShift(double stretch, double shift)
{
    stretch_ = stretch;
    shift_ = shift;
    AssignAndConvertDepth();
}

void DepthChannel::RecalculateDepth()
{
    AssignAndConvertDepth();
}

DepthType DepthChannel::GetDepthStep_metric() const
{
    if (metric_depths_->size() < 2) {
        throw std::invalid_argument("DepthType DepthChannel::GetDepthStep_metric() const"
                                    "Exception thrown: Depth vector to short to determine \"step\"");
    }
    return (metric_depths_->back() - metric_depths_->front()) /
           static_cast<double>(metric_depths_->size() - 1);
}

std::size_t DepthChannel::GetIndexAtDepth(double depth) const
{
    if (depth < GetMinDepth_metric()) {
        return 0;
    }
    std::size_t const last = size() - (size() > 0 ? 1 : 0);
    if (depth > GetMaxDepth_metric()) {
        return last;
    }
    double const position = (depth - GetMinDepth_metric()) / GetDepthStep_metric();
    // A NaN depth or a step of 0 gives no usable position; the comparison sends them to the first index.
    return position > 0
               ? std::min(last, static_cast<std::size_t>(std::min(position, static_cast<double>(last))))
               : 0;
}

void DepthChannel::AssignAndConvertDepth()
{
    // The offset is rounded to single precision in the native unit; all depths of the program carry that
    // rounding.
    double const native_shift = is_native_metric_ ? shift_ : shift_ / Quorrel::FEET_TO_METRES;
    double const offset = static_cast<double>(static_cast<float>(native_shift));
    double const factor = is_native_metric_ ? Quorrel::METRES_TO_FEET : Quorrel::FEET_TO_METRES;
    auto const working = std::make_shared<DepthVector>();
    auto const converted = std::make_shared<DepthVector>();
    working->reserve(native_depths_.size());
    converted->reserve(native_depths_.size());
    // In blocks that stay in the cache, so that the new vectors are written once and never read back.
    constexpr std::size_t block_size = 512;
    std::array<double, block_size> block;
    for (std::size_t begin = 0; begin < native_depths_.size(); begin += block_size) {
        std::size_t const count = std::min(block_size, native_depths_.size() - begin);
        for (std::size_t i = 0; i < count; ++i) {
            block[i] = stretch_ * native_depths_[begin + i] + offset;
        }
        working->insert(working->end(), block.data(), block.data() + count);
        for (std::size_t i = 0; i < count; ++i) {
            block[i] *= factor;
        }
        converted->insert(converted->end(), block.data(), block.data() + count);
    }
    metric_depths_ = is_native_metric_ ? working : converted;
    imperial_depths_ = is_native_metric_ ? converted : working;
}
