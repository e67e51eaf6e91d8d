// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "ProductionWell.h"

namespace ProductionWell {
double VerticalDepth(double depth)
{
    return 2347.37 + 0.8705 * (depth - 2854.1);
}

double RockTemperature(double depth)
{
    return 8 + 0.034 * VerticalDepth(depth);
}

std::vector<LasLine> WellLines(char const* date)
{
    return {{"COMP", "", "Quorrel Example Oil", "Company"},
            {"WELL", "", "Demo A-7", "Well"},
            {"FLD", "", "Demo", "Field"},
            {"LOC", "", "Block 7", "Location"},
            {"CTRY", "", "None (made-up well)", "Country"},
            {"SRVC", "", "Quorrel example generator", "Service company"},
            {"DATE", "", date, "Log date"},
            {"UWI", "", "QE-0007", "Unique well identifier"}};
}
} // namespace ProductionWell
