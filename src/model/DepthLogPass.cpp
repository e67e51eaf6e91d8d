// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DepthLogPass.h"

#include "formats/las/LASFile.h"
#include "model/StorageDataChannel.h"

#include <utility>

DepthLogPass::DepthLogPass(LASFile& file, QString const& path, LogPassIdentifier const& identifier,
                           QPen const& pen)
    : GenericLogPass(file, path, identifier, pen),
      depth_(std::exchange(file.GetDepthVector(), {}), file.IsMetric())
{
    ProcessLogPassData();
}

DepthLogPass::DepthLogPass(BASE_LOGPASS_STRUCT const& record, DataMatrix data, bool is_metric, float shift,
                           float stretch, std::vector<double>& depths)
    : GenericLogPass(record, std::move(data)), depth_(is_metric, shift, stretch, depths)
{
    ProcessLogPassData();
}

void DepthLogPass::ProcessLogPassData()
{
    FitSampleCount(depth_.size());
    GenerateDataChannels(this);
}

LogPassProperties const& DepthLogDataChannel::GetLogPassProperties() const
{
    return log_pass_->GetProperties();
}

DepthChannel const& DepthLogDataChannel::GetDepth() const
{
    return log_pass_->GetDepth();
}

StorageDataChannel::StorageDataChannel(DepthLogPass const* log_pass, QString const& name)
    : depth_(log_pass->GetDepth()), name_(name)
{
}
