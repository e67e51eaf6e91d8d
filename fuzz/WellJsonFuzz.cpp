// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DirectionalSurveyData.h"
#include "well/PipeStringData.h"
#include "well/WellDetailsImporter.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace {
void UsePipes(std::vector<PipeString> const& strings)
{
    PipeStringData data;
    data.SetPipeStringVector(strings);
    std::vector<PipeStringData::ComponentList> paths = {data.Find_A_AnnulusAssembly(),
                                                        data.FindInnerComponentsFromTop(),
                                                        data.FindAccessibleTubingAssembly()};
    for (PipeString const& string : strings) {
        Interval const depth = string.GetDepthInterval();
        paths.push_back(data.TraceDownwards(string, depth.Center()));
        paths.push_back(data.TraceOuterPipeDownwards(depth));
        paths.push_back(data.FindProductionCasings(depth.upper));
    }
    for (PipeStringData::ComponentList const& path : paths) {
        try {
            QString log;
            (void)PipeStringData::CalculateVolume(path, {10, 1000}, &log);
            (void)PipeStringData::CalculateDisplacement(path, {10, 1000}, &log);
            (void)PipeStringData::CalculateVolumeBelowDepth(path, 10, &log);
        } catch (std::invalid_argument const&) {
            // components without any diameter
        }
    }
}
} // namespace

/// A well details file, and every calculation that its contents go through.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    WellDetailsImporter const importer = WellDetailsImporter::FromJson(
        QByteArray(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size)));
    (void)importer.GetWellname();
    auto const [stations, tie_in] = importer.GetInclinationSurvey();
    DirectionalSurveyData const survey(stations, tie_in);
    for (Zone const& zone : importer.GetPerforaitons()) {
        (void)survey.GenerateIntervalDepthString(zone.GetDepth());
    }
    for (WellComponent const& component : importer.GetMiscComponents()) {
        (void)survey.GenerateIntervalDepthString(component.depth);
    }
    if (!stations.empty() && stations.back().measured_depth < 1000) {
        (void)survey.GenerateWellSurveyStorageDataChannels({}, {});
    }
    UsePipes(importer.GetPipeStringVector());
    return 0;
}
