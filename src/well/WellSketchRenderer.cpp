// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellSketchRenderer.h"

#include "display/DepthGeometry.h"
#include "well/DirectionalSurveyData.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr double MINIMUM_HEIGHT_INCHES = static_cast<double>(0.12F);
/// The window is this much wider than the widest pipe; the rest is for formations.
constexpr double WINDOW_TO_PIPE = 1.3;
/// Rows beyond this are far outside every window, and still exact in a painter's fixed-point numbers.
constexpr double FARTHEST_ROW = 1 << 20;

/// The component with its depths in ascending order, as they are drawn.
WellComponent Ascending(WellComponent component)
{
    component.depth.Sort();
    return component;
}

QRect PixelRect(double x, double y, double width, double height)
{
    int const left = Quorrel::RoundToInt(x);
    int const top = Quorrel::RoundToInt(y);
    // Areas of less than a pixel can still be hit.
    return {left, top, std::max(Quorrel::RoundToInt(x + width) - left, 1),
            std::max(Quorrel::RoundToInt(y + height) - top, 1)};
}
} // namespace

WellSketchRenderer::ColorScheme WellSketchRenderer::ScreenScheme()
{
    return {.background = Qt::black,
            .lines = Qt::white,
            .component = Qt::white,
            .steel = QColor(128, 128, 128),
            .tubing_bore = QColor(255, 255, 0, 50),
            .hud = Qt::yellow,
            .hud_pattern = Qt::Dense7Pattern,
            .cement = Qt::gray,
            .cement_pattern = Qt::SolidPattern,
            .formation_pattern = Qt::Dense6Pattern};
}

WellSketchRenderer::ColorScheme WellSketchRenderer::PrintScheme()
{
    return {.background = Qt::white,
            .lines = Qt::black,
            .component = QColor(75, 75, 75),
            .steel = QColor(128, 128, 128),
            .tubing_bore = QColor(255, 255, 0, 50),
            .hud = QColor(160, 82, 45),
            .hud_pattern = Qt::Dense5Pattern,
            .cement = Qt::gray,
            .cement_pattern = Qt::SolidPattern,
            .formation_pattern = Qt::Dense5Pattern};
}

WellSketchRenderer::WellSketchRenderer(PipeStringData const& pipe_strings,
                                       QList<WellComponent> const& components,
                                       DirectionalSurveyData const& survey,
                                       std::vector<WellComponentBoundingBox>& bounding_boxes,
                                       std::vector<PolygonBoundingBox>& polygons)
    : pipe_strings_(pipe_strings),
      components_(components),
      survey_(survey),
      bounding_boxes_(bounding_boxes),
      polygons_(polygons)
{
}

void WellSketchRenderer::RenderToPainter(QPainter& painter, Interval const& interval, double dpi_x,
                                         double dpi_y, ColorScheme const& scheme)
{
    ResetRenderer(painter);
    minimum_component_height_ = Quorrel::TruncateToInt(MINIMUM_HEIGHT_INCHES * dpi_y);
    bounding_boxes_.clear();
    polygons_.clear();
    PipeString const* const largest = pipe_strings_.FindLargestPipe();
    double const largest_od = largest != nullptr ? largest->GetODinterval().upper : 0;
    bool const has_scale = largest_od > 0 && std::isfinite(largest_od);
    bool const has_depths = std::isfinite(interval.Delta()) && interval.Delta() > 0;
    if (!has_scale || !has_depths || width_ < 1 || height_ < 1) {
        return;
    }
    pixels_per_inch_ = width_ / (largest_od * WINDOW_TO_PIPE);

    if (std::tuple look{dpi_x, dpi_y, scheme}; look != symbols_look_) {
        symbols_.Clear();
        symbols_look_ = std::move(look);
    }
    painter.save();
    painter.setPen(scheme.lines);
    for (PipeString const& string : pipe_strings_.GetPipeStringVector()) {
        DrawPipeString(painter, string, interval, dpi_x, scheme);
    }
    DrawComponents(painter, interval, dpi_x, dpi_y, scheme);
    painter.restore();
}

void WellSketchRenderer::DrawComponents(QPainter& painter, Interval const& interval, double dpi_x,
                                        double dpi_y, ColorScheme const& scheme)
{
    for (WellComponent const& component : components_) {
        if (std::isfinite(component.depth.lower) && std::isfinite(component.depth.upper)) {
            DrawComponent(painter, Ascending(component), interval, dpi_x, dpi_y, scheme);
        }
    }
}

