// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/CurveRenderer.h"

#include "app/kit/Quorrel.h"
#include "display/DepthCurve.h"
#include "display/DepthGeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr float INFINITE = std::numeric_limits<float>::infinity();

/// Samples and depths of a curve, held while it is rendered.
struct RawCurve
{
    std::shared_ptr<DepthCurve::SampleVector const> samples;
    std::shared_ptr<DepthCurve::DepthVector const> depths; ///< settings' unit
    std::size_t size = 0;                                  ///< as many as there are of both

    explicit RawCurve(DepthCurve const& curve)
        : samples(curve.GetRawCurve()), depths(curve.GetDepth_settings_unit())
    {
        if (samples && depths) {
            size = std::min(samples->size(), depths->size());
        }
    }

    [[nodiscard]] float GetValue(int index) const { return (*samples)[static_cast<std::size_t>(index)]; }
    [[nodiscard]] float GetDepth_metric(int index) const
    {
        return Quorrel::SettingsDepthToMetricDepth(
            static_cast<float>((*depths)[static_cast<std::size_t>(index)]));
    }
};

struct Extent
{
    float minimum = INFINITE;
    float maximum = -INFINITE;

    void Add(float least, float greatest)
    {
        minimum = least < minimum ? least : minimum;
        maximum = greatest > maximum ? greatest : maximum;
    }
};

bool IsDrawable(Interval const& scale, int width, int height, Interval const& view)
{
    double const length = view.Delta();
    double const range = scale.Delta();
    return width > 0 && height > 0 && std::isfinite(length) && length > 0 && std::isfinite(range) &&
           range != 0;
}

/// The buffer is written by index and grows, but never shrinks, so that its points are not constructed anew.
class PointWriter
{
public:
    PointWriter(std::vector<QPointF>& points, Interval const& scale, int width, int height)
        : points_(points), scale_(scale), width_(width)
    {
        auto const least = 2 * static_cast<std::size_t>(height);
        if (points_.size() < least) {
            points_.resize(least);
        }
    }

    [[nodiscard]] double X(float value) const
    {
        return static_cast<double>(Quorrel::ConvertCurveValueToX(value, scale_, width_));
    }

    void Add(double x, int y)
    {
        if (count_ == points_.size()) {
            points_.resize(2 * count_);
        }
        points_[count_++] = QPointF(x, y);
    }

    template <typename IsSame>
    void AddUnlessSame(double x, int y, IsSame const& is_same)
    {
        if (count_ == 0 || points_[count_ - 1].y() != y || !is_same(points_[count_ - 1].x(), x)) {
            Add(x, y);
        }
    }

    [[nodiscard]] int Count() const { return static_cast<int>(count_); }

private:
    std::vector<QPointF>& points_;
    Interval const& scale_;
    int width_;
    std::size_t count_ = 0;
};

bool IsSameColumn(double a, double b)
{
    return std::round(a) == std::round(b);
}

bool IsNearlyEqual(double a, double b)
{
    constexpr double tolerance = 1e-12;
    double const least = std::min(std::fabs(a), std::fabs(b));
    double const difference = std::fabs(a - b);
    return a == b || (std::isfinite(difference) && difference <= tolerance * (least == 0 ? 1 : least));
}
} // namespace

int CurveRenderer::RenderCurve(DepthCurve const& curve, Interval const& scale, int width, int height,
                               Interval const& view, std::vector<QPointF>& points)
{
    if (!IsDrawable(scale, width, height, view)) {
        return 0;
    }
    switch (ChooseMethod(curve, height, view)) {
    case Method::RawCurve:
        return RenderRawCurve(curve, scale, width, height, view, points);
    case Method::RawCurveAsBins:
        return RenderRawCurveAsBins(curve, scale, width, height, view, points);
    case Method::BinCurve:
        return RenderBinCurve(curve, scale, width, height, view, points);
    }
    return 0;
}

CurveRenderer::Method CurveRenderer::ChooseMethod(DepthCurve const& curve, int height, Interval const& view)
{
    if (RawCurve(curve).size < 2) {
        return Method::RawCurve;
    }
    double const metres_per_pixel = static_cast<double>(static_cast<float>(view.Delta() / height));
    if (curve.GetRawCurveDepthDensity() > metres_per_pixel) {
        return Method::RawCurve;
    }
    return curve.GetDepthDensity() >= metres_per_pixel ? Method::RawCurveAsBins : Method::BinCurve;
}

