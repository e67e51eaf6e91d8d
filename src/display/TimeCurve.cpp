// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/TimeCurve.h"

#include "display/CurveBinning.h"
#include "model/ScaleItemParameters.h"
#include "model/TimeLogDataChannel.h"

#include <cmath>
#include <limits>

TimeCurve::TimeCurve(std::weak_ptr<TimeLogDataChannel const> const& channel) : channel_(channel)
{
    if (auto const data = channel_.lock()) {
        identifier_ = data->GetDataChannelIdentifier();
        scale_item_->header = data->GetCurveInfo();
        CalculateProperties(data.get());
    }
}

TimeCurve::~TimeCurve() = default;

void TimeCurve::CalculateProperties(TimeLogDataChannel const* channel)
{
    value_interval_ = Interval();
    average_ = 0;
    standard_deviation_ = 0;
    if (channel == nullptr || channel->size() == 0) {
        return;
    }
    auto const samples = channel->GetSamples();
    auto const count = static_cast<float>(samples->size());
    value_interval_ = Quorrel::CalculateExtent(samples->data(), samples->size());
    double sum = 0;
    for (DataValueType const value : *samples) {
        sum += static_cast<double>(value);
    }
    average_ = static_cast<float>(sum) / count;
    double sum_of_squares = 0;
    for (DataValueType const value : *samples) {
        double const difference = static_cast<double>(value) - static_cast<double>(average_);
        sum_of_squares += difference * difference;
    }
    standard_deviation_ =
        static_cast<float>(std::sqrt(sum_of_squares / static_cast<double>(samples->size())));
}

float TimeCurve::GetLogDepth() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetLogDepth() : std::numeric_limits<float>::quiet_NaN();
}

HeaderRow TimeCurve::GetCurveInfo() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetCurveInfo() : HeaderRow();
}

DataChannelIdentifier TimeCurve::GetDataChannelIdentifier() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetDataChannelIdentifier() : identifier_;
}

bool TimeCurve::IsDependentOn(DataChannelIdentifier const& identifier) const
{
    auto const channel = channel_.lock();
    return channel ? channel->IsDependentOn(identifier) : identifier_.IsDependentOn(identifier);
}
