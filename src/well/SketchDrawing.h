// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QRectF>

#include <initializer_list>

class QPainter;

/// Shapes of the sketch in the painter's pen and brush. A component may be a million rows high in a view that
/// shows a few metres; what is drawn never goes far beyond the window, and looks the same inside.
namespace Quorrel {
void DrawShape(QPainter& painter, std::initializer_list<QPointF> corners);
void DrawStroke(QPainter& painter, QPointF const& from, QPointF const& to);
/// Its diagonals.
void DrawCross(QPainter& painter, QRectF const& frame);
void DrawFrame(QPainter& painter, QRectF const& frame);
void DrawOval(QPainter& painter, QRectF const& frame);
} // namespace Quorrel
