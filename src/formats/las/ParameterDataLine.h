// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <string>

/// One line of a LAS 3.0 section: MNEM.UNIT VALUE : DESCRIPTION {FORMAT} | ASSOCIATIONS.
class ParameterDataLine
{
public:
    ParameterDataLine() = default;
    /// One raw line; see ParseRawLine.
    explicit ParameterDataLine(std::string const& line);
    ParameterDataLine(QString const& mnemonic, QString const& unit, QString const& value,
                      QString const& description, QString const& format, QString const& associations);

    /// Cuts a trimmed line into its six parts, each trimmed and decoded as Latin-1. Nothing is thrown; a
    /// malformed line falls out as the search positions give.
    void ParseRawLine(std::string const& line);

    [[nodiscard]] QString const& GetMnem() const { return mnemonic_; }
    [[nodiscard]] QString const& GetUnit() const { return unit_; }
    [[nodiscard]] QString const& GetValue() const { return value_; }
    [[nodiscard]] QString const& GetDescription() const { return description_; }
    /// What stands between the braces, without them.
    [[nodiscard]] QString const& GetFormat() const { return format_; }
    [[nodiscard]] QString const& GetAssociations() const { return associations_; }

private:
    QString mnemonic_;
    QString unit_;
    QString value_;
    QString description_;
    QString format_;
    QString associations_;
};
