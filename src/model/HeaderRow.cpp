// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/HeaderRow.h"

namespace {
QString TrimmedLatin1(std::string const& line, std::size_t position, std::size_t length)
{
    std::string const part = line.substr(position, length);
    std::size_t const first = part.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return {};
    }
    std::size_t const last = part.find_last_not_of(" \t");
    return QString::fromLatin1(part.data() + first, static_cast<qsizetype>(last - first + 1));
}
} // namespace

HeaderRow::HeaderRow(QString const& row_mnemonic, QString const& row_unit, QString const& row_data,
                     QString const& row_description)
    : mnemonic(row_mnemonic), unit(row_unit), data(row_data), description(row_description)
{
}

HeaderRow::HeaderRow(std::string const& line)
{
    ParseHeaderLine(line);
}

void HeaderRow::ParseHeaderLine(std::string const& line)
{
    // A delimiter that is missing stands at npos, and npos + 1 is 0: the field behind it begins at the line's
    // start, the field before it reaches to the line's end. Malformed lines depend on this arithmetic.
    std::size_t const dot = line.find('.');
    std::size_t const blank = line.find_first_of(" \t", dot);
    std::size_t const colon = line.rfind(':');
    mnemonic = TrimmedLatin1(line, 0, dot);
    unit = TrimmedLatin1(line, dot + 1, blank - (dot + 1));
    data = TrimmedLatin1(line, blank + 1, colon - (blank + 1));
    description = TrimmedLatin1(line, colon + 1, std::string::npos);
}
