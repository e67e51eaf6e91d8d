// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <stdexcept>

/// A cell of a table was asked for that holds nothing.
class NoTableItemError : public std::runtime_error
{
public:
    NoTableItemError(int row, int column)
        : std::runtime_error(
              QStringLiteral("No table item in Row: %1, Column: %2.").arg(row).arg(column).toStdString())
    {
    }
};
