// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseRenderer.h"

#include <QColor>

/// Draws the depth ruler; the same for screen and print.
class DepthAxisRenderer : public BaseRenderer
{
public:
    /// Where the major ticks stand, in the settings' depth unit.
    struct AxisScale
    {
        double start = 0; ///< the first major tick at or below the top of the interval
        double step = 0;  ///< between major ticks; 0 when the interval or the resolution allow no ruler
    };

    /// Chooses 1, 2, 5 or 10 times a power of ten near the depth that `k` inches of ruler span.
    /// @param interval metres, over `height` pixels
    [[nodiscard]] static AxisScale CalculateAxisScale(double dpi, Interval const& interval, int height,
                                                      double k);

    /// Fills the painter's window with `color` and draws ticks and depths in black; nothing for an invalid
    /// interval.
    void RenderToPainter(QPainter& painter, Interval const& interval, double dpi, double k,
                         QColor const& color, bool bold);
};
