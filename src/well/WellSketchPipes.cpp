// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// Pipe strings of the sketch: walls, joints, hangers, shoes and their cement.

#include "well/WellSketchRenderer.h"

#include "display/ClippedDrawing.h"
#include "display/DepthGeometry.h"
#include "well/SketchDrawing.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr double HANGER_HEIGHT = 20;    ///< pixels, as is a liner's second hanger above its foot
constexpr double HANGER_PEN = 3;        ///< width
constexpr double SHOE_SHARE = 0.05;     ///< of the window's height
constexpr double OUTLINE = 1;           ///< width of the lines around pipes
constexpr double SHOE_WIDTH_SHARE = .4; ///< of its height

/// A wall or line whose edges lie on whole pixels, so that it is never blurred and neighbours meet.
void FillBetween(QPainter& painter, double x1, double x2, double y1, double y2, QColor const& color)
{
    int const left = Quorrel::RoundToInt(std::min(x1, x2));
    int const top = Quorrel::RoundToInt(y1);
    int const width = Quorrel::RoundToInt(std::max(x1, x2)) - left;
    int const height = Quorrel::RoundToInt(y2) - top;
    if (width > 0 && height > 0) {
        painter.fillRect(left, top, width, height, color);
    }
}
} // namespace

void WellSketchRenderer::DrawPipeString(QPainter& painter, PipeString const& string, Interval const& interval,
                                        double dpi_x, ColorScheme const& scheme)
{
    if (string.size() == 0) {
        return;
    }
    DrawPipeWalls(painter, string, interval, scheme);
    if (string.GetIsTubing()) {
        return;
    }
    DrawCasingEnds(painter, string, interval, scheme);
    if (string.ContainsOuterCementData()) {
        DrawOuterCasingCement(painter, string, interval, dpi_x, scheme);
    }
}

void WellSketchRenderer::DrawPipeWalls(QPainter& painter, PipeString const& string, Interval const& interval,
                                       ColorScheme const& scheme)
{
    double const c = Center();
    QString const prefix = string.size() > 1 ? QStringLiteral("[%1] -").arg(string.GetName()) : QString();
    // Joints of the same diameters show no seam and are drawn as one.
    WallRun run;
    auto const finish = [&] {
        DrawWallRun(painter, run, string.GetIsTubing(), scheme);
        run = {.previous_outer = run.outer, .previous_inner = run.inner};
    };
    for (CalculatedPipeComponent const& component : string.GetComponents()) {
        double const outer = Pixels(component.GetNonNullOd()) * 0.5;
        double const inner = std::clamp(Pixels(component.GetNonNullId()) * 0.5, 0.0, std::max(outer, 0.0));
        Interval const& depth = component.GetDepth();
        if (!(outer > 0) || !std::isfinite(outer) || !std::isfinite(depth.lower) ||
            !std::isfinite(depth.upper)) {
            finish();
            run = {};
            continue;
        }
        double const y1 = Row(depth.lower, interval);
        double const y2 = Row(depth.upper, interval);
        if (run.outer != outer || run.inner != inner) {
            finish();
            run.outer = outer;
            run.inner = inner;
            run.top = y1;
        }
        run.bottom = y2;
        run.is_last = &component == &string.GetComponents().back();
        CreatePipeBoundingBox(prefix, component, c, inner, outer, y1, y2);
    }
    finish();
}

void WellSketchRenderer::DrawWallRun(QPainter& painter, WallRun const& run, bool is_tubing,
                                     ColorScheme const& scheme)
{
    if (!(run.outer > 0) || run.bottom < 0 || run.top >= height_) {
        return;
    }
    double const c = Center();
    double const top = run.top;
    double const bottom = run.bottom;
    if (is_tubing) {
        FillBetween(painter, c - run.inner, c + run.inner, top, bottom, scheme.tubing_bore);
    }
    // Outlines lie within the wall: its fill and its lines have the same edges.
    OnBothSides([&](double side) {
        auto const fill = [&](double x1, double x2, double y1, double y2, QColor const& color) {
            FillBetween(painter, c + side * x1, c + side * x2, y1, y2, color);
        };
        fill(run.inner, run.outer, top, bottom, scheme.lines);
        fill(run.inner + OUTLINE, run.outer - OUTLINE, top, bottom, scheme.steel);
        if (run.previous_outer > 0) {
            // The shoulders of a change of diameter.
            fill(run.previous_outer, run.outer, top, top + OUTLINE, scheme.lines);
            fill(run.previous_inner, run.inner, top, top + OUTLINE, scheme.lines);
        }
        if (run.is_last && !is_tubing) {
            fill(run.inner, run.outer, bottom, bottom + OUTLINE, scheme.lines);
        }
    });
    if (run.is_last && is_tubing) {
        FillBetween(painter, c - run.outer, c + run.outer, bottom, bottom + OUTLINE, scheme.lines);
    }
}

