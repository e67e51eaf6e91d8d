// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/DirectionalSurveyData.h"
#include "well/PipeStringData.h"
#include "well/WellSketchRenderer.h"

#include <QImage>
#include <QPainter>

/// A well whose sketch can be worked out by hand: in a window of 260 x 1001 pixels that shows 0 to 1000 m, an
/// inch is 10 pixels, a metre is a row and the centre is column 130.
namespace sketch_well {
constexpr int WIDTH = 260;
constexpr int HEIGHT = 1001;
constexpr double DPI = 100;
inline Interval const VIEW{0, 1000};

/// Conductor 20/18 in to 600 m, casing 10/9 to 800, liner 7/6 from 700 to 1000; tubing 4/3 to 400 and 5/3 to
/// 650.
inline std::vector<PipeString> Strings()
{
    return {{"Conductor", 600, false, {{20, 18, 90, 600, "conductor"}}},
            {"Casing", 800, false, {{10, 9, 40, 800, "casing"}}},
            {"Liner", 1000, false, {{7, 6, 29, 300, "liner"}}},
            {"Tubing", 650, true, {{4, 3, 12, 400, "joint A"}, {5, 3, 15, 250, "joint B"}}}};
}

inline PipeStringData Data(std::vector<PipeString> const& strings)
{
    PipeStringData data;
    data.SetPipeStringVector(strings);
    return data;
}

/// Solid fills in colours that nothing else has.
inline WellSketchRenderer::ColorScheme Scheme()
{
    auto scheme = WellSketchRenderer::ScreenScheme();
    scheme.hud_pattern = scheme.formation_pattern = Qt::SolidPattern;
    scheme.component = QColor(1, 200, 2);
    return scheme;
}

struct Sketch
{
    Sketch(std::vector<PipeString> const& pipes, QList<WellComponent> const& items,
           Interval const& view = VIEW, double dpi = DPI)
        : strings(Data(pipes)), components(items)
    {
        image.fill(Qt::black);
        QPainter painter(&image);
        renderer.RenderToPainter(painter, view, dpi, dpi, Scheme());
    }

    [[nodiscard]] QRgb At(int x, int y) const { return image.pixel(x, y); }
    /// The areas of items with this description.
    [[nodiscard]] std::vector<QRect> Boxes(QString const& description) const
    {
        std::vector<QRect> areas;
        for (WellComponentBoundingBox const& box : boxes) {
            if (box.text.description == description) {
                areas.push_back(box.area);
            }
        }
        return areas;
    }

    PipeStringData strings;
    QList<WellComponent> components;
    DirectionalSurveyData survey;
    std::vector<WellComponentBoundingBox> boxes;
    std::vector<PolygonBoundingBox> polygons;
    WellSketchRenderer renderer{strings, components, survey, boxes, polygons};
    QImage image{WIDTH, HEIGHT, QImage::Format_ARGB32_Premultiplied};
};
} // namespace sketch_well
