// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/las/FileBuffer.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>

/// The numbers of LAS 2.0 data, read from a FileBuffer: plain decimals, no exponent, separated by anything
/// that is no letter. Made for speed: eight digits at a time, no copies, no locale.
class LasNumber
{
public:
    explicit LasNumber(FileBuffer& buffer) : buffer_(buffer) {}

    /// Moves to the next digit, "-" or "."; false when the file ends first.
    /// @throws std::logic_error naming the word, for a letter or any character above it
    bool FindNextNumber()
    {
        char const* cursor = buffer_.Cursor();
        while (kinds_[static_cast<unsigned char>(*cursor)] == Kind::Separator) {
            ++cursor;
        }
        if (kinds_[static_cast<unsigned char>(*cursor)] == Kind::Number) {
            buffer_.SetCursor(cursor);
            return true;
        }
        return FindNextNumberSlowly(cursor);
    }

    /// Reads the number at the cursor, which FindNextNumber has found: an optional "-", digits, "." and up to
    /// 20 decimals. A start without any digit gives -1. More integer digits than 64 bits hold wrap around;
    /// decimals beyond the nineteenth have no weight.
    /// @throws std::runtime_error for more than 20 decimals
    double ParseFloat()
    {
        char const* cursor = buffer_.Cursor();
        bool const is_negative = *cursor == '-';
        cursor += is_negative ? 1 : 0;

        char const* const first_digit = cursor;
        std::uint64_t const integer = StringToLong(cursor);
        bool has_digit = cursor != first_digit;
        double value = static_cast<double>(integer);
        if (*cursor == '.') {
            char const* const first_decimal = ++cursor;
            std::uint64_t const fraction = StringToLong(cursor);
            auto const decimals = static_cast<std::size_t>(cursor - first_decimal);
            if (decimals > MOST_EXACT_DECIMALS) {
                return ParseFloatSlowly();
            }
            value += static_cast<double>(fraction) * tenths_[decimals];
            has_digit = has_digit || decimals > 0;
        }
        if (cursor == buffer_.End() && !buffer_.IsLastBlock()) {
            return ParseFloatSlowly();
        }
        buffer_.SetCursor(cursor);
        if (!has_digit) {
            return -1.0;
        }
        return is_negative ? -value : value;
    }

    /// FindNextNumber and ParseFloat `count` times, narrowed to single precision, into cells `stride` apart.
    /// Returns how many numbers were there; less than `count` at the end of the file only.
    std::size_t ReadNumbers(float* cells, std::size_t stride, std::size_t count)
    {
        char const* cursor = buffer_.Cursor();
        for (std::size_t i = 0; i < count; ++i) {
            while (kinds_[static_cast<unsigned char>(*cursor)] == Kind::Separator) {
                ++cursor;
            }
            double value = 0.0;
            if (!ParseShort(cursor, value)) {
                buffer_.SetCursor(cursor);
                if (!FindNextNumber()) {
                    return i;
                }
                value = ParseFloat();
                cursor = buffer_.Cursor();
            }
            *cells = static_cast<float>(value);
            cells += stride;
        }
        buffer_.SetCursor(cursor);
        return count;
    }

private:
    enum class Kind : unsigned char
    {
        Separator,
        Number,
        Word
    };

    static constexpr std::size_t MOST_EXACT_DECIMALS = 19;
    static constexpr std::size_t MOST_DECIMALS = 20;

    /// The usual number: up to 8 integer digits, up to 8 decimals, less than 16 characters in all. Both ends
    /// are found in one step, so that the next number need not wait for the digits of this one. False, with
    /// nothing moved, for any other number and where the block ends.
    bool ParseShort(char const*& cursor, double& value) const
    {
#if defined(__SSE2__)
        __m128i const text = _mm_loadu_si128(reinterpret_cast<__m128i const*>(cursor));
        // As signed bytes, the ten digits are the lowest after this shift.
        __m128i const shifted = _mm_add_epi8(text, _mm_set1_epi8(static_cast<char>(128 - '0')));
        auto const digits =
            static_cast<unsigned>(_mm_movemask_epi8(_mm_cmplt_epi8(shifted, _mm_set1_epi8(-128 + 10))));
        bool const is_negative = *cursor == '-';
        if ((digits & 1U) == 0 && !is_negative) {
            return false;
        }
        // Digit or sign, the first character ends nothing.
        unsigned stops = ~digits & 0xFFFEU;
        auto const point = static_cast<unsigned>(std::countr_zero(stops));
        bool const has_point = point < 16 && cursor[point] == '.';
        if (has_point) {
            stops &= stops - 1;
        }
        auto const length = static_cast<unsigned>(std::countr_zero(stops));
        unsigned const decimals = has_point ? length - point - 1 : 0;
        unsigned const integers = point - (is_negative ? 1 : 0);
        if (stops == 0 || integers > 8 || decimals > 8 || integers + decimals == 0) {
            return false;
        }
        char const* const end = cursor + length;
        if (end == buffer_.End() && !buffer_.IsLastBlock()) {
            return false;
        }
        auto const integer = static_cast<double>(UpToEightDigits(cursor + point - integers, integers));
        auto const fraction = static_cast<double>(UpToEightDigits(end - decimals, decimals));
        double const magnitude = integer + fraction * tenths_[decimals];
        // Signs come at random, so they are set without a branch.
        value = std::bit_cast<double>(std::bit_cast<std::uint64_t>(magnitude) | std::uint64_t{is_negative}
                                                                                    << 63U);
        cursor = end;
        return true;
#else
        (void)cursor;
        (void)value;
        return false;
#endif
    }

