// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// What the status bar shows for a point of a view.
struct StatusMessage
{
    float depth = 0; ///< metres
    QString text;
};
