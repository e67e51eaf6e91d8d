// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/LogPassIdentifier.h"

#include <QPen>

/// How a log is shown. Shared by a log with its channels and curves, so that they see changes without being
/// told.
struct LogPassProperties
{
    bool highlighted = false;
    bool hidden = false;
    LogPassIdentifier identifier;
    QPen pen;

    [[nodiscard]] bool operator==(LogPassProperties const&) const = default;
};
