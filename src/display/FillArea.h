// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/FillAreaDefinition.h"

#include <QPointF>

#include <vector>

class FillAreaSource;
class QPainter;

/// Paints all fills of a view, the last definition first, in its constructor; made for one paint. The
/// painter's pen and brush are as before afterwards.
class FillArea
{
public:
    using Points = std::vector<QPointF>;

    /// `interval` in metres; the painted area is the painter's window.
    FillArea(FillAreaSource* view, QPainter& painter, Interval const& interval);

private:
    void RenderFillAreas(QPainter& painter, Interval const& interval);
    void ProcessPoints_A_RIGHT_OF_B(QPainter& painter, FillAreaDefinition const& definition, Points const& p,
                                    Points const& q);
    void DrawAreaFill(QPainter& painter);

    FillAreaSource* view_;
    Points points_a_;
    Points points_b_;
    Points left_boundary_;
    Points right_boundary_;
};
