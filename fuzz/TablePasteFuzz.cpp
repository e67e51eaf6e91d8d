// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/SettingsSingleton.h"
#include "well/TableNumber.h"
#include "well/WellTablePaste.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {
void Check(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

void CheckReport(PasteReport const& report, std::size_t rows, QString const& text)
{
    Check(static_cast<qsizetype>(rows) + report.error_count <= text.count('\n') + 1);
    Check(report.errors.size() == std::min(report.error_count, PasteReport::MAXIMUM_ERRORS));
    Check(report.matched || (rows == 0 && report.error_count == 0));
    for (auto const& error : report.errors) {
        Check(error.size() < 1000);
    }
}

void CheckFinite(std::initializer_list<double> numbers)
{
    for (double const number : numbers) {
        Check(std::isfinite(number));
    }
}

void CheckSurvey(QString const& text)
{
    auto const pasted = WellTablePaste::ReadSurvey(text);
    CheckReport(pasted, pasted.rows.size(), text);
    QString copy;
    for (auto const& row : pasted.rows) {
        CheckFinite({row.measured_depth, row.inclination, row.azimuth});
        copy += TableNumber::DepthText(static_cast<double>(row.measured_depth)) + "\t" +
                TableNumber::DepthText(0) + "\t" + TableNumber::DepthText(1) + "\n";
    }
    // What the program writes itself it can read, but for depths whose number of feet is beyond a float.
    auto const again = WellTablePaste::ReadSurvey(copy);
    Check(static_cast<qsizetype>(again.rows.size()) + again.error_count ==
          static_cast<qsizetype>(pasted.rows.size()));
}
} // namespace

/// The first byte chooses number format and depth unit; the rest is the clipboard's text.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    SettingsSingleton::Instance().SetSeparatorSelection(static_cast<Separator_Selection>(data[0] % 3));
    SettingsSingleton::Instance().SetMetricDepth((data[0] & 8) != 0);
    QString const text =
        QString::fromUtf8(reinterpret_cast<char const*>(data + 1), static_cast<qsizetype>(size - 1));

    CheckSurvey(text);
    auto const zones = WellTablePaste::ReadZones(text, Qt::red);
    CheckReport(zones, zones.rows.size(), text);
    for (auto const& row : zones.rows) {
        CheckFinite({row.GetDepth().lower, row.GetDepth().upper});
        Check(row.GetColor().isValid());
    }
    auto const markers = WellTablePaste::ReadMarkers(text);
    CheckReport(markers, markers.rows.size(), text);
    auto const pipes = WellTablePaste::ReadPipes(text);
    CheckReport(pipes, pipes.rows.size(), text);
    for (auto const& row : pipes.rows) {
        CheckFinite({row.depth.lower, row.depth.upper, row.od, row.id, row.weight});
    }
    auto const pipe_components = WellTablePaste::ReadPipeComponents(text);
    CheckReport(pipe_components, pipe_components.rows.size(), text);
    auto const components = WellTablePaste::ReadComponents(text);
    CheckReport(components, components.rows.size(), text);
    return 0;
}
