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
#include <cmath>

// Stored screens of a column, and its state as the record of a project file.

namespace {
template <typename Record>
std::shared_ptr<Record> Share(Record record)
{
    return std::make_shared<Record>(std::move(record));
}
} // namespace

std::shared_ptr<VIEW_WIDGET_BASE_STRUCT>
ColumnWindow::WriteDataViewState(BaseCombinedViewWidget const& pair) const
{
    BaseViewWidget const* view = pair.GetBaseViewWidget();
    std::shared_ptr<VIEW_WIDGET_BASE_STRUCT> record;
    if (auto const* user = qobject_cast<UserDataView const*>(view)) {
        record = Share(user->WriteState_UserDataView());
    } else if (auto const* automatic = qobject_cast<AutomaticDataView const*>(view)) {
        record = Share(automatic->WriteState_IntermediateDataView());
    } else if (auto const* data = qobject_cast<BaseDataView const*>(view)) {
        record = Share(data->WriteState_BaseDataView());
    } else {
        VIEW_WIDGET_STRUCT named;
        named.name = pair.GetBaseViewWidgetName();
        record = Share(std::move(named));
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
    auto const restored_sizes = UnchangedRestoredSizes();
    record.splitter_sizes = restored_sizes.value_or(scroll_area_->GetSplitterSizes());
    for (BaseCombinedViewWidget const* pair : FindAllCombinedViewWidgets()) {
        record.views.push_back(WriteDataViewState(*pair));
    }
    for (auto const& carried : carried_views_) {
        auto const place = std::min<qsizetype>(carried.index, static_cast<qsizetype>(record.views.size()));
        record.views.insert(record.views.begin() + place, carried.record);
        if (carried.splitter_size || !restored_sizes) { // else the project had fewer widths than views
            record.splitter_sizes.insert(std::min(place, record.splitter_sizes.size()),
                                         carried.splitter_size.value_or(0));
        }
    }
    record.view_count = static_cast<int>(record.views.size());
    record.screens = screens_.WriteState_ScreensMap();
    record.current_screen_name = screens_.GetCurrentScreenName();
    return record;
}

void ColumnWindow::CarryView(std::shared_ptr<VIEW_WIDGET_BASE_STRUCT> record, int index)
{
    carried_views_.push_back({std::move(record), index, std::nullopt});
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
    scroll_area_->SetSplitterSizes(sizes); // the views tell themselves whether they are shown
    restored_layout_ = RestoredLayout{sizes, CurrentLayout()};
    screens_.RestoreState_SceensMap(record.screens);
    screens_.SetCurrentScreenName(record.current_screen_name);
    RestoreDepthIntervals(record);
    OnScaleHeightChanged();
    UpdateScrollBar();
    RedrawAllViewWidgets();
}

void ColumnWindow::RestoreDepthIntervals(COLUMN_WINDOW_Struct const& record)
{
    auto const has_length = [](Interval const& interval) {
        return std::isfinite(interval.Delta()) && interval.Delta() != 0;
    };
    override_automatic_interval_ = false;
    OnVisibleWidgetDataChanged(); // for a project that does not tell
    if (has_length(record.total_displayed_interval)) {
        override_automatic_interval_ = record.override_interval;
        params_.SetTotalDisplayedDepthInterval(record.total_displayed_interval);
    }
    params_.SetViewDepthMetric(has_length(record.view_depth_interval)
                                   ? record.view_depth_interval
                                   : params_.GetTotalDisplayedDepthInterval());
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
        // A column that was never on screen has no widths yet, but 0 stands for hidden.
        screen->emplace_back(pairs[i]->GetBaseViewWidgetName(),
                             pairs[i]->isHidden() ? 0 : std::max(sizes[i], 1));
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
        // Two views may have one name; those in front are placed already.
        auto const rest = FindAllCombinedViewWidgets().mid(sizes.size());
        auto const found = std::find_if(rest.begin(), rest.end(), [&name = view](auto const* pair) {
            return pair->GetBaseViewWidgetName() == name;
        });
        if (found != rest.end()) {
            scroll_area_->InsertSplitterWidget(static_cast<int>(sizes.size()), *found);
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
