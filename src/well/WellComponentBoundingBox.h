// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/SketchItemText.h"

#include <QRect>

/// A rectangular hit area of the sketch, in pixels of the rendering it belongs to.
struct WellComponentBoundingBox
{
    SketchItemText text;
    QRect area;
};
