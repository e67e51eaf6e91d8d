// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DataChannelIdentifier.h"

#include <map>
#include <memory>

class ColumnWindow;

/// The columns of a project by survey key; shares their ownership.
class ColumnWindowMap
{
public:
    ColumnWindowMap();
    ~ColumnWindowMap();
    ColumnWindowMap(ColumnWindowMap const&) = delete;
    ColumnWindowMap& operator=(ColumnWindowMap const&) = delete;

    /// Inserts or replaces; takes ownership of the column.
    void CreateColumnWindow(int survey_id, ColumnWindow* column);
    /// @throws std::out_of_range "map::at" for an unknown key
    void DeleteColumnWindow(int survey_id);
    /// @throws std::out_of_range "map::at" for an unknown key
    [[nodiscard]] ColumnWindow* GetColumnWindow(int survey_id);
    [[nodiscard]] ColumnWindow const* GetColumnWindow(int survey_id) const;

    void HideAll();
    void Clear();
    /// Every column lets go of what depends on the channel, pass or survey (wildcards as in IsDependentOn).
    void DeleteDependencies(DataChannelIdentifier const& identifier);

    /// Ascending by key, for walks over all columns.
    [[nodiscard]] std::map<int, std::shared_ptr<ColumnWindow>> const& GetColumnWindows() const
    {
        return columns_;
    }

private:
    std::map<int, std::shared_ptr<ColumnWindow>> columns_;
};
