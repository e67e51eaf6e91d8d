// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/las/LasContent.h"

#include "formats/las/LasText.h"

#include <algorithm>
#include <stdexcept>

namespace {
DataValueType WellInfoNumber(LASHeaderSection const& well_info, char const* mnemonic, char const* function)
{
    if (well_info.empty()) {
        throw std::invalid_argument(
            std::string(function) +
            " Function called before loading Well Info header section has been loaded");
    }
    return static_cast<DataValueType>(
        Quorrel::LenientNumber(well_info.GetData(QString::fromLatin1(mnemonic))));
}
} // namespace

DataValueType LasContent::GetStartDepth() const
{
    return WellInfoNumber(well_info, "STRT", "DataValueType LASFile::GetStartDepth()");
}

DataValueType LasContent::GetStopDepth() const
{
    return WellInfoNumber(well_info, "STOP", "DataValueType LASFile::GetStopDepth()");
}

DataValueType LasContent::GetDepthStep() const
{
    return WellInfoNumber(well_info, "STEP", "DataValueType LASFile::GetDepthStep()");
}

bool LasContent::IsTimeLog() const
{
    return index_row.mnemonic.toUpper() == QLatin1String("TIME");
}

bool LasContent::IsMetric() const
{
    return index_row.unit.toLower() == QLatin1String("m");
}

char LasContent::GetDelimiter() const
{
    auto const row = std::find_if(version.begin(), version.end(), [](HeaderRow const& candidate) {
        return candidate.mnemonic == QLatin1String("DLM");
    });
    if (row == version.end() || row->data == QLatin1String("SPACE")) {
        return ' ';
    }
    return row->data == QLatin1String("COMMA") ? ',' : '\t';
}

long long LasContent::CalculateNumberOfRows() const
{
    float const rows = (GetStopDepth() - GetStartDepth()) / GetDepthStep() + 1.0F;
    if (rows < 0.0F) {
        throw std::invalid_argument(
            "Incorrect LAS File header. Check STRT, STOP and STEP parameters to confirm that "
            "they are valid");
    }
    return Quorrel::RoundedRowCount(static_cast<double>(rows));
}
