// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// Areas of the sketch: what fills the bore, the annuli and the rock.

#include "well/WellSketchRenderer.h"

#include "display/DepthGeometry.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {
QColor const formation_color(250, 200, 0);

/// Pixels between the window's edge and the formations. Like the gap below it keeps the resolution of the
/// first drawing with a known one, whatever the later ones have.
int Clearance(double dpi_x)
{
    static int clearance = 0;
    static bool is_set = false;
    if (!is_set && dpi_x > 0) {
        clearance = Quorrel::TruncateToInt(dpi_x * 0.05);
        is_set = true;
    }
    return clearance;
}

/// Pixels between the outermost pipe and the formations.
int LinerGapPixels(double dpi_x)
{
    static int gap = 0;
    static bool is_set = false;
    if (!is_set && dpi_x > 0) {
        gap = Quorrel::TruncateToInt(dpi_x * static_cast<double>(0.2F));
        is_set = true;
    }
    return gap;
}

bool IsFinite(Interval const& interval)
{
    return std::isfinite(interval.lower) && std::isfinite(interval.upper);
}

/// The same wall in fewer pieces: joints of the same diameters, one below the other, as one.
PipeStringData::ComponentList JoinEqual(PipeStringData::ComponentList path)
{
    for (auto joint = path.begin(); joint != path.end();) {
        auto const next = std::next(joint);
        if (next != path.end() && next->GetMinDepth() == joint->GetMaxDepth() &&
            next->GetNonNullOd() == joint->GetNonNullOd() && next->GetNonNullId() == joint->GetNonNullId()) {
            joint->SetMaxDepth(next->GetMaxDepth());
            path.erase(next);
        } else {
            joint = next;
        }
    }
    return path;
}
} // namespace

void WellSketchRenderer::FillMirrored(QPainter& painter, double outer_x, double inner_x, double y1, double y2,
                                      QBrush const& brush, Outlines& outlines, int mirror_shift)
{
    if (!(outer_x < inner_x) || !(y1 < y2)) {
        return;
    }
    QPointF const corners[] = {{outer_x, y1}, {outer_x, y2}, {inner_x, y1}, {inner_x, y2}};
    outlines.outer.insert(outlines.outer.end(), {corners[0], corners[1]});
    outlines.inner.insert(outlines.inner.end(), {corners[2], corners[3]});
    double const top = std::max(y1, 0.0);
    double const bottom = std::min(y2, 1.0 * height_);
    if (top < bottom) {
        int const left = Quorrel::RoundToInt(outer_x);
        int const width = Quorrel::RoundToInt(inner_x) - left;
        int const row = Quorrel::RoundToInt(top);
        int const height = Quorrel::RoundToInt(bottom) - row;
        painter.fillRect(left, row, width, height, brush);
        painter.fillRect(Quorrel::RoundToInt(2 * Center() - inner_x) + mirror_shift, row, width, height,
                         brush);
    }
}

void WellSketchRenderer::DrawAreaBetweenPipeStringAndOutside(QPainter& painter, PipeString const& string,
                                                             Interval const& interval,
                                                             QString const& description,
                                                             Interval const& depth, double dpi_x,
                                                             QBrush const& brush)
{
    if (!IsFinite(depth)) {
        return;
    }
    PipeString const* const outside = pipe_strings_.FindOutsidePipeAtDepth(string, depth.lower);
    ComponentList const outer =
        outside != nullptr ? pipe_strings_.TraceDownwards(*outside, depth.lower) : ComponentList();
    ComponentList inner;
    std::copy_if(string.GetComponents().cbegin(), string.GetComponents().cend(), std::back_inserter(inner),
                 [&](CalculatedPipeComponent const& joint) {
                     return joint.GetMaxDepth() > depth.lower && joint.GetMinDepth() < depth.upper;
                 });
    Outlines const outlines = FillAnnulusArea(painter, inner, outer, interval, depth, dpi_x, brush);
    CreateMirroredPolygonBoundingBox(description, depth, outlines);
}

WellSketchRenderer::Outlines
WellSketchRenderer::FillAnnulusArea(QPainter& painter, ComponentList const& inner, ComponentList const& outer,
                                    Interval const& interval, Interval const& depth, double dpi_x,
                                    QBrush const& brush)
{
    Interval range = depth;
    if (!outer.empty()) {
        range.lower = std::max(range.lower, outer.front().GetMinDepth());
        range.upper = std::min(range.upper, outer.back().GetMaxDepth());
    }
    Outlines outlines;
    for (CalculatedPipeComponent const& component : inner) {
        Interval const stretch(std::max(component.GetMinDepth(), range.lower),
                               std::min(component.GetMaxDepth(), range.upper));
        if (stretch.lower < stretch.upper) {
            DrawAreaBetweenComponents(painter, component, outer, interval, stretch, dpi_x, brush, outlines);
        }
    }
    return outlines;
}

