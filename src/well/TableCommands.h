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
    /// In ascending order.
    [[nodiscard]] static QList<int> GetSelectedRows(QTableView const& view);
    /// Copies the selected rows, each as the text that `row_text` gives for it. An empty selection leaves the
    /// clipboard alone.
    static void CopyRows(QTableView const& view, std::function<QString(int row)> const& row_text);
    /// One line of the clipboard's table; a tab or line end inside a text becomes a blank.
    [[nodiscard]] static QString JoinColumns(QStringList texts);
    [[nodiscard]] static QString GetClipboardText();
    /// Shows what went wrong; true when the `new_rows` rows that were read are to be appended.
    [[nodiscard]] static bool ConfirmPaste(QTableView& view, PasteReport const& report, qsizetype new_rows,
                                           QString const& nothing_matched);
    static void ShowPasteError(QTableView& view, QString const& text);
};
