// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/SketchDrawing.h"

#include "display/ClippedDrawing.h"

#include <QPainter>

#include <cmath>
#include <numbers>
#include <vector>

namespace {
/// Ovals above this many windows are drawn as polygons, which can be cut.
constexpr double TALL_WINDOWS = 2;
constexpr int OVAL_CORNERS = 4000;
} // namespace

namespace Quorrel {
void DrawShape(QPainter& painter, std::initializer_list<QPointF> corners)
{
    DrawPolygonClipped(painter, corners.begin(), corners.size());
}

void DrawStroke(QPainter& painter, QPointF const& from, QPointF const& to)
{
    QPointF const ends[] = {from, to};
    DrawPolylineClipped(painter, ends, 2);
}

void DrawFrame(QPainter& painter, QRectF const& frame)
{
    DrawShape(painter, {frame.topLeft(), frame.topRight(), frame.bottomRight(), frame.bottomLeft()});
}

void DrawOval(QPainter& painter, QRectF const& frame)
{
    if (frame.height() <= TALL_WINDOWS * painter.window().height()) {
        painter.drawEllipse(frame);
        return;
    }
    std::vector<QPointF> corners;
    corners.reserve(OVAL_CORNERS);
    for (int i = 0; i < OVAL_CORNERS; ++i) {
        double const angle = 2 * std::numbers::pi * i / OVAL_CORNERS;
        corners.push_back(frame.center() +
                          QPointF(frame.width() / 2 * std::cos(angle), frame.height() / 2 * std::sin(angle)));
    }
    DrawPolygonClipped(painter, corners.data(), corners.size());
}
} // namespace Quorrel
