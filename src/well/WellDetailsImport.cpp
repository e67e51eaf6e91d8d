// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsImport.h"

#include "app/kit/ProjectText.h"
#include "model/ProjectAccess.h"
#include "well/WellDetailsImporter.h"

#include <QStringList>

#include <algorithm>
#include <tuple>

namespace {
/// Each string is a tab of the well details.
constexpr std::size_t MAXIMUM_STRINGS = 1000;

std::vector<DirectionalSurveyItem> Merge(std::vector<DirectionalSurveyItem> stations,
                                         std::vector<DirectionalSurveyItem> const& added)
{
    // The same station twice would be a step of no length, which has no dogleg severity.
    auto const by_all = [](DirectionalSurveyItem const& a, DirectionalSurveyItem const& b) {
        return std::tuple(a.measured_depth, a.inclination, a.azimuth) <
               std::tuple(b.measured_depth, b.inclination, b.azimuth);
    };
    stations.insert(stations.end(), added.begin(), added.end());
    std::stable_sort(stations.begin(), stations.end(), by_all);
    stations.erase(std::unique(stations.begin(), stations.end()), stations.end());
    return stations;
}

void ApplySurvey(ProjectAccess& project, WellDetailsImporter const& importer, bool replace)
{
    auto const [stations, tie_in] = importer.GetInclinationSurvey();
    if (stations.empty()) {
        return;
    }
    if (replace) {
        project.SetTrajectorySurvey(stations, tie_in);
    } else {
        project.SetTrajectorySurvey(Merge(project.GetDirectionalSurveyVector(), stations),
                                    project.GetDirectionalSurveyTieInData());
    }
}
} // namespace

void WellDetailsImport::Apply(ProjectAccess& project, WellDetailsImporter const& importer,
                              WellDetailsChoice const& choice)
{
    if (choice.inclination) {
        ApplySurvey(project, importer, choice.replace);
    }
    if (auto const zones = importer.GetPerforaitons(); choice.perforations && !zones.isEmpty()) {
        project.SetPerforationZones(choice.replace ? zones : project.GetPerforationZones() + zones);
    }
    if (auto const added = importer.GetPipeStringVector(); choice.pipe_strings && !added.empty()) {
        std::vector<PipeString> strings;
        if (!choice.replace) {
            strings = project.GetPipeStringData().GetPipeStringVector();
        }
        strings.insert(strings.end(), added.begin(), added.end());
        PipeStringData data;
        data.SetPipeStringVector(strings);
        project.SetPipeStringData(data);
    }
    if (auto const components = importer.GetMiscComponents(); choice.components && !components.isEmpty()) {
        project.SetComponents(choice.replace ? components : project.GetComponents() + components);
    }
    if (auto const name = importer.GetWellname(); !name.isEmpty() && name != project.GetWellName()) {
        project.SetWellName(name);
    }
}

QString WellDetailsImport::Check(WellDetailsImporter const& importer)
{
    auto const pipe_strings = importer.GetPipeStringVector();
    if (pipe_strings.size() > MAXIMUM_STRINGS) {
        return QStringLiteral("The file holds %1 pipe strings, more than %2.")
            .arg(pipe_strings.size())
            .arg(MAXIMUM_STRINGS);
    }
    QStringList texts{importer.GetWellname()};
    for (auto const& zone : importer.GetPerforaitons()) {
        texts << zone.GetDescription();
    }
    for (auto const& pipe_string : pipe_strings) {
        texts << pipe_string.GetName() << pipe_string.GetOuterCementData().first;
        for (auto const& component : pipe_string.GetComponents()) {
            texts << component.GetDescription();
        }
    }
    for (auto const& component : importer.GetMiscComponents()) {
        texts << component.description;
    }
    for (auto const& text : texts) {
        if (!Quorrel::FitsProjectFile(text)) {
            return Quorrel::CheckProjectText(
                QStringLiteral("The text beginning with \"%1...\" is").arg(text.left(40)), text);
        }
    }
    return {};
}
