// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

#include <memory>

class BaseViewWidgetParameters;
class DepthLogPass;
class DirectionalSurveyData;
class PipeStringData;
struct WellComponent;
class Zone;
class ZoneTrack;
struct DepthMarker;

/// The pass chosen in the pass selector; owned by the column, read by its views (tracker, whole-pass
/// corrections).
struct CurrentDepthLogPass
{
    std::weak_ptr<DepthLogPass const> pass;
};

/// What the views of a column read besides channels. All pointers are to values that outlive the column: the
/// parameters and the pass handle in the column itself, the rest in the data container (values there are
/// assigned as a whole, so the addresses stay).
struct ColumnContext
{
    BaseViewWidgetParameters const* parameters = nullptr;
    CurrentDepthLogPass const* current_pass = nullptr;
    DirectionalSurveyData const* directional_survey = nullptr;
    PipeStringData const* pipe_strings = nullptr;
    QList<WellComponent> const* components = nullptr;
    QList<Zone> const* perforation_zones = nullptr;
    QList<Zone> const* interpretation_zones = nullptr;
    QList<ZoneTrack> const* zone_tracks = nullptr;
    QList<DepthMarker> const* markers_a = nullptr;
    QList<DepthMarker> const* markers_b = nullptr;
};
