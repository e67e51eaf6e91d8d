// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/project/ViewRecords.h"

#include <QString>

#include <map>
#include <memory>

class DataContainer;

/// A whole project to and from its file. Both may run on a worker thread, while nothing else touches the
/// container.
namespace project_file {
using ColumnWindowRecords = std::map<int, COLUMN_WINDOW_Struct>;

/// Writes model and windows to `path`, replacing an older file safely: to a temporary file beside it, flushed
/// to the disk and then renamed; directly where neither is possible. `windows` has a record for each survey
/// (a missing one counts as empty). @throws std::exception when the project could not be written whole
void Save(QString const& path, DataContainer const& container, ColumnWindowRecords const& windows,
          int current_survey_key);

struct LoadedProject
{
    std::shared_ptr<ColumnWindowRecords> windows = std::make_shared<ColumnWindowRecords>();
    int current_survey_key = -1;
};

/// Fills the empty container. @throws std::exception; what was read before the failure stays in the container
[[nodiscard]] LoadedProject Load(QString const& path, DataContainer& container);
} // namespace project_file
