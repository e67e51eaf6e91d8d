// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DepthLogDataChannel.h"

DepthLogDataChannel::DepthLogDataChannel(DepthLogPass const* log_pass,
                                         DataChannelIdentifier const& identifier,
                                         std::weak_ptr<SampleVector> const& samples,
                                         HeaderRow const& curve_info)
    : BaseDepthDataChannel(identifier, samples, curve_info), log_pass_(log_pass)
{
}

bool DepthLogDataChannel::IsDependentOn(DataChannelIdentifier const& identifier) const
{
    return identifier_.IsDependentOn(identifier);
}
