// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

/// Numbers in the cells of tables and on the clipboard: the settings' number format, with no-break spaces for
/// blanks, and always finite.
namespace TableNumber {
/// Regular expression of a number in the settings' number format, without groups; blanks around it belong to
/// it.
[[nodiscard]] QString Pattern();

[[nodiscard]] std::optional<float> Parse(QString const& text);
/// Reads a depth in the settings' unit; gives metres.
[[nodiscard]] std::optional<float> ParseDepth(QString const& text);

/// In the settings' unit; takes metres.
[[nodiscard]] QString DepthText(double metres, int decimals = 2);

/// "Error in number format: ..." of a cell or field.
[[nodiscard]] QString FormatError(QString const& text);
/// Junk may be long; a message is not.
[[nodiscard]] QString Shorten(QString const& text);
} // namespace TableNumber
