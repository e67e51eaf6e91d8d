// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

/// Key of a survey, a column window or a storage channel; -1 is none or any.
using KeyType = std::int32_t;

/// One sample of a channel.
using DataValueType = float;

/// One depth of a depth vector, and results such as a depth step.
using DepthType = double;

/// The missing number, also in resampling, whatever a file's NULL says.
inline constexpr DataValueType MISSING_VALUE = -999.25F;
