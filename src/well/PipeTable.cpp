// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/PipeTable.h"

#include "well/WellTablePaste.h"

#include <QHeaderView>

#include <algorithm>
#include <stdexcept>

namespace {
constexpr int FROM_COLUMN = 0;
constexpr int TO_COLUMN = 1;
constexpr int OD_COLUMN = 2;
constexpr int ID_COLUMN = 3;
constexpr int WEIGHT_COLUMN = 4;
constexpr int TUBING_COLUMN = 5;
constexpr int DESCRIPTION_COLUMN = 6;
} // namespace

PipeTable::PipeTable(QWidget* parent)
    : BaseTable({"From", "To", "OD", "ID", "Weight", "Tubing", "Description"}, parent)
{
    horizontalHeader()->resizeSection(TUBING_COLUMN, 70);
}

void PipeTable::Append(std::vector<Pipe> const& pipes)
{
    int row = AddRows(static_cast<qsizetype>(pipes.size()));
    for (auto const& pipe : pipes) {
        InsertDepthItem(row, FROM_COLUMN, pipe.depth.lower);
        InsertDepthItem(row, TO_COLUMN, pipe.depth.upper);
        InsertFloatItem(row, OD_COLUMN, pipe.od, 3);
        InsertFloatItem(row, ID_COLUMN, pipe.id, 3);
        InsertFloatItem(row, WEIGHT_COLUMN, pipe.weight, 3);
        auto* tubing = new QTableWidgetItem;
        tubing->setFlags((tubing->flags() | Qt::ItemIsUserCheckable) & ~Qt::ItemIsEditable);
        tubing->setCheckState(pipe.is_tubing ? Qt::Checked : Qt::Unchecked);
        setItem(row, TUBING_COLUMN, tubing);
        InsertStringItem(row, DESCRIPTION_COLUMN, pipe.name);
        ++row;
    }
}

void PipeTable::AddRow(Pipe const& pipe)
{
    Append({pipe});
    setCurrentCell(rowCount() - 1, 0);
}

QList<Pipe> PipeTable::GetPipes_OD_Sorted()
{
    QList<Pipe> pipes;
    pipes.reserve(rowCount());
    bool ok = true;
    QString message;
    for (int row = 0; row < rowCount(); ++row) {
        Interval depth;
        depth.lower = ItemToDepth(row, FROM_COLUMN, ok, message);
        depth.upper = ItemToDepth(row, TO_COLUMN, ok, message);
        depth.Sort();
        Pipe pipe;
        pipe.depth = depth;
        pipe.od = static_cast<float>(ItemToDouble(row, OD_COLUMN, ok, message));
        pipe.id = static_cast<float>(ItemToDouble(row, ID_COLUMN, ok, message));
        pipe.weight = static_cast<float>(ItemToDouble(row, WEIGHT_COLUMN, ok, message));
        auto const* tubing = item(row, TUBING_COLUMN);
        pipe.is_tubing = tubing != nullptr && tubing->checkState() == Qt::Checked;
        pipe.name = GetText(row, DESCRIPTION_COLUMN);
        pipes.push_back(pipe);
    }
    if (!ok) {
        throw std::invalid_argument(message.toStdString());
    }
    std::stable_sort(pipes.begin(), pipes.end(), [](Pipe const& a, Pipe const& b) { return a.od < b.od; });
    return pipes;
}

QString PipeTable::GetRowText(int row) const
{
    QStringList texts;
    for (int column = 0; column < columnCount(); ++column) {
        if (column == TUBING_COLUMN) {
            auto const* tubing = item(row, column);
            texts << (tubing != nullptr && tubing->checkState() == Qt::Checked ? "yes" : "no");
        } else {
            texts << GetText(row, column);
        }
    }
    return JoinColumns(texts);
}

void PipeTable::ParsePasteAction()
{
    AppendPasted(*this, WellTablePaste::ReadPipes(GetClipboardText()),
                 tr("No Pipe data found in pasted data. Check number format and try again"),
                 [this](auto const& rows) { Append(rows); });
}
