// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/InterpretationParameters.h"
#include "well/Zone.h"

#include <QList>
#include <QString>

/// What a project file says of a survey besides its logs and storage channels.
struct SURVEY_DATA_Struct
{
    QList<Zone> interpretation_zones;
    InterpretationParameters interpretation_parameters;
    QString survey_text;
};
