// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// Symbols of the components that stand in the inner pipe.

#include "well/WellSketchRenderer.h"

#include "well/SketchDrawing.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace {
constexpr double PLUG_CROSS_PEN = 2;
constexpr double VALVE_LINE_PEN = 3;
constexpr double SLEEVE_PEN = 4;
constexpr double SLEEVE_PORT = 5; ///< diameter in pixels
constexpr double SIN_45 = 0.7071067811865475;
constexpr int BUBBLES = 7;
} // namespace

void WellSketchRenderer::DrawPlug(QPainter& painter, WellComponent const& component, Interval const& interval,
                                  ColorScheme const& scheme)
{
    auto const* const pipe = pipe_strings_.FindInnerPipeComponentAtDepth(component.depth.Center());
    if (pipe == nullptr) {
        return;
    }
    Geometry const g = ComponentCalculations(component, pipe->GetNonNullId(), width_, height_, interval);
    DrawSymbol(painter, component, g, g.Rect(), [&](QPainter& symbol) {
        symbol.fillRect(g.Rect(), scheme.component);
        symbol.setPen(QPen(Qt::red, PLUG_CROSS_PEN, Qt::SolidLine, Qt::RoundCap));
        Quorrel::DrawCross(symbol, g.Rect().adjusted(1, 1, -1, -1));
    });
    CreateComponentBoundingBox(component, g.left, 2 * g.half_width, g.top, g.height);
}

void WellSketchRenderer::DrawFish(QPainter& painter, WellComponent const& component, Interval const& interval)
{
    auto const* const pipe = pipe_strings_.FindInnerPipeComponentAtDepth(component.depth.Center());
    if (pipe == nullptr) {
        return;
    }
    Geometry const g = ComponentCalculations(component, pipe->GetNonNullId(), width_, height_, interval);
    // Head down; the tail is as wide as its fins and meets the body in the bore.
    double const fin = 0.7 * Center() / 2;
    double const neck = g.top + g.height / 3;
    double const notch = g.top + g.height / 9;
    double const belly = neck + (g.Bottom() - neck) * 0.4;
    QRectF const extent = g.Rect() | QRectF(g.center - fin, g.top, 2 * fin, g.height);
    DrawSymbol(painter, component, g, extent, [&](QPainter& symbol) {
        symbol.setBrush(Qt::green);
        Quorrel::DrawShape(symbol, {QPointF(g.center, neck), QPointF(g.center - fin, g.top),
                                    QPointF(g.center, notch), QPointF(g.center + fin, g.top)});
        Quorrel::DrawShape(symbol, {QPointF(g.center, neck), QPointF(g.right, belly),
                                    QPointF(g.center, g.Bottom()), QPointF(g.left, belly)});
    });
    CreateComponentBoundingBox(component, g.left, 2 * g.half_width, g.top, g.height);
}

void WellSketchRenderer::DrawRestriction(QPainter& painter, WellComponent const& component,
                                         Interval const& interval, ColorScheme const& scheme)
{
    auto const* const pipe = pipe_strings_.FindInnerPipeComponentAtDepth(component.depth.Center());
    if (pipe == nullptr) {
        return;
    }
    Geometry const g = ComponentCalculations(component, pipe->GetNonNullId(), width_, height_, interval);
    double const bore = 2 * g.half_width;
    DrawSymbol(painter, component, g, g.Rect(), [&](QPainter& symbol) {
        symbol.setBrush(scheme.component);
        Quorrel::DrawShape(symbol, {QPointF(g.left, g.top), QPointF(g.left + 0.3 * bore, g.Middle()),
                                    QPointF(g.left, g.Bottom())});
        Quorrel::DrawShape(symbol, {QPointF(g.right, g.top), QPointF(g.right - 0.15 * bore, g.Middle()),
                                    QPointF(g.right, g.Bottom())});
    });
    CreateComponentBoundingBox(component, g.left, bore, g.top, g.height);
}

void WellSketchRenderer::DrawSafetyValve(QPainter& painter, WellComponent const& component,
                                         Interval const& interval, ColorScheme const& scheme)
{
    auto const* const pipe = pipe_strings_.FindInnerPipeComponentAtDepth(component.depth.Center());
    if (pipe == nullptr) {
        return;
    }
    Geometry const g = ComponentCalculations(component, pipe->GetNonNullId(), width_, height_, interval);
    QPointF const middle(g.center, g.Middle());
    QPointF const end(g.half_width * SIN_45, g.height / 2 * SIN_45);
    DrawSymbol(painter, component, g, g.Rect(), [&](QPainter& symbol) {
        symbol.setBrush(scheme.component);
        Quorrel::DrawOval(symbol, g.Rect());
        symbol.setPen(QPen(Qt::red, VALVE_LINE_PEN));
        Quorrel::DrawStroke(symbol, middle - end, middle + end);
    });
    CreateComponentBoundingBox(component, g.left, 2 * g.half_width, g.top, g.height);
}

void WellSketchRenderer::DrawSleeve(QPainter& painter, WellComponent const& component,
                                    Interval const& interval, ColorScheme const& scheme)
{
    auto const* const pipe = pipe_strings_.FindInnerPipeComponentAtDepth(component.depth.Center());
    if (pipe == nullptr) {
        return;
    }
    // Half an inch wider than the pipe it is part of.
    Geometry const g =
        ComponentCalculations(component, pipe->GetNonNullOd() + 0.5, width_, height_, interval);
    QRectF const extent = g.Rect() | QRectF(g.left, g.Middle() - SLEEVE_PORT / 2, 1, SLEEVE_PORT);
    DrawSymbol(painter, component, g, extent, [&](QPainter& symbol) {
        symbol.setPen(QPen(scheme.lines, SLEEVE_PEN));
        Quorrel::DrawFrame(symbol, g.Rect());
        symbol.setPen(QPen(scheme.lines, 1));
        for (double const share : {0.2, 0.5, 0.8}) {
            symbol.drawEllipse(QPointF(g.left + share * 2 * g.half_width, g.Middle()), SLEEVE_PORT / 2,
                               SLEEVE_PORT / 2);
        }
    });
    CreateComponentBoundingBox(component, g.left, 2 * g.half_width, g.top, g.height);
}

