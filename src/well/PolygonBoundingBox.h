// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/SketchItemText.h"

#include <QPolygonF>

/// A polygonal hit area of the sketch, in pixels of the rendering it belongs to.
struct PolygonBoundingBox
{
    SketchItemText text;
    QPolygonF area;
};
