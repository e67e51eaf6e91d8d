// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/GenericLogPassMap.h"
#include "model/TimeLog.h"

/// The time logs of one survey.
class TimeLogMap final : public GenericLogPassMap<TimeLog>
{
public:
    using GenericLogPassMap::GenericLogPassMap;

    /// From the least to the greatest logging depth, metres; the empty Interval without logs.
    [[nodiscard]] Interval GetTotalDepthInterval() const;
};
