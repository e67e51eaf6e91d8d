// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <istream>
#include <string>
#include <string_view>

/// Reads a LAS file line by line and cuts it into sections, which begin with "~". The stream stands behind
/// the line that was read last, so that another reader can go on from there.
class LasLineReader
{
public:
    /// The stream must outlive the reader.
    explicit LasLineReader(std::istream& stream);

    /// Reads the next line; false at the end of the stream.
    bool Next();
    /// The line read last, without white space at both ends; valid until the next call of Next.
    [[nodiscard]] std::string_view Line() const { return line_; }
    /// Lets the next call of Next deliver the same line again.
    void GiveBack() { is_given_back_ = true; }

    /// Passes over all lines up to one that begins with "~" and returns that; empty at the end of the stream.
    std::string FindNextSection();
    /// Reads the next line of the section, comments and empty lines skipped. False at its end, where the line
    /// that begins the next section is given back.
    /// @throws std::runtime_error for a header of a length that no LAS file has
    bool NextSectionLine();

    /// Bytes from the stream's position at construction to its end; 0 when the stream cannot tell.
    [[nodiscard]] std::int64_t StreamSize() const { return stream_size_; }

private:
    std::istream& stream_;
    std::string raw_line_;
    std::string_view line_;
    bool is_given_back_ = false;
    std::int64_t stream_size_ = 0;
    std::int64_t header_cost_ = 0;
};
