// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/project/ProjectFile.h"

class DataContainer;

/// A project with something of everything, once as a model and once as the bytes of its file, put together
/// without the program's writer.
namespace small_project {
inline constexpr int SURVEY_KEY = 7;
inline constexpr int STORAGE_KEY = 4;

void Fill(DataContainer& container);
[[nodiscard]] project_file::ColumnWindowRecords Windows();

[[nodiscard]] QByteArray Header();
[[nodiscard]] QByteArray Main();
[[nodiscard]] QByteArray Survey();
[[nodiscard]] QByteArray Window();
[[nodiscard]] QByteArray File();
} // namespace small_project
