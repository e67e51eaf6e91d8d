// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasV3Reader.h"

#include "formats/las/LasResampling.h"
#include "formats/las/LasText.h"

#include <charconv>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace {
constexpr double STEP_TOLERANCE = 0.0001;

/// Longer lines name no section; searching in them could take long.
constexpr std::size_t LONGEST_SECTION_LINE = 4096;

/// The number that a token of the data is. @throws std::logic_error for anything else, infinite numbers
/// included
double DataNumber(std::string_view token)
{
    std::string_view const digits = token.starts_with('+') ? token.substr(1) : token;
    double value = 0.0;
    auto const [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    bool const is_too_small = error == std::errc::result_out_of_range &&
                              digits.find_first_of("eE") != std::string_view::npos &&
                              digits[digits.find_first_of("eE") + 1] == '-';
    bool const is_number = end == digits.data() + digits.size() && (error == std::errc() || is_too_small);
    if (!is_number || !std::isfinite(static_cast<DataValueType>(value))) {
        throw std::logic_error(Quorrel::InvalidValueText(token));
    }
    return value;
}
} // namespace

LasV3Reader::LasV3Reader(LasLineReader& lines, LasContent& content)
    : lines_(lines),
      content_(content),
      delimiter_(content.GetDelimiter()),
      parameter_expression_("^\\~([^\\|\\s]*_Parameter(?:\\[\\d\\])?)$"),
      definition_expression_("^\\~([^\\|\\s]*_Definition(?:\\[\\d\\])?)$"),
      data_expressions_{QRegularExpression("\\~(.*_Data(?:\\[\\d\\])?)\\s*\\|\\s*(\\S*)$"),
                        QRegularExpression("\\~(ASCII)\\s*\\|\\s*(\\S*)$"),
                        QRegularExpression("\\~(Ascii)\\s*\\|\\s*(\\S*)$")},
      legacy_data_expression_("\\~\\b(ascii)\\b", QRegularExpression::CaseInsensitiveOption)
{
}

void LasV3Reader::LoadV3LasFile()
{
    // The second section is the well section, whatever its name.
    lines_.FindNextSection();
    content_.well_info_v3 = LoadHeaderSectionV3();
    for (std::string line = lines_.FindNextSection(); !line.empty(); line = lines_.FindNextSection()) {
        if (line.size() <= LONGEST_SECTION_LINE) {
            LoadSection(line);
        }
    }
    ConvertV3toV2();
}

HeaderSection LasV3Reader::LoadHeaderSectionV3()
{
    HeaderSection section;
    while (lines_.NextSectionLine()) {
        section.push_back(ParameterDataLine(std::string(lines_.Line())));
    }
    return section;
}

void LasV3Reader::LoadSection(std::string const& section_line)
{
    QString const line =
        QString::fromLatin1(section_line.data(), static_cast<qsizetype>(section_line.size()));
    auto const name = [](QRegularExpressionMatch const& match, int group) {
        return match.captured(group).toStdString();
    };
    if (auto const match = parameter_expression_.match(line); match.hasMatch()) {
        LoadParameterSection(name(match, 1));
        return;
    }
    if (auto const match = definition_expression_.match(line); match.hasMatch()) {
        LoadDefinitionSection(name(match, 1));
        return;
    }
    for (QRegularExpression const& expression : data_expressions_) {
        if (auto const match = expression.match(line); match.hasMatch()) {
            LoadDataSection(name(match, 1), name(match, 2));
            return;
        }
    }
    if (auto const match = legacy_data_expression_.match(line); match.hasMatch()) {
        LoadDataSection(name(match, 1), LEGACY_CURVE_SECTION_NAME);
    } else if (line.startsWith(QLatin1String("~parameter"), Qt::CaseInsensitive)) {
        content_.parameter_sections.insert_or_assign("parameter", LoadHeaderSectionV3());
    } else if (line.startsWith(QLatin1String("~curve"), Qt::CaseInsensitive)) {
        LoadDefinitionSection(LEGACY_CURVE_SECTION_NAME);
    }
}

void LasV3Reader::LoadParameterSection(std::string const& name)
{
    HeaderSection section = LoadHeaderSectionV3();
    ProcessParameterSection(section);
    content_.parameter_sections.insert_or_assign(name, std::move(section));
}

void LasV3Reader::ProcessParameterSection(HeaderSection const& section)
{
    for (ParameterDataLine const& line : section) {
        if (line.GetMnem() == QLatin1String("RUNS") && Quorrel::LenientNumber(line.GetValue()) > 1.0) {
            throw std::runtime_error(
                "Quorrel only supports LAS V.3 files containing one run. Actual runs in file: " +
                line.GetValue().toStdString());
        }
    }
}

void LasV3Reader::LoadDefinitionSection(std::string const& name)
{
    HeaderSection section = LoadHeaderSectionV3();
    VerifyDefinitionSection(section);
    ProcessDefinitionSection(section);
    content_.definition_sections.insert_or_assign(name, std::move(section));
}

void LasV3Reader::VerifyDefinitionSection(HeaderSection const& section)
{
    for (ParameterDataLine const& line : section) {
        if (line.GetFormat().startsWith(u'S') || line.GetFormat().startsWith(QLatin1String("AS"))) {
            throw std::runtime_error("String format{S} for logging data-columns not supported");
        }
    }
}

void LasV3Reader::ProcessDefinitionSection(HeaderSection const& section)
{
    FillIndexRow(section);
    for (ParameterDataLine const& line : section) {
        if (line.GetFormat().startsWith(u'A')) {
            content_.array_mnems.insert(line.GetMnem().section(u'[', 0, 0).toStdString());
        }
    }
}

