// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>
#include <string_view>

/// Text helpers of the LAS readers. None depends on a locale.
namespace Quorrel {
/// Without white space at both ends.
[[nodiscard]] std::string_view TrimmedLasText(std::string_view text);

/// The number `text` stands for, blanks around it allowed; 0 for text that is no number.
[[nodiscard]] double LenientNumber(QString const& text);

/// As "%f" of the C library writes it in the C locale.
[[nodiscard]] std::string FixedText(double value);

/// `rows` rounded to nearest as an integer: 0 for NaN, the greatest 64-bit number for anything beyond it.
[[nodiscard]] long long RoundedRowCount(double rows);

/// Refusal of a value that is no number in the data of a file, in UTF-8; the word is in Latin-1 as in the
/// file. One of extreme length is cut.
[[nodiscard]] std::string InvalidValueText(std::string_view word);
} // namespace Quorrel
