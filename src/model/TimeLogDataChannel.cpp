// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/TimeLogDataChannel.h"

TimeLogDataChannel::TimeLogDataChannel(TimeLog const* log, DataChannelIdentifier const& identifier,
                                       std::weak_ptr<SampleVector> const& samples,
                                       HeaderRow const& curve_info)
    : BaseDataChannel(identifier, samples, curve_info), log_(log)
{
}

bool TimeLogDataChannel::IsDependentOn(DataChannelIdentifier const& identifier) const
{
    return identifier_.IsDependentOn(identifier);
}
