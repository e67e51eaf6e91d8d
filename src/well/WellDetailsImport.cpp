// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsImport.h"

#include "app/kit/ProjectText.h"
#include "model/ProjectAccess.h"
#include "well/PastedRows.h"
#include "well/WellDetailsImporter.h"

#include <QStringList>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {
/// Each string is a tab of the well details.
constexpr qsizetype MAXIMUM_STRINGS = 1000;

std::vector<DirectionalSurveyItem> Merge(std::vector<DirectionalSurveyItem> stations,
                                         std::vector<DirectionalSurveyItem> const& added)
{
    // The same station twice would be a step of no length, which has no dogleg severity.
    auto const by_all = [](DirectionalSurveyItem const& a, DirectionalSurveyItem const& b) {
        return std::tuple(a.measured_depth, a.inclination, a.azimuth) <
               std::tuple(b.measured_depth, b.inclination, b.azimuth);
    };
    auto known = stations;
    std::sort(known.begin(), known.end(), by_all);
    std::copy_if(added.begin(), added.end(), std::back_inserter(stations),
                 [&](DirectionalSurveyItem const& station) {
                     return !std::binary_search(known.begin(), known.end(), station, by_all);
                 });
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
        project.SetPipeStringData(strings);
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
    auto const perforations = importer.GetPerforaitons();
    auto const components = importer.GetMiscComponents();
    qsizetype longest_string = 0;
    for (auto const& pipe_string : pipe_strings) {
        longest_string = std::max(longest_string, static_cast<qsizetype>(pipe_string.size()));
    }
    struct Count
    {
        qsizetype count;
        char const* name;
        qsizetype maximum;
    };
    for (auto const& [count, name, maximum] : std::initializer_list<Count>{
             {std::ssize(importer.GetInclinationSurvey().first), "stations", PasteReport::MAXIMUM_ROWS},
             {perforations.size(), "perforations", PasteReport::MAXIMUM_ROWS},
             {std::ssize(pipe_strings), "pipe strings", MAXIMUM_STRINGS},
             {longest_string, "components in a pipe string", PasteReport::MAXIMUM_ROWS},
             {components.size(), "components", PasteReport::MAXIMUM_ROWS}}) {
        if (count > maximum) {
            return QStringLiteral("The file holds %1 %2, more than %3.").arg(count).arg(name).arg(maximum);
        }
    }
    QStringList texts{importer.GetWellname()};
    for (auto const& zone : perforations) {
        texts << zone.GetDescription();
    }
    for (auto const& pipe_string : pipe_strings) {
        texts << pipe_string.GetName() << pipe_string.GetOuterCementData().first;
        for (auto const& component : pipe_string.GetComponents()) {
            texts << component.GetDescription();
        }
    }
    for (auto const& component : components) {
        texts << component.description;
    }
    for (auto const& text : texts) {
        if (!Quorrel::FitsProjectFile(text)) {
            return Quorrel::CheckProjectText(text);
        }
    }
    return {};
}
