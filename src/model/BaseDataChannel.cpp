// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/BaseDataChannel.h"

#include "app/kit/Quorrel.h"

BaseDataChannel::BaseDataChannel() : samples_(std::make_shared<SampleVector>()) {}

BaseDataChannel::BaseDataChannel(DataChannelIdentifier const& identifier,
                                 std::weak_ptr<SampleVector> const& samples, HeaderRow const& curve_info)
    : identifier_(identifier), curve_info_(curve_info), samples_(samples)
{
}

BaseDataChannel::BaseDataChannel(std::shared_ptr<BaseDataChannel const> const& other)
    : identifier_(other->identifier_), curve_info_(other->curve_info_), samples_(other->samples_)
{
}

BaseDataChannel::~BaseDataChannel() = default;

std::tuple<float, float, float> BaseDataChannel::GetPercentiles(float p1, float p2, float p3) const
{
    return Quorrel::GetPercentiles(*samples_, p1, p2, p3);
}
