// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/BaseDepthDataChannel.h"

class DepthLogPass;

/// A curve of a depth log pass. Lives as long as its pass; the members that look into the pass are defined
/// with it.
class DepthLogDataChannel final : public BaseDepthDataChannel
{
public:
    DepthLogDataChannel(DepthLogPass const* log_pass, DataChannelIdentifier const& identifier,
                        std::weak_ptr<SampleVector> const& samples, HeaderRow const& curve_info);

    [[nodiscard]] QString GetName() const override { return GetCurveInfo().mnemonic; }
    [[nodiscard]] LogPassProperties const& GetLogPassProperties() const override;
    [[nodiscard]] bool IsDependentOn(DataChannelIdentifier const& identifier) const override;
    [[nodiscard]] DepthChannel const& GetDepth() const override;

private:
    DepthLogPass const* log_pass_;
};
