// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseDataView.h"

struct INTERMEDIATE_DATAVIEW_STRUCT;

/// Draws depth curves as polylines, time curves as overlays, and depth markers.
class IntermediateDataView : public BaseDataView
{
    Q_OBJECT
public:
    using BaseDataView::BaseDataView;

    void RenderToPainter(QPainter& painter, Interval const& interval, double dpi, bool on_screen) override;

    /// The base view's state and the scales, to and from the record of a project file.
    [[nodiscard]] INTERMEDIATE_DATAVIEW_STRUCT WriteState_IntermediateDataView() const;
    /// Takes the scales, pens and the selection of records by their index; the curves are there already.
    void RestoreState_IntermediateDataView(INTERMEDIATE_DATAVIEW_STRUCT const& record);

protected:
    /// Moves the overlay to its place on the view's scale, and shows it.
    void PaintTimeCurve(TimeCurveOverlay& overlay, float depth, Interval const& interval, int width,
                        int height, double dpi) const;
};
