// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DirectionalSurveyTable.h"

#include "well/WellTablePaste.h"

#include <QHeaderView>

#include <stdexcept>

DirectionalSurveyTable::DirectionalSurveyTable(QWidget* parent)
    : BaseTable({"MD", "Inclination", "Azimuth"}, parent)
{
    horizontalHeader()->setStretchLastSection(false);
}

void DirectionalSurveyTable::AssignSurveyItemVector(std::vector<DirectionalSurveyItem> const& stations)
{
    setRowCount(0);
    Append(stations);
}

void DirectionalSurveyTable::Append(std::vector<DirectionalSurveyItem> const& stations)
{
    int row = AddRows(static_cast<qsizetype>(stations.size()));
    for (auto const& station : stations) {
        InsertDepthItem(row, 0, static_cast<double>(station.measured_depth));
        InsertFloatItem(row, 1, station.inclination, 2);
        InsertFloatItem(row, 2, station.azimuth, 2);
        ++row;
    }
}

void DirectionalSurveyTable::AddSurveyItem(DirectionalSurveyItem const& station)
{
    Append({station});
    setCurrentCell(rowCount() - 1, 0);
}

std::vector<DirectionalSurveyItem> DirectionalSurveyTable::GetSurveyVector()
{
    std::vector<DirectionalSurveyItem> stations;
    stations.reserve(rowCount());
    bool ok = true;
    QString message;
    for (int row = 0; row < rowCount(); ++row) {
        auto const depth = static_cast<float>(ItemToDepth(row, 0, ok, message));
        auto const inclination = static_cast<float>(ItemToDouble(row, 1, ok, message));
        auto const azimuth = static_cast<float>(ItemToDouble(row, 2, ok, message));
        stations.emplace_back(depth, inclination, azimuth);
    }
    if (!ok) {
        throw std::invalid_argument(message.toStdString());
    }
    return stations;
}

void DirectionalSurveyTable::ParsePasteAction()
{
    AppendPasted(*this, WellTablePaste::ReadSurvey(GetClipboardText()),
                 tr("No survey data found in pasted data. Check number format and try again"),
                 [this](auto const& rows) { Append(rows); });
}
