// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// Symbols of the components that stand outside the inner pipe or reach through its wall.

#include "well/WellSketchRenderer.h"

#include "display/DepthGeometry.h"
#include "well/SketchDrawing.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
QColor const charge_color(255, 255, 165);
/// Around the charges, so that they are seen on paper.
QColor const charge_outline(150, 130, 0);
constexpr double CHARGE_PEN = 0.75;
constexpr double PACKER_PEN = 2;
constexpr double GAUGE_PEN = 2;
constexpr double POCKET_BEVEL = 5; ///< pixels
/// A packer is looked up this much above its top, in the tubing that carries it.
constexpr double TUBING_LOOKUP_METRES = 0.5;
} // namespace

CalculatedPipeComponent const* WellSketchRenderer::FindTubingAbove(WellComponent const& component) const
{
    return pipe_strings_.FindTubingComponentAtDepth(component.depth.lower - TUBING_LOOKUP_METRES);
}

CalculatedPipeComponent const* WellSketchRenderer::FindCasingAbove(WellComponent const& component) const
{
    PipeString const* const tubing = pipe_strings_.FindTubing();
    return tubing != nullptr ? pipe_strings_.FindOutsideComponentAtDepth(*tubing, component.depth.lower -
                                                                                      TUBING_LOOKUP_METRES)
                             : nullptr;
}

void WellSketchRenderer::DrawPacker(QPainter& painter, WellComponent const& component,
                                    Interval const& interval, ColorScheme const& scheme)
{
    auto const* const tubing = FindTubingAbove(component);
    auto const* const casing = FindCasingAbove(component);
    if (tubing == nullptr || casing == nullptr) {
        return;
    }
    Geometry const g = ComponentCalculations(component, casing->GetNonNullId(), width_, height_, interval);
    DrawPackerElement(painter, component, Pixels(tubing->GetNonNullOd()) * 0.5, g.half_width, g, scheme);
}

void WellSketchRenderer::DrawOpenHolePacker(QPainter& painter, WellComponent const& component,
                                            Interval const& interval, double dpi_x, ColorScheme const& scheme)
{
    auto const* const pipe = pipe_strings_.FindInnerPipeComponentAtDepth(component.depth.Center());
    if (pipe == nullptr) {
        return;
    }
    Geometry const g = ComponentCalculations(component, pipe->GetNonNullOd(), width_, height_, interval);
    DrawPackerElement(painter, component, g.half_width, g.half_width + 0.2 * dpi_x, g, scheme);
}

void WellSketchRenderer::DrawPackerElement(QPainter& painter, WellComponent const& component,
                                           double inner_radius, double outer_radius, Geometry const& geometry,
                                           ColorScheme const& scheme)
{
    double const width = outer_radius - inner_radius;
    if (!(width > 0)) {
        return;
    }
    auto const box = [&](double side) {
        double const x = side < 0 ? geometry.center - outer_radius : geometry.center + inner_radius;
        return QRectF(x, geometry.top, width, geometry.height);
    };
    DrawSymbol(
        painter, component, geometry, box(-1) | box(1),
        [&](QPainter& symbol) {
            symbol.setPen(QPen(scheme.lines, PACKER_PEN));
            OnBothSides([&](double side) {
                symbol.fillRect(box(side), Qt::red);
                Quorrel::DrawCross(symbol, box(side));
            });
        },
        inner_radius, outer_radius);
    OnBothSides([&](double side) {
        CreateComponentBoundingBox(component, box(side).x(), width, geometry.top, geometry.height);
    });
}

