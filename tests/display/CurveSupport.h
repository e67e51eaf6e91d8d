// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/StorageDataChannel.h"

#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

/// Channels for curve tests.
namespace curve_support {
inline constexpr float INF = std::numeric_limits<float>::infinity();
inline constexpr float NOT_A_NUMBER = std::numeric_limits<float>::quiet_NaN();

inline std::shared_ptr<StorageDataChannel> MakeChannel(std::vector<double> depths, std::vector<float> samples,
                                                       DataChannelIdentifier const& identifier = {})
{
    DATA_STORAGE_CHANNEL_Struct record;
    record.identifier = identifier;
    record.curve_info = HeaderRow("GR", "API", "", "Gamma ray");
    return std::make_shared<StorageDataChannel>(record, true, 0.0F, 1.0F, depths,
                                                std::make_shared<std::vector<float>>(std::move(samples)));
}

/// `size` samples at first, first + step, ...
inline std::shared_ptr<StorageDataChannel> MakeRegularChannel(std::size_t size, double first, double step,
                                                              std::function<float(std::size_t)> const& sample)
{
    std::vector<double> depths(size);
    std::vector<float> samples(size);
    for (std::size_t i = 0; i < size; ++i) {
        depths[i] = first + static_cast<double>(i) * step;
        samples[i] = sample(i);
    }
    return MakeChannel(std::move(depths), std::move(samples));
}
} // namespace curve_support
