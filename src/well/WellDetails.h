// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/DepthMarker.h"
#include "well/DirectionalSurveyItem.h"
#include "well/DirectionalSurveyTieInData.h"
#include "well/Pipe.h"
#include "well/PipeString.h"
#include "well/WellComponent.h"
#include "well/ZoneTrack.h"

#include <QList>

#include <vector>

/// All that can be entered of a well.
struct WellDetails
{
    QString well_name;
    std::vector<DirectionalSurveyItem> stations;
    DirectionalSurveyTieInData tie_in;
    QList<Zone> perforations;
    QList<ZoneTrack> zone_tracks;
    QList<DepthMarker> markers_a;
    QList<DepthMarker> markers_b;
    QList<Pipe> pipes; ///< the flat table, to be converted to strings
    std::vector<PipeString> pipe_strings;
    QList<WellComponent> components;
};