void WellSketchRenderer::DrawPerforation(QPainter& painter, WellComponent const& component,
                                         Interval const& interval, double dpi_y, bool is_tubing_punch)
{
    double const depth = component.depth.Center();
    PipeString const* const pipe = pipe_strings_.FindInnerPipeAtDepth(depth);
    PipeString const* const largest = pipe_strings_.FindLargestPipeAtDepth(depth);
    auto const* const inner = pipe != nullptr ? pipe->FindComponentAtDepth(depth) : nullptr;
    if (inner == nullptr) {
        return;
    }
    auto const* const outer = largest != nullptr ? largest->FindComponentAtDepth(depth) : nullptr;
    auto const wall = [](CalculatedPipeComponent const& of) {
        return (static_cast<double>(of.GetNonNullOd()) - static_cast<double>(of.GetNonNullId())) * 0.5;
    };
    double point = Pixels(inner->GetNonNullOd()) * 0.5;
    if (is_tubing_punch) {
        point += Pixels(0.1 * wall(*inner));
    } else if (largest == pipe || outer == nullptr) {
        point += Pixels(wall(*inner));
    } else {
        point = Pixels(outer->GetNonNullOd() * 0.5 + wall(*outer));
    }

    Geometry const g = ComponentCalculations(component, inner->GetNonNullId(), width_, height_, interval);
    double const base = g.half_width;
    double charge = 0.1 * dpi_y;
    int count = charge > 0 ? Quorrel::TruncateToInt(g.height / (2 * charge)) : 0;
    double step = 0;
    if (count < 2) {
        count = 1;
        charge = g.height;
    } else {
        step = (g.height - charge) / (count - 1);
    }
    // Of a long row of charges only those in the window are drawn.
    int const first = step > 0 ? std::max(Quorrel::TruncateToInt((-charge - g.top) / step), 0) : 0;
    int const last =
        step > 0 ? std::min(Quorrel::TruncateToInt((height_ - g.top) / step), count - 1) : count - 1;
    double const reach = std::max(base, point);
    DrawSymbol(
        painter, component, g, QRectF(g.center - reach, g.top, 2 * reach, g.height),
        [&](QPainter& symbol) {
            symbol.setPen(QPen(charge_outline, CHARGE_PEN));
            symbol.setBrush(charge_color);
            for (int i = first; i <= last; ++i) {
                double const y = g.top + i * step;
                OnBothSides([&](double side) {
                    double const x = g.center + side * base;
                    Quorrel::DrawShape(symbol, {QPointF(x, y), QPointF(x, y + charge),
                                                QPointF(g.center + side * point, y + charge / 2)});
                });
            }
        },
        point, charge, first, last);
    CreateComponentBoundingBox(component, g.center - point, point - base, g.top, g.height);
    CreateComponentBoundingBox(component, g.center + base, point - base, g.top, g.height);
}

WellSketchRenderer::Geometry WellSketchRenderer::DrawPocket(QPainter& painter, WellComponent const& component,
                                                            Interval const& interval, double dpi_x,
                                                            double side, ColorScheme const& scheme)
{
    auto const* const above = FindTubingAbove(component);
    if (above == nullptr) {
        return {};
    }
    Geometry const g = ComponentCalculations(component, above->GetNonNullOd(), width_, height_, interval);
    double width = 0.1 * dpi_x;
    auto const* const at_depth = pipe_strings_.FindTubingComponentAtDepth(component.depth.Center());
    if (at_depth != nullptr && at_depth->GetNonNullOd() > above->GetNonNullOd()) {
        width = Pixels(at_depth->GetNonNullOd()) * 0.5 - g.half_width;
    } else if (auto const* const casing = FindCasingAbove(component)) {
        width = std::clamp(Pixels(casing->GetNonNullId()) * 0.5 - g.half_width, 0.0, width);
    }
    double const wall = g.center + side * g.half_width;
    double const face = wall + side * width;
    double const bevel = std::min(POCKET_BEVEL, g.height / 2);
    QRectF const extent(std::min(wall, face), g.top, width, g.height);
    DrawSymbol(
        painter, component, g, extent,
        [&](QPainter& symbol) {
            symbol.setPen(QPen(scheme.lines, 1));
            symbol.setBrush(scheme.component);
            Quorrel::DrawShape(symbol, {QPointF(wall, g.top), QPointF(face, g.top + bevel),
                                        QPointF(face, g.Bottom() - bevel), QPointF(wall, g.Bottom())});
            Quorrel::DrawStroke(symbol, QPointF(wall, g.top), QPointF(wall, g.Bottom()));
        },
        side, width);
    CreateComponentBoundingBox(component, extent.x(), width, g.top, g.height);
    return g;
}

void WellSketchRenderer::DrawSPM(QPainter& painter, WellComponent const& component, Interval const& interval,
                                 double dpi_x, ColorScheme const& scheme)
{
    DrawPocket(painter, component, interval, dpi_x, -1.0, scheme);
}

void WellSketchRenderer::DrawPDHG(QPainter& painter, WellComponent const& component, Interval const& interval,
                                  double dpi_x, ColorScheme const& scheme)
{
    Geometry const g = DrawPocket(painter, component, interval, dpi_x, 1.0, scheme);
    auto const* const tubing = FindTubingAbove(component);
    if (tubing == nullptr) {
        return;
    }
    double const od = tubing->GetNonNullOd();
    auto const* const casing = FindCasingAbove(component);
    double const reach = casing != nullptr ? (od + 0.8 * (casing->GetNonNullId() - od)) / 2 : (od + 1) / 2;
    double const tip = g.center + Pixels(reach);
    DrawSymbol(
        painter, component, g, QRectF(std::min(g.right, tip), g.Middle() - 1, std::abs(tip - g.right), 2),
        [&](QPainter& symbol) {
            symbol.setPen(QPen(Qt::green, GAUGE_PEN));
            Quorrel::DrawStroke(symbol, QPointF(g.right, g.Middle()), QPointF(tip, g.Middle()));
        },
        tip - g.right);
}
