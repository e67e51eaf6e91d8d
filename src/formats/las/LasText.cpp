// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Quorrel {
std::string_view TrimmedLasText(std::string_view text)
{
    constexpr std::string_view white_space = " \t\n\v\f\r";
    std::size_t const first = text.find_first_not_of(white_space);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(white_space) - first + 1);
}

double LenientNumber(QString const& text)
{
    bool is_number = false;
    double const number = text.toDouble(&is_number);
    return is_number ? number : 0.0;
}

std::string FixedText(double value)
{
    // 309 digits before the point, 6 behind it, and a sign.
    std::array<char, 400> text;
    auto const result =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 6);
    return {text.data(), result.ptr};
}

long long RoundedRowCount(double rows)
{
    if (std::isnan(rows)) {
        return 0;
    }
    constexpr double limit = 9223372036854775808.0;
    double const rounded = std::round(rows);
    if (rounded >= limit) {
        return std::numeric_limits<long long>::max();
    }
    if (rounded < -limit) {
        return std::numeric_limits<long long>::min();
    }
    return static_cast<long long>(rounded);
}

std::string InvalidValueText(std::string_view word)
{
    constexpr std::size_t longest_word = 1000;
    std::string_view const shown = word.substr(0, longest_word);
    return " Invalid value in ASCII data-section of LAS-file. Only numeric values are allowed here. Consider "
           "replacing the invalid value with \"-999.25\" in a text editor and try again. Invalid value "
           "found: " +
           QString::fromLatin1(shown.data(), static_cast<qsizetype>(shown.size())).toStdString();
}
} // namespace Quorrel
