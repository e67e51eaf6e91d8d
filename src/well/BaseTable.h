// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/TableCommands.h"

#include <QTableWidget>

/// A table of well data that keeps its values in the cells themselves. A number that was put in and not
/// edited since comes out exactly as it was, whatever its text is rounded to.
class BaseTable : public QTableWidget, public TableCommands
{
    Q_OBJECT
public:
    BaseTable(QStringList const& headings, QWidget* parent = nullptr);

    /// Appends an empty row and returns its number.
    int AddRow();
    void InsertStringItem(int row, int column, QString const& text);
    /// In the settings' number format.
    void InsertFloatItem(int row, int column, float value, int decimals);
    /// Takes metres, shows the settings' unit with two decimals.
    void InsertDepthItem(int row, int column, double metres);
    /// Marks a cell as wrong, or takes the mark away.
    void ColorCodeItem(int row, int column, bool valid);

    [[nodiscard]] static QString ParseCopiedText(QString const& text);
    /// Pattern of a number in the settings' number format.
    [[nodiscard]] static QString NumberRegex();

    /// The number in a cell, 0 when it is none; marks the cell accordingly. A bad cell makes `ok` false (a
    /// good one leaves it) and adds a message to `text`.
    /// @throws NoTableItemError for a cell without item
    double ItemToDouble(int row, int column, bool& ok, QString& text);
    /// The same for a depth in the settings' unit; gives metres.
    double ItemToDepth(int row, int column, bool& ok, QString& text);

    void CopyData() const override;
    void DeleteSelectedRows() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

    /// A row as a paste reads it.
    [[nodiscard]] virtual QString GetRowText(int row) const;
    /// The text of a cell, empty without an item.
    [[nodiscard]] QString GetText(int row, int column) const;
    /// Makes room for `count` rows at the end and returns the first one's number.
    int AddRows(qsizetype count);

private:
    /// Shows a number just typed as the others, and marks what is none.
    void ShowTypedNumber(QModelIndex const& index);
    void InsertNumberItem(int row, int column, double value, int decimals);
    [[nodiscard]] QTableWidgetItem& GetItem(int row, int column) const;
    double ReadNumber(int row, int column, bool is_depth, bool& ok, QString& text);
};