void WellSketchRenderer::DrawAreaBetweenComponents(QPainter& painter, CalculatedPipeComponent const& inner,
                                                   ComponentList const& outer, Interval const& interval,
                                                   Interval const& depth, double dpi_x, QBrush const& brush,
                                                   Outlines& outlines)
{
    double const inner_x = Center() - Pixels(inner.GetNonNullOd()) * 0.5;
    if (outer.empty()) {
        FillMirrored(painter, inner_x - LinerGapPixels(dpi_x), inner_x, Row(depth.lower, interval),
                     Row(depth.upper, interval), brush, outlines);
        return;
    }
    for (CalculatedPipeComponent const& component : outer) {
        double const top = std::max(component.GetMinDepth(), depth.lower);
        double const bottom = std::min(component.GetMaxDepth(), depth.upper);
        if (top < bottom) {
            FillMirrored(painter, Center() - Pixels(component.GetNonNullId()) * 0.5, inner_x,
                         Row(top, interval), Row(bottom, interval), brush, outlines);
        }
    }
}

void WellSketchRenderer::DrawInnerArea(QPainter& painter, WellComponent const& component,
                                       Interval const& interval, QColor const& color, Qt::BrushStyle pattern,
                                       bool to_end)
{
    double const start = component.depth.lower;
    PipeString const* const pipe = pipe_strings_.FindInnerPipeAtDepth(start);
    if (pipe == nullptr || start == -1.0) {
        return;
    }
    ComponentList const path = JoinEqual(pipe_strings_.TraceDownwards(*pipe, start));
    if (path.empty()) {
        return;
    }
    Interval const depth(std::max(path.front().GetMinDepth(), start),
                         to_end ? path.back().GetMaxDepth() : component.depth.upper);
    CreatePolygonBoundingBox(component,
                             FillInnerArea(painter, path, interval, depth, QBrush(color, pattern)));
}

std::vector<QPointF> WellSketchRenderer::FillInnerArea(QPainter& painter, ComponentList const& path,
                                                       Interval const& interval, Interval const& depth,
                                                       QBrush const& brush)
{
    std::vector<QPointF> left;
    for (CalculatedPipeComponent const& component : path) {
        double const y1 = Row(std::max(component.GetMinDepth(), depth.lower), interval);
        double const y2 = Row(std::min(component.GetMaxDepth(), depth.upper), interval);
        double const radius = Pixels(component.GetNonNullId()) * 0.5;
        if (!(y1 < y2) || !(radius > 0)) {
            continue;
        }
        double const x = Center() - radius;
        left.emplace_back(x, y1);
        left.emplace_back(x, y2);
        int const top = Quorrel::RoundToInt(std::max(y1, 0.0));
        int const bottom = Quorrel::RoundToInt(std::min(y2, 1.0 * height_));
        if (top < bottom) {
            int const column = Quorrel::RoundToInt(x);
            painter.fillRect(column, top, Quorrel::RoundToInt(Center() + radius) - column, bottom - top,
                             brush);
        }
    }
    return left;
}

void WellSketchRenderer::DrawFormation(QPainter& painter, WellComponent const& component,
                                       Interval const& interval, double dpi_x, ColorScheme const& scheme)
{
    int const clearance = Clearance(dpi_x);
    int const gap = LinerGapPixels(dpi_x);
    QBrush const brush(formation_color, scheme.formation_pattern);
    Outlines outlines;
    double bottom = component.depth.lower;
    for (CalculatedPipeComponent const& outer : pipe_strings_.TraceOuterPipeDownwards(component.depth)) {
        // The pipe in which the formation begins and ends is followed to its own foot.
        double const next = outer.GetMaxDepth();
        double const wall = Center() - Pixels(outer.GetNonNullOd()) * 0.5 - gap;
        FillMirrored(painter, clearance, wall, Row(bottom, interval), Row(next, interval), brush, outlines,
                     1);
        bottom = std::max(bottom, next);
    }
    if (bottom < component.depth.upper) {
        FillMirrored(painter, clearance, Center(), Row(bottom, interval),
                     Row(component.depth.upper, interval), brush, outlines);
    }
    CreateMirroredPolygonBoundingBox(component.description, component.depth, outlines);
}
