// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/Zone.h"

#include <QRect>
#include <QString>

/// The hit area of a zone in the zone view, in pixels.
struct ZoneBoundingBox
{
    Zone zone;
    QString column;      ///< heading of its column
    QString status_text; ///< column, description and depths
    QRect area;
};
