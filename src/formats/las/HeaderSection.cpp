// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/HeaderSection.h"

#include <algorithm>

std::optional<ParameterDataLine> HeaderSection::GetParameterLine(QString const& mnemonic) const
{
    auto const line =
        std::find_if(lines_.begin(), lines_.end(), [&mnemonic](ParameterDataLine const& candidate) {
            return candidate.GetMnem() == mnemonic;
        });
    return line == lines_.end() ? std::nullopt : std::optional(*line);
}

LASHeaderSection HeaderSection::ConvertToV2() const
{
    LASHeaderSection section;
    for (ParameterDataLine const& line : lines_) {
        section.push_back({line.GetMnem(), line.GetUnit(), line.GetValue(), line.GetDescription()});
    }
    return section;
}
