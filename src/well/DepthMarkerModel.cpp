// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DepthMarkerModel.h"

DepthMarkerModel::DepthMarkerModel(QObject* parent)
    : BaseTableModel({{.heading = "Depth", .kind = Kind::Depth}, {.heading = "Text", .kind = Kind::Text}},
                     parent)
{
}

void DepthMarkerModel::AppendMarkers(QList<DepthMarker> const& markers)
{
    std::vector<Row> rows;
    rows.reserve(markers.size());
    for (auto const& marker : markers) {
        rows.push_back({NumberCell(static_cast<double>(marker.depth)), TextCell(marker.text)});
    }
    AppendRows(std::move(rows));
}

QList<DepthMarker> DepthMarkerModel::GetMarkers() const
{
    CheckCells();
    QList<DepthMarker> markers;
    markers.reserve(rowCount());
    for (auto const& row : GetRows()) {
        markers.emplace_back(static_cast<float>(row[0].number), row[1].text);
    }
    return markers;
}
