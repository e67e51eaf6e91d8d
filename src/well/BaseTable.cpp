// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/BaseTable.h"

#include "app/kit/Quorrel.h"
#include "display/InputStyle.h"
#include "well/NoTableItemError.h"
#include "well/TableNumber.h"
#include "well/TextDelegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {
/// The exact number behind a cell's text, and the text it was shown as; it counts while the text is the same.
constexpr int VALUE_ROLE = Qt::UserRole;
constexpr int SHOWN_TEXT_ROLE = Qt::UserRole + 1;
/// How it is shown: a depth, or the decimals of another number.
constexpr int DECIMALS_ROLE = Qt::UserRole + 2;
constexpr int DEPTH = -1;
/// So much of the messages of one table is shown.
constexpr qsizetype LONGEST_MESSAGE = 1000;

void AddMessage(QString& text, QString const& message)
{
    if (text.size() < LONGEST_MESSAGE) {
        text += message + "\n";
    }
}
} // namespace

BaseTable::BaseTable(QStringList const& headings, QWidget* parent)
    : QTableWidget(0, static_cast<int>(headings.size()), parent)
{
    setHorizontalHeaderLabels(headings);
    SetUpView(*this);
    setItemDelegate(new TextDelegate(this, [this](QModelIndex const& index) { ShowTypedNumber(index); }));
}

int BaseTable::AddRow()
{
    return AddRows(1);
}

int BaseTable::AddRows(qsizetype count)
{
    int const row = rowCount();
    setRowCount(row + static_cast<int>(count));
    return row;
}

void BaseTable::InsertStringItem(int row, int column, QString const& text)
{
    setItem(row, column, new QTableWidgetItem(text));
}

void BaseTable::InsertNumberItem(int row, int column, double value, int decimals)
{
    QString const text = decimals == DEPTH
                             ? TableNumber::DepthText(value)
                             : Quorrel::FloatTypeToString(static_cast<float>(value), decimals, false);
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    item->setData(VALUE_ROLE, value);
    item->setData(SHOWN_TEXT_ROLE, text);
    item->setData(DECIMALS_ROLE, decimals);
    setItem(row, column, item);
}

void BaseTable::InsertFloatItem(int row, int column, float value, int decimals)
{
    InsertNumberItem(row, column, static_cast<double>(value), decimals);
}

void BaseTable::InsertDepthItem(int row, int column, double metres)
{
    InsertNumberItem(row, column, metres, DEPTH);
}

void BaseTable::ColorCodeItem(int row, int column, bool valid)
{
    auto& item = GetItem(row, column);
    QSignalBlocker const blocker(this);
    item.setBackground(valid ? QBrush() : QBrush(Quorrel::INVALID_INPUT_COLOR));
    item.setForeground(valid ? QBrush() : QBrush(Qt::black));
}

QString BaseTable::ParseCopiedText(QString const& text)
{
    return Quorrel::ParseCopiedText(text);
}

QString BaseTable::NumberRegex()
{
    return TableNumber::Pattern();
}

QTableWidgetItem& BaseTable::GetItem(int row, int column) const
{
    auto* found = item(row, column);
    if (found == nullptr) {
        throw NoTableItemError(row, column);
    }
    return *found;
}

double BaseTable::ReadNumber(int row, int column, bool is_depth, bool& ok, QString& text)
{
    auto const& cell = GetItem(row, column);
    QString const shown = cell.text();
    std::optional<double> number;
    if (cell.data(SHOWN_TEXT_ROLE).toString() == shown && cell.data(VALUE_ROLE).isValid()) {
        number = cell.data(VALUE_ROLE).toDouble();
        if (!std::isfinite(*number)) {
            number.reset();
        }
    } else {
        static QString pattern;
        static QRegularExpression expression;
        if (QString const current = NumberRegex(); current != pattern) {
            pattern = current;
            expression.setPattern("\\A" + pattern + "\\z");
        }
        if (expression.match(ParseCopiedText(shown)).hasMatch()) {
            number = is_depth ? TableNumber::ParseDepth(shown) : TableNumber::Parse(shown);
        }
    }
    ColorCodeItem(row, column, number.has_value());
    if (!number) {
        if (ok) {
            scrollToItem(&cell); // the first wrong one
        }
        ok = false;
        AddMessage(text, TableNumber::FormatError(shown));
        return 0;
    }
    return *number;
}

double BaseTable::ItemToDouble(int row, int column, bool& ok, QString& text)
{
    return ReadNumber(row, column, false, ok, text);
}

double BaseTable::ItemToDepth(int row, int column, bool& ok, QString& text)
{
    return ReadNumber(row, column, true, ok, text);
}

QString BaseTable::GetText(int row, int column) const
{
    auto const* cell = item(row, column);
    return cell != nullptr ? cell->text() : QString();
}

QString BaseTable::GetRowText(int row) const
{
    QStringList texts;
    for (int column = 0; column < columnCount(); ++column) {
        texts.push_back(GetText(row, column));
    }
    return JoinColumns(texts);
}

void BaseTable::CopyData() const
{
    CopyRows(*this, [this](int row) { return GetRowText(row); });
}

void BaseTable::DeleteSelectedRows()
{
    QList<int> const rows = GetSelectedRows(*this);
    if (rows.isEmpty()) {
        return;
    }
    if (rows.back() - rows.front() + 1 == rows.size()) {
        model()->removeRows(rows.front(), static_cast<int>(rows.size()));
        return;
    }
    // Many single rows: moving the kept ones up is linear, taking rows out one by one is not.
    int kept = rows.front();
    for (int row = kept; row < rowCount(); ++row) {
        if (!std::binary_search(rows.begin(), rows.end(), row)) {
            for (int column = 0; column < columnCount(); ++column) {
                delete takeItem(kept, column);
                setItem(kept, column, takeItem(row, column));
            }
            ++kept;
        }
    }
    setRowCount(kept);
}

void BaseTable::ShowTypedNumber(QModelIndex const& index)
{
    auto const* cell = item(index.row(), index.column());
    if (cell == nullptr || !cell->data(VALUE_ROLE).isValid()) {
        return;
    }
    int const decimals = cell->data(DECIMALS_ROLE).toInt();
    bool ok = true;
    QString message;
    double const value = ReadNumber(index.row(), index.column(), decimals == DEPTH, ok, message);
    if (ok) {
        InsertNumberItem(index.row(), index.column(), value, decimals);
    }
}

void BaseTable::keyPressEvent(QKeyEvent* event)
{
    if (!HandleKey(*event)) {
        QTableWidget::keyPressEvent(event);
    }
}
