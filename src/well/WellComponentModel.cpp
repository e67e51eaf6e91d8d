// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellComponentModel.h"

WellComponentModel::WellComponentModel(QObject* parent)
    : BaseTableModel({{.heading = "Top", .kind = Kind::Depth},
                      {.heading = "Bottom", .kind = Kind::Depth},
                      {.heading = "Type", .kind = Kind::Type},
                      {.heading = "Description", .kind = Kind::Text}},
                     parent)
{
}

void WellComponentModel::AppendComponents(QList<WellComponent> const& components)
{
    std::vector<Row> rows;
    rows.reserve(components.size());
    for (auto const& component : components) {
        rows.push_back({NumberCell(component.depth.lower), NumberCell(component.depth.upper),
                        NumberCell(static_cast<int>(component.type)), TextCell(component.description)});
    }
    AppendRows(std::move(rows));
}

QList<WellComponent> WellComponentModel::GetComponents() const
{
    CheckCells();
    QList<WellComponent> components;
    components.reserve(rowCount());
    for (auto const& row : GetRows()) {
        components.emplace_back(Interval(row[0].number, row[1].number), row[3].text,
                                static_cast<WellComponentType>(static_cast<int>(row[TYPE_COLUMN].number)));
    }
    return components;
}
