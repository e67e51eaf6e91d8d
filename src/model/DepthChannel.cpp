// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DepthChannel.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace {
std::shared_ptr<DepthChannel::DepthVector> ScaledCopy(DepthChannel::DepthVector const& depths, double factor)
{
    auto scaled = std::make_shared<DepthChannel::DepthVector>(depths);
    for (double& depth : *scaled) {
        depth *= factor;
    }
    return scaled;
}

std::shared_ptr<DepthChannel::DepthVector> ConvertToMetric(DepthChannel::DepthVector const& feet)
{
    return ScaledCopy(feet, Quorrel::FEET_TO_METRES);
}

std::shared_ptr<DepthChannel::DepthVector> ConvertToImperial(DepthChannel::DepthVector const& metres)
{
    return ScaledCopy(metres, Quorrel::METRES_TO_FEET);
}
} // namespace

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
    auto working = std::make_shared<DepthVector>(native_depths_);
    for (double& depth : *working) {
        depth = stretch_ * depth + offset;
    }
    if (is_native_metric_) {
        imperial_depths_ = ConvertToImperial(*working);
        metric_depths_ = std::move(working);
    } else {
        metric_depths_ = ConvertToMetric(*working);
        imperial_depths_ = std::move(working);
    }
}
