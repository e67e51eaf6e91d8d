// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <QPointF>

#include <cstddef>
#include <optional>
#include <vector>

class DepthCurve;

/// Turns the samples of a depth curve into the points of one polyline, over the part of the depth axis that
/// is in view. Of the three ways, the choice is by the number of samples per row, so that the cost is bounded
/// by the height in pixels and not by the number of samples.
///
/// Common to all: `scale` is the value range mapped to `width`; `view` the depth range in metres mapped to
/// `height` rows; `points` a scratch buffer that is reused between curves and only ever grows; the result is
/// the number of points in it, from the top down. No points for a curve without samples or without overlap,
/// for an empty or non-finite interval and for a scale of no length. Values outside the scale lie outside the
/// width.
class CurveRenderer
{
public:
    enum class Method
    {
        RawCurve,       ///< a sample is taller than a pixel
        RawCurveAsBins, ///< a few samples per pixel
        BinCurve        ///< many samples per pixel
    };

    /// The samples or bins in view.
    struct RenderParameters
    {
        int first = 0;              ///< index of the first one in view
        int last = 0;               ///< index of the last one, one beyond the view where there is one
        float pixels_per_value = 0; ///< rows that one sample or bin covers
    };

    static int RenderCurve(DepthCurve const& curve, Interval const& scale, int width, int height,
                           Interval const& view, std::vector<QPointF>& points);

    [[nodiscard]] static Method ChooseMethod(DepthCurve const& curve, int height, Interval const& view);

    /// No value when none of the `size` values from `first_depth` to `last_depth` (metres) is in view.
    [[nodiscard]] static std::optional<RenderParameters>
    CalculateRenderParameters(std::size_t size, float first_depth, float last_depth, int height,
                              Interval const& view);

    /// One point per sample.
    static int RenderRawCurve(DepthCurve const& curve, Interval const& scale, int width, int height,
                              Interval const& view, std::vector<QPointF>& points);
    /// Minimum and maximum of the samples on each row.
    static int RenderRawCurveAsBins(DepthCurve const& curve, Interval const& scale, int width, int height,
                                    Interval const& view, std::vector<QPointF>& points);
    /// Minimum and maximum of the bins on each row; rows without a bin hold infinite points.
    static int RenderBinCurve(DepthCurve const& curve, Interval const& scale, int width, int height,
                              Interval const& view, std::vector<QPointF>& points);
};
