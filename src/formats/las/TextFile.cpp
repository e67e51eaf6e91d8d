// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/TextFile.h"

#include "formats/las/LasText.h"

namespace {
/// What may be left behind the rows without notice: a last line feed, a few blanks.
constexpr std::int64_t LONGEST_REST = 20;
} // namespace

TextFile::TextFile(std::string const& path, std::size_t first_data_line, std::string const& separators)
    : stream_(path, std::ios::binary), first_data_line_(first_data_line), separators_(separators)
{
}

void TextFile::ParseData(Notice const& notice)
{
    std::string line;
    for (std::size_t number = 1; number < first_data_line_; ++number) {
        if (!std::getline(stream_, line)) {
            break;
        }
    }
    while (std::getline(stream_, line)) {
        std::vector<std::string> tokens = ParseTextLine(line);
        if (columns_.empty()) {
            columns_.resize(tokens.size());
        } else if (tokens.size() != columns_.size()) {
            break;
        }
        for (std::size_t column = 0; column < tokens.size(); ++column) {
            columns_[column].push_back(std::move(tokens[column]));
        }
    }
    bool const is_at_end = !stream_;
    stream_.clear();
    is_premature_end_ = Is_Open() && !is_at_end && EofPos() - stream_.tellg() > LONGEST_REST;
    if (is_premature_end_ && notice) {
        notice("Survey Import", "Premature end of import. Confirm that all data has been imported");
    }
}

std::vector<std::string> TextFile::ParseTextLine(std::string_view line) const
{
    std::string const text = std::string(line) + separators_;
    std::vector<std::string> tokens;
    std::size_t begin = 0;
    for (std::size_t end = text.find_first_of(separators_); end != std::string::npos;
         end = text.find_first_of(separators_, begin)) {
        tokens.emplace_back(Quorrel::TrimmedLasText(std::string_view(text).substr(begin, end - begin)));
        begin = end + 1;
    }
    return tokens;
}

std::int64_t TextFile::EofPos()
{
    auto const position = stream_.tellg();
    stream_.seekg(0, std::ios::end);
    std::int64_t const end = stream_.tellg();
    stream_.seekg(position);
    return end;
}
