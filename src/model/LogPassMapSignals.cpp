// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/LogPassMapSignals.h"

LogPassMapSignals::LogPassMapSignals() = default;

LogPassMapSignals::~LogPassMapSignals() = default;

QColor LogPassMapSignals::CalculatePenColor(qsizetype log_count)
{
    return LogPassColors[static_cast<std::size_t>(log_count) % LogPassColors.size()];
}
