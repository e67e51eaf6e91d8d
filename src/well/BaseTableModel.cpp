// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/BaseTableModel.h"

#include "app/kit/ProjectText.h"
#include "app/kit/Quorrel.h"
#include "app/kit/ScalarTypes.h"
#include "display/InputStyle.h"
#include "well/TableNumber.h"
#include "well/WellComponentType.h"

#include <QBrush>

#include <cmath>
#include <stdexcept>
#include <utility>

namespace {
bool IsNumber(BaseTableModel::Kind kind)
{
    return kind == BaseTableModel::Kind::Depth || kind == BaseTableModel::Kind::Number;
}

bool IsMissing(BaseTableModel::Column const& column, double number)
{
    return column.may_be_missing && number == static_cast<double>(MISSING_VALUE);
}
} // namespace

BaseTableModel::BaseTableModel(std::vector<Column> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(std::move(columns))
{
}

int BaseTableModel::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int BaseTableModel::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QString BaseTableModel::GetCellText(Column const& column, Cell const& cell) const
{
    switch (column.kind) {
    case Kind::Depth:
        return TableNumber::DepthText(cell.number, column.decimals);
    case Kind::Number:
        return Quorrel::FloatTypeToString(static_cast<float>(cell.number), column.decimals, false);
    case Kind::Text:
        return cell.text;
    case Kind::Color:
        return cell.color.name();
    case Kind::Type:
        return ConvertComponentTypeToName(static_cast<WellComponentType>(cell.number));
    }
    return {};
}

QString BaseTableModel::GetError(Column const& column, Cell const& cell)
{
    if (cell.is_valid) {
        return {};
    }
    if (cell.text.isEmpty() && cell.number < column.minimum) {
        return tr("The number must be at least %1.")
            .arg(Quorrel::FloatTypeToString(static_cast<float>(column.minimum), 0, false));
    }
    return TableNumber::FormatError(cell.text);
}

QVariant BaseTableModel::data(QModelIndex const& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid)) {
        return {};
    }
    auto const& column = columns_[index.column()];
    auto const& cell = rows_[index.row()][index.column()];
    switch (role) {
    case Qt::DisplayRole:
        if (cell.is_valid && IsMissing(column, cell.number)) {
            return QString();
        }
        return cell.is_valid || cell.text.isEmpty() ? GetCellText(column, cell) : cell.text;
    case Qt::EditRole:
        if (column.kind == Kind::Color) {
            return cell.color;
        }
        if (column.kind == Kind::Type) {
            return static_cast<int>(cell.number);
        }
        return data(index, Qt::DisplayRole);
    case Qt::TextAlignmentRole:
        return QVariant((IsNumber(column.kind) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::BackgroundRole:
        return cell.is_valid ? QVariant() : QBrush(Quorrel::INVALID_INPUT_COLOR);
    case Qt::ForegroundRole:
        return cell.is_valid ? QVariant() : QBrush(Qt::black);
    case Qt::ToolTipRole:
        return cell.is_valid ? QVariant() : GetError(column, cell);
    default:
        return {};
    }
}

BaseTableModel::Cell BaseTableModel::ReadNumber(Column const& column, Cell cell, QString const& text)
{
    auto const number = column.kind == Kind::Depth ? TableNumber::ParseDepth(text) : TableNumber::Parse(text);
    cell.is_valid = true;
    cell.text.clear();
    if (number) {
        cell.number = static_cast<double>(*number);
    } else if (column.may_be_missing && text.trimmed().isEmpty()) {
        cell.number = static_cast<double>(MISSING_VALUE);
    } else {
        cell.is_valid = false;
        cell.text = text;
    }
    return cell;
}

void BaseTableModel::Validate(Column const& column, Cell& cell)
{
    if (cell.is_valid && IsNumber(column.kind) && column.is_editable && !IsMissing(column, cell.number)) {
        cell.is_valid = std::isfinite(cell.number) && cell.number >= column.minimum;
        if (!std::isfinite(cell.number)) {
            cell.text = Quorrel::FloatTypeToString(static_cast<float>(cell.number), 2, false);
        }
    }
}

bool BaseTableModel::setData(QModelIndex const& index, QVariant const& value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable)) {
        return false;
    }
    auto const& column = columns_[index.column()];
    auto& cell = rows_[index.row()][index.column()];
    switch (column.kind) {
    case Kind::Depth:
    case Kind::Number:
        if (value.toString() == data(index, Qt::DisplayRole).toString()) {
            return true; // the exact value stays
        }
        cell = ReadNumber(column, cell, value.toString());
        break;
    case Kind::Text:
        if (!Quorrel::FitsProjectFile(value.toString())) {
            return false;
        }
        cell = TextCell(value.toString());
        break;
    case Kind::Color:
        if (!value.value<QColor>().isValid()) {
            return false;
        }
        cell = ColorCell(value.value<QColor>());
        break;
    case Kind::Type:
        cell = NumberCell(value.toInt());
        break;
    }
    Validate(column, cell);
    emit dataChanged(index, index);
    Refresh();
    return true;
}

