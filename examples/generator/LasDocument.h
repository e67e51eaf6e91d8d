// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// One line of a header section.
struct LasLine
{
    std::string mnemonic;
    std::string unit;
    std::string value;
    std::string description;
};

/// One column of the data section. A sample that is not finite is written as the null value.
struct LasColumn
{
    std::string mnemonic;
    std::string unit;
    std::string description;
    int decimals = 3;
    std::vector<double> values;
};

/// What one file holds, the index as the first column. STRT, STOP, STEP and NULL are made from it.
struct LasDocument
{
    std::vector<LasLine> well;
    std::vector<LasLine> parameters;
    std::vector<std::string> remarks;
    double step = 0;
    std::vector<LasColumn> columns;
};

/// Writes LAS 2.0, unwrapped, numbers without exponent. Throws std::runtime_error.
void WriteLas2(std::filesystem::path const& path, LasDocument const& document);

/// Writes LAS 3.0 with one Log_Definition and its Log_Data section. Throws std::runtime_error.
void WriteLas3(std::filesystem::path const& path, LasDocument const& document);