void WellSketchRenderer::DrawComponent(QPainter& painter, WellComponent const& component,
                                       Interval const& interval, double dpi_x, double dpi_y,
                                       ColorScheme const& scheme)
{
    using Type = WellComponentType;
    switch (component.type) {
    case Type::Undefined:
        break;
    case Type::HUD:
        DrawInnerArea(painter, component, interval, scheme.hud, scheme.hud_pattern, true);
        break;
    case Type::CementPlug:
        DrawInnerArea(painter, component, interval, scheme.cement, scheme.cement_pattern, false);
        break;
    case Type::Plug:
        DrawPlug(painter, component, interval, scheme);
        break;
    case Type::Fish:
        DrawFish(painter, component, interval);
        break;
    case Type::Restriction:
        DrawRestriction(painter, component, interval, scheme);
        break;
    case Type::SafetyValve:
        DrawSafetyValve(painter, component, interval, scheme);
        break;
    case Type::Sleeve:
        DrawSleeve(painter, component, interval, scheme);
        break;
    case Type::Nipple:
        DrawNipple(painter, component, interval, scheme);
        break;
    case Type::Leak:
        DrawLeak(painter, component, interval, scheme);
        break;
    case Type::Cut:
        DrawCut(painter, component, interval, scheme);
        break;
    case Type::Straddle:
        DrawStraddle(painter, component, interval, scheme);
        break;
    case Type::SidePocketMandrel:
        DrawSPM(painter, component, interval, dpi_x, scheme);
        break;
    case Type::PermanentDownholeGauge:
        DrawPDHG(painter, component, interval, dpi_x, scheme);
        break;
    case Type::ProductionPacker:
    case Type::AnnularSafetyValvePacker:
        DrawPacker(painter, component, interval, scheme);
        break;
    case Type::OpenholePacker:
        DrawOpenHolePacker(painter, component, interval, dpi_x, scheme);
        break;
    case Type::Formation:
        DrawFormation(painter, component, interval, dpi_x, scheme);
        break;
    case Type::Perforation:
        DrawPerforation(painter, component, interval, dpi_y, false);
        break;
    case Type::TubingPunch:
        DrawPerforation(painter, component, interval, dpi_y, true);
        break;
    }
}

double WellSketchRenderer::Row(double depth, Interval const& interval) const
{
    int const row = ConvertDepthToYValue(static_cast<float>(depth), height_, interval);
    return std::clamp(static_cast<double>(row), -FARTHEST_ROW, FARTHEST_ROW);
}

WellSketchRenderer::Geometry WellSketchRenderer::ComponentCalculations(WellComponent const& component,
                                                                       double diameter, int width, int height,
                                                                       Interval const& interval) const
{
    auto const row = [&](double depth) {
        int const y = ConvertDepthToYValue(static_cast<float>(depth), height, interval);
        return std::clamp(static_cast<double>(y), -FARTHEST_ROW, FARTHEST_ROW);
    };
    Geometry geometry;
    geometry.top = row(component.depth.lower);
    geometry.height = std::max(row(component.depth.upper) - geometry.top, 1.0 * minimum_component_height_);
    geometry.center = width / 2;
    geometry.half_width = std::max(Pixels(diameter) * 0.5, 0.0);
    geometry.left = geometry.center - geometry.half_width;
    geometry.right = geometry.center + geometry.half_width;
    return geometry;
}

QString WellSketchRenderer::GenerateBoundingBoxDescription(QString const& text, Interval const& depth) const
{
    return SketchItemText{depth, text, std::nullopt}.GetStatusText(survey_);
}

void WellSketchRenderer::CreatePipeBoundingBox(QString const& prefix,
                                               CalculatedPipeComponent const& component, double center,
                                               double inner_radius, double outer_radius, double y1, double y2)
{
    if (y2 < 0 || y1 > height_) {
        return; // the mouse cannot get there
    }
    SketchItemText text{component.GetDepth(), component.GetDescription(),
                        SketchItemText::PipeSizes{prefix, component.GetNonNullOd(), component.GetNonNullId(),
                                                  component.GetWeight()}};
    double const wall = outer_radius - inner_radius;
    bounding_boxes_.push_back({text, PixelRect(center - outer_radius, y1, wall, y2 - y1)});
    bounding_boxes_.push_back({std::move(text), PixelRect(center + inner_radius, y1, wall, y2 - y1)});
}

void WellSketchRenderer::CreateComponentBoundingBox(WellComponent const& component, double x, double width,
                                                    double y, double height)
{
    bounding_boxes_.push_back(
        {{component.depth, component.description, std::nullopt}, PixelRect(x, y, width, height)});
}

void WellSketchRenderer::CreatePolygonBoundingBox(WellComponent const& component,
                                                  std::vector<QPointF> const& left)
{
    if (left.empty()) {
        return;
    }
    QPolygonF polygon(QList<QPointF>(left.cbegin(), left.cend()));
    for (auto point = left.crbegin(); point != left.crend(); ++point) {
        polygon.append({2 * Center() - point->x(), point->y()});
    }
    polygons_.push_back({{component.depth, component.description, std::nullopt}, polygon});
}

void WellSketchRenderer::CreateMirroredPolygonBoundingBox(QString const& description, Interval const& depth,
                                                          Outlines const& outlines)
{
    if (outlines.outer.empty()) {
        return;
    }
    QPolygonF left(QList<QPointF>(outlines.outer.cbegin(), outlines.outer.cend()));
    left.append(QList<QPointF>(outlines.inner.crbegin(), outlines.inner.crend()));
    QPolygonF right = left;
    for (QPointF& point : right) {
        point.setX(2 * Center() - point.x());
    }
    SketchItemText const text{depth, description, std::nullopt};
    polygons_.push_back({text, left});
    polygons_.push_back({text, right});
}
