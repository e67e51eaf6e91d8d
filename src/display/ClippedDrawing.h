// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>

#include <cstddef>

class QPainter;

/// Drawing of point lists that may hold values far outside the window, or no numbers at all. Points that are
/// not finite are left out; what runs far outside the painter's window is brought back to a border around it,
/// which changes no pixel inside. The painter thus never sees coordinates that its raster arithmetic cannot
/// hold.
namespace Quorrel {
void DrawPolylineClipped(QPainter& painter, QPointF const* points, std::size_t count);
/// Odd-even fill with the painter's brush, outline with its pen.
void DrawPolygonClipped(QPainter& painter, QPointF const* points, std::size_t count);
} // namespace Quorrel
