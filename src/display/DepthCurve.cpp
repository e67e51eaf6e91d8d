// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthCurve.h"

#include "model/BaseDepthDataChannel.h"
#include "model/ScaleItemParameters.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
/// A level of more bins than this (24000 bytes) gets a coarser one.
constexpr std::size_t MAXIMUM_COARSEST_BINS = 3000;

constexpr double NO_DEPTH = std::numeric_limits<double>::quiet_NaN();

LogPassProperties const& DefaultProperties()
{
    static LogPassProperties const properties;
    return properties;
}
} // namespace

DepthCurve::DepthCurve(std::weak_ptr<BaseDepthDataChannel const> const& channel) : channel_(channel)
{
    if (auto const data = channel_.lock()) {
        identifier_ = data->GetDataChannelIdentifier();
        scale_item_->header = data->GetCurveInfo();
        auto const samples = data->GetSamples();
        value_interval_ = Quorrel::CalculateExtent(samples->data(), samples->size());
    }
}

DepthCurve::~DepthCurve() = default;

DepthCurve& DepthCurve::operator=(DepthCurve&& other) noexcept
{
    if (this != &other) {
        BaseCurve::operator=(other); // shares the scale record, so that neither curve is left without one
        bin_levels_ = std::move(other.bin_levels_);
        channel_ = std::move(other.channel_);
        identifier_ = std::move(other.identifier_);
    }
    return *this;
}

void DepthCurve::ProcessCurve()
{
    ClearProcessedCurve();
    auto const samples = GetRawCurve();
    if (!samples || samples->empty()) {
        return;
    }
    bin_levels_.emplace_back(Quorrel::BinCount(samples->size()));
    Quorrel::BinSamples(samples->data(), samples->size(), bin_levels_.back().data());
    ProcessCurve(bin_levels_.back());
}

void DepthCurve::ProcessCurve(BinLevel const& finer)
{
    if (finer.size() <= MAXIMUM_COARSEST_BINS) {
        return;
    }
    BinLevel coarser(Quorrel::BinCount(finer.size()));
    Quorrel::BinBins(finer.data(), finer.size(), coarser.data());
    bin_levels_.push_back(std::move(coarser)); // `finer` may be gone from here on
    ProcessCurve(bin_levels_.back());
}

void DepthCurve::ClearProcessedCurve()
{
    bin_levels_.clear();
    bin_levels_.shrink_to_fit();
}

DepthCurve::BinLevel const* DepthCurve::GetBinCurve(double metres_per_pixel) const
{
    if (bin_levels_.empty()) {
        return nullptr;
    }
    double const length = GetMaxDepth_metric() - GetMinDepth_metric();
    auto const level = std::find_if(bin_levels_.rbegin(), bin_levels_.rend(), [&](BinLevel const& bins) {
        return metres_per_pixel > length / (static_cast<double>(bins.size()) - 1);
    });
    return level != bin_levels_.rend() ? &*level : &bin_levels_.front();
}

std::shared_ptr<DepthCurve::SampleVector const> DepthCurve::GetRawCurve() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetSamples() : nullptr;
}

std::shared_ptr<DepthCurve::DepthVector const> DepthCurve::GetDepth_settings_unit() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetDepth().GetDepthVector_settings_unit().lock() : nullptr;
}

double DepthCurve::GetMinDepth_metric() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetMinDepth_metric() : NO_DEPTH;
}

double DepthCurve::GetMaxDepth_metric() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetMaxDepth_metric() : NO_DEPTH;
}

Interval DepthCurve::GetDepthInterval_metric() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetDepthInterval_metric() : Interval();
}

DepthType DepthCurve::GetDepthStep_metric() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetDepthStep_metric() : NO_DEPTH;
}

HeaderRow DepthCurve::GetCurveInfo() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetCurveInfo() : HeaderRow();
}

DataChannelIdentifier DepthCurve::GetDataChannelIdentifier() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetDataChannelIdentifier() : identifier_;
}

LogPassProperties const& DepthCurve::GetLogPassProperties() const
{
    auto const channel = channel_.lock();
    return channel ? channel->GetLogPassProperties() : DefaultProperties();
}

bool DepthCurve::IsHidden() const
{
    return GetLogPassProperties().hidden;
}

QPen DepthCurve::GetLogPassPen() const
{
    return GetLogPassProperties().pen;
}

bool DepthCurve::IsDependentOn(DataChannelIdentifier const& identifier) const
{
    auto const channel = channel_.lock();
    return channel ? channel->IsDependentOn(identifier) : identifier_.IsDependentOn(identifier);
}

double DepthCurve::GetDepthDensity() const
{
    if (bin_levels_.empty()) {
        return std::numeric_limits<double>::infinity();
    }
    return (GetMaxDepth_metric() - GetMinDepth_metric()) / static_cast<double>(bin_levels_.front().size());
}

std::int64_t DepthCurve::ConvertDepthToIndex(double depth) const
{
    auto const samples = GetRawCurve();
    if (!samples || samples->empty()) {
        return 0;
    }
    double const min = GetMinDepth_metric();
    double const index =
        (depth - min) / (GetMaxDepth_metric() - min) * (static_cast<double>(samples->size()) - 1);
    constexpr double limit = 9e18; // inside the range of the result
    return std::isnan(index) ? 0 : static_cast<std::int64_t>(std::clamp(index, -limit, limit));
}

DataValueType DepthCurve::GetValueAtDepth(double depth) const
{
    auto const samples = GetRawCurve();
    if (!samples || samples->empty()) {
        return std::numeric_limits<DataValueType>::quiet_NaN();
    }
    auto const last = static_cast<std::int64_t>(samples->size()) - 1;
    return (
        *samples)[static_cast<std::size_t>(std::clamp<std::int64_t>(ConvertDepthToIndex(depth), 0, last))];
}

Interval DepthCurve::GetMinMaxValues(double top, double bottom) const
{
    auto const samples = GetRawCurve();
    if (!samples || samples->empty()) {
        return {};
    }
    auto const size = static_cast<std::int64_t>(samples->size());
    std::int64_t const first = std::max<std::int64_t>(ConvertDepthToIndex(top), 0);
    std::int64_t const last = std::min(ConvertDepthToIndex(bottom), size - 1);
    if (first > last) {
        return {};
    }
    return Quorrel::CalculateExtent(samples->data() + first, static_cast<std::size_t>(last - first + 1));
}
