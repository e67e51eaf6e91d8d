// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ZoneModel.h"

ZoneModel::ZoneModel(QObject* parent)
    : BaseTableModel({{.heading = "Top", .kind = Kind::Depth},
                      {.heading = "Bottom", .kind = Kind::Depth},
                      {.heading = "Length", .kind = Kind::Depth, .is_editable = false, .is_copied = false},
                      {.heading = "Description", .kind = Kind::Text},
                      {.heading = "Color", .kind = Kind::Color}},
                     parent)
{
}

void ZoneModel::AppendZones(QList<Zone> const& zones)
{
    std::vector<Row> rows;
    rows.reserve(zones.size());
    for (auto const& zone : zones) {
        rows.push_back({NumberCell(zone.GetDepth().lower), NumberCell(zone.GetDepth().upper), Cell(),
                        TextCell(zone.GetDescription()), ColorCell(zone.GetColor())});
    }
    AppendRows(std::move(rows));
}

QList<Zone> ZoneModel::GetZones() const
{
    CheckCells();
    QList<Zone> zones;
    zones.reserve(rowCount());
    for (auto const& row : GetRows()) {
        zones.emplace_back(Interval(row[0].number, row[1].number), row[DESCRIPTION_COLUMN].text,
                           row[COLOR_COLUMN].color);
    }
    return zones;
}

void ZoneModel::Calculate(std::vector<Row>& rows) const
{
    for (auto& row : rows) {
        row[2].number = row[1].number - row[0].number;
    }
}
