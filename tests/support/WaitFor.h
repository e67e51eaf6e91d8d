// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

/// Runs the event loop until `condition` holds; false when it does not within `milliseconds`.
inline bool WaitFor(std::function<bool()> const& condition, int milliseconds = 20000)
{
    QDeadlineTimer const deadline(milliseconds);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QEventLoop loop;
        QTimer::singleShot(5, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}
