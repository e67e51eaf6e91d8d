// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/DepthMarker.h"
#include "well/DirectionalSurveyItem.h"
#include "well/PastedRows.h"
#include "well/Pipe.h"
#include "well/PipeComponent.h"
#include "well/WellComponent.h"
#include "well/Zone.h"

/// Reads clipboard text into rows of the well tables: a line per row, columns between tabs, numbers in the
/// settings' format, depths in the settings' unit. Blank lines and lines of another form are skipped; a line
/// of the right form whose numbers cannot be read or whose text is too long for a project file gives a
/// message instead of a row. Time is linear in the text.
namespace WellTablePaste {
/// MD, inclination, azimuth.
[[nodiscard]] PastedRows<DirectionalSurveyItem> ReadSurvey(QString const& text);
/// Top, bottom and, where given, description and "#rrggbb".
[[nodiscard]] PastedRows<Zone> ReadZones(QString const& text, QColor const& default_color);
/// Depth and, where given, text.
[[nodiscard]] PastedRows<DepthMarker> ReadMarkers(QString const& text);
/// From, to, OD, ID, weight, "yes" or "no" for tubing and, where given, description.
[[nodiscard]] PastedRows<Pipe> ReadPipes(QString const& text);
/// OD, ID, weight, length and, where given, description.
[[nodiscard]] PastedRows<PipeComponent> ReadPipeComponents(QString const& text);
/// Top, bottom, type (its number or its name), description.
[[nodiscard]] PastedRows<WellComponent> ReadComponents(QString const& text);
} // namespace WellTablePaste
