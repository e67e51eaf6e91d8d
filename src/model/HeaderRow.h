// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>

/// One line of a LAS header section, MNEM.UNIT DATA : DESCRIPTION. A curve's header row is what GetCurveInfo
/// gives.
struct HeaderRow
{
    QString mnemonic;
    QString unit;
    QString data;
    QString description;

    HeaderRow() = default;
    HeaderRow(QString const& mnemonic, QString const& unit, QString const& data, QString const& description);
    /// One raw line of a LAS 2.0 header section.
    explicit HeaderRow(std::string const& line);

    /// Cuts a LAS 2.0 header line: mnemonic before the first ".", unit up to the next blank or tab, data up
    /// to the last ":" of the line, description behind it; all trimmed and decoded as Latin-1. A line without
    /// dot or colon falls out as the search positions give; nothing is thrown.
    void ParseHeaderLine(std::string const& line);

    [[nodiscard]] bool operator==(HeaderRow const&) const = default;
};
