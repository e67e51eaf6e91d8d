// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseRenderer.h"
#include "well/PipeStringData.h"
#include "well/PolygonBoundingBox.h"
#include "well/SketchSymbols.h"
#include "well/WellComponent.h"
#include "well/WellComponentBoundingBox.h"

#include <QBrush>
#include <QColor>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <tuple>
#include <utility>
#include <vector>

class DirectionalSurveyData;
class QPainter;

/// Draws the well as a section along depth, on any painter: pipe strings around a vertical centre line, the
/// cement and fluids between them, the formations behind them and a symbol for every well component. Widths
/// are in proportion to the widest pipe, depths in metres follow the interval given. What cannot be placed
/// (a component outside every pipe, depths that are not numbers) is left out. Fills the two lists of hit
/// areas anew at each rendering. The well data outlive the renderer.
///
/// The drawing operations stand in several sources: WellSketchRenderer.cpp (order, hit areas),
/// WellSketchPipes.cpp (strings), WellSketchAreas.cpp (areas between walls), WellSketchSymbols.cpp and
/// WellSketchAnnulusSymbols.cpp (components inside and outside the inner pipe).
class WellSketchRenderer final : public BaseRenderer
{
public:
    struct ColorScheme
    {
        QColor background; ///< the caller's; not drawn here
        QColor lines;
        QColor component;
        QColor steel;
        QColor tubing_bore;
        QColor hud;
        Qt::BrushStyle hud_pattern = Qt::SolidPattern;
        QColor cement;
        Qt::BrushStyle cement_pattern = Qt::SolidPattern;
        Qt::BrushStyle formation_pattern = Qt::SolidPattern;

        bool operator==(ColorScheme const&) const = default;
    };
    [[nodiscard]] static ColorScheme ScreenScheme();
    [[nodiscard]] static ColorScheme PrintScheme();

    WellSketchRenderer(PipeStringData const& pipe_strings, QList<WellComponent> const& components,
                       DirectionalSurveyData const& survey,
                       std::vector<WellComponentBoundingBox>& bounding_boxes,
                       std::vector<PolygonBoundingBox>& polygons);

    /// The whole sketch over the painter's window.
    void RenderToPainter(QPainter& painter, Interval const& interval, double dpi_x, double dpi_y,
                         ColorScheme const& scheme);
    /// The components alone, in list order, as sized by the last RenderToPainter.
    void DrawComponents(QPainter& painter, Interval const& interval, double dpi_x, double dpi_y,
                        ColorScheme const& scheme);

    /// The text of an item followed by its depths, measured and true vertical.
    [[nodiscard]] QString GenerateBoundingBoxDescription(QString const& text, Interval const& depth) const;

private:
    /// Where a component stands, in pixels. `half_width` is the radius of the diameter asked for.
    struct Geometry
    {
        double top = 0;
        double height = 0;
        double center = 0;
        double half_width = 0;
        double left = 0;
        double right = 0;

        [[nodiscard]] QRectF Rect() const { return {left, top, right - left, height}; }
        [[nodiscard]] double Middle() const { return top + height / 2; }
        [[nodiscard]] double Bottom() const { return top + height; }
    };
    /// The two edges, from the top down, of an area on the left of the centre line.
    struct Outlines
    {
        std::vector<QPointF> outer;
        std::vector<QPointF> inner;
    };
    /// Joints of the same diameters, one below the other; radii and rows in pixels.
    struct WallRun
    {
        double outer = 0;
        double inner = 0;
        double top = 0;
        double bottom = 0;
        bool is_last = false;      ///< ends at the foot of the string
        double previous_outer = 0; ///< of the run above, 0 without one
        double previous_inner = 0;
    };
    using ComponentList = PipeStringData::ComponentList;

    [[nodiscard]] Geometry ComponentCalculations(WellComponent const& component, double diameter, int width,
                                                 int height, Interval const& interval) const;
    /// Row of a depth, held near the window so that no coordinate is out of a painter's range.
    [[nodiscard]] double Row(double depth, Interval const& interval) const;
    [[nodiscard]] double Pixels(double inches) const { return inches * pixels_per_inch_; }
    [[nodiscard]] double Center() const { return width_ / 2; }
    /// Calls `draw` with 1 for the right side of the well and -1 for the left.
    template <typename Draw>
    static void OnBothSides(Draw const& draw)
    {
        draw(-1.0);
        draw(1.0);
    }

    void DrawComponent(QPainter& painter, WellComponent const& component, Interval const& interval,
                       double dpi_x, double dpi_y, ColorScheme const& scheme);
    /// Draws the symbol of a component within `extent`. Besides its type, the width and height of its
    /// geometry and the scheme, `sizes` tell of everything that its looks depend on; equal symbols are drawn
    /// once.
    template <typename Draw, typename... Sizes>
    void DrawSymbol(QPainter& painter, WellComponent const& component, Geometry const& geometry,
                    QRectF const& extent, Draw const& draw, Sizes... sizes)
    {
        symbols_.Draw(painter,
                      {static_cast<double>(component.type), geometry.half_width, geometry.height,
                       static_cast<double>(sizes)...},
                      extent, draw);
    }

    // strings
    void DrawPipeString(QPainter& painter, PipeString const& string, Interval const& interval, double dpi_x,
                        ColorScheme const& scheme);
    void DrawPipeWalls(QPainter& painter, PipeString const& string, Interval const& interval,
                       ColorScheme const& scheme);
    void DrawWallRun(QPainter& painter, WallRun const& run, bool is_tubing, ColorScheme const& scheme);
    void DrawCasingEnds(QPainter& painter, PipeString const& string, Interval const& interval,
                        ColorScheme const& scheme);
    void DrawCasingHanger(QPainter& painter, double center, double outer_radius, double inner_radius,
                          double y, ColorScheme const& scheme);
    void DrawCasingShoe(QPainter& painter, PipeString const& string, Interval const& interval,
                        ColorScheme const& scheme);
    void DrawOuterCasingCement(QPainter& painter, PipeString const& string, Interval const& interval,
                               double dpi_x, ColorScheme const& scheme);

