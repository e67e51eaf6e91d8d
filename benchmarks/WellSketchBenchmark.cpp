// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

/// A sketch of 20 strings with 2,000 joints and 200 components of every type, at the size of a track. Its
/// reference is a plain fill of the rectangles that the sketch consists of, in the same run.

#include "well/DirectionalSurveyData.h"
#include "well/WellSketchRenderer.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace {
constexpr int WIDTH = 300;
constexpr int HEIGHT = 1000;
constexpr int STRINGS = 20;
constexpr int JOINTS = 100; ///< of each string
constexpr int COMPONENTS = 200;
constexpr double DPI = 96;
Interval const view(0, 4000);

/// A tubing inside 19 casings, each set shallower than the one inside it.
PipeStringData MakeStrings()
{
    std::vector<PipeString> strings;
    for (int i = 0; i < STRINGS; ++i) {
        auto const od = static_cast<float>(4.5 + 1.5 * i);
        double const foot = 3900.0 - 180 * i;
        std::vector<PipeComponent> joints(
            JOINTS, PipeComponent(od, od - 0.7F, 40, foot / JOINTS, QString("Joint of string %1").arg(i)));
        for (std::size_t joint = 5; joint < joints.size(); joint += 10) {
            joints[joint] = PipeComponent(od + 0.3F, od - 0.8F, 45, foot / JOINTS, "Accessory");
        }
        PipeString string(QString("String %1").arg(i), foot, i == 0, joints);
        if (i > 0) {
            string.SetOuterCementData(foot - 150, foot, "Cement");
        }
        strings.push_back(string);
    }
    PipeStringData data;
    data.SetPipeStringVector(strings);
    return data;
}

QList<WellComponent> MakeComponents()
{
    QList<WellComponent> components;
    for (int i = 0; i < COMPONENTS; ++i) {
        double const top = 20 + i * 19.0;
        auto const type = static_cast<WellComponentType>(1 + i % 19);
        components.append({Interval(top, top + 12), QString("Component %1").arg(i), type});
    }
    return components;
}

struct Sketch
{
    PipeStringData strings = MakeStrings();
    QList<WellComponent> components = MakeComponents();
    DirectionalSurveyData survey;
    std::vector<WellComponentBoundingBox> boxes;
    std::vector<PolygonBoundingBox> polygons;
    WellSketchRenderer renderer{strings, components, survey, boxes, polygons};
    QImage image{WIDTH, HEIGHT, QImage::Format_ARGB32_Premultiplied};

    void Render(double dpi = DPI)
    {
        image.fill(Qt::black);
        QPainter painter(&image);
        renderer.RenderToPainter(painter, view, dpi, dpi, WellSketchRenderer::ScreenScheme());
    }
};

void RenderSketch(benchmark::State& state)
{
    Sketch sketch;
    for (auto _ : state) {
        sketch.Render();
    }
    state.counters["rectangles"] = static_cast<double>(sketch.boxes.size());
    state.counters["polygons"] = static_cast<double>(sketch.polygons.size());
}

/// With another resolution each time, so that no symbol is there from before.
void RenderSketchAnew(benchmark::State& state)
{
    Sketch sketch;
    double dpi = DPI;
    for (auto _ : state) {
        dpi = 2 * DPI + 0.001 - dpi;
        sketch.Render(dpi);
    }
}

void FillSameRectangles(benchmark::State& state)
{
    Sketch sketch;
    sketch.Render();
    std::vector<QRect> rectangles;
    for (WellComponentBoundingBox const& box : sketch.boxes) {
        rectangles.push_back(box.area);
    }
    for (PolygonBoundingBox const& polygon : sketch.polygons) {
        rectangles.push_back(polygon.area.boundingRect().toRect());
    }
    QColor const steel = WellSketchRenderer::ScreenScheme().steel;
    for (auto _ : state) {
        sketch.image.fill(Qt::black);
        QPainter painter(&sketch.image);
        for (QRect const& rectangle : rectangles) {
            painter.fillRect(rectangle, steel);
        }
    }
}

// Large fills are shared with threads of the pool, so the CPU time counted is that of the whole process.
BENCHMARK(RenderSketch)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(RenderSketchAnew)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(FillSameRectangles)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime()->UseRealTime();
} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication const application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
