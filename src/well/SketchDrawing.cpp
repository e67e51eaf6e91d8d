// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/SketchDrawing.h"

#include "display/ClippedDrawing.h"

#include <QLineF>
#include <QPainter>

#include <cmath>
#include <numbers>
#include <vector>

namespace {
constexpr int OVAL_CORNERS = 4000;

/// Higher than this many windows a shape is drawn in a way that can be cut.
bool IsTall(QPainter const& painter, QRectF const& frame)
{
    constexpr double TALL_WINDOWS = 2;
    return !(frame.height() <= TALL_WINDOWS * painter.window().height());
}
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

void DrawCross(QPainter& painter, QRectF const& frame)
{
    QLineF const diagonals[] = {{frame.topLeft(), frame.bottomRight()},
                                {frame.bottomLeft(), frame.topRight()}};
    if (!IsTall(painter, frame)) {
        painter.drawLines(diagonals, 2);
        return;
    }
    for (QLineF const& diagonal : diagonals) {
        DrawStroke(painter, diagonal.p1(), diagonal.p2());
    }
}

void DrawFrame(QPainter& painter, QRectF const& frame)
{
    DrawShape(painter, {frame.topLeft(), frame.topRight(), frame.bottomRight(), frame.bottomLeft()});
}

void DrawOval(QPainter& painter, QRectF const& frame)
{
    if (!IsTall(painter, frame)) {
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
