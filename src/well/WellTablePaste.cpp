// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellTablePaste.h"

#include "app/kit/ProjectText.h"
#include "app/kit/Quorrel.h"
#include "well/TableNumber.h"

#include <QRegularExpression>

#include <array>
#include <cmath>
#include <optional>

using TableNumber::Parse;
using TableNumber::ParseDepth;
using TableNumber::Shorten;

namespace {
/// A message when a column holds more than a project file does; otherwise empty.
QString CheckLength(QRegularExpressionMatch const& line)
{
    for (QString const& column : line.capturedTexts().mid(1)) {
        if (!Quorrel::FitsProjectFile(column)) {
            return Quorrel::CheckProjectText(column);
        }
    }
    return {};
}

/// Calls `read(match, rows)` for each line that matches.
template <class Row, class ReadLine>
PastedRows<Row> ReadRows(QString const& text, QString const& pattern, ReadLine const& read)
{
    PastedRows<Row> result;
    if (text.count('\n') > PasteReport::MAXIMUM_ROWS) {
        result.too_many = true;
        return result;
    }
    QRegularExpression const expression(pattern);
    for (auto const part : QStringView(text).split(u'\n')) {
        QString line = Quorrel::ParseCopiedText(part.toString());
        if (line.endsWith('\r')) {
            line.chop(1);
        }
        if (line.trimmed().isEmpty()) {
            continue;
        }
        if (auto const match = expression.match(line); match.hasMatch()) {
            result.matched = true;
            if (auto const error = CheckLength(match); error.isEmpty()) {
                read(match, result);
            } else {
                result.AddError(error);
            }
        }
    }
    return result;
}

/// All of the numbers, or nothing.
template <std::size_t N>
std::optional<std::array<float, N>> All(std::array<std::optional<float>, N> const& numbers)
{
    std::array<float, N> result{};
    for (std::size_t i = 0; i < N; ++i) {
        if (!numbers[i]) {
            return std::nullopt;
        }
        result[i] = *numbers[i];
    }
    return result;
}

/// The type for its number or its name.
std::optional<WellComponentType> ReadType(QString const& text)
{
    bool ok = false;
    int const number = text.toInt(&ok);
    if (ok) {
        return static_cast<WellComponentType>(number);
    }
    auto const type = ConvertNameToComponentType(text.trimmed());
    return type != WellComponentType::Undefined || text.trimmed().isEmpty() ? std::optional(type)
                                                                            : std::nullopt;
}
} // namespace

PastedRows<DirectionalSurveyItem> WellTablePaste::ReadSurvey(QString const& text)
{
    auto const read = [](QRegularExpressionMatch const& line, PastedRows<DirectionalSurveyItem>& result) {
        auto const numbers =
            All<3>({ParseDepth(line.captured(1)), Parse(line.captured(2)), Parse(line.captured(3))});
        if (!numbers) {
            result.AddError(
                "Error in Survey values: Unable to convert to number. MD: " + Shorten(line.captured(1)) +
                "  Incl: " + Shorten(line.captured(2)) + "  Azi: " + Shorten(line.captured(3)));
            return;
        }
        result.rows.emplace_back((*numbers)[0], (*numbers)[1], (*numbers)[2]);
    };
    return ReadRows<DirectionalSurveyItem>(text, "^([^\t]*)\t([^\t]*)\t([^\t]*)", read);
}

PastedRows<Zone> WellTablePaste::ReadZones(QString const& text, QColor const& default_color)
{
    auto const read = [&default_color](QRegularExpressionMatch const& line, PastedRows<Zone>& result) {
        auto const depths = All<2>({ParseDepth(line.captured(1)), ParseDepth(line.captured(2))});
        if (!depths) {
            result.AddError("Error in Zone/Perf depths: Unable to convert to number. Min. Depth: " +
                            Shorten(line.captured(1)) + "  Max. Depth: " + Shorten(line.captured(2)));
            return;
        }
        QColor const color = QColor::fromString(line.captured(4));
        result.rows.emplace_back(Interval((*depths)[0], (*depths)[1]), line.captured(3),
                                 color.isValid() ? color : default_color);
    };
    return ReadRows<Zone>(text, "^([^\t]*)\t([^\t]*)(?:\t([^\t]*))?(?:\t(#......))?", read);
}

