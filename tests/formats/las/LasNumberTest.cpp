// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasNumber.h"
#include "formats/las/FileBuffer.h"
#include "formats/las/LasTestFiles.h"

#include <charconv>
#include <random>
#include <sstream>

namespace {
std::vector<double> Numbers(std::string const& text)
{
    std::istringstream stream(text);
    FileBuffer buffer(stream);
    LasNumber number(buffer);
    std::vector<double> numbers;
    while (number.FindNextNumber()) {
        numbers.push_back(number.ParseFloat());
    }
    // Reading many at a time takes another way to the same numbers.
    std::istringstream again(text);
    FileBuffer second_buffer(again);
    std::vector<float> cells(2 * numbers.size() + 2, 0.0F);
    EXPECT_EQ(LasNumber(second_buffer).ReadNumbers(cells.data(), 2, numbers.size() + 1), numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        EXPECT_EQ(cells[2 * i], static_cast<float>(numbers[i])) << "number " << i;
        EXPECT_EQ(std::signbit(cells[2 * i]), std::signbit(numbers[i])) << "number " << i;
    }
    return numbers;
}

std::string Failure(std::string const& text)
{
    return MessageOf([&text] { Numbers(text); });
}

std::string const TOO_MANY_DECIMALS =
    "Number of decimals exceed floating point converter capability. Following number failed to convert: ";
} // namespace

TEST(LasNumber, ReadsPlainDecimals)
{
    for (auto const& [text, numbers] : std::vector<std::pair<char const*, std::vector<double>>>{
             {"0", {0.0}},
             {"12", {12.0}},
             {"12.", {12.0}},
             {".5 -.5 -999.25 00012.5000 123456789.5 12345678 123456789012345",
              {0.5, -0.5, -999.25, 12.5, 123456789.5, 12345678, 123456789012345}},
             // The decimals are one integer times a power of ten.
             {"3.141592 12345678.87654321 -1234567.1234567 1.123456789 0.12345678 0.1234567890123456",
              {3.0 + 141592 * 1e-6, 12345678.0 + 87654321 * 1e-8, -(1234567.0 + 1234567 * 1e-7),
               1.0 + 123456789 * 1e-9, 12345678 * 1e-8, 1234567890123456 * 1e-16}},
             // A start without any digit.
             {"-", {-1.0}},
             {".", {-1.0}},
             {"-.", {-1.0}},
             {"- 5", {-1.0, 5.0}},
             // Where one number cannot go on, the next one begins.
             {"1-2", {1.0, -2.0}},
             {"1.2.3", {1.2, 3 * 1e-1}},
             {"--5", {-1.0, -5.0}},
             // Everything below "A" separates, and so do bytes above 127.
             {"1,2;3\t4\n5/6:7+8(9)", {1, 2, 3, 4, 5, 6, 7, 8, 9}},
             {"1\xB0\xFF"
              "2",
              {1, 2}},
             {"", {}},
             {" ,;\n", {}},
             // 64 bits wrap: 2^64 is 0, 2^64 + 1 is 1.
             {"18446744073709551615", {18446744073709551615.0}},
             {"18446744073709551616", {0.0}},
             {"18446744073709551617.5", {1.5}},
             // 20 decimals pass; the twentieth has no weight.
             {"0.00000000000000000001", {0.0}},
             {"0.99999999999999999999", {9999999999999999999ULL * 1e-19}},
         }) {
        EXPECT_EQ(Numbers(text), numbers) << text;
    }
    EXPECT_EQ(Numbers(std::string("1\0002", 3)), (std::vector<double>{1, 2}));
    EXPECT_TRUE(std::signbit(Numbers("-0.0").at(0)));
}

TEST(LasNumber, RefusesWordsAndTooManyDecimals)
{
    EXPECT_EQ(Failure("NaN"), las_test::InvalidValue("NaN"));
    EXPECT_EQ(Failure("1.0E+3"), las_test::InvalidValue("E"));
    EXPECT_EQ(Failure("5 abc_~x 6"), las_test::InvalidValue("abc_~x"));
    EXPECT_EQ(Failure("1 inf2"), las_test::InvalidValue("inf"));
    EXPECT_EQ(Failure("Z"), las_test::InvalidValue("Z"));
    EXPECT_EQ(Failure("7 0.123456789012345678901 8"), TOO_MANY_DECIMALS + "0.123456789012345678901");
    EXPECT_EQ(Failure("-1.000000000000000000000"), TOO_MANY_DECIMALS + "-1.000000000000000000000");
    EXPECT_THROW(Numbers("x"), std::logic_error);
}

// Numbers and words that begin in one block and end in the next, and those that fill whole blocks.
TEST(LasNumber, ReadsAcrossBlocks)
{
    std::size_t const block = FileBuffer::BLOCK_SIZE;
    for (std::size_t in_block = 0; in_block <= 8; ++in_block) {
        std::string const blanks(block - in_block, ' ');
        EXPECT_EQ(Numbers(blanks + "-123.456 7"), (std::vector<double>{-(123.0 + 456 * 1e-3), 7.0}))
            << in_block;
        EXPECT_EQ(Failure(blanks + "abcdefgh"), las_test::InvalidValue("abcdefgh")) << in_block;
    }
    EXPECT_EQ(Numbers(std::string(2 * block, '0') + "42." + std::string(19, '0')), std::vector<double>{42.0});
    EXPECT_EQ(Numbers(std::string(block, ' ')), std::vector<double>{});
    // Texts without end are told in part.
    EXPECT_EQ(Failure(std::string(3 * block, 'x')), las_test::InvalidValue(std::string(1000, 'x')));
    EXPECT_EQ(Failure("." + std::string(3 * block, '7')), TOO_MANY_DECIMALS + "." + std::string(999, '7'));
}

// Up to 15 digits, integer and decimals are exact in double precision, and so is the power of ten but for one
// rounding; product and sum round once more each. That makes at most three half units in the last place, of
// which the narrowing to single precision hides all but the rare number between two neighbours.
TEST(LasNumber, AgreesWithTheStandardLibraryWithinItsRounding)
{
    std::mt19937_64 random(20240607);
    std::string text;
    std::vector<std::string> tokens;
    auto const digits = [&random](std::size_t count) {
        std::string some(count, ' ');
        std::generate(some.begin(), some.end(), [&random] { return static_cast<char>('0' + random() % 10); });
        return some;
    };
    for (int i = 0; i < 400'000; ++i) {
        std::string const integer = digits(random() % 8);
        std::string const decimals = digits(random() % 9);
        std::string token = random() % 2 == 0 ? "-" : "";
        token += integer + (decimals.empty() ? "" : "." + decimals);
        if (integer.empty() && decimals.empty()) {
            token += '0';
        }
        text += token + (random() % 3 == 0 ? "\n" : " ");
        tokens.push_back(std::move(token));
    }
    std::vector<double> const numbers = Numbers(text);
    ASSERT_EQ(numbers.size(), tokens.size());
    int narrowed_differently = 0;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        double expected = 0.0;
        std::from_chars(tokens[i].data(), tokens[i].data() + tokens[i].size(), expected);
        double const unit = std::nextafter(std::abs(expected), HUGE_VAL) - std::abs(expected);
        ASSERT_LE(std::abs(numbers[i] - expected), 1.5 * unit) << tokens[i];
        auto const single = static_cast<float>(numbers[i]);
        auto const expected_single = static_cast<float>(expected);
        if (single != expected_single) {
            ++narrowed_differently;
            ASSERT_EQ(std::nextafter(single, expected_single), expected_single) << tokens[i];
        }
    }
    EXPECT_LE(narrowed_differently, 2);
}
