// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/StorageDataChannel.h"

#include "app/kit/SettingsSingleton.h"

#include <stdexcept>

namespace {
char const* const LENGTH_MISMATCH = "ERROR: Length of depth DataChannel does not match this->size() ";
} // namespace

LogPassProperties StorageDataChannel::dummy_log_pass_properties_;

StorageDataChannel::StorageDataChannel(QString const& name) : name_(name) {}

StorageDataChannel::StorageDataChannel(BaseDepthDataChannel const* source, int log_pass_number)
    : depth_(source->GetDepth())
{
    *samples_ = *source->GetSamples();
    curve_info_ = source->GetCurveInfo();
    QLocale const& locale = SettingsSingleton::Instance().GetLocale();
    name_ = QStringLiteral("S") + locale.toString(source->GetDataChannelIdentifier().GetSurveyKey()) +
            QStringLiteral("_L") + QString::number(log_pass_number) + QStringLiteral("_") +
            curve_info_.mnemonic;
}

StorageDataChannel::StorageDataChannel(std::weak_ptr<SampleVector> const& samples, DepthChannel const& depth,
                                       QString const& name, HeaderRow const& curve_info,
                                       DataChannelIdentifier const& identifier)
    : BaseDepthDataChannel(identifier, samples, curve_info), depth_(depth), name_(name)
{
}

StorageDataChannel::StorageDataChannel(DATA_STORAGE_CHANNEL_Struct const& record, bool is_metric, float shift,
                                       float stretch, std::vector<double>& depths,
                                       std::shared_ptr<SampleVector> const& samples)
    : BaseDepthDataChannel(record.identifier, samples, record.curve_info),
      depth_(is_metric, shift, stretch, depths),
      name_(record.name)
{
}

bool StorageDataChannel::IsDependentOn(DataChannelIdentifier const& identifier) const
{
    return identifier_.IsDependentOn(identifier);
}

void StorageDataChannel::AddDepth(DepthChannel const& depth)
{
    if (depth.size() != size()) {
        throw std::invalid_argument(LENGTH_MISMATCH);
    }
    depth_ = depth;
}

void StorageDataChannel::MovingAverage(float length_metres)
{
    double const steps = static_cast<double>(length_metres) / depth_.GetDepthStep_metric();
    // No window reaches over more than the whole channel, and less than one step is no window.
    if (!(steps >= 1 && steps < static_cast<double>(size()) + 1)) {
        return;
    }
    auto const n = static_cast<std::size_t>(steps);
    auto const divisor = static_cast<float>(n);
    SampleVector const copy = *samples_;
    SampleVector& samples = *samples_;
    float sum = 0;
    for (std::size_t i = 0; i < copy.size(); ++i) {
        sum += copy[i];
        if (i >= n) {
            sum -= copy[i - n];
        }
        if (i + 1 >= n) {
            samples[i - n / 2] = sum / divisor;
        }
    }
}

void StorageDataChannel::Differentiate()
{
    if (size() < 2) {
        throw std::invalid_argument("StorageDataChannel too short for differentiation");
    }
    if (depth_.size() != size()) {
        throw std::invalid_argument(LENGTH_MISMATCH);
    }
    auto const depths = depth_.GetDepthVector_settings_unit().lock();
    SampleVector& samples = *samples_;
    std::size_t const last = samples.size() - 1;
    for (std::size_t i = 0; i < last; ++i) {
        double const rise = static_cast<double>(samples[i + 1] - samples[i]);
        samples[i] = static_cast<float>(rise / ((*depths)[i + 1] - (*depths)[i]));
    }
    samples[last] = samples[last - 1];
}

void StorageDataChannel::ResampleDepth(BaseDepthDataChannel const* target)
{
    DepthChannel const& target_depth = target->GetDepth();
    // Written so that an axis without depths, whose ends are NaN, overlaps with nothing.
    if (!(GetMinDepth_metric() <= target_depth.GetMaxDepth_metric() &&
          target_depth.GetMinDepth_metric() <= GetMaxDepth_metric())) {
        throw std::invalid_argument("No depth overlap between datachannels");
    }
    samples_ = std::make_shared<SampleVector>(GetValuesAtDepths(target_depth.GetMetricDepths()));
    depth_ = target_depth;
}

std::shared_ptr<StorageDataChannel>
BaseDepthDataChannel::CopyAndResample(BaseDepthDataChannel const* target) const
{
    auto copy = std::make_shared<StorageDataChannel>(this, 0);
    copy->ResampleDepth(target);
    return copy;
}
