// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The title of a tab for something that the user named: never empty, never too long, and an "&" is no
/// shortcut.
[[nodiscard]] inline QString TabTitle(QString const& name)
{
    constexpr int longest = 40;
    QString title = name.size() > longest ? name.left(longest) + "..." : name;
    return title.trimmed().isEmpty() ? QStringLiteral("(no name)") : title.replace('&', "&&");
}
