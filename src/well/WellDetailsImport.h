// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class ProjectAccess;
class WellDetailsImporter;

/// Which data of a well details file to take.
struct WellDetailsChoice
{
    bool inclination = false;
    bool perforations = false;
    bool pipe_strings = false;
    bool components = false;
    bool replace = false; ///< in place of what is there, otherwise in addition to it
};

/// The way of a well details file into the project.
namespace WellDetailsImport {
/// What is chosen and present in the file. In addition means: stations are inserted (one that is there
/// already is left out) and the tie-in stays; the other lists are appended. The well's name is taken when the
/// file has one.
void Apply(ProjectAccess& project, WellDetailsImporter const& importer, WellDetailsChoice const& choice);

/// A message when the file holds what no well and no project file can: a text too long, or more of
/// something than the well details can show. Otherwise empty.
[[nodiscard]] QString Check(WellDetailsImporter const& importer);
} // namespace WellDetailsImport
