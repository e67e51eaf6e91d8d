// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/ModelFixtures.h"

/// Channels for curve tests.
namespace curve_support {

/// `size` samples at first, first + step, ...
inline std::shared_ptr<StorageDataChannel> MakeRegularChannel(std::size_t size, double first, double step,
                                                              std::function<float(std::size_t)> const& sample)
{
    Samples samples(size);
    for (std::size_t i = 0; i < size; ++i) {
        samples[i] = sample(i);
    }
    return MakeChannel(Depths(first, step, size), samples);
}
} // namespace curve_support
