// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

/// A whole column in software drawing: 12 tracks of 6 passes with a million samples each. A mouse move stands
/// beside the bare blitting of the visible pixmaps; zoom and scroll frames are held against 1/30 s. Run with
/// QT_QPA_PLATFORM=offscreen (the default here).

#include "app/kit/Globals.h"
#include "display/BaseCombinedViewWidget.h"
#include "display/BaseViewWidget.h"
#include "display/ColumnWindow.h"
#include "display/MyAbstractScrollArea.h"
#include "display/ScrollAreaWrapper.h"
#include "model/BaseLogPassRecord.h"
#include "model/DepthLogPass.h"
#include "well/DirectionalSurveyData.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <memory>
#include <random>

namespace {
constexpr int TRACKS = 12;
constexpr int PASSES = 6;
constexpr std::size_t SAMPLES = 1'000'000;
constexpr double TOP = 1000;
constexpr double BOTTOM = 4000;

std::shared_ptr<DepthLogPass> MakePass(int number)
{
    static QColor const colors[] = {Qt::red, Qt::green, Qt::cyan, Qt::magenta, Qt::yellow, Qt::white};
    BASE_LOGPASS_STRUCT record;
    record.properties.identifier = LogPassIdentifier(1, QString::number(number));
    record.properties.pen = QPen(colors[number % 6]);
    std::vector<double> depths(SAMPLES);
    for (std::size_t i = 0; i < SAMPLES; ++i) {
        depths[i] = TOP + (BOTTOM - TOP) * static_cast<double>(i) / static_cast<double>(SAMPLES - 1);
    }
    std::mt19937 random(static_cast<unsigned>(number));
    std::uniform_real_distribution<float> noise(-4.0F, 4.0F);
    BaseLog::DataMatrix data;
    for (int track = 0; track < TRACKS; ++track) {
        record.curve_info_header.push_back(HeaderRow(QString("C%1").arg(track), "API", "", "A curve"));
        auto samples = std::make_shared<std::vector<float>>(SAMPLES);
        for (std::size_t i = 0; i < SAMPLES; ++i) {
            double const share = static_cast<double>(i) / static_cast<double>(SAMPLES);
            double const slow = 40 * std::sin(share * 60 + track) + 15 * std::sin(share * 700 + number);
            (*samples)[i] = static_cast<float>(75 + slow) + noise(random);
        }
        data.push_back(samples);
    }
    return std::make_shared<DepthLogPass>(record, data, true, 0.0F, 1.0F, depths);
}

/// The column in a window of 1920 x 1040 pixels; made once.
struct Scene
{
    DirectionalSurveyData survey;
    std::vector<std::shared_ptr<DepthLogPass>> passes;
    std::unique_ptr<ColumnWindow> column;
    QWidget window;

    Scene()
    {
        Quorrel::DPI_X = 96;
        Quorrel::DPI_Y = 96;
        ColumnContext context;
        context.directional_survey = &survey;
        column = std::make_unique<ColumnWindow>(1, context, nullptr);
        for (int i = 0; i < PASSES; ++i) {
            passes.push_back(MakePass(i));
            column->AddImportedDepthLog(passes.back());
        }
        QList<QString> names{"Depth"};
        for (int track = 0; track < TRACKS; ++track) {
            names.append(QString("C%1").arg(track));
        }
        column->UpdateVisibleViewWidgets(names);
        auto* layout = new QHBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        column->AddAddScrollAreaToLayout(layout);
        window.resize(1920, 1040);
        window.show();
        column->show();
        QCoreApplication::processEvents();
        Paint();
    }
    ~Scene() { column.reset(); }