void LasV3Reader::FillIndexRow(HeaderSection const& definition)
{
    if (definition.size() > 0) {
        ParameterDataLine const& line = definition.at(0);
        content_.index_row = {line.GetMnem(), line.GetUnit(), line.GetValue(), line.GetDescription()};
    }
}

void LasV3Reader::LoadDataSection(std::string const& name, std::string const& definition_name)
{
    LASDataFileMatrix matrix = LoadDataSectionV3(definition_name);
    // Of sections with the same name the first one counts.
    if (content_.data_to_definition.try_emplace(name, definition_name).second) {
        content_.data_sections.emplace(name, std::move(matrix));
        definition_of_data_.emplace(name, content_.definition_sections.at(definition_name));
    }
}

double LasV3Reader::WellNumber(char const* mnemonic) const
{
    return Quorrel::LenientNumber(
        content_.well_info_v3.GetParameterLine(QString::fromLatin1(mnemonic)).value().GetValue());
}

LASDataFileMatrix LasV3Reader::LoadDataSectionV3(std::string const& definition_name)
{
    auto const definition = content_.definition_sections.find(definition_name);
    if (definition == content_.definition_sections.end()) {
        throw std::invalid_argument(
            "LASDataFileMatrix LASFile::LoadDataSectionV3(std::ifstream&, std::string) "
            "Unknown definition for LAS v3 file: " +
            definition_name);
    }
    FillIndexRow(definition->second);
    double const start = WellNumber("STRT");
    double const stop = WellNumber("STOP");
    double const step = WellNumber("STEP");
    long long const expected_rows = step != 0.0 ? Quorrel::RoundedRowCount((stop - start) / step + 1.0) : 0;

    LASDataFileMatrix matrix;
    for (std::size_t column = 0; column < definition->second.size(); ++column) {
        matrix.push_back(std::make_shared<std::vector<DataValueType>>());
    }

    long long rows = 0;
    double previous = 0.0;
    bool has_empty_line = false;
    while (lines_.Next()) {
        std::string_view const line = lines_.Line();
        if (line.starts_with('~')) {
            lines_.GiveBack();
            break;
        }
        if (line.empty() || (rows == 0 && line.starts_with('#'))) {
            has_empty_line = rows > 0;
            continue;
        }
        // Empty lines may only end the rows; one between them is a row without values.
        CutRow(has_empty_line ? 0 : matrix.size());
        if (has_empty_line || tokens_.size() < matrix.size()) {
            throw std::runtime_error("Expected number of columns are: " + std::to_string(matrix.size()) +
                                     " Actual number of columns are: " + std::to_string(tokens_.size()));
        }
        ++rows;
        for (std::size_t column = 0; column < matrix.size(); ++column) {
            double const value = DataNumber(tokens_[column]);
            matrix[column]->push_back(static_cast<DataValueType>(value));
            if (column == 0) {
                if (step != 0.0 && rows > 1) {
                    CheckStep(previous, value, step);
                }
                previous = value;
            }
        }
    }
    if (step > 0.0 && rows != expected_rows) {
        throw std::runtime_error("Did not read expected number of rows: Expected: " +
                                 std::to_string(expected_rows) + "    Actual: " + std::to_string(rows));
    }
    return matrix;
}

void LasV3Reader::CutRow(std::size_t columns)
{
    tokens_.clear();
    std::string_view rest = lines_.Line();
    while (tokens_.size() < columns && !rest.empty()) {
        std::size_t const end = delimiter_ == ' ' ? rest.find_first_of(" \t") : rest.find(delimiter_);
        tokens_.push_back(Quorrel::TrimmedLasText(rest.substr(0, end)));
        if (end == std::string_view::npos) {
            return;
        }
        rest.remove_prefix(end + 1);
        if (delimiter_ == ' ') {
            rest = Quorrel::TrimmedLasText(rest);
        }
    }
}

void LasV3Reader::CheckStep(double previous, double current, double step) const
{
    double const difference = current - previous;
    if (std::abs(difference - step) > STEP_TOLERANCE) {
        std::string const unit = content_.IsMetric() ? "m" : "ft";
        throw std::runtime_error("At depth: " + Quorrel::FixedText(current) +
                                 " - Expected STEP is: " + Quorrel::FixedText(step) + " " + unit +
                                 " Actual STEP is: " + Quorrel::FixedText(difference) + " " + unit);
    }
}

void LasV3Reader::ConvertV3toV2()
{
    if (content_.data_to_definition.empty()) {
        throw std::runtime_error("The LAS V.3 file has no data section");
    }
    content_.well_info = content_.well_info_v3.ConvertToV2();

    std::string const& data_name = content_.data_to_definition.begin()->first;
    HeaderSection const& definition = definition_of_data_.at(data_name);
    if (definition.size() == 0) {
        throw std::runtime_error("The definition section of the LAS V.3 file's data section \"" + data_name +
                                 "\" is empty");
    }
    FillIndexRow(definition);
    content_.curve_info = definition.ConvertToV2();
    content_.curve_info.delete_element(0);

    auto const data = content_.data_sections.find(data_name);
    content_.matrix = std::move(data->second);
    content_.data_sections.erase(data);
    content_.index.assign(content_.matrix.front()->begin(), content_.matrix.front()->end());
    content_.matrix.erase(content_.matrix.begin());

    auto const parameters = content_.parameter_sections.lower_bound("Log_Parameter");
    if (parameters != content_.parameter_sections.end() && parameters->first.starts_with("Log_Parameter")) {
        content_.parameter_info = parameters->second.ConvertToV2();
    }

    if (!content_.index.empty() && content_.index.front() > content_.index.back()) {
        Quorrel::ReverseVectors(content_.index, content_.matrix);
    }
    if (WellNumber("STEP") == 0.0) {
        Quorrel::ResampleDataMatrix(content_.index, content_.matrix);
    }
}
