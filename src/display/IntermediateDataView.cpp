// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/IntermediateDataView.h"

#include "display/TimeCurveOverlay.h"
#include "well/DepthMarker.h"

#include <QPainter>

namespace {
constexpr int highlight_width = 2; ///< by which the curves of a highlighted log pass are wider
}

void IntermediateDataView::RenderToPainter(QPainter& painter, Interval const& interval, double dpi,
                                           bool on_screen)
{
    int const width = painter.window().width();
    int const height = painter.window().height();
    QPen const saved_pen = painter.pen();

    if (show_baseline_ && selected_scale_ && !IsEmpty() && selected_scale_->scale.lower < 0 &&
        selected_scale_->scale.upper > 0) {
        RenderBaseline(painter, width);
    }
    for (DepthCurve const& curve : depth_curves_) {
        if (curve.IsHidden()) {
            continue;
        }
        int const count = RenderCurve(curve, width, height, interval);
        QPen pen = GetPen(curve);
        if (curve.GetLogPassProperties().highlighted) {
            pen.setWidth(pen.width() + highlight_width);
        }
        painter.setPen(pen);
        DrawCurve(painter, count, 0);
    }
    if (on_screen) {
        for (auto const& overlay : time_curves_) {
            float const depth = overlay->GetLogDepth();
            if (interval.lower < static_cast<double>(depth) && static_cast<double>(depth) < interval.upper) {
                PaintTimeCurve(*overlay, depth, interval, width, height, dpi);
            } else {
                overlay->hide();
            }
        }
    }
    painter.setPen(saved_pen);

    QColor const marker_color = on_screen ? Qt::white : Qt::black;
    if (show_markers_a_ && context_.markers_a != nullptr) {
        RenderDepthMarkers(painter, *context_.markers_a, interval, marker_color);
    }
    if (show_markers_b_ && context_.markers_b != nullptr) {
        RenderDepthMarkers(painter, *context_.markers_b, interval, marker_color);
    }
    painter.setPen(saved_pen);
}

void IntermediateDataView::PaintTimeCurve(TimeCurveOverlay& overlay, float depth, Interval const& interval,
                                          int width, int height, double dpi) const
{
    overlay.Place(GetScale(overlay), depth, interval, width, height, dpi);
}