std::optional<CurveRenderer::RenderParameters>
CurveRenderer::CalculateRenderParameters(std::size_t size, float first_depth, float last_depth, int height,
                                         Interval const& view)
{
    if (size == 0 || size > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return std::nullopt;
    }
    auto const count = static_cast<int>(size);
    int const top =
        Quorrel::ConvertDepthToIndex(static_cast<float>(view.lower), size, first_depth, last_depth);
    int const bottom =
        Quorrel::ConvertDepthToIndex(static_cast<float>(view.upper), size, first_depth, last_depth);
    if (bottom < 0 || top >= count) {
        return std::nullopt;
    }
    RenderParameters result;
    result.first = std::max(top, 0);
    result.last = bottom < count - 1 ? bottom + 1 : count - 1;
    double const rows = static_cast<double>(Quorrel::ConvertDepthToYValue(last_depth, height, view)) -
                        Quorrel::ConvertDepthToYValue(first_depth, height, view);
    result.pixels_per_value = static_cast<float>(rows / count);
    return result;
}

int CurveRenderer::RenderRawCurve(DepthCurve const& curve, Interval const& scale, int width, int height,
                                  Interval const& view, std::vector<QPointF>& points)
{
    RawCurve const raw(curve);
    if (raw.size == 0 || !IsDrawable(scale, width, height, view)) {
        return 0;
    }
    auto const parameters =
        CalculateRenderParameters(raw.size, static_cast<float>(curve.GetMinDepth_metric()),
                                  static_cast<float>(curve.GetMaxDepth_metric()), height, view);
    if (!parameters) {
        return 0;
    }
    PointWriter writer(points, scale, width, height);
    for (int i = parameters->first; i <= parameters->last; ++i) {
        writer.Add(writer.X(raw.GetValue(i)),
                   Quorrel::ConvertDepthToYValue(raw.GetDepth_metric(i), height, view));
    }
    return writer.Count();
}

int CurveRenderer::RenderRawCurveAsBins(DepthCurve const& curve, Interval const& scale, int width, int height,
                                        Interval const& view, std::vector<QPointF>& points)
{
    RawCurve const raw(curve);
    if (raw.size == 0 || !IsDrawable(scale, width, height, view)) {
        return 0;
    }
    auto const parameters =
        CalculateRenderParameters(raw.size, static_cast<float>(curve.GetMinDepth_metric()),
                                  static_cast<float>(curve.GetMaxDepth_metric()), height, view);
    if (!parameters || parameters->first > parameters->last) {
        return 0;
    }
    PointWriter writer(points, scale, width, height);
    auto const emit_row = [&](Extent const& extent, int row) {
        writer.AddUnlessSame(writer.X(extent.minimum), row, IsSameColumn);
        if (extent.maximum != extent.minimum) {
            writer.AddUnlessSame(writer.X(extent.maximum), row, IsSameColumn);
        }
    };
    auto const row_of = [&](int index) {
        return Quorrel::ConvertDepthToYValue(raw.GetDepth_metric(index), height, view);
    };
    Extent extent;
    extent.Add(raw.GetValue(parameters->first), raw.GetValue(parameters->first));
    int row = row_of(parameters->first);
    for (int i = parameters->first + 1; i <= parameters->last; ++i) {
        int const next_row = row_of(i);
        if (next_row != row) {
            emit_row(extent, row);
            extent = Extent();
            row = next_row;
        }
        extent.Add(raw.GetValue(i), raw.GetValue(i));
    }
    emit_row(extent, row);
    return writer.Count();
}

int CurveRenderer::RenderBinCurve(DepthCurve const& curve, Interval const& scale, int width, int height,
                                  Interval const& view, std::vector<QPointF>& points)
{
    if (!IsDrawable(scale, width, height, view)) {
        return 0;
    }
    DepthCurve::BinLevel const* const bins = curve.GetBinCurve(view.Delta() / height);
    if (bins == nullptr) {
        return RenderRawCurveAsBins(curve, scale, width, height, view, points);
    }
    auto const first_depth = static_cast<float>(curve.GetMinDepth_metric());
    auto const last_depth = static_cast<float>(curve.GetMaxDepth_metric());
    auto const parameters = CalculateRenderParameters(bins->size(), first_depth, last_depth, height, view);
    if (!parameters || std::isnan(first_depth) || std::isnan(last_depth)) {
        return 0;
    }
    PointWriter writer(points, scale, width, height);
    int const first_row = std::max(Quorrel::ConvertDepthToYValue(first_depth, height, view), 0);
    auto position = static_cast<float>(first_row);
    int index = parameters->first;
    for (int row = first_row; row < height; ++row) {
        Extent extent;
        double const middle = row + 0.5;
        bool is_exhausted = false;
        while (middle > static_cast<double>(position)) {
            if (index > parameters->last) {
                is_exhausted = true;
                break;
            }
            CurveBin const& bin = (*bins)[static_cast<std::size_t>(index)];
            extent.Add(bin.minimum, bin.maximum);
            position += parameters->pixels_per_value;
            ++index;
        }
        if (is_exhausted && !(std::isfinite(extent.minimum) && std::isfinite(extent.maximum))) {
            break;
        }
        writer.AddUnlessSame(writer.X(extent.minimum), row, IsNearlyEqual);
        writer.AddUnlessSame(writer.X(extent.maximum), row, IsNearlyEqual);
        if (is_exhausted) {
            break;
        }
    }
    return writer.Count();
}
