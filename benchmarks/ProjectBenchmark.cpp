// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// Saving and loading a project of four passes of 40 curves, 100 MB or QUORREL_PROJECT_BENCHMARK_MB, against
// write(2) with fsync and read(2) of the same vectors. Both take turns, each in a process of its own, so that
// both find fresh memory and the other's traces; the medians of the ratios count. The files stand in
// QUORREL_PROJECT_BENCHMARK_FOLDER or the temporary folder.

#include "ChildProcess.h"
#include "formats/project/ProjectFile.h"
#include "model/BaseLogPassRecord.h"
#include "model/DataContainer.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <memory>
#include <vector>

namespace {
constexpr int SURVEY = 1;
constexpr int PASSES = 4;
constexpr std::size_t COLUMNS = 40;

std::size_t Rows()
{
    char const* const megabytes = std::getenv("QUORREL_PROJECT_BENCHMARK_MB");
    auto const bytes = 1'000'000 * std::stoul(megabytes != nullptr ? megabytes : "100");
    return bytes / PASSES / (sizeof(double) + COLUMNS * sizeof(float));
}

QTemporaryDir const& Folder()
{
    auto const set = qEnvironmentVariable("QUORREL_PROJECT_BENCHMARK_FOLDER", QDir::tempPath());
    static QTemporaryDir const folder(set + "/project-benchmark-XXXXXX");
    return folder;
}

std::unique_ptr<DataContainer> MakeProject()
{
    auto container = std::make_unique<DataContainer>();
    container->AddSurvey(SURVEY, "Survey");
    for (int pass = 0; pass < PASSES; ++pass) {
        BASE_LOGPASS_STRUCT record;
        record.properties.identifier = LogPassIdentifier(SURVEY, QString::number(pass));
        BaseLog::DataMatrix columns;
        for (std::size_t column = 0; column < COLUMNS; ++column) {
            columns.push_back(std::make_shared<std::vector<float>>(Rows(), static_cast<float>(column)));
        }
        std::vector<double> depths(Rows());
        for (std::size_t i = 0; i < depths.size(); ++i) {
            depths[i] = 0.1 * static_cast<double>(i);
        }
        container->AddDepthLogPass(
            SURVEY, std::make_shared<DepthLogPass>(record, std::move(columns), true, 0.0F, 1.0F, depths));
    }
    return container;
}

struct Measured
{
    double seconds = 0;
    double cpu_seconds = 0;
    double peak_megabytes = 0;
};

template <typename Work>
Measured Measure(Work work)
{
    Measured measured;
    measured.peak_megabytes = child_process::PeakMegabytes([&] {
        auto const cpu = std::clock();
        auto const start = std::chrono::steady_clock::now();
        work();
        measured.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        measured.cpu_seconds = static_cast<double>(std::clock() - cpu) / CLOCKS_PER_SEC;
    });
    return measured;
}

/// The whole run of bytes; a write or read that fails ends the process.
template <typename Transfer, typename Bytes>
void TransferAll(Transfer transfer, int file, Bytes* bytes, std::size_t count)
{
    for (std::size_t done = 0; done < count;) {
        auto const moved = transfer(file, bytes + done, count - done);
        if (moved <= 0) {
            ::_exit(1);
        }
        done += static_cast<std::size_t>(moved);
    }
}

Measured SaveOurs()
{
    auto const container = MakeProject();
    return Measure([&] { project_file::Save(Folder().filePath("ours.qz4"), *container, {}, SURVEY); });
}

Measured SaveReference()
{
    auto const container = MakeProject();
    auto const path = Folder().filePath("reference").toStdString();
    // A new file, which then replaces the former one, as ours: a file truncated first would find the memory
    // of its former pages.
    auto const new_path = path + ".new";
    return Measure([&] {
        int const file = ::open(new_path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        auto const write = [file](auto const& values) {
            TransferAll(::write, file, reinterpret_cast<char const*>(values.data()),
                        values.size() * sizeof(values[0]));
        };
        for (int pass = 0; pass < PASSES; ++pass) {
            auto const log = container->GetDepthLogPass(LogPassIdentifier(SURVEY, QString::number(pass)));
            for (auto const& column : log->GetData()) {
                write(*column);
            }
            write(log->GetDepth().GetNativeDepthVector());
        }
        ::fsync(file);
        ::close(file);
        ::rename(new_path.c_str(), path.c_str());
    });
}

Measured LoadOurs()
{
    DataContainer container;
    return Measure(
        [&] { benchmark::DoNotOptimize(project_file::Load(Folder().filePath("ours.qz4"), container)); });
}

Measured LoadReference()
{
    std::vector<std::unique_ptr<char[]>> vectors;
    auto const path = Folder().filePath("reference").toStdString();
    return Measure([&] {
        int const file = ::open(path.c_str(), O_RDONLY);
        auto const read = [&](std::size_t count) {
            vectors.emplace_back(new char[count]); // not initialized
            TransferAll(::read, file, vectors.back().get(), count);
        };
        for (int pass = 0; pass < PASSES; ++pass) {
            for (std::size_t column = 0; column < COLUMNS; ++column) {
                read(Rows() * sizeof(float));
            }
            read(Rows() * sizeof(double));
        }
        ::close(file);
    });
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void Compare(benchmark::State& state, Measured (*ours)(), Measured (*reference)(), double needed_megabytes)
{
    std::vector<double> times;
    std::vector<double> cpu_times;
    std::vector<double> reference_times;
    double peak = 0;
    (void)Folder(); // the children share it
    child_process::Run(SaveReference);
    child_process::Run(SaveOurs);
    for (auto _ : state) {
        auto const expected = child_process::Run(reference);
        auto const measured = child_process::Run(ours);
        if (expected.seconds == 0 || measured.seconds == 0) {
            state.SkipWithError("a measurement failed");
            return;
        }
        state.SetIterationTime(measured.seconds);
        times.push_back(measured.seconds / expected.seconds);
        cpu_times.push_back(measured.cpu_seconds / expected.cpu_seconds);
        reference_times.push_back(expected.seconds * 1000);
        peak = std::max(peak, measured.peak_megabytes);
    }
    state.counters["ratio"] = Median(times);
    state.counters["cpu_ratio"] = Median(cpu_times);
    state.counters["reference_ms"] = Median(reference_times);
    state.counters["peak_MB"] = peak;
    if (needed_megabytes > 0) {
        state.counters["peak_ratio"] = peak / needed_megabytes;
    }
}

void ProjectSave(benchmark::State& state)
{
    Compare(state, SaveOurs, SaveReference, 0);
}

void ProjectLoad(benchmark::State& state)
{
    // The model keeps three vectors of depths: of the file, in metres and in feet.
    auto const row = 3 * sizeof(double) + COLUMNS * sizeof(float);
    Compare(state, LoadOurs, LoadReference, static_cast<double>(PASSES * Rows() * row) / 1e6);
}
BENCHMARK(ProjectSave)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);
BENCHMARK(ProjectLoad)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);
} // namespace

BENCHMARK_MAIN();
