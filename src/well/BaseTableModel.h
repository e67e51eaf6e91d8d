// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>
#include <QColor>

#include <limits>
#include <vector>

/// A table of well data: rows of typed cells under fixed columns. Numbers keep their exact value beside the
/// text they are shown as, depths in metres; only an edit that changes the text changes the value. What is no
/// number stays in the cell as it was typed and is marked, and CheckCells() tells of it; a text too long for
/// a project file is not taken.
class BaseTableModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum class Kind
    {
        Depth,  ///< metres, shown in the settings' unit
        Number, ///< shown as it is
        Text,
        Color,
        Type ///< a WellComponentType, shown by its name
    };

    struct Column
    {
        QString heading;
        Kind kind = Kind::Text;
        int decimals = 2;
        bool is_editable = true; ///< otherwise calculated
        bool is_copied = true;
        double minimum = std::numeric_limits<double>::lowest();
        bool may_be_missing = false; ///< takes MISSING_VALUE, which shows as an empty text
    };

    struct Cell
    {
        double number = 0; ///< of Depth, Number and Type
        QString text;      ///< of Text, and of a wrong cell what was typed
        QColor color;
        bool is_valid = true;
    };

    using Row = std::vector<Cell>;

    explicit BaseTableModel(std::vector<Column> columns, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role = Qt::DisplayRole) const override;
    bool setData(QModelIndex const& index, QVariant const& value, int role = Qt::EditRole) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override;
    bool removeRows(int row, int count, QModelIndex const& parent = {}) override;

    /// `rows` in ascending order; linear in the table's size.
    void RemoveRows(QList<int> const& rows);
    void Clear();

    /// The row's columns between tabs, as a paste reads them.
    [[nodiscard]] QStringList GetRowTexts(int row) const;
    /// @throws std::invalid_argument naming the first wrong cell
    void CheckCells() const;

protected:
    [[nodiscard]] static Cell NumberCell(double number);
    [[nodiscard]] static Cell TextCell(QString const& text);
    [[nodiscard]] static Cell ColorCell(QColor const& color);

    void AppendRows(std::vector<Row> rows);
    [[nodiscard]] std::vector<Row> const& GetRows() const { return rows_; }
    /// Fills the calculated cells anew.
    void Refresh();

    /// Fills the calculated cells; called after every change.
    virtual void Calculate(std::vector<Row>& rows) const;

private:
    /// The text a good cell is shown as.
    [[nodiscard]] QString GetCellText(Column const& column, Cell const& cell) const;
    /// Why the cell is wrong; empty when it is not.
    [[nodiscard]] static QString GetError(Column const& column, Cell const& cell);
    /// Marks the cell if its value is out of bounds.
    static void Validate(Column const& column, Cell& cell);
    [[nodiscard]] static Cell ReadNumber(Column const& column, Cell cell, QString const& text);

    std::vector<Column> columns_;
    std::vector<Row> rows_;
};