void WellSketchRenderer::DrawNipple(QPainter& painter, WellComponent const& component,
                                    Interval const& interval, ColorScheme const& scheme)
{
    auto const* const pipe = pipe_strings_.FindInnerPipeComponentAtDepth(component.depth.Center());
    if (pipe == nullptr) {
        return;
    }
    Geometry const g = ComponentCalculations(component, pipe->GetNonNullId(), width_, height_, interval);
    double const width = 0.1 * 2 * g.half_width;
    double const notch = g.height / 6;
    DrawSymbol(painter, component, g, g.Rect(), [&](QPainter& symbol) {
        symbol.setBrush(scheme.component);
        OnBothSides([&](double side) {
            double const wall = g.center + side * g.half_width;
            double const face = wall - side * width;
            Quorrel::DrawShape(
                symbol, {QPointF(wall, g.top), QPointF(face, g.top), QPointF(face, g.Middle() - notch),
                         QPointF(wall - side * width * 0.35, g.Middle()), QPointF(face, g.Middle() + notch),
                         QPointF(face, g.Bottom()), QPointF(wall, g.Bottom())});
        });
    });
    CreateComponentBoundingBox(component, g.left, 2 * g.half_width, g.top, g.height);
}

void WellSketchRenderer::DrawLeak(QPainter& painter, WellComponent const& component, Interval const& interval,
                                  ColorScheme const& scheme)
{
    double const depth = component.depth.Center();
    auto const* const pipe = pipe_strings_.FindInnerPipeComponentAtDepth(depth);
    if (pipe == nullptr) {
        return;
    }
    Geometry const g = ComponentCalculations(component, pipe->GetNonNullId(), width_, height_, interval);
    double const radius = g.half_width;
    double const start = Row(depth, interval);
    std::array<QRectF, BUBBLES> bubbles;
    QRectF extent;
    double y = start;
    for (int i = 0; i < BUBBLES; ++i) {
        double const diameter = radius * (0.1 + 0.05 * i);
        double const x = g.left + 0.03 * radius + 0.05 * radius * i + (i % 2 == 1 ? 0.6 * diameter : 0.0);
        bubbles[static_cast<std::size_t>(i)] = QRectF(x, y - diameter, diameter, diameter);
        extent |= bubbles[static_cast<std::size_t>(i)];
        y -= 0.8 * diameter;
    }
    DrawSymbol(painter, component, g, extent, [&](QPainter& symbol) {
        symbol.setPen(QPen(scheme.lines, 1));
        for (QRectF const& bubble : bubbles) {
            symbol.drawEllipse(bubble);
        }
    });
    CreateComponentBoundingBox(component, extent.x(), extent.width(), extent.y(), extent.height());
}

void WellSketchRenderer::DrawCut(QPainter& painter, WellComponent const& component, Interval const& interval,
                                 ColorScheme const& scheme)
{
    auto const* const pipe = pipe_strings_.FindInnerPipeComponentAtDepth(component.depth.Center());
    if (pipe == nullptr) {
        return;
    }
    Geometry const g = ComponentCalculations(component, pipe->GetNonNullOd(), width_, height_, interval);
    double const half_height = std::min(g.height, 1.0 * minimum_component_height_) / 2;
    double const bore = Pixels(pipe->GetNonNullId()) * 0.5;
    // Through the wall, and far enough into the bore to be seen where the wall is a pixel or two.
    double const point = std::max(bore - 2 * half_height, 0.0);
    DrawSymbol(
        painter, component, g, g.Rect(),
        [&](QPainter& symbol) {
            symbol.setBrush(scheme.component);
            OnBothSides([&](double side) {
                double const base = g.center + side * g.half_width;
                Quorrel::DrawShape(symbol, {QPointF(base, g.Middle() - half_height),
                                            QPointF(base, g.Middle() + half_height),
                                            QPointF(g.center + side * point, g.Middle())});
            });
        },
        point);
    CreateComponentBoundingBox(component, g.left, 2 * g.half_width, g.top, g.height);
}

void WellSketchRenderer::DrawStraddle(QPainter& painter, WellComponent const& component,
                                      Interval const& interval, ColorScheme const& scheme)
{
    auto const* const pipe = pipe_strings_.FindInnerPipeComponentAtDepth(component.depth.Center());
    if (pipe == nullptr) {
        return;
    }
    Geometry const g = ComponentCalculations(component, pipe->GetNonNullId(), width_, height_, interval);
    double const radius = 0.7 * g.half_width;
    double const wall = 0.2 * g.half_width;
    double const height = 0.7 * g.height;
    DrawSymbol(painter, component, g, g.Rect(), [&](QPainter& symbol) {
        symbol.setBrush(scheme.component);
        OnBothSides([&](double side) {
            double const x = side < 0 ? g.center - radius : g.center + radius - wall;
            Quorrel::DrawFrame(symbol, QRectF(x, g.Middle() - height / 2, wall, height));
        });
    });
    CreateComponentBoundingBox(component, g.left, 2 * g.half_width, g.top, g.height);
}
