// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/las/HeaderSection.h"
#include "formats/las/LASDataFileMatrix.h"
#include "model/HeaderRow.h"
#include "model/LASHeaderSection.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

/// Name under which the ~Curve section of a LAS 3.0 file is kept.
inline constexpr char const* LEGACY_CURVE_SECTION_NAME = "Curve";

/// Everything a LAS file says, as its readers fill it in. LASFile is what the rest of the program sees of it.
struct LasContent
{
    LASHeaderSection version;
    LASHeaderSection well_info;
    LASHeaderSection parameter_info;
    /// One row for each data column; the index's row is taken out.
    LASHeaderSection curve_info;
    LASHeaderSection other_info;

    /// Sections of a LAS 3.0 file by name; empty for LAS 2.0.
    HeaderSection well_info_v3;
    std::map<std::string, HeaderSection> parameter_sections;
    std::map<std::string, HeaderSection> definition_sections;
    /// Index column included. The section in use has been moved to `matrix`.
    std::map<std::string, LASDataFileMatrix> data_sections;
    std::map<std::string, std::string> data_to_definition;

    /// Bases of channels that are elements of an array, such as "RADI" for RADI[1], RADI[2].
    std::set<std::string> array_mnems;

    /// Depth or time of each row, in the file's unit.
    std::vector<DepthType> index;
    HeaderRow index_row;
    LASDataFileMatrix matrix;

    /// STRT, STOP and STEP of the well section; text that is no number reads as 0.
    /// @throws std::invalid_argument when there is no well section, UndefinedMnem when it lacks the line
    [[nodiscard]] DataValueType GetStartDepth() const;
    [[nodiscard]] DataValueType GetStopDepth() const;
    [[nodiscard]] DataValueType GetDepthStep() const;

    [[nodiscard]] bool IsTimeLog() const;
    [[nodiscard]] bool IsMetric() const;
    /// What stands between the columns: a blank also for a file that does not say.
    [[nodiscard]] char GetDelimiter() const;
    /// Data columns, the index not counted.
    [[nodiscard]] std::size_t CalculateNumberOfColumns() const { return curve_info.size(); }
    /// Rows by STRT, STOP and a STEP other than 0, in single precision. As large as the header wants it.
    /// @throws std::invalid_argument when it is negative
    [[nodiscard]] long long CalculateNumberOfRows() const;
};
