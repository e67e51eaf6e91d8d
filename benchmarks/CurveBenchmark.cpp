// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

/// Redraw of one curve and building of its bin levels. Each figure stands beside its reference: a bare
/// polyline of the same size for the redraw, one plain pass over the samples for the bins.

#include "display/ClippedDrawing.h"
#include "display/CurveRenderer.h"
#include "display/DepthCurve.h"
#include "model/StorageDataChannel.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cmath>
#include <limits>
#include <map>
#include <memory>
#include <random>

namespace {
constexpr int WIDTH = 200;
constexpr int HEIGHT = 1000;
constexpr double TOP = 1000;
constexpr double BOTTOM = 3000;

/// A wandering curve with noise, of the same shape for every number of samples.
std::shared_ptr<StorageDataChannel> MakeChannel(std::size_t size)
{
    std::vector<double> depths(size);
    auto samples = std::make_shared<std::vector<float>>(size);
    std::mt19937 random(7);
    std::uniform_real_distribution<float> noise(-4.0F, 4.0F);
    for (std::size_t i = 0; i < size; ++i) {
        double const share = static_cast<double>(i) / static_cast<double>(size - 1);
        depths[i] = TOP + share * (BOTTOM - TOP);
        (*samples)[i] =
            static_cast<float>(75 + 40 * std::sin(share * 60) + 15 * std::sin(share * 700)) + noise(random);
    }
    return std::make_shared<StorageDataChannel>(DATA_STORAGE_CHANNEL_Struct{}, true, 0.0F, 1.0F, depths,
                                                samples);
}

/// Channels are kept, so that every benchmark of a size sees the same memory.
std::shared_ptr<StorageDataChannel> GetChannel(std::size_t size)
{
    static std::map<std::size_t, std::shared_ptr<StorageDataChannel>> channels;
    auto& channel = channels[size];
    if (!channel) {
        channel = MakeChannel(size);
    }
    return channel;
}

QImage MakeImage()
{
    QImage image(WIDTH, HEIGHT, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    return image;
}

/// The very strokes of the curve, computed beforehand: what drawing alone costs.
void BareDrawPolyline(benchmark::State& state)
{
    auto const channel = GetChannel(static_cast<std::size_t>(state.range(0)));
    DepthCurve curve(channel);
    curve.ProcessCurve();
    std::vector<QPointF> points;
    int const count =
        CurveRenderer::RenderCurve(curve, Interval(0, 150), WIDTH, HEIGHT, Interval(TOP, BOTTOM), points);
    QImage image = MakeImage();
    QPainter painter(&image);
    painter.setPen(QPen(Qt::green, 1));
    for (auto _ : state) {
        painter.drawPolyline(points.data(), count);
    }
    state.counters["points"] = count;
}
BENCHMARK(BareDrawPolyline)->Arg(100'000)->Arg(10'000'000)->Unit(benchmark::kMicrosecond);

void RedrawCurve(benchmark::State& state)
{
    auto const channel = GetChannel(static_cast<std::size_t>(state.range(0)));
    DepthCurve curve(channel);
    curve.ProcessCurve();
    std::vector<QPointF> points;
    QImage image = MakeImage();
    QPainter painter(&image);
    painter.setPen(QPen(Qt::green, 1));
    int count = 0;
    for (auto _ : state) {
        count =
            CurveRenderer::RenderCurve(curve, Interval(0, 150), WIDTH, HEIGHT, Interval(TOP, BOTTOM), points);
        Quorrel::DrawPolylineClipped(painter, points.data(), static_cast<std::size_t>(count));
    }
    state.counters["points"] = count;
}
BENCHMARK(RedrawCurve)->Arg(1'000)->Arg(3'000)->Arg(100'000)->Arg(10'000'000)->Unit(benchmark::kMicrosecond);

/// The points alone, without drawing.
void RenderPoints(benchmark::State& state)
{
    auto const channel = GetChannel(static_cast<std::size_t>(state.range(0)));
    DepthCurve curve(channel);
    curve.ProcessCurve();
    std::vector<QPointF> points;
    for (auto _ : state) {
        benchmark::DoNotOptimize(CurveRenderer::RenderCurve(curve, Interval(0, 150), WIDTH, HEIGHT,
                                                            Interval(TOP, BOTTOM), points));
    }
}
BENCHMARK(RenderPoints)->Arg(1'000)->Arg(3'000)->Arg(100'000)->Arg(10'000'000)->Unit(benchmark::kMicrosecond);

/// One plain loop over the samples.
void PlainMinimumMaximum(benchmark::State& state)
{
    auto const samples = GetChannel(static_cast<std::size_t>(state.range(0)))->GetSamples();
    for (auto _ : state) {
        float minimum = std::numeric_limits<float>::infinity();
        float maximum = -minimum;
        for (float const value : *samples) {
            minimum = value < minimum ? value : minimum;
            maximum = value > maximum ? value : maximum;
        }
        benchmark::DoNotOptimize(minimum);
        benchmark::DoNotOptimize(maximum);
    }
}
BENCHMARK(PlainMinimumMaximum)->Arg(10'000'000)->Unit(benchmark::kMillisecond);

void ExtentOfSamples(benchmark::State& state)
{
    auto const channel = GetChannel(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        DepthCurve const curve(channel);
        benchmark::DoNotOptimize(curve.GetValueInterval());
    }
}
BENCHMARK(ExtentOfSamples)->Arg(10'000'000)->Unit(benchmark::kMillisecond);

void BuildBinLevels(benchmark::State& state)
{
    DepthCurve curve(GetChannel(static_cast<std::size_t>(state.range(0))));
    for (auto _ : state) {
        curve.ProcessCurve();
        benchmark::ClobberMemory();
    }
    state.counters["levels"] = static_cast<double>(curve.GetBinLevels().size());
}
BENCHMARK(BuildBinLevels)->Arg(10'000'000)->Unit(benchmark::kMillisecond);
} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication const application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
