// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/las/FileBuffer.h"
#include "formats/las/LasContent.h"

#include <cstddef>
#include <cstdint>
#include <istream>
#include <vector>

/// Reads the data section of a LAS 2.0 file, which is one stream of numbers up to the end of the file: line
/// feeds mean nothing but the end of a comment, so wrapped rows read like unwrapped ones.
class LasAsciiData
{
public:
    /// Reads from the stream's position on into the index and the matrix of `content`, whose header sections
    /// say what to expect.
    LasAsciiData(std::istream& stream, LasContent& content);

    /// Ends with an ascending index; with a regular one where STEP is 0.
    /// @throws std::exception; what() is a complete text for the user
    void LoadAsciiData();

private:
    /// Rows that are collected before they are appended to the columns.
    static constexpr std::size_t ROWS_IN_BATCH = 64;

    void ReserveRows();
    void ReadRows();
    /// Passes over blanks and comments in front of a row; false at the end of the file.
    bool FindRow();
    void SkipComment();
    void CheckIndex(double previous, double current) const;
    void AppendBatch(std::size_t rows);
    void CheckEndOfFile() const;
    [[noreturn]] void ThrowIncompleteRow(std::size_t column) const;

    LasContent& content_;
    FileBuffer buffer_;
    double step_;
    std::size_t columns_;
    long long expected_rows_ = 0;
    std::size_t reserved_rows_ = 0;
    /// What index and columns may take together, in bytes.
    std::int64_t memory_allowance_;
    /// One run of ROWS_IN_BATCH values for each column.
    std::vector<DataValueType> batch_;
};
