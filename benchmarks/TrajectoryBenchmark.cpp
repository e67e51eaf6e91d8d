// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DirectionalSurveyData.h"

#include <benchmark/benchmark.h>

#include <random>

namespace {
/// A snaking well with a station every 5 to 15 m. The angles spread over the same range for any number of
/// stations, since the time of a sine depends on its angle.
DirectionalSurveyData MakeSurvey(int stations)
{
    std::mt19937 generator(2);
    std::uniform_real_distribution<float> spread(-2.5F, 2.5F);
    std::vector<DirectionalSurveyItem> items;
    items.reserve(stations);
    for (int i = 0; i < stations; ++i) {
        items.emplace_back(10.0F * static_cast<float>(i) + spread(generator),
                           1.0F + static_cast<float>(i * 37 % 80), static_cast<float>(i * 131 % 300));
    }
    return {items, {}};
}

/// Random depths within the survey, the same for each run.
std::vector<float> MakeDepths(int stations)
{
    std::mt19937 generator(1);
    std::uniform_real_distribution<float> depth(2.5F, 10.0F * static_cast<float>(stations - 1) - 2.5F);
    std::vector<float> depths(4096);
    for (float& value : depths) {
        value = depth(generator);
    }
    return depths;
}

/// Time per call at random depths; from 10 to 100,000 stations it should not double.
void InterpolateWellTrajectory(benchmark::State& state)
{
    auto const stations = static_cast<int>(state.range(0));
    DirectionalSurveyData const survey = MakeSurvey(stations);
    std::vector<float> const depths = MakeDepths(stations);
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(survey.InterpolateWellTrajectory(depths[next++ % depths.size()]));
    }
}

/// The reference: a walk from the first station, as a plain loop would do it.
void WalkToInterval(benchmark::State& state)
{
    auto const stations = static_cast<int>(state.range(0));
    DirectionalSurveyData const survey = MakeSurvey(stations);
    std::vector<float> const depths = MakeDepths(stations);
    std::size_t next = 0;
    for (auto _ : state) {
        float const depth = depths[next++ % depths.size()];
        std::size_t i = 0;
        while (i + 1 < survey.GetWellTrajectoryData().size() &&
               survey.GetWellTrajectoryData()[i].GetMeasuredDepth() <= depth) {
            ++i;
        }
        benchmark::DoNotOptimize(i);
    }
}

void GenerateWellTrajectory(benchmark::State& state)
{
    auto const stations = static_cast<int>(state.range(0));
    std::vector<DirectionalSurveyItem> const items = MakeSurvey(stations).GetDirectionalSurveyVector();
    for (auto _ : state) {
        benchmark::DoNotOptimize(DirectionalSurveyData(items, {}));
    }
    state.SetItemsProcessed(state.iterations() * stations);
}
} // namespace

BENCHMARK(InterpolateWellTrajectory)->RangeMultiplier(10)->Range(10, 100'000);
BENCHMARK(WalkToInterval)->RangeMultiplier(10)->Range(10, 100'000);
BENCHMARK(GenerateWellTrajectory)->Arg(100'000)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
