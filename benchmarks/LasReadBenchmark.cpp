// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// Reading a LAS 2.0 file against a plain loop of the standard library over the same bytes. The file has a
// depth and 40 columns of 4 to 6 decimals, 3 % of them missing; 50 MB, or QUORREL_LAS_BENCHMARK_MB. Both take
// turns in one benchmark, so that other load on the machine strikes both; the ratio of the medians is what
// counts.

#include "ChildProcess.h"
#include "formats/las/LASFile.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <random>
#include <string>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {
constexpr std::size_t COLUMNS = 40;

class GeneratedFile
{
public:
    GeneratedFile()
    {
        char const* const megabytes = std::getenv("QUORREL_LAS_BENCHMARK_MB");
        std::size_t const size = 1'000'000 * std::stoul(megabytes != nullptr ? megabytes : "50");
        std::mt19937 random(7);
        std::string data;
        data.reserve(size + 1000);
        while (data.size() < size) {
            char text[64];
            data.append(text, static_cast<std::size_t>(std::snprintf(
                                  text, sizeof(text), "%.4f", 1000.0 + 0.1 * static_cast<double>(rows))));
            for (std::size_t column = 0; column < COLUMNS; ++column) {
                if (random() % 100 < 3) {
                    data += " -999.25";
                    continue;
                }
                double const value =
                    (static_cast<double>(random()) / 4294967296.0 - 0.1) * (column % 4 == 0   ? 2000.0
                                                                            : column % 4 == 1 ? 200.0
                                                                                              : 5.0);
                data.append(text, static_cast<std::size_t>(std::snprintf(
                                      text, sizeof(text), " %.*f", static_cast<int>(4 + column % 3), value)));
            }
            data += '\n';
            ++rows;
        }
        std::string header = "~Version\nVERS. 2.0 :\nWRAP. NO :\n~Well\nSTRT.M 1000.0 :\nSTOP.M " +
                             std::to_string(1000.0 + 0.1 * static_cast<double>(rows - 1)) +
                             " :\nSTEP.M 0.1 :\nNULL. -999.25 :\n~Curve\nDEPT.M :\n";
        for (std::size_t column = 0; column < COLUMNS; ++column) {
            header += std::string("C").append(std::to_string(column)) + ". :\n";
        }
        path = folder_.filePath("generated.las").toStdString();
        std::ofstream stream(path, std::ios::binary);
        stream << header << "~A\n" << data;
        bytes = header.size() + 3 + data.size();
    }

    std::string path;
    std::size_t rows = 0;
    std::size_t bytes = 0;

private:
    QTemporaryDir folder_;
};

GeneratedFile const& File()
{
    static GeneratedFile const file;
    return file;
}

/// The reference: the file in memory, every number by std::from_chars into columns of known length.
std::size_t ReadByFromChars(GeneratedFile const& file)
{
    int const descriptor = ::open(file.path.c_str(), O_RDONLY);
    struct ::stat status = {};
    ::fstat(descriptor, &status);
    auto const size = static_cast<std::size_t>(status.st_size);
    auto const* const text =
        static_cast<char const*>(::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0));
    ::close(descriptor);
    char const* cursor = static_cast<char const*>(::memmem(text, size, "~A\n", 3)) + 3;
    char const* const end = text + size;

    std::vector<std::vector<float>> columns(COLUMNS + 1);
    for (auto& column : columns) {
        column.reserve(file.rows);
    }
    std::size_t column = 0;
    for (;;) {
        while (cursor != end && (*cursor == ' ' || *cursor == '\n')) {
            ++cursor;
        }
        if (cursor == end) {
            break;
        }
        float value = 0.0F;
        cursor = std::from_chars(cursor, end, value).ptr;
        columns[column].push_back(value);
        column = column == COLUMNS ? 0 : column + 1;
    }
    ::munmap(const_cast<char*>(text), size);
    return columns[0].size();
}

std::size_t ReadByLasFile(GeneratedFile const& file)
{
    return LASFile(file.path).GetDepthVector().size();
}

template <typename Function>
double Seconds(Function const& function)
{
    auto const start = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(function());
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void LasRead(benchmark::State& state)
{
    GeneratedFile const& file = File();
    std::vector<double> ours;
    std::vector<double> reference;
    ReadByFromChars(file);
    for (auto _ : state) {
        reference.push_back(Seconds([&] { return ReadByFromChars(file); }));
        ours.push_back(Seconds([&] { return ReadByLasFile(file); }));
        state.SetIterationTime(ours.back());
    }
    state.counters["reference_ms"] = 1000.0 * Median(reference);
    state.counters["ratio"] = Median(ours) / Median(reference);
    state.SetBytesProcessed(static_cast<std::int64_t>(file.bytes * state.iterations()));
}
BENCHMARK(LasRead)->UseManualTime()->Iterations(9)->Unit(benchmark::kMillisecond);

/// Largest memory of a process that only loads the file, against 1.15 times its numbers and 12 MB.
void LasReadMemory(benchmark::State& state)
{
    GeneratedFile const& file = File();
    for (auto _ : state) {
        double const peak = child_process::Run(
            [&] { return child_process::PeakMegabytes([&] { LASFile const las(file.path); }); });
        if (peak == 0) {
            state.SkipWithError("no measurement");
            return;
        }
        double const limit = 1.15 * static_cast<double>(file.rows * (8 + 4 * COLUMNS)) / 1e6 + 12.0;
        state.counters["peak_MB"] = peak;
        state.counters["limit_MB"] = limit;
        state.counters["ratio_to_limit"] = peak / limit;
    }
}
BENCHMARK(LasReadMemory)->Iterations(1)->Unit(benchmark::kMillisecond);
} // namespace

BENCHMARK_MAIN();
