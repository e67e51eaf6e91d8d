// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTest>

/// Runs the event loop until `condition` holds; false when it does not within `milliseconds`.
inline bool WaitFor(std::function<bool()> const& condition, int milliseconds = 20000)
{
    return QTest::qWaitFor(condition, milliseconds);
}