void WellSketchRenderer::DrawCasingEnds(QPainter& painter, PipeString const& string, Interval const& interval,
                                        ColorScheme const& scheme)
{
    Interval const& depth = string.GetDepthInterval();
    if (!std::isfinite(depth.lower) || !std::isfinite(depth.upper)) {
        return;
    }
    double const first_outer = Pixels(string.GetComponents().front().GetNonNullOd()) * 0.5;
    PipeString const* const outside = pipe_strings_.FindOutsidePipeAtDepth(string, depth.lower);
    CalculatedPipeComponent const* const at_top =
        outside != nullptr ? outside->FindComponentAtDepth(depth.lower) : nullptr;
    if (at_top != nullptr) {
        DrawCasingHanger(painter, Center(), first_outer, Pixels(at_top->GetNonNullId()) * 0.5,
                         Row(depth.lower, interval), scheme);
    }
    if (outside != nullptr && depth.IsInside(outside->GetDepthInterval())) {
        if (auto const* const at_foot = outside->FindComponentAtDepth(depth.upper)) {
            double const last_outer = Pixels(string.GetComponents().back().GetNonNullOd()) * 0.5;
            DrawCasingHanger(painter, Center(), last_outer, Pixels(at_foot->GetNonNullId()) * 0.5,
                             Row(depth.upper, interval) - HANGER_HEIGHT, scheme);
        }
        return;
    }
    DrawCasingShoe(painter, string, interval, scheme);
}

void WellSketchRenderer::DrawCasingHanger(QPainter& painter, double center, double outer_radius,
                                          double inner_radius, double y, ColorScheme const& scheme)
{
    if (y > height_ || y + HANGER_HEIGHT < 0) {
        return;
    }
    painter.save();
    painter.setPen(QPen(scheme.lines, HANGER_PEN, Qt::SolidLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
    OnBothSides([&](double side) {
        QRectF const area = QRectF(QPointF(center + side * outer_radius, y),
                                   QPointF(center + side * inner_radius, y + HANGER_HEIGHT))
                                .normalized();
        painter.fillRect(area, Qt::blue);
        // In a narrow gap the outline shrinks to a stroke instead of turning inside out.
        double const inset = std::min(HANGER_PEN / 2, area.width() / 2);
        Quorrel::DrawFrame(painter, area.adjusted(inset, HANGER_PEN / 2, -inset, -HANGER_PEN / 2));
    });
    painter.restore();
}

void WellSketchRenderer::DrawCasingShoe(QPainter& painter, PipeString const& string, Interval const& interval,
                                        ColorScheme const& scheme)
{
    double const size = Quorrel::TruncateToInt(SHOE_SHARE * height_);
    double const foot = Row(string.GetDepthInterval().upper, interval);
    if (foot - size > height_ || foot < 0) {
        return;
    }
    // A triangle that lies against the wall, also where that steps back above a wider last joint. Radii and
    // rows from the foot up.
    auto const& components = string.GetComponents();
    double const last_outer = Pixels(components.back().GetNonNullOd()) * 0.5;
    std::vector<QPointF> edge{{last_outer + size * SHOE_WIDTH_SHARE, foot + OUTLINE},
                              {last_outer, foot + OUTLINE}};
    double row = foot;
    for (auto joint = components.crbegin(); joint != components.crend() && row > foot - size; ++joint) {
        double const outer = Pixels(joint->GetNonNullOd()) * 0.5;
        edge.emplace_back(outer, row);
        row = std::max(Row(joint->GetMinDepth(), interval), foot - size);
        edge.emplace_back(outer, row);
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(scheme.lines);
    OnBothSides([&](double side) {
        std::vector<QPointF> corners = edge;
        for (QPointF& corner : corners) {
            corner.setX(Center() + side * corner.x());
        }
        Quorrel::DrawPolygonClipped(painter, corners.data(), corners.size());
    });
    painter.restore();
}

void WellSketchRenderer::DrawOuterCasingCement(QPainter& painter, PipeString const& string,
                                               Interval const& interval, double dpi_x,
                                               ColorScheme const& scheme)
{
    auto [description, depth] = string.GetOuterCementData();
    depth.Sort();
    DrawAreaBetweenPipeStringAndOutside(painter, string, interval, description, depth, dpi_x,
                                        QBrush(scheme.cement, Qt::Dense5Pattern));
}