QVariant BaseTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 && section < columnCount()) {
        return columns_[section].heading;
    }
    return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags BaseTableModel::flags(QModelIndex const& index) const
{
    auto flags = QAbstractTableModel::flags(index);
    if (index.isValid() && columns_[index.column()].is_editable) {
        flags |= Qt::ItemIsEditable;
    }
    return flags;
}

bool BaseTableModel::removeRows(int row, int count, QModelIndex const& parent)
{
    if (parent.isValid() || row < 0 || count < 1 || count > rowCount() - row) {
        return false;
    }
    beginRemoveRows({}, row, row + count - 1);
    rows_.erase(rows_.begin() + row, rows_.begin() + row + count);
    endRemoveRows();
    Refresh();
    return true;
}

void BaseTableModel::RemoveRows(QList<int> const& rows)
{
    if (rows.isEmpty()) {
        return;
    }
    if (rows.back() - rows.front() + 1 == rows.size()) {
        removeRows(rows.front(), static_cast<int>(rows.size()));
        return;
    }
    beginResetModel();
    std::vector<Row> kept;
    kept.reserve(rows_.size() - rows.size());
    auto removed = rows.cbegin();
    for (int row = 0; row < rowCount(); ++row) {
        if (removed != rows.cend() && *removed == row) {
            ++removed;
        } else {
            kept.push_back(std::move(rows_[row]));
        }
    }
    rows_ = std::move(kept);
    Calculate(rows_);
    endResetModel();
}

void BaseTableModel::Clear()
{
    beginResetModel();
    rows_.clear();
    endResetModel();
}

void BaseTableModel::AppendRows(std::vector<Row> rows)
{
    if (rows.empty()) {
        return;
    }
    int const first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
    for (auto& row : rows) {
        row.resize(columns_.size());
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            Validate(columns_[column], row[column]);
        }
        rows_.push_back(std::move(row));
    }
    endInsertRows();
    Refresh();
}

void BaseTableModel::Calculate([[maybe_unused]] std::vector<Row>& rows) const {}

void BaseTableModel::Refresh()
{
    if (rows_.empty()) {
        return;
    }
    Calculate(rows_);
    for (int column = 0; column < columnCount(); ++column) {
        if (!columns_[column].is_editable) {
            emit dataChanged(index(0, column), index(rowCount() - 1, column));
        }
    }
}

QStringList BaseTableModel::GetRowTexts(int row) const
{
    QStringList texts;
    for (int column = 0; column < columnCount(); ++column) {
        if (columns_[column].is_copied) {
            auto const& cell = rows_[row][column];
            bool const is_type = columns_[column].kind == Kind::Type;
            texts.push_back(is_type         ? QString::number(static_cast<int>(cell.number))
                            : cell.is_valid ? GetCellText(columns_[column], cell)
                                            : data(index(row, column)).toString());
        }
    }
    return texts;
}

void BaseTableModel::CheckCells() const
{
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < columnCount(); ++column) {
            auto const& cell = rows_[row][column];
            if (!cell.is_valid) {
                QString const message = tr("Row %1, \"%2\": ").arg(row + 1).arg(columns_[column].heading) +
                                        GetError(columns_[column], cell);
                throw std::invalid_argument(message.toStdString());
            }
        }
    }
}

BaseTableModel::Cell BaseTableModel::NumberCell(double number)
{
    Cell cell;
    cell.number = number;
    return cell;
}

BaseTableModel::Cell BaseTableModel::TextCell(QString const& text)
{
    Cell cell;
    cell.text = text;
    return cell;
}

BaseTableModel::Cell BaseTableModel::ColorCell(QColor const& color)
{
    Cell cell;
    cell.color = color;
    return cell;
}
