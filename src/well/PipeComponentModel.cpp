// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/PipeComponentModel.h"

namespace {
constexpr int OD_COLUMN = 0;
constexpr int ID_COLUMN = 1;
constexpr int WEIGHT_COLUMN = 2;
constexpr int LENGTH_COLUMN = 3;
constexpr int TOP_COLUMN = 5;
constexpr int BOTTOM_COLUMN = 6;
} // namespace

PipeComponentModel::PipeComponentModel(QObject* parent)
    : BaseTableModel(
          {{.heading = "OD", .kind = Kind::Number, .decimals = 3, .minimum = 0, .may_be_missing = true},
           {.heading = "ID", .kind = Kind::Number, .decimals = 3, .minimum = 0, .may_be_missing = true},
           {.heading = "Weight", .kind = Kind::Number, .decimals = 3, .may_be_missing = true},
           {.heading = "Length", .kind = Kind::Depth, .decimals = 3, .minimum = 0},
           {.heading = "Description", .kind = Kind::Text},
           {.heading = "Top Depth", .kind = Kind::Depth, .is_editable = false, .is_copied = false},
           {.heading = "Btm Depth", .kind = Kind::Depth, .is_editable = false, .is_copied = false}},
          parent)
{
}

void PipeComponentModel::SetSetDepth(double set_depth)
{
    set_depth_ = set_depth;
    Refresh();
}

void PipeComponentModel::AppendComponents(std::vector<PipeComponent> const& components)
{
    std::vector<Row> rows;
    rows.reserve(components.size());
    for (auto const& component : components) {
        rows.push_back({NumberCell(static_cast<double>(component.GetOD())),
                        NumberCell(static_cast<double>(component.GetID())),
                        NumberCell(static_cast<double>(component.GetWeight())),
                        NumberCell(component.GetLength()), TextCell(component.GetDescription())});
    }
    AppendRows(std::move(rows));
}

std::vector<PipeComponent> PipeComponentModel::GetPipeComponents() const
{
    CheckCells();
    std::vector<PipeComponent> components;
    components.reserve(rowCount());
    for (auto const& row : GetRows()) {
        components.emplace_back(static_cast<float>(row[OD_COLUMN].number),
                                static_cast<float>(row[ID_COLUMN].number),
                                static_cast<float>(row[WEIGHT_COLUMN].number), row[LENGTH_COLUMN].number,
                                row[DESCRIPTION_COLUMN].text);
    }
    return components;
}

void PipeComponentModel::Calculate(std::vector<Row>& rows) const
{
    double depth = set_depth_;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        (*row)[BOTTOM_COLUMN].number = depth;
        depth -= (*row)[LENGTH_COLUMN].number;
        (*row)[TOP_COLUMN].number = depth;
    }
}
