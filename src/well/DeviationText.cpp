// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DeviationText.h"

#include "app/kit/Quorrel.h"
#include "well/PastedRows.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>
#include <cmath>

namespace {
constexpr qint64 MAXIMUM_LINE_LENGTH = 65536;

/// Reads one line without its end and drops what is beyond the maximum length. False at the end of the file.
bool ReadLine(QTextStream& stream, QString& line)
{
    if (!stream.readLineInto(&line, MAXIMUM_LINE_LENGTH)) {
        return false;
    }
    QString rest;
    for (qsizetype length = line.size(); length == MAXIMUM_LINE_LENGTH; length = rest.size()) {
        if (!stream.readLineInto(&rest, MAXIMUM_LINE_LENGTH)) {
            break;
        }
    }
    return true;
}

bool ToNumber(QString const& text, float& number)
{
    bool ok = false;
    number = Quorrel::StringToFloatType(text, &ok);
    return ok && std::isfinite(number);
}

/// Junk may be long; a message box is not.
QString Shorten(QString const& text)
{
    constexpr int longest = 80;
    return text.size() > longest ? text.left(longest) + "..." : text;
}
} // namespace

DeviationTextResult DeviationText::ReadFile(QString const& path, DeviationTextLayout const& layout)
{
    QFile file(path);
    // A device or a pipe might never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return {{}, "Unable to open file: " + path};
    }
    return Read(file, layout);
}

DeviationTextResult DeviationText::Read(QIODevice& device, DeviationTextLayout const& layout)
{
    auto const [smallest, largest] =
        std::minmax({layout.md_column, layout.inclination_column, layout.azimuth_column});
    QRegularExpression const separator(layout.separator);
    QTextStream stream(&device);
    DeviationTextResult result;
    QString line;
    for (int number = 1; ReadLine(stream, line); ++number) {
        if (number < layout.first_data_line) {
            continue;
        }
        QStringList const columns = line.split(separator);
        if (smallest < 1 || columns.size() < largest) {
            return {{},
                    "Not enough data column in imported data. Did you correctly specify the line number of "
                    "the first "
                    "data row??"};
        }
        if (std::ssize(result.stations) == PasteReport::MAXIMUM_ROWS) {
            return {{},
                    QStringLiteral("The file holds more than %1 stations.").arg(PasteReport::MAXIMUM_ROWS)};
        }
        QString const& md_text = columns[layout.md_column - 1];
        QString const& inclination_text = columns[layout.inclination_column - 1];
        QString const& azimuth_text = columns[layout.azimuth_column - 1];
        DirectionalSurveyItem station;
        if (!ToNumber(md_text, station.measured_depth) || !ToNumber(inclination_text, station.inclination) ||
            !ToNumber(azimuth_text, station.azimuth)) {
            return {
                {},
                "Error in Survey File: Unable to convert to number. MD: " + Shorten(md_text) +
                    "  Incl: " + Shorten(inclination_text) + "  Azi: " + Shorten(azimuth_text) +
                    "\nConfirm import number-format matches application settings and try again. Aborting!!"};
        }
        station.measured_depth = Quorrel::SettingsDepthToMetricDepth(station.measured_depth);
        result.stations.push_back(station);
    }
    return result;
}