PastedRows<DepthMarker> WellTablePaste::ReadMarkers(QString const& text)
{
    auto const read = [](QRegularExpressionMatch const& line, PastedRows<DepthMarker>& result) {
        if (auto const depth = ParseDepth(line.captured(1))) {
            result.rows.emplace_back(*depth, line.captured(2));
        } else {
            result.AddError("Paste Error - Unable to convert to depth: " + Shorten(line.captured(1)));
        }
    };
    return ReadRows<DepthMarker>(text, "^([^\t]*)(?:\t([^\t]*))?", read);
}

PastedRows<Pipe> WellTablePaste::ReadPipes(QString const& text)
{
    auto const read = [](QRegularExpressionMatch const& line, PastedRows<Pipe>& result) {
        auto const numbers =
            All<5>({ParseDepth(line.captured(1)), ParseDepth(line.captured(2)), Parse(line.captured(3)),
                    Parse(line.captured(4)), Parse(line.captured(5))});
        if (!numbers) {
            result.AddError("Error in Pipe depths/values: Unable to convert to number. From: " +
                            Shorten(line.captured(1)) + "  To: " + Shorten(line.captured(2)) +
                            "  OD: " + Shorten(line.captured(3)) + "  ID: " + Shorten(line.captured(4)) +
                            "  Weight: " + Shorten(line.captured(5)));
            return;
        }
        auto const [from, to, od, id, weight] = *numbers;
        bool const is_tubing = line.captured(6).compare("yes", Qt::CaseInsensitive) == 0;
        result.rows.emplace_back(Interval(from, to), od, id, weight, is_tubing, line.captured(7));
    };
    QString const number = "(" + TableNumber::Pattern() + ")";
    QString const pattern = "^" + QStringList(5, number).join('\t') + "\t *+((?i)yes|no) *+(?:\t([^\t]*))?";
    return ReadRows<Pipe>(text, pattern, read);
}

PastedRows<PipeComponent> WellTablePaste::ReadPipeComponents(QString const& text)
{
    auto const read = [](QRegularExpressionMatch const& line, PastedRows<PipeComponent>& result) {
        auto const numbers = All<4>({Parse(line.captured(1)), Parse(line.captured(2)),
                                     Parse(line.captured(3)), ParseDepth(line.captured(4))});
        if (!numbers) {
            result.AddError("Error in PipeComponent depths/values: Unable to convert to number. OD: " +
                            Shorten(line.captured(1)) + "  ID: " + Shorten(line.captured(2)) + "  Weight: " +
                            Shorten(line.captured(3)) + "  Length: " + Shorten(line.captured(4)));
            return;
        }
        auto const [od, id, weight, length] = *numbers;
        result.rows.emplace_back(od, id, weight, length, line.captured(5));
    };
    return ReadRows<PipeComponent>(text, "^([^\t]*)\t([^\t]*)\t([^\t]*)\t([^\t]*+)\t?(.*)", read);
}

PastedRows<WellComponent> WellTablePaste::ReadComponents(QString const& text)
{
    auto const read = [](QRegularExpressionMatch const& line, PastedRows<WellComponent>& result) {
        auto const depths = All<2>({ParseDepth(line.captured(1)), ParseDepth(line.captured(2))});
        auto const type = ReadType(line.captured(3));
        if (!depths || !type) {
            result.AddError("Error in Components depths: Unable to convert to number. Min. Depth: " +
                            Shorten(line.captured(1)) + "  Max. Depth: " + Shorten(line.captured(2)) +
                            (type ? QString() : "  Type: " + Shorten(line.captured(3))));
            return;
        }
        result.rows.emplace_back(Interval((*depths)[0], (*depths)[1]), line.captured(4), *type);
    };
    return ReadRows<WellComponent>(text, "^([^\t]*)\t([^\t]*)\t([^\t]*)\t([^\t]*)", read);
}