    static std::int32_t UpToEightDigits(char const* digits, unsigned count)
    {
        std::uint64_t chunk = 0;
        std::memcpy(&chunk, digits, sizeof(chunk));
        // The digits move to the end; what stood behind them falls off and zeros come in front. Shifting by
        // 64 is not defined.
        chunk = count == 0 ? 0 : (chunk ^ 0x3030303030303030U) << (64U - 8U * count);
        return static_cast<std::int32_t>(EightDigits(chunk));
    }

    /// The digits at the cursor as an integer, modulo 2^64; moves behind them.
    static std::uint64_t StringToLong(char const*& cursor)
    {
        if constexpr (std::endian::native == std::endian::little) {
            std::uint64_t value = 0;
            for (;;) {
                // The byte order puts the first digit lowest. After the XOR a byte that is no digit
                // is the first one above 9, and all digits before it are untouched by carries.
                std::uint64_t chunk = 0;
                std::memcpy(&chunk, cursor, sizeof(chunk));
                chunk ^= 0x3030303030303030U;
                std::uint64_t const no_digits = ((chunk + 0x7676767676767676U) | chunk) & 0x8080808080808080U;
                if (no_digits == 0) {
                    value = value * 100'000'000U + EightDigits(chunk);
                    cursor += 8;
                    continue;
                }
                auto const count = static_cast<unsigned>(std::countr_zero(no_digits)) / 8;
                // Shifts the digits to the end and zeros in front; two steps because count may be 0.
                chunk = (chunk << 8U) << (56U - 8U * count);
                cursor += count;
                return value * powers_[count] + EightDigits(chunk);
            }
        } else {
            std::uint64_t value = 0;
            for (; *cursor >= '0' && *cursor <= '9'; ++cursor) {
                value = value * 10 + static_cast<std::uint64_t>(*cursor - '0');
            }
            return value;
        }
    }

    /// Eight values from 0 to 9, the first digit in the lowest byte, as one number: pairs, fours, eight.
    static std::uint64_t EightDigits(std::uint64_t digits)
    {
        digits = (digits * 10U) + (digits >> 8U);
        constexpr std::uint64_t mask = 0x000000FF000000FFU;
        constexpr std::uint64_t hundreds = 100U + (1'000'000ULL << 32U);
        constexpr std::uint64_t ones = 1U + (10'000ULL << 32U);
        return ((digits & mask) * hundreds + ((digits >> 16U) & mask) * ones) >> 32U;
    }

    bool FindNextNumberSlowly(char const* cursor);
    [[noreturn]] void ThrowInvalidValue();
    /// The same character by character, reading on at the end of the block.
    double ParseFloatSlowly();
    /// Makes at least one unread byte available; false at the end of the file.
    bool HasCharacter();

    static constexpr std::array<Kind, 256> kinds_ = [] {
        // Bytes above 127 are negative characters, and so below "A".
        std::array<Kind, 256> kinds{};
        for (std::size_t code = 'A'; code < 128; ++code) {
            kinds[code] = Kind::Word;
        }
        for (char const character : {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', '-', '.'}) {
            kinds[static_cast<unsigned char>(character)] = Kind::Number;
        }
        return kinds;
    }();
    static constexpr std::array<double, MOST_EXACT_DECIMALS + 1> tenths_ = {
        1.0,   1e-1,  1e-2,  1e-3,  1e-4,  1e-5,  1e-6,  1e-7,  1e-8,  1e-9,
        1e-10, 1e-11, 1e-12, 1e-13, 1e-14, 1e-15, 1e-16, 1e-17, 1e-18, 1e-19};
    static constexpr std::array<std::uint64_t, 8> powers_ = {1,      10,      100,       1'000,
                                                             10'000, 100'000, 1'000'000, 10'000'000};

    FileBuffer& buffer_;
};
