// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/PastedRows.h"

#include <QList>
#include <QString>

#include <functional>

class QKeyEvent;
class QTableView;

/// What every table of well data can do besides editing, and the keys for it: copy (Ctrl+C), paste (Ctrl+V)
/// and delete the selected rows (Delete).
class TableCommands
{
public:
    virtual ~TableCommands() = default;

    /// Puts the selected rows on the clipboard: columns between tabs, rows between line feeds, as a paste
    /// reads them.
    virtual void CopyData() const = 0;
    /// Appends the rows of the clipboard; what cannot be read is shown.
    virtual void ParsePasteAction() = 0;
    virtual void DeleteSelectedRows() = 0;

protected:
    TableCommands() = default;
    TableCommands(TableCommands const&) = default;
    TableCommands& operator=(TableCommands const&) = default;

    /// True when the key was one of the commands.
    bool HandleKey(QKeyEvent const& event);

    /// What all tables of well data have in common to the eye.
    static void SetUpView(QTableView& view);
    /// Gives the room that is left to this column instead of the last one.
    static void StretchColumn(QTableView& view, int column);
    /// In ascending order.
    [[nodiscard]] static QList<int> GetSelectedRows(QTableView const& view);
    /// Copies the selected rows, each as the text that `row_text` gives for it. An empty selection leaves the
    /// clipboard alone.
    static void CopyRows(QTableView const& view, std::function<QString(int row)> const& row_text);
    /// One line of the clipboard's table; a tab or line end inside a text becomes a blank.
    [[nodiscard]] static QString JoinColumns(QStringList texts);
    [[nodiscard]] static QString GetClipboardText();
    /// Asks or tells what to do about the lines with errors; true to go on.
    using ErrorAnswer = std::function<bool(PasteReport const&)>;

    /// Tells what went wrong, hands the rows that were read to `append(rows)` and brings them to sight.
    /// Without `ask`, errors are shown and the other rows appended.
    template <class Row, class Append>
    static void AppendPasted(QTableView& view, PastedRows<Row> const& pasted, QString const& nothing_matched,
                             Append const& append, ErrorAnswer const& ask = {})
    {
        auto const count = static_cast<qsizetype>(pasted.rows.size());
        if (ConfirmPaste(view, pasted, count, nothing_matched, ask) && count > 0) {
            append(pasted.rows);
            ShowLastRows(view, static_cast<int>(count));
        }
    }

private:
    [[nodiscard]] static bool ConfirmPaste(QTableView& view, PasteReport const& report, qsizetype new_rows,
                                           QString const& nothing_matched, ErrorAnswer const& ask);
    static void ShowPasteError(QTableView& view, QString const& text);
    /// Selects them; the first is the current one.
    static void ShowLastRows(QTableView& view, int count);
};