    /// Paints at once what is due, as the window system would ask for it.
    void Paint()
    {
        QCoreApplication::sendPostedEvents();
        QEvent update(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(&window, &update);
    }

    [[nodiscard]] QList<BaseViewWidget*> VisibleViews() const
    {
        QList<BaseViewWidget*> views;
        for (BaseCombinedViewWidget* pair : column->FindAllVisibleCombinedViewWidgets()) {
            views.append(pair->GetBaseViewWidget());
        }
        return views;
    }

    [[nodiscard]] int RenderCount() const
    {
        int count = 0;
        for (BaseViewWidget const* view : VisibleViews()) {
            count += view->GetRenderCount();
        }
        return count;
    }
};

std::unique_ptr<Scene> scene;

void BlitVisiblePixmaps(benchmark::State& state)
{
    std::vector<std::pair<QPoint, QPixmap>> pixmaps;
    for (BaseViewWidget* view : scene->VisibleViews()) {
        pixmaps.emplace_back(view->mapTo(&scene->window, QPoint(0, 0)), QPixmap(view->size()));
        pixmaps.back().second.fill(Qt::black);
    }
    QImage screen(scene->window.size(), QImage::Format_RGB32);
    for (auto _ : state) {
        for (auto const& [position, pixmap] : pixmaps) {
            QPainter painter(&screen);
            painter.drawPixmap(position, pixmap);
        }
    }
    state.counters["pixmaps"] = static_cast<double>(pixmaps.size());
}
BENCHMARK(BlitVisiblePixmaps)->Unit(benchmark::kMicrosecond)->MinTime(0.5)->Repetitions(3);

void MouseMove(benchmark::State& state)
{
    BaseViewWidget* view = scene->VisibleViews().at(5);
    int const renders_before = scene->RenderCount();
    int y = 0;
    for (auto _ : state) {
        y = (y + 7) % view->height();
        QPointF const local(y % view->width(), y);
        QMouseEvent move(QEvent::MouseMove, local, view->mapToGlobal(local), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(view, &move);
        scene->Paint();
    }
    state.counters["renders"] = scene->RenderCount() - renders_before;
}
BENCHMARK(MouseMove)->Unit(benchmark::kMicrosecond)->MinTime(0.5)->Repetitions(3);

/// Runs `step` and paints, and reports the slowest frame beside the mean: by the clock, and in processor
/// time, which a busy machine does not stretch as much.
template <typename Step>
void Frames(benchmark::State& state, Step step)
{
    int const renders_before = scene->RenderCount();
    double slowest = 0;
    double slowest_cpu = 0;
    for (auto _ : state) {
        auto const start = std::chrono::steady_clock::now();
        std::clock_t const cpu_start = std::clock();
        step();
        scene->Paint();
        std::chrono::duration<double, std::milli> const taken = std::chrono::steady_clock::now() - start;
        slowest = std::max(slowest, taken.count());
        slowest_cpu =
            std::max(slowest_cpu, 1000.0 * static_cast<double>(std::clock() - cpu_start) / CLOCKS_PER_SEC);
    }
    auto const views = static_cast<double>(scene->VisibleViews().size());
    state.counters["slowest_ms"] = slowest;
    state.counters["slowest_cpu_ms"] = slowest_cpu;
    state.counters["renders_per_view"] =
        (scene->RenderCount() - renders_before) / views / static_cast<double>(state.iterations());
}

/// Frames of one zoom level, scrolled by a notch of the wheel; the argument is the number of zoom steps.
void ScrollFrames(benchmark::State& state)
{
    scene->column->OnZoomHome();
    for (int i = 0; i < state.range(0); ++i) {
        scene->column->OnZoomIn();
    }
    scene->Paint();
    QScrollBar* bar = scene->column->GetScrollAreaWrapper()->GetScrollArea()->verticalScrollBar();
    int direction = 1;
    Frames(state, [&] {
        int const before = bar->value();
        bar->setValue(before + direction * 90);
        if (bar->value() == before) {
            direction = -direction;
            bar->setValue(before + direction * 90);
        }
    });
    state.counters["metres"] = scene->column->GetViewDepth().Delta();
}
BENCHMARK(ScrollFrames)->DenseRange(1, 13, 2)->Unit(benchmark::kMillisecond)->MinTime(0.5);

/// In from the whole log to the limit and out again.
void ZoomFrames(benchmark::State& state)
{
    scene->column->OnZoomHome();
    scene->Paint();
    int step = 0;
    Frames(state, [&] {
        if (step < 13) {
            scene->column->OnZoomIn();
        } else {
            scene->column->OnZoomOut();
        }
        step = (step + 1) % 26;
    });
}
BENCHMARK(ZoomFrames)->Unit(benchmark::kMillisecond)->MinTime(2);
} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication const application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    scene = std::make_unique<Scene>();
    benchmark::RunSpecifiedBenchmarks();
    scene.reset();
    return 0;
}
