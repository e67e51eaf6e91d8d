// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseDataView.h"

/// Draws depth curves as polylines, time curves as overlays, and depth markers.
class IntermediateDataView : public BaseDataView
{
    Q_OBJECT
public:
    using BaseDataView::BaseDataView;

    void RenderToPainter(QPainter& painter, Interval const& interval, double dpi, bool on_screen) override;

protected:
    /// Moves the overlay to its place on the view's scale, and shows it.
    void PaintTimeCurve(TimeCurveOverlay& overlay, float depth, Interval const& interval, int width,
                        int height, double dpi) const;
};
