// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasNumber.h"

#include "formats/las/LasText.h"

#include <stdexcept>

bool LasNumber::HasCharacter()
{
    return buffer_.ElementCount() > 0 || (!buffer_.IsLastBlock() && buffer_.RefillBuffer());
}

bool LasNumber::FindNextNumberSlowly(char const* cursor)
{
    buffer_.SetCursor(cursor);
    while (HasCharacter()) {
        Kind const kind = kinds_[static_cast<unsigned char>(*buffer_.Cursor())];
        if (kind == Kind::Number) {
            return true;
        }
        if (kind == Kind::Word) {
            ThrowInvalidValue();
        }
        buffer_.SetCursor(buffer_.Cursor() + 1);
    }
    return false;
}

void LasNumber::ThrowInvalidValue()
{
    constexpr std::size_t longest_word = 1000;
    std::string word;
    while (HasCharacter() && word.size() < longest_word &&
           kinds_[static_cast<unsigned char>(*buffer_.Cursor())] == Kind::Word) {
        word += *buffer_.Cursor();
        buffer_.SetCursor(buffer_.Cursor() + 1);
    }
    throw std::logic_error(Quorrel::InvalidValueText(word));
}

double LasNumber::ParseFloatSlowly()
{
    // Only a number of more than 20 decimals is told in full, and only its beginning when it is without end.
    constexpr std::size_t longest_text = 1000;
    std::string text;
    auto const take = [&] {
        char const character = *buffer_.Cursor();
        if (text.size() < longest_text) {
            text += character;
        }
        buffer_.SetCursor(buffer_.Cursor() + 1);
        return character;
    };
    auto const is_at_digit = [&] {
        return HasCharacter() && *buffer_.Cursor() >= '0' && *buffer_.Cursor() <= '9';
    };

    bool const is_negative = *buffer_.Cursor() == '-';
    if (is_negative) {
        take();
    }
    bool has_digit = false;
    std::uint64_t integer = 0;
    while (is_at_digit()) {
        integer = integer * 10 + static_cast<std::uint64_t>(take() - '0');
        has_digit = true;
    }
    double value = static_cast<double>(integer);
    if (HasCharacter() && *buffer_.Cursor() == '.') {
        take();
        std::uint64_t fraction = 0;
        std::size_t decimals = 0;
        std::size_t characters = 0;
        while (is_at_digit()) {
            auto const digit = static_cast<std::uint64_t>(take() - '0');
            if (++characters <= MOST_EXACT_DECIMALS) {
                fraction = fraction * 10 + digit;
                ++decimals;
            }
        }
        if (characters > MOST_DECIMALS) {
            throw std::runtime_error(
                "Number of decimals exceed floating point converter capability. Following "
                "number failed to convert: " +
                text);
        }
        value += static_cast<double>(fraction) * tenths_[decimals];
        has_digit = has_digit || decimals > 0;
    }
    if (!has_digit) {
        return -1.0;
    }
    return is_negative ? -value : value;
}
