// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/QuorrelFrame.h"
#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "display/ColumnWindow.h"
#include "display/ViewFactory.h"
#include "display/XYChart.h"
#include "model/ViewObjectNames.h"
#include "well/DeviationDataView.h"
#include "well/DirectionalSurveyData.h"

// What the main frame shows of the well.

namespace {
template <typename Action>
void ForEachDeviationDataView(ColumnWindow& column, Action const& action)
{
    for (BaseViewWidget* view : column.FindViewWidgets(view_object_names::DEVIATION)) {
        if (auto* deviation = qobject_cast<DeviationDataView*>(view)) {
            action(*deviation);
        }
    }
}
} // namespace

void QuorrelFrame::RedrawAllColumnWindows()
{
    for (auto const& [key, column] : column_windows_.GetColumnWindows()) {
        ForEachDeviationDataView(*column, [](DeviationDataView& view) { view.SetupDataChannels(); });
        column->OnVisibleWidgetsChanged();
        column->ForceRedraw();
    }
}

void QuorrelFrame::UpdateAllDeviationDataViews()
{
    for (auto const& [key, column] : column_windows_.GetColumnWindows()) {
        ForEachDeviationDataView(*column, [](DeviationDataView& view) { view.ToggleTvdUnit(); });
    }
}

void QuorrelFrame::OnShowVerticalSection()
{
    auto sections = std::make_shared<std::vector<float>>();
    auto depths = std::make_shared<std::vector<float>>();
    for (WellTrajectoryItem const& item : GetTrajectorySurvey()) {
        sections->push_back(Quorrel::MetricsDepthToSettingsDepth(item.vertical_section));
        depths->push_back(Quorrel::MetricsDepthToSettingsDepth(item.tvd));
    }
    QString const unit = SettingsSingleton::Instance().GetDepthUnit();
    auto* chart = new XYChart(sections, depths, this);
    chart->setWindowFlag(Qt::Window);
    chart->setAttribute(Qt::WA_DeleteOnClose);
    chart->setWindowTitle(tr("Vertical Section"));
    chart->SetChartTitle(tr("Vertical Section"));
    chart->SetAxesTitles(tr("Vsec"), tr("Depth"));
    chart->SetAxesUnits(unit, unit);
    chart->SetYAxisDownwards(true);
    chart->show();
}
