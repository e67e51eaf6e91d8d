// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/AutomaticDataView.h"
#include "display/BaseCombinedViewWidget.h"
#include "display/BaseViewWidget.h"
#include "display/ColumnWindow.h"
#include "display/ScrollAreaWrapper.h"
#include "display/UserDataView.h"
#include "formats/project/ViewRecords.h"

#include <algorithm>

// Stored screens of a column, and its state as the record of a project file.

namespace {
template <typename Record, typename Write>
std::shared_ptr<VIEW_WIDGET_BASE_STRUCT> MakeRecord(Write write)
{
    auto record = std::make_shared<Record>();
    write(*record);
    return record;
}
} // namespace

std::shared_ptr<VIEW_WIDGET_BASE_STRUCT>
ColumnWindow::WriteDataViewState(BaseCombinedViewWidget const& pair) const
{
    BaseViewWidget const* view = pair.GetBaseViewWidget();
    std::shared_ptr<VIEW_WIDGET_BASE_STRUCT> record;
    if (auto const* user = qobject_cast<UserDataView const*>(view)) {
        record = MakeRecord<USER_DATAVIEW_STRUCT>([&](auto& state) { user->WriteState_UserDataView(state); });
    } else if (auto const* automatic = qobject_cast<AutomaticDataView const*>(view)) {
        record = MakeRecord<INTERMEDIATE_DATAVIEW_STRUCT>(
            [&](auto& state) { automatic->WriteState_IntermediateDataView(state); });
    } else if (auto const* data = qobject_cast<BaseDataView const*>(view)) {
        record = MakeRecord<BASE_DATAVIEW_STRUCT>([&](auto& state) { data->WriteState_BaseDataView(state); });
    } else {
        record =
            MakeRecord<VIEW_WIDGET_STRUCT>([&](auto& state) { state.name = pair.GetBaseViewWidgetName(); });
    }
    record->object_name = pair.GetBaseViewWidgetObjectName();
    record->is_visible = !pair.isHidden();
    return record;
}

COLUMN_WINDOW_Struct ColumnWindow::WriteState_ColumnWindow() const
{
    COLUMN_WINDOW_Struct record;
    record.view_depth_interval = GetViewDepth();
    record.override_interval = override_automatic_interval_;
    record.total_displayed_interval = GetTotalDisplayedInterval();
    record.splitter_sizes = UnchangedRestoredSizes().value_or(scroll_area_->GetSplitterSizes());
    for (BaseCombinedViewWidget const* pair : FindAllCombinedViewWidgets()) {
        record.views.push_back(WriteDataViewState(*pair));
    }
    for (auto const& carried : carried_views_) {
        auto const place = std::min<qsizetype>(carried.index, static_cast<qsizetype>(record.views.size()));
        record.views.insert(record.views.begin() + place, carried.record);
        record.splitter_sizes.insert(std::min(place, record.splitter_sizes.size()), carried.splitter_size);
    }
    record.view_count = static_cast<int>(record.views.size());
    record.screens = screens_.WriteState_ScreensMap();
    record.current_screen_name = screens_.GetCurrentScreenName();
    return record;
}

void ColumnWindow::CarryView(std::shared_ptr<VIEW_WIDGET_BASE_STRUCT> record, int index)
{
    carried_views_.push_back({std::move(record), index, 0});
}

void ColumnWindow::RestoreState_ColumnWindow(COLUMN_WINDOW_Struct const& record)
{
    auto sizes = record.splitter_sizes;
    // From the last, so that the places of the others stay.
    for (auto carried = carried_views_.rbegin(); carried != carried_views_.rend(); ++carried) {
        if (carried->index < sizes.size()) {
            carried->splitter_size = sizes.takeAt(carried->index);
        }
    }
    override_automatic_interval_ = record.override_interval;
    SetSplitterSizes(sizes);
    restored_layout_ = RestoredLayout{sizes, CurrentLayout()};
    screens_.RestoreState_SceensMap(record.screens);
    screens_.SetCurrentScreenName(record.current_screen_name);
    params_.SetTotalDisplayedDepthInterval(record.total_displayed_interval);
    params_.SetViewDepthMetric(record.view_depth_interval);
    OnScaleHeightChanged();
    UpdateScrollBar();
    RedrawAllViewWidgets();
}

QList<std::pair<QString, bool>> ColumnWindow::CurrentLayout() const
{
    QList<std::pair<QString, bool>> layout;
    for (BaseCombinedViewWidget const* pair : FindAllCombinedViewWidgets()) {
        layout.append({pair->GetBaseViewWidgetName(), pair->isHidden()});
    }
    return layout;
}

std::optional<QList<int>> ColumnWindow::UnchangedRestoredSizes() const
{
    if (restored_layout_ && restored_layout_->layout == CurrentLayout()) {
        return restored_layout_->sizes;
    }
    return std::nullopt;
}

void ColumnWindow::ApplyRestoredSizes()
{
    if (auto const sizes = UnchangedRestoredSizes()) {
        scroll_area_->SetSplitterSizes(*sizes);
    }
}

void ColumnWindow::SaveScreen(QString const& name)
{
    auto screen = std::make_shared<ScreensMap::Screen>();
    auto const sizes = scroll_area_->GetSplitterSizes();
    auto const pairs = FindAllCombinedViewWidgets();
    for (qsizetype i = 0; i < std::min(pairs.size(), sizes.size()); ++i) {
        screen->emplace_back(pairs[i]->GetBaseViewWidgetName(), pairs[i]->isHidden() ? 0 : sizes[i]);
    }
    screens_.AddScreen(name, std::move(screen));
    screens_.SetCurrentScreenName(name);
}

void ColumnWindow::RestoreScreen(QString const& name)
{
    auto const screen = screens_.GetScreen(name);
    if (!screen) {
        return;
    }
    QList<int> sizes;
    for (auto const& [view, size] : *screen) {
        if (BaseCombinedViewWidget* pair = FindCombinedViewWidget(view)) {
            scroll_area_->InsertSplitterWidget(static_cast<int>(sizes.size()), pair);
            sizes.append(size);
        }
    }
    // A screen shows its own views; one made since it was stored is not among them.
    while (sizes.size() < scroll_area_->GetSplitterCount()) {
        sizes.append(0);
    }
    SetSplitterSizes(sizes);
    screens_.SetCurrentScreenName(name);
    OnVisibleWidgetsChanged();
}

void ColumnWindow::DeleteScreen(QString const& name)
{
    screens_.DeleteScreen(name);
}

QStringList ColumnWindow::GetScreenNames() const
{
    return screens_.GetScreenNames();
}
