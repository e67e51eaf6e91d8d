// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/ParameterDataLine.h"

#include "formats/las/LasText.h"

#include <algorithm>
#include <string_view>

namespace {
constexpr std::size_t NOT_FOUND = std::string_view::npos;

/// The part [begin, end) of `line`, trimmed; empty when the ends have crossed.
QString Part(std::string_view line, std::size_t begin, std::size_t end)
{
    end = std::min(end, line.size());
    if (begin >= end) {
        return {};
    }
    std::string_view const part = Quorrel::TrimmedLasText(line.substr(begin, end - begin));
    return QString::fromLatin1(part.data(), static_cast<qsizetype>(part.size()));
}

bool IsBlank(char character)
{
    return character == ' ' || character == '\t';
}
} // namespace

ParameterDataLine::ParameterDataLine(std::string const& line)
{
    ParseRawLine(line);
}

ParameterDataLine::ParameterDataLine(QString const& mnemonic, QString const& unit, QString const& value,
                                     QString const& description, QString const& format,
                                     QString const& associations)
    : mnemonic_(mnemonic),
      unit_(unit),
      value_(value),
      description_(description),
      format_(format),
      associations_(associations)
{
}

void ParameterDataLine::ParseRawLine(std::string const& raw_line)
{
    *this = {};
    std::string_view const line = raw_line;

    std::size_t const dot = line.find('.');
    std::size_t const behind_dot = dot == NOT_FOUND ? 0 : dot + 1;
    if (dot != NOT_FOUND) {
        mnemonic_ = Part(line, 0, dot);
    }

    std::size_t const colon = line.find(':');
    if (behind_dot < line.size() && IsBlank(line[behind_dot])) {
        value_ = Part(line, behind_dot, colon);
    } else {
        std::size_t const blank = line.find_first_of(" \t", behind_dot);
        unit_ = Part(line, behind_dot, blank);
        // Without a blank behind the unit the value is everything up to the colon, mnemonic included.
        value_ = Part(line, blank == NOT_FOUND ? 0 : blank + 1, colon);
    }

    // Without a colon there is no description, but a format or associations may still follow.
    std::size_t const begin = colon == NOT_FOUND ? behind_dot : colon + 1;
    auto const set_description = [&](std::size_t end) {
        if (colon != NOT_FOUND) {
            description_ = Part(line, begin, end);
        }
    };
    std::size_t open = line.rfind('{');
    std::size_t bar = line.rfind('|');
    open = open != NOT_FOUND && open >= begin ? open : NOT_FOUND;
    bar = bar != NOT_FOUND && bar >= begin ? bar : NOT_FOUND;
    std::size_t const close = open == NOT_FOUND ? NOT_FOUND : line.rfind('}');
    bool const is_closed = close != NOT_FOUND && close > open;
    bool const has_format =
        open != NOT_FOUND && (bar == NOT_FOUND || bar < open || (is_closed && close < bar));

    if (has_format) {
        set_description(open);
        format_ = Part(line, open + 1, is_closed ? close : NOT_FOUND);
        std::size_t const association_bar = is_closed ? line.find('|', close) : NOT_FOUND;
        if (association_bar != NOT_FOUND) {
            associations_ = Part(line, association_bar + 1, NOT_FOUND);
        }
    } else if (bar != NOT_FOUND) {
        set_description(bar);
        associations_ = Part(line, bar + 1, NOT_FOUND);
    } else {
        set_description(NOT_FOUND);
    }
}
