// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/DirectionalSurveyItem.h"

#include <QString>

#include <vector>

class QIODevice;

/// How a plain text deviation file is laid out. Lines and columns count from 1.
struct DeviationTextLayout
{
    /// A regular expression; a line is cut wherever it matches.
    QString separator;
    int first_data_line = 1;
    int md_column = 1;
    int inclination_column = 2;
    int azimuth_column = 3;
};

/// Stations in file order, or the message that says why there are none.
struct DeviationTextResult
{
    std::vector<DirectionalSurveyItem> stations;
    QString error;
};

/// Reads the stations of a plain text deviation file: depths in the settings' unit, numbers in the settings'
/// format. A number that is not finite is no number.
class DeviationText
{
public:
    static constexpr char const* WHITESPACE_SEPARATOR = "(?<=[^ \\t])[ \\t]+(?=[^ \\t])";
    static constexpr char const* BLANK_SEPARATOR = " ";
    static constexpr char const* TAB_SEPARATOR = "\t";
    static constexpr char const* COMMA_SEPARATOR = ",";
    /// Title of the boxes that show an error.
    static constexpr char const* TITLE = "Survey Import";

    [[nodiscard]] static DeviationTextResult ReadFile(QString const& path, DeviationTextLayout const& layout);
    /// Every line from the first data line on must hold a station, an empty one too, and there are no more
    /// than a table of stations holds. Of a line longer than 65,536 characters only that many are looked at.
    [[nodiscard]] static DeviationTextResult Read(QIODevice& device, DeviationTextLayout const& layout);
};
