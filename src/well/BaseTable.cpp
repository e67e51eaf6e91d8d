// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/BaseTable.h"

#include "app/kit/ProjectText.h"
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
    setItemDelegate(new TextDelegate(this));
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

void BaseTable::InsertNumberItem(int row, int column, QString const& text, double value)
{
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    item->setData(VALUE_ROLE, value);
    item->setData(SHOWN_TEXT_ROLE, text);
    setItem(row, column, item);
}

void BaseTable::InsertFloatItem(int row, int column, float value, int decimals)
{
    InsertNumberItem(row, column, Quorrel::FloatTypeToString(value, decimals, false),
                     static_cast<double>(value));
}

void BaseTable::InsertDepthItem(int row, int column, double metres)
{
    InsertNumberItem(row, column, TableNumber::DepthText(metres), metres);
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

QString BaseTable::ItemToText(int row, int column, bool& ok, QString& text)
{
    QString const cell_text = GetText(row, column);
    auto const message = Quorrel::CheckProjectText(tr("The text in row %1 is").arg(row + 1), cell_text);
    if (item(row, column) != nullptr) {
        ColorCodeItem(row, column, message.isEmpty());
    }
    if (!message.isEmpty()) {
        ok = false;
        AddMessage(text, message);
    }
    return cell_text;
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

void BaseTable::commitData(QWidget* editor)
{
    QTableWidget::commitData(editor);
    auto const* cell = currentItem();
    if (cell != nullptr && cell->data(VALUE_ROLE).isValid()) {
        bool ok = true;
        QString message;
        ReadNumber(cell->row(), cell->column(), false, ok, message);
    }
}

void BaseTable::keyPressEvent(QKeyEvent* event)
{
    if (!HandleKey(*event)) {
        QTableWidget::keyPressEvent(event);
    }
}
