// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/BaseDataChannel.h"

class TimeLog;

/// A curve of a time log: a stationary measurement at one depth. Lives as long as its log; the members that
/// look into the log are defined with it.
class TimeLogDataChannel final : public BaseDataChannel
{
public:
    TimeLogDataChannel(TimeLog const* log, DataChannelIdentifier const& identifier,
                       std::weak_ptr<SampleVector> const& samples, HeaderRow const& curve_info);

    [[nodiscard]] QString GetName() const override { return GetCurveInfo().mnemonic; }
    [[nodiscard]] LogPassProperties const& GetLogPassProperties() const override;
    [[nodiscard]] bool IsDependentOn(DataChannelIdentifier const& identifier) const override;

    /// The log's time vector, in the file's unit.
    [[nodiscard]] std::vector<double> const& GetTime() const;
    /// Depth at which the tool stood, metres.
    [[nodiscard]] float GetLogDepth() const;

private:
    TimeLog const* log_;
};
