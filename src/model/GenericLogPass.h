// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/BaseLog.h"
#include "model/DataChannelIdentifier.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

/// A log with the channels over its curves, in curve order.
template <typename ChannelType>
class GenericLogPass : public BaseLog
{
public:
    using BaseLog::BaseLog;

    [[nodiscard]] std::vector<std::shared_ptr<ChannelType const>> const& GetDataChannels() const
    {
        return data_channels_;
    }

    /// @throws std::out_of_range
    [[nodiscard]] std::shared_ptr<ChannelType const> GetDataChannel(int index) const
    {
        if (index < 0 || static_cast<std::size_t>(index) >= data_channels_.size()) {
            throw std::out_of_range("Data channel index out of range: " + std::to_string(index));
        }
        return data_channels_[static_cast<std::size_t>(index)];
    }

protected:
    /// One channel per sample vector, pointing back to `log`, which is this object.
    template <typename LogType>
    void GenerateDataChannels(LogType const* log)
    {
        data_channels_.clear();
        data_channels_.reserve(GetData().size());
        for (std::size_t i = 0; i < GetData().size(); ++i) {
            DataChannelIdentifier const identifier(GetLogPassIdentifier(), static_cast<int>(i));
            data_channels_.push_back(
                std::make_shared<ChannelType>(log, identifier, GetData()[i], GetCurveInfoHeader().at(i)));
        }
    }

private:
    std::vector<std::shared_ptr<ChannelType const>> data_channels_;
};
