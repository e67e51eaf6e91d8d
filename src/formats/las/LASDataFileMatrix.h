// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/ScalarTypes.h"

#include <memory>
#include <vector>

/// Samples by column: one vector for each data column, all of the same length. Copies share the samples.
using LASDataFileMatrix = std::vector<std::shared_ptr<std::vector<DataValueType>>>;
