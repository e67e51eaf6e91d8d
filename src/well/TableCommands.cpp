// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/TableCommands.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTableView>

#include <algorithm>

bool TableCommands::HandleKey(QKeyEvent const& event)
{
    auto const modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::ControlModifier && event.key() == Qt::Key_C) {
        CopyData();
    } else if (modifiers == Qt::ControlModifier && event.key() == Qt::Key_V) {
        ParsePasteAction();
    } else if (modifiers == Qt::NoModifier && event.key() == Qt::Key_Delete) {
        DeleteSelectedRows();
    } else {
        return false;
    }
    return true;
}

void TableCommands::SetUpView(QTableView& view)
{
    view.setSelectionBehavior(QAbstractItemView::SelectRows);
    view.setAlternatingRowColors(true);
    view.setWordWrap(false);
    view.horizontalHeader()->setStretchLastSection(true);
    view.horizontalHeader()->setDefaultSectionSize(95);
    view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + 8);
    view.horizontalHeader()->setHighlightSections(false);
}

void TableCommands::StretchColumn(QTableView& view, int column)
{
    view.horizontalHeader()->setStretchLastSection(false);
    view.horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
}

QList<int> TableCommands::GetSelectedRows(QTableView const& view)
{
    QList<int> rows;
    for (auto const& range : view.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            rows.push_back(row);
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void TableCommands::CopyRows(QTableView const& view, std::function<QString(int row)> const& row_text)
{
    QStringList lines;
    for (int const row : GetSelectedRows(view)) {
        lines.push_back(row_text(row));
    }
    if (!lines.isEmpty()) {
        QApplication::clipboard()->setText(lines.join('\n'));
    }
}

QString TableCommands::JoinColumns(QStringList texts)
{
    for (auto& text : texts) {
        text.replace('\t', ' ').replace('\r', ' ').replace('\n', ' ');
    }
    return texts.join('\t');
}

QString TableCommands::GetClipboardText()
{
    return QApplication::clipboard()->text();
}

bool TableCommands::ConfirmPaste(QTableView& view, PasteReport const& report, qsizetype new_rows,
                                 QString const& nothing_matched, ErrorAnswer const& ask)
{
    if (report.too_many || view.model()->rowCount() + new_rows > PasteReport::MAXIMUM_ROWS) {
        ShowPasteError(
            view,
            QObject::tr("A table holds at most %1 rows. Nothing was pasted.").arg(PasteReport::MAXIMUM_ROWS));
        return false;
    }
    if (!report.matched) {
        ShowPasteError(view, nothing_matched);
        return false;
    }
    if (ask) {
        return ask(report);
    }
    if (!report.errors.isEmpty()) {
        ShowPasteError(view, report.GetErrorTexts().join('\n'));
    }
    return true;
}

void TableCommands::ShowLastRows(QTableView& view, int count)
{
    auto const& model = *view.model();
    auto const first = model.index(model.rowCount() - count, 0);
    view.setCurrentIndex(first);
    view.selectionModel()->select(
        QItemSelection(first, model.index(model.rowCount() - 1, model.columnCount() - 1)),
        QItemSelectionModel::ClearAndSelect);
    view.scrollTo(model.index(model.rowCount() - 1, 0));
    view.scrollTo(first);
}

void TableCommands::ShowPasteError(QTableView& view, QString const& text)
{
    QMessageBox box(QMessageBox::Warning, QObject::tr("Paste"), text, QMessageBox::Ok, &view);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
