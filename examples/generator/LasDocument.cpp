// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "LasDocument.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace {
constexpr double NULL_VALUE = -999.25;
constexpr int INDEX_DECIMALS = 4;

std::string Number(double value, int decimals)
{
    char text[64];
    double const shown = std::isfinite(value) ? value : NULL_VALUE;
    std::snprintf(text, sizeof(text), "%.*f", std::isfinite(value) ? decimals : INDEX_DECIMALS, shown);
    return text;
}

std::string Padded(std::string text, std::size_t width)
{
    text.resize(std::max(text.size(), width), ' ');
    return text;
}

std::string HeaderText(LasLine const& line)
{
    return Padded(line.mnemonic, 8) + "." + Padded(line.unit, 8) + " " + Padded(line.value, 28) + ": " +
           line.description;
}

std::vector<LasLine> WellSection(LasDocument const& document)
{
    LasColumn const& index = document.columns.front();
    std::vector<LasLine> lines = {
        {"STRT", index.unit, Number(index.values.front(), INDEX_DECIMALS), "First index value"},
        {"STOP", index.unit, Number(index.values.back(), INDEX_DECIMALS), "Last index value"},
        {"STEP", index.unit, Number(document.step, INDEX_DECIMALS), "Index increment"},
        {"NULL", "", Number(NULL_VALUE, INDEX_DECIMALS), "Absent value"}};
    lines.insert(lines.end(), document.well.begin(), document.well.end());
    return lines;
}

void WriteSection(std::ofstream& out, std::string const& title, std::vector<LasLine> const& lines)
{
    out << title << "\n";
    for (LasLine const& line : lines)
        out << HeaderText(line) << "\n";
}

void WriteRows(std::ofstream& out, std::vector<LasColumn> const& columns)
{
    std::vector<int> widths;
    for (LasColumn const& column : columns) {
        std::size_t width = 0;
        for (double const value : column.values)
            width = std::max(width, Number(value, column.decimals).size());
        widths.push_back(static_cast<int>(width) + 1);
    }
    std::string row;
    for (std::size_t i = 0; i < columns.front().values.size(); ++i) {
        row.clear();
        for (std::size_t c = 0; c < columns.size(); ++c) {
            std::string const text = Number(columns[c].values[i], columns[c].decimals);
            row.append(static_cast<std::size_t>(widths[c]) - text.size(), ' ');
            row += text;
        }
        out << row << "\n";
    }
}

std::ofstream Open(std::filesystem::path const& path, LasDocument const& document)
{
    for (LasColumn const& column : document.columns) {
        if (column.values.size() != document.columns.front().values.size())
            throw std::runtime_error("Column " + column.mnemonic + " has another length than the index");
    }
    std::ofstream out(path, std::ios::binary);
    if (!out)
        throw std::runtime_error("Cannot write " + path.string());
    return out;
}

void Close(std::ofstream& out, std::filesystem::path const& path)
{
    out.close();
    if (!out)
        throw std::runtime_error("Cannot write " + path.string());
}
} // namespace

void WriteLas2(std::filesystem::path const& path, LasDocument const& document)
{
    std::ofstream out = Open(path, document);
    WriteSection(out, "~Version Information",
                 {{"VERS", "", "2.0", "CWLS LOG ASCII STANDARD - VERSION 2.0"},
                  {"WRAP", "", "NO", "One line per index step"}});
    WriteSection(out, "~Well Information", WellSection(document));
    WriteSection(out, "~Parameter Information", document.parameters);
    out << "~Curve Information\n";
    int number = 0;
    for (LasColumn const& column : document.columns) {
        std::string const description = std::to_string(++number) + "  " + column.description;
        out << HeaderText({column.mnemonic, column.unit, "", description}) << "\n";
    }
    out << "~Other Information\n";
    for (std::string const& remark : document.remarks)
        out << remark << "\n";
    out << "~A\n";
    WriteRows(out, document.columns);
    Close(out, path);
}

void WriteLas3(std::filesystem::path const& path, LasDocument const& document)
{
    std::ofstream out = Open(path, document);
    WriteSection(out, "~Version",
                 {{"VERS", "", "3.0", "CWLS LOG ASCII STANDARD - VERSION 3.0"},
                  {"WRAP", "", "NO", "One line per index step"},
                  {"DLM", "", "SPACE", "Delimiting character between data columns"}});
    WriteSection(out, "~Well", WellSection(document));
    WriteSection(out, "~Log_Parameter", document.parameters);
    out << "~Log_Definition\n";
    for (LasColumn const& column : document.columns)
        out << HeaderText({column.mnemonic, column.unit, "", column.description + " {F}"}) << "\n";
    out << "~Log_Data | Log_Definition\n";
    WriteRows(out, document.columns);
    Close(out, path);
}
