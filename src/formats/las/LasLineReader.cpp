// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasLineReader.h"

#include "formats/las/LasText.h"

#include <stdexcept>

namespace {
/// Longer than any header line, short enough that a row made of it is no burden.
constexpr std::size_t LONGEST_HEADER_LINE = 1 << 20;

/// What the rows of a header may cost at most, beyond three times the size of the file: far above any header,
/// and it keeps a file of another kind from being taken for one endless header.
constexpr std::int64_t HEADER_ALLOWANCE = 48'000'000;
/// Upper bounds of what one row takes in memory: its strings' own size, and up to four copies in UTF-16.
constexpr std::int64_t COST_OF_ROW = 500;
constexpr std::int64_t COST_OF_CHARACTER = 8;
} // namespace

LasLineReader::LasLineReader(std::istream& stream) : stream_(stream)
{
    auto const start = stream_.tellg();
    stream_.seekg(0, std::ios::end);
    auto const end = stream_.tellg();
    stream_.clear();
    stream_.seekg(start);
    if (start >= 0 && end > start) {
        stream_size_ = end - start;
    }
}

bool LasLineReader::Next()
{
    if (is_given_back_) {
        is_given_back_ = false;
        return true;
    }
    if (!std::getline(stream_, raw_line_)) {
        line_ = {};
        return false;
    }
    line_ = Quorrel::TrimmedLasText(raw_line_);
    return true;
}

std::string LasLineReader::FindNextSection()
{
    while (Next()) {
        if (line_.starts_with('~')) {
            return std::string(line_);
        }
    }
    return {};
}

bool LasLineReader::NextSectionLine()
{
    while (Next()) {
        if (line_.starts_with('~')) {
            GiveBack();
            return false;
        }
        if (line_.empty() || line_.starts_with('#')) {
            continue;
        }
        if (line_.size() > LONGEST_HEADER_LINE) {
            throw std::runtime_error("A line of the file's header is " + std::to_string(line_.size()) +
                                     " characters long. This is not a LAS file.");
        }
        header_cost_ += COST_OF_ROW + COST_OF_CHARACTER * static_cast<std::int64_t>(line_.size());
        if (header_cost_ > HEADER_ALLOWANCE + 3 * stream_size_) {
            throw std::runtime_error(
                "The header sections of the file are too long. Check that the data section "
                "begins with a line \"~A\".");
        }
        return true;
    }
    return false;
}
