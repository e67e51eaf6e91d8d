// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/las/LasContent.h"
#include "formats/las/LasLineReader.h"
#include "model/LASHeaderSection.h"

#include <istream>
#include <set>
#include <string>

/// Reads what follows the version section of a LAS 2.0 file. One object for one file.
class LasV2Reader
{
public:
    /// `lines` reads from `stream`; both and `content` outlive the reader.
    LasV2Reader(std::istream& stream, LasLineReader& lines, LasContent& content)
        : stream_(stream), lines_(lines), content_(content)
    {
    }

    /// Fills the content. Each column ends up as long as the index.
    /// @throws std::exception; what() is a complete text for the user
    void LoadV2LasFile();

    /// Appends the rows of the section that `lines` has just entered.
    static void LoadHeaderSectionV2(LasLineReader& lines, LASHeaderSection& section);

    /// What stands before the first digit of at least two mnemonics, a "[" at its end taken off.
    [[nodiscard]] static std::set<std::string> FindArrayMnemsV2(LASHeaderSection const& curve_info);

private:
    void LoadCurveSection();

    std::istream& stream_;
    LasLineReader& lines_;
    LasContent& content_;
    bool has_index_row_ = false;
};