    // areas
    void DrawAreaBetweenPipeStringAndOutside(QPainter& painter, PipeString const& string,
                                             Interval const& interval, QString const& description,
                                             Interval const& depth, double dpi_x, QBrush const& brush);
    Outlines FillAnnulusArea(QPainter& painter, ComponentList const& inner, ComponentList const& outer,
                             Interval const& interval, Interval const& depth, double dpi_x,
                             QBrush const& brush);
    void DrawAreaBetweenComponents(QPainter& painter, CalculatedPipeComponent const& inner,
                                   ComponentList const& outer, Interval const& interval,
                                   Interval const& depth, double dpi_x, QBrush const& brush,
                                   Outlines& outlines);
    void DrawInnerArea(QPainter& painter, WellComponent const& component, Interval const& interval,
                       QColor const& color, Qt::BrushStyle pattern, bool to_end);
    std::vector<QPointF> FillInnerArea(QPainter& painter, ComponentList const& path, Interval const& interval,
                                       Interval const& depth, QBrush const& brush);
    void DrawFormation(QPainter& painter, WellComponent const& component, Interval const& interval,
                       double dpi_x, ColorScheme const& scheme);
    /// Fills a rectangle and its mirror image, the latter `mirror_shift` pixels farther to the right, and
    /// appends its corners.
    void FillMirrored(QPainter& painter, double outer_x, double inner_x, double y1, double y2,
                      QBrush const& brush, Outlines& outlines, int mirror_shift = 0);

    // components in the inner pipe
    void DrawPlug(QPainter& painter, WellComponent const& component, Interval const& interval,
                  ColorScheme const& scheme);
    void DrawFish(QPainter& painter, WellComponent const& component, Interval const& interval);
    void DrawRestriction(QPainter& painter, WellComponent const& component, Interval const& interval,
                         ColorScheme const& scheme);
    void DrawSafetyValve(QPainter& painter, WellComponent const& component, Interval const& interval,
                         ColorScheme const& scheme);
    void DrawSleeve(QPainter& painter, WellComponent const& component, Interval const& interval,
                    ColorScheme const& scheme);
    void DrawNipple(QPainter& painter, WellComponent const& component, Interval const& interval,
                    ColorScheme const& scheme);
    void DrawLeak(QPainter& painter, WellComponent const& component, Interval const& interval,
                  ColorScheme const& scheme);
    void DrawCut(QPainter& painter, WellComponent const& component, Interval const& interval,
                 ColorScheme const& scheme);
    void DrawStraddle(QPainter& painter, WellComponent const& component, Interval const& interval,
                      ColorScheme const& scheme);

    // components outside the inner pipe, or through its wall
    void DrawPacker(QPainter& painter, WellComponent const& component, Interval const& interval,
                    ColorScheme const& scheme);
    void DrawOpenHolePacker(QPainter& painter, WellComponent const& component, Interval const& interval,
                            double dpi_x, ColorScheme const& scheme);
    void DrawPackerElement(QPainter& painter, WellComponent const& component, double inner_radius,
                           double outer_radius, Geometry const& geometry, ColorScheme const& scheme);
    void DrawPerforation(QPainter& painter, WellComponent const& component, Interval const& interval,
                         double dpi_y, bool is_tubing_punch);
    void DrawSPM(QPainter& painter, WellComponent const& component, Interval const& interval, double dpi_x,
                 ColorScheme const& scheme);
    void DrawPDHG(QPainter& painter, WellComponent const& component, Interval const& interval, double dpi_x,
                  ColorScheme const& scheme);
    /// The pocket of a side pocket mandrel or gauge, on the left (-1) or right (1) wall of the tubing; gives
    /// its place, without height when there is no tubing.
    Geometry DrawPocket(QPainter& painter, WellComponent const& component, Interval const& interval,
                        double dpi_x, double side, ColorScheme const& scheme);
    /// The tubing's component just above the component's top; null when there is none.
    [[nodiscard]] CalculatedPipeComponent const* FindTubingAbove(WellComponent const& component) const;
    /// What is around it there; null when nothing is.
    [[nodiscard]] CalculatedPipeComponent const* FindCasingAbove(WellComponent const& component) const;

    // hit areas
    void CreatePipeBoundingBox(QString const& prefix, CalculatedPipeComponent const& component, double center,
                               double inner_radius, double outer_radius, double y1, double y2);
    void CreateComponentBoundingBox(WellComponent const& component, double x, double width, double y,
                                    double height);
    /// `left` are the points of the left edge from the top down; the right edge is their mirror image.
    void CreatePolygonBoundingBox(WellComponent const& component, std::vector<QPointF> const& left);
    /// The area between the outlines, and its mirror image.
    void CreateMirroredPolygonBoundingBox(QString const& description, Interval const& depth,
                                          Outlines const& outlines);

    SketchSymbols symbols_;
    /// With what the symbols kept were drawn: dots per inch and colours.
    std::tuple<double, double, ColorScheme> symbols_look_;
    int minimum_component_height_ = 0; ///< pixels
    double pixels_per_inch_ = 0;       ///< of pipe diameter
    PipeStringData const& pipe_strings_;
    QList<WellComponent> const& components_;
    DirectionalSurveyData const& survey_;
    std::vector<WellComponentBoundingBox>& bounding_boxes_;
    std::vector<PolygonBoundingBox>& polygons_;
};
