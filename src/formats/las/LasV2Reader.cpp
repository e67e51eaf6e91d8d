// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasV2Reader.h"

#include "formats/las/LasAsciiData.h"

#include <algorithm>
#include <map>

void LasV2Reader::LoadHeaderSectionV2(LasLineReader& lines, LASHeaderSection& section)
{
    while (lines.NextSectionLine()) {
        section.push_back(HeaderRow(std::string(lines.Line())));
    }
}

std::set<std::string> LasV2Reader::FindArrayMnemsV2(LASHeaderSection const& curve_info)
{
    std::map<QString, int> counts;
    for (HeaderRow const& row : curve_info) {
        auto const digit = std::find_if(row.mnemonic.begin(), row.mnemonic.end(), [](QChar character) {
            return character >= u'0' && character <= u'9';
        });
        if (digit != row.mnemonic.end()) {
            ++counts[row.mnemonic.left(digit - row.mnemonic.begin())];
        }
    }
    std::set<std::string> mnemonics;
    for (auto const& [prefix, count] : counts) {
        if (count > 1) {
            mnemonics.insert((prefix.endsWith(u'[') ? prefix.chopped(1) : prefix).toStdString());
        }
    }
    return mnemonics;
}

void LasV2Reader::LoadV2LasFile()
{
    // The second section is the well section, whatever its name.
    lines_.FindNextSection();
    LoadHeaderSectionV2(lines_, content_.well_info);

    for (std::string section = lines_.FindNextSection(); !section.empty();
         section = lines_.FindNextSection()) {
        if (section.starts_with("~C")) {
            LoadCurveSection();
        } else if (section.starts_with("~P")) {
            LoadHeaderSectionV2(lines_, content_.parameter_info);
        } else if (section.starts_with("~O")) {
            LoadHeaderSectionV2(lines_, content_.other_info);
        } else if (section.starts_with("~A")) {
            LasAsciiData(stream_, content_).LoadAsciiData();
        }
    }

    // A header alone is a log without rows.
    while (content_.matrix.size() < content_.curve_info.size()) {
        content_.matrix.push_back(std::make_shared<std::vector<DataValueType>>());
    }
}

void LasV2Reader::LoadCurveSection()
{
    LoadHeaderSectionV2(lines_, content_.curve_info);
    // The first row of all names the index; a second curve section only adds channels.
    if (!has_index_row_ && !content_.curve_info.empty()) {
        has_index_row_ = true;
        content_.index_row = content_.curve_info.at(0);
        content_.curve_info.delete_element(0);
    }
    content_.array_mnems = FindArrayMnemsV2(content_.curve_info);
}
