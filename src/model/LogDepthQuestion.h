// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>
#include <optional>

/// How a time log that comes in from a file learns at which depth the tool stood. The application installs a
/// dialog; without one the depth is 0. Main thread only.
class LogDepthQuestion
{
public:
    /// Gets the window title and the label (the file name); gives the depth in the settings' unit, or nothing
    /// when the user cancelled. The dialog starts at 0, from -100000 to 1000000, with 2 decimals and step 1.
    using Function = std::function<std::optional<double>(QString const& title, QString const& label)>;

    static void Install(Function question);
    /// The answer, or 0 without one.
    [[nodiscard]] static double Ask(QString const& title, QString const& label);
};
