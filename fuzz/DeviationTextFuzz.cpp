// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DeviationText.h"
#include "well/DirectionalSurveyData.h"

#include <QBuffer>

#include <cstddef>
#include <cstdint>

/// The first byte chooses the layout: separator by its last digit, first data line and columns by the others.
/// The rest is the file.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    char const* const separators[] = {DeviationText::WHITESPACE_SEPARATOR, DeviationText::BLANK_SEPARATOR,
                                      DeviationText::TAB_SEPARATOR, DeviationText::COMMA_SEPARATOR};
    int const choice = data[0] - '0';
    DeviationTextLayout const layout{.separator = separators[choice & 3],
                                     .first_data_line = (choice >> 2) & 3,
                                     .md_column = 1 + ((choice >> 4) & 1),
                                     .inclination_column = 2 + ((choice >> 4) & 1),
                                     .azimuth_column = 3 + ((choice >> 5) & 3)};
    QByteArray text(reinterpret_cast<char const*>(data + 1), static_cast<qsizetype>(size - 1));
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    DeviationTextResult const result = DeviationText::Read(buffer, layout);
    DirectionalSurveyData const survey(result.stations, {});
    for (DirectionalSurveyItem const& station : result.stations) {
        (void)survey.InterpolateWellTrajectory(station.measured_depth);
    }
    return 0;
}
