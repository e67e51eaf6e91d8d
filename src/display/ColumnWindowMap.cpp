// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnWindowMap.h"

#include "display/ColumnWindow.h"

ColumnWindowMap::ColumnWindowMap() = default;
ColumnWindowMap::~ColumnWindowMap() = default;

void ColumnWindowMap::CreateColumnWindow(int survey_id, ColumnWindow* column)
{
    columns_.insert_or_assign(survey_id, std::shared_ptr<ColumnWindow>(column));
}

void ColumnWindowMap::DeleteColumnWindow(int survey_id)
{
    static_cast<void>(columns_.at(survey_id));
    columns_.erase(survey_id);
}

ColumnWindow* ColumnWindowMap::GetColumnWindow(int survey_id)
{
    return columns_.at(survey_id).get();
}

ColumnWindow const* ColumnWindowMap::GetColumnWindow(int survey_id) const
{
    return columns_.at(survey_id).get();
}

void ColumnWindowMap::HideAll()
{
    for (auto const& [key, column] : columns_) {
        column->hide();
    }
}

void ColumnWindowMap::Clear()
{
    columns_.clear();
}

void ColumnWindowMap::DeleteDependencies(DataChannelIdentifier const& identifier)
{
    for (auto const& [key, column] : columns_) {
        column->DeleteDependencies(identifier);
    }
}
