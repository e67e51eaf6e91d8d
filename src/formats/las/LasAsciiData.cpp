// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasAsciiData.h"

#include "formats/las/LasNumber.h"
#include "formats/las/LasResampling.h"
#include "formats/las/LasText.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <stdexcept>
#include <string>

namespace {
constexpr double INDEX_TOLERANCE = 0.001;

/// A number and what separates it from the next one take two bytes at least. (A row of dashes is shorter, but
/// it is no data.)
constexpr std::int64_t BYTES_OF_VALUE = 2;
constexpr std::int64_t BASIC_ALLOWANCE = 32'000'000;
} // namespace

LasAsciiData::LasAsciiData(std::istream& stream, LasContent& content)
    : content_(content),
      buffer_(stream),
      step_(static_cast<double>(content.GetDepthStep())),
      columns_(content.CalculateNumberOfColumns()),
      memory_allowance_(BASIC_ALLOWANCE +
                        4 * std::max<std::int64_t>(0, buffer_.EndPosition() - buffer_.Position())),
      batch_(std::max<std::size_t>(columns_, 1) * ROWS_IN_BATCH)
{
}

void LasAsciiData::LoadAsciiData()
{
    if (step_ != 0.0) {
        expected_rows_ = content_.CalculateNumberOfRows();
    }
    content_.matrix.clear();
    for (std::size_t column = 0; column < columns_; ++column) {
        content_.matrix.push_back(std::make_shared<std::vector<DataValueType>>());
    }
    ReserveRows();
    ReadRows();
    CheckEndOfFile();

    auto const rows = static_cast<long long>(content_.index.size());
    if (step_ != 0.0 && rows != expected_rows_) {
        throw std::runtime_error("Expected number of data-rows: " + std::to_string(expected_rows_) +
                                 "   Actual rows read: " + std::to_string(rows));
    }
    if (rows > 0 && content_.index.front() > content_.index.back()) {
        Quorrel::ReverseVectors(content_.index, content_.matrix);
    }
    if (step_ == 0.0) {
        Quorrel::ResampleDataMatrix(content_.index, content_.matrix);
    }
}

void LasAsciiData::ReserveRows()
{
    // The header may promise anything; the file cannot hold more rows than its length allows.
    std::int64_t const bytes = std::max<std::int64_t>(0, buffer_.EndPosition() - buffer_.Position());
    std::int64_t const most_rows = bytes / (BYTES_OF_VALUE * (static_cast<std::int64_t>(columns_) + 1)) + 1;
    auto const rows = static_cast<std::size_t>(
        step_ != 0.0 ? std::clamp<std::int64_t>(expected_rows_, 0, most_rows) : most_rows);
    content_.index.reserve(rows);
    reserved_rows_ = content_.index.capacity();
    for (auto const& column : content_.matrix) {
        column->reserve(rows);
    }
}

void LasAsciiData::ReadRows()
{
    LasNumber number(buffer_);
    std::vector<DepthType>& index = content_.index;
    std::size_t batch_rows = 0;
    while (buffer_.CheckElements() && FindRow()) {
        if (!number.FindNextNumber()) {
            throw std::runtime_error(
                "Reached end of LAS file before the depth/time(first) column at data-row number: " +
                std::to_string(index.size() + 1));
        }
        double const current = number.ParseFloat();
        if (step_ != 0.0 && !index.empty()) {
            CheckIndex(index.back(), current);
        }
        index.push_back(current);

        std::size_t const read = number.ReadNumbers(batch_.data() + batch_rows, ROWS_IN_BATCH, columns_);
        if (read < columns_) {
            ThrowIncompleteRow(read);
        }
        if (++batch_rows == ROWS_IN_BATCH) {
            AppendBatch(batch_rows);
            batch_rows = 0;
        }
    }
    AppendBatch(batch_rows);
}

bool LasAsciiData::FindRow()
{
    for (;;) {
        char const* cursor = buffer_.Cursor();
        char const* const end = buffer_.End();
        // Bytes above 127 count as negative here, like the control characters below the blank.
        while (cursor != end && static_cast<signed char>(*cursor) <= ' ') {
            ++cursor;
        }
        buffer_.SetCursor(cursor);
        if (cursor == end) {
            if (!buffer_.CheckElements()) {
                return false;
            }
        } else if (*cursor == '#') {
            SkipComment();
        } else {
            return true;
        }
    }
}

void LasAsciiData::SkipComment()
{
    do {
        void const* const line_feed = std::memchr(buffer_.Cursor(), '\n', buffer_.ElementCount());
        if (line_feed != nullptr) {
            buffer_.SetCursor(static_cast<char const*>(line_feed) + 1);
            buffer_.CheckElements();
            return;
        }
        buffer_.SetCursor(buffer_.End());
    } while (buffer_.CheckElements());
}

void LasAsciiData::CheckIndex(double previous, double current) const
{
    if (std::abs(current - previous - step_) > INDEX_TOLERANCE) {
        throw std::runtime_error(
            " Incorrect consecutive index in LAS-File. Consider opening the file in a text "
            "editor, go to the previous index time/depth and look for errors. Previous index: " +
            Quorrel::FixedText(previous) + "   Current index: " + Quorrel::FixedText(current) +
            "  Expected: " + Quorrel::FixedText(previous + step_));
    }
}

void LasAsciiData::AppendBatch(std::size_t rows)
{
    if (content_.index.capacity() != reserved_rows_) {
        // More rows than reserved: the vectors grow, and one of them may exist twice for a moment.
        auto const bytes_of_row =
            static_cast<std::int64_t>(sizeof(DepthType) + sizeof(DataValueType) * columns_);
        if (static_cast<std::int64_t>(content_.index.size()) * bytes_of_row / 2 * 3 > memory_allowance_) {
            throw std::runtime_error(
                "The data section of the file holds more values than its length allows for.");
        }
    }
    DataValueType const* cells = batch_.data();
    for (auto const& column : content_.matrix) {
        column->insert(column->end(), cells, cells + rows);
        cells += ROWS_IN_BATCH;
    }
}

void LasAsciiData::CheckEndOfFile() const
{
    std::int64_t const position = buffer_.Position();
    std::int64_t const end = buffer_.EndPosition();
    if (end >= 0 && position != end) {
        throw std::runtime_error("Stopped reading LAS File at position: " + std::to_string(position) +
                                 "   End-position: " + std::to_string(end) +
                                 "   Unread characters: " + std::to_string(end - position));
    }
}

void LasAsciiData::ThrowIncompleteRow(std::size_t column) const
{
    throw std::runtime_error("Reached end of LAS file in the middle of data conversion in data-row: " +
                             std::to_string(content_.index.size()) + " out of " +
                             std::to_string(expected_rows_) + " - at column: " + std::to_string(column + 1) +
                             " out of " + std::to_string(columns_));
}
