// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/las/LASDataFileMatrix.h"
#include "formats/las/LasContent.h"
#include "model/HeaderRow.h"
#include "model/LASHeaderSection.h"

#include <QFileInfo>

#include <cstddef>
#include <istream>
#include <map>
#include <set>
#include <string>
#include <vector>

/// A LAS 2.0 or 3.0 file in memory, always in the shape of LAS 2.0: the hand-over object between the sources
/// of logs and the log model, which moves columns and sections out of it. Complete after construction: a file
/// that cannot be loaded whole is an exception. Built on a worker thread, used on the main thread; it shares
/// nothing.
///
/// After loading, each column has as many values as the index, and the curve section one row for each column.
/// A file without rows (no data section, or STEP 0 and no data) loads with empty columns. Copies share the
/// samples.
class LASFile
{
public:
    LASFile() = default;
    /// Loads the file at `path`, bytes in the local encoding.
    /// @throws std::exception; what() is a complete text for the user
    explicit LASFile(std::string const& path);
    /// Loads from an open, seekable stream; `path` only names the file.
    explicit LASFile(std::istream& stream, std::string const& path = {});

    LASFile(LASFile const&) = default;
    LASFile(LASFile&&) = default;
    LASFile& operator=(LASFile const&) = default;
    LASFile& operator=(LASFile&&) = default;
    virtual ~LASFile() = default;

    [[nodiscard]] LASHeaderSection const& GetLASVersion() const { return content_.version; }
    [[nodiscard]] LASHeaderSection& GetLASVersion() { return content_.version; }
    [[nodiscard]] LASHeaderSection const& GetLASWellInfo() const { return content_.well_info; }
    [[nodiscard]] LASHeaderSection& GetLASWellInfo() { return content_.well_info; }
    [[nodiscard]] LASHeaderSection const& GetLASParameterInfo() const { return content_.parameter_info; }
    [[nodiscard]] LASHeaderSection& GetLASParameterInfo() { return content_.parameter_info; }
    /// One row for each data column, in the order of the matrix.
    [[nodiscard]] LASHeaderSection const& GetLASCurveInfo() const { return content_.curve_info; }
    [[nodiscard]] LASHeaderSection& GetLASCurveInfo() { return content_.curve_info; }
    [[nodiscard]] LASHeaderSection const& GetLASOtherInfo() const { return content_.other_info; }
    [[nodiscard]] LASHeaderSection& GetLASOtherInfo() { return content_.other_info; }

    /// Sections of a LAS 3.0 file by name; empty for LAS 2.0.
    [[nodiscard]] HeaderSection const& GetLASWellInfoV3() const { return content_.well_info_v3; }
    [[nodiscard]] std::map<std::string, HeaderSection> const& GetParameterSections() const
    {
        return content_.parameter_sections;
    }
    [[nodiscard]] std::map<std::string, HeaderSection> const& GetDefinitionSections() const
    {
        return content_.definition_sections;
    }

    /// Bases of array channels, such as "RADI" for RADI[1], RADI[2]; never with a bracket.
    [[nodiscard]] std::set<std::string> const& GetArrayMnems() const { return content_.array_mnems; }
    [[nodiscard]] QFileInfo const& GetFileInfo() const { return file_info_; }

    /// Depth or time of each row, in the unit of the index row.
    [[nodiscard]] std::vector<DepthType> const& GetDepthVector() const { return content_.index; }
    [[nodiscard]] std::vector<DepthType>& GetDepthVector() { return content_.index; }
    /// Mnemonic, unit, value and description of the index channel.
    [[nodiscard]] HeaderRow const& GetIndexRow() const { return content_.index_row; }
    [[nodiscard]] HeaderRow& GetIndexRow() { return content_.index_row; }
    /// The samples by column, without the index.
    [[nodiscard]] LASDataFileMatrix const& GetDataMatrix() const { return content_.matrix; }
    [[nodiscard]] LASDataFileMatrix& GetDataMatrix() { return content_.matrix; }

    /// STRT, STOP and STEP of the well section; text that is no number reads as 0.
    /// @throws std::invalid_argument when there is no well section, UndefinedMnem when it lacks the line
    [[nodiscard]] DataValueType GetStartDepth() const { return content_.GetStartDepth(); }
    [[nodiscard]] DataValueType GetStopDepth() const { return content_.GetStopDepth(); }
    [[nodiscard]] DataValueType GetDepthStep() const { return content_.GetDepthStep(); }

    /// The index is named TIME, in any case. Everything else is a depth log.
    [[nodiscard]] bool IsTimeLog() const { return content_.IsTimeLog(); }
    /// The index's unit is "m", in any case. Everything else counts as feet.
    [[nodiscard]] bool IsMetric() const { return content_.IsMetric(); }
    /// A blank, a comma or a tab, by DLM of the version section.
    [[nodiscard]] char GetDelimiter() const { return content_.GetDelimiter(); }
    /// Data columns, the index not counted.
    [[nodiscard]] std::size_t CalculateNumberOfColumns() const { return content_.CalculateNumberOfColumns(); }

private:
    void loadLASFile(std::istream& stream);

    LasContent content_;
    QFileInfo file_info_;
};
