// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/DepthLogPass.h"
#include "model/GenericLogPassMap.h"

/// The depth log passes of one survey.
class DepthLogPassMap final : public GenericLogPassMap<DepthLogPass>
{
public:
    using GenericLogPassMap::GenericLogPassMap;

    /// From the least minimum depth to the greatest maximum depth, metres; the empty Interval without passes.
    [[nodiscard]] Interval GetTotalDepthInterval() const;
};
