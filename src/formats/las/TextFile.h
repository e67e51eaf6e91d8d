// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// A table in delimited text. Read once, by ParseData.
class TextFile
{
public:
    /// Shows a box of this title and text.
    using Notice = std::function<void(char const* title, char const* text)>;

    /// `first_data_line` counts from 1. Every character of `separators` ends a token.
    TextFile(std::string const& path, std::size_t first_data_line, std::string const& separators);

    [[nodiscard]] bool Is_Open() const { return stream_.is_open(); }

    /// Reads rows up to the first one with another number of tokens than the first row. When more than 20
    /// bytes are left behind that, IsPrematureEnd() is true and `notice`, where given, is called.
    void ParseData(Notice const& notice = {});

    /// The line's trimmed tokens: the text before each separator character, the separators being appended
    /// once.
    [[nodiscard]] std::vector<std::string> ParseTextLine(std::string_view line) const;

    /// Position of the file's end in bytes; the read position stays.
    [[nodiscard]] std::int64_t EofPos();

    [[nodiscard]] bool IsPrematureEnd() const { return is_premature_end_; }
    /// The columns, all equally long.
    [[nodiscard]] std::vector<std::vector<std::string>> const& GetData() const { return columns_; }

private:
    std::ifstream stream_;
    std::size_t first_data_line_;
    std::string separators_;
    std::vector<std::vector<std::string>> columns_;
    bool is_premature_end_ = false;
};
