// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

#include <vector>

/// What became of a text pasted into a table, apart from the rows.
struct PasteReport
{
    /// More rows than any well has are refused as a whole.
    static constexpr qsizetype MAXIMUM_ROWS = 100000;
    /// So many errors are told one by one.
    static constexpr qsizetype MAXIMUM_ERRORS = 10;

    bool matched = false;  ///< at least one line has the table's form
    bool too_many = false; ///< nothing was read for the number of lines
    QStringList errors;    ///< the first lines of that form whose numbers cannot be read, a message each
    qsizetype error_count = 0;

    void AddError(QString const& error)
    {
        if (++error_count <= MAXIMUM_ERRORS) {
            errors.push_back(error);
        }
    }

    /// The errors told one by one, the last with the number of those that are not.
    [[nodiscard]] QStringList GetErrorTexts() const
    {
        QStringList texts = errors;
        if (auto const more = error_count - errors.size(); more > 0) {
            texts.back() += QObject::tr("\n(and %1 more lines)").arg(more);
        }
        return texts;
    }
};

/// The rows of a pasted text, in order, and what became of its other lines.
template <class Row>
struct PastedRows : PasteReport
{
    std::vector<Row> rows;
};
