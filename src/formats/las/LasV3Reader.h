// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/las/HeaderSection.h"
#include "formats/las/LASDataFileMatrix.h"
#include "formats/las/LasContent.h"
#include "formats/las/LasLineReader.h"

#include <QRegularExpression>

#include <map>
#include <string>
#include <string_view>
#include <vector>

/// Reads what follows the version section of a LAS 3.0 file and brings it into the shape of LAS 2.0: one data
/// section, the first by name, with its definition as curve section. One object for one file.
class LasV3Reader
{
public:
    /// `lines` and `content` outlive the reader.
    LasV3Reader(LasLineReader& lines, LasContent& content);

    /// @throws std::exception; what() is a complete text for the user
    void LoadV3LasFile();

private:
    [[nodiscard]] HeaderSection LoadHeaderSectionV3();
    void LoadSection(std::string const& section_line);
    void LoadParameterSection(std::string const& name);
    void LoadDefinitionSection(std::string const& name);
    void LoadDataSection(std::string const& name, std::string const& definition_name);

    static void ProcessParameterSection(HeaderSection const& section);
    static void VerifyDefinitionSection(HeaderSection const& section);
    void ProcessDefinitionSection(HeaderSection const& section);
    void FillIndexRow(HeaderSection const& definition);

    [[nodiscard]] LASDataFileMatrix LoadDataSectionV3(std::string const& definition_name);
    /// Cuts the current line into tokens_, at most `columns` of them.
    void CutRow(std::size_t columns);
    void CheckStep(double previous, double current, double step) const;

    void ConvertV3toV2();
    /// A value of the well section; text that is no number is 0. @throws std::bad_optional_access
    [[nodiscard]] double WellNumber(char const* mnemonic) const;

    LasLineReader& lines_;
    LasContent& content_;
    char delimiter_;
    std::vector<std::string_view> tokens_;
    /// The definition each data section was read with, for files that repeat a name.
    std::map<std::string, HeaderSection> definition_of_data_;

    QRegularExpression const parameter_expression_;
    QRegularExpression const definition_expression_;
    std::vector<QRegularExpression> const data_expressions_;
    QRegularExpression const legacy_data_expression_;
};
