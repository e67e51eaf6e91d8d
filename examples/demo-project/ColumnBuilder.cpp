// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "ColumnBuilder.h"

#include "model/DataContainer.h"
#include "model/ViewObjectNames.h"

#include <algorithm>
#include <stdexcept>

ColumnBuilder::ColumnBuilder(DataContainer const& container, int survey_key)
    : container_(container), survey_key_(survey_key)
{
}

void ColumnBuilder::ShowMarkers(bool markers_a, bool markers_b)
{
    show_markers_a_ = markers_a;
    show_markers_b_ = markers_b;
}

template <typename Record>
Record& ColumnBuilder::Add(QString const& object_name, QString const& name, int width)
{
    auto record = std::make_shared<Record>();
    record->object_name = object_name;
    record->name = name;
    record->is_visible = width > 0;
    if constexpr (std::is_base_of_v<BASE_DATAVIEW_STRUCT, Record>) {
        record->show_markers_a = show_markers_a_;
        record->show_markers_b = show_markers_b_;
    }
    column_.views.push_back(record);
    column_.splitter_sizes.append(width);
    names_.append(name);
    return *record;
}

void ColumnBuilder::AddDefaultView(QString const& object_name, QString const& name, int width)
{
    if (object_name == view_object_names::DEVIATION) {
        Add<BASE_DATAVIEW_STRUCT>(object_name, name, width);
    } else {
        Add<VIEW_WIDGET_STRUCT>(object_name, name, width);
    }
}

HeaderRow ColumnBuilder::CurveInfo(QString const& mnemonic) const
{
    for (auto const& hash : container_.GetDepthLogIdentifierHashes(survey_key_)) {
        LogPassIdentifier const log(survey_key_, hash);
        auto const index = container_.GetDataChannelNames(log).indexOf(mnemonic);
        if (index >= 0) {
            return container_.GetCurveInfo({log, static_cast<int>(index)});
        }
    }
    throw std::runtime_error("No curve " + mnemonic.toStdString());
}

void ColumnBuilder::AddAutomaticView(QString const& mnemonic, Interval const& scale, int width)
{
    auto parameters = std::make_shared<ScaleItemParameters>();
    parameters->header = CurveInfo(mnemonic);
    parameters->scale = scale;
    parameters->is_selected = true;
    Add<INTERMEDIATE_DATAVIEW_STRUCT>(view_object_names::AUTOMATIC, mnemonic, width)
        .scales.push_back(std::move(parameters));
}

void ColumnBuilder::AddUserView(QString const& name, std::vector<DemoCurve> const& curves, int width)
{
    auto& view = Add<USER_DATAVIEW_STRUCT>(view_object_names::USER, name, width);
    for (auto const& curve : curves) {
        auto const index = container_.GetDataChannelNames(curve.log).indexOf(curve.mnemonic);
        if (index < 0) {
            throw std::runtime_error("No curve " + curve.mnemonic.toStdString());
        }
        DataChannelIdentifier const channel(curve.log, static_cast<int>(index));
        auto parameters = std::make_shared<ScaleItemParameters>();
        parameters->header = container_.GetCurveInfo(channel);
        parameters->index = static_cast<int>(view.curves.size());
        parameters->scale = curve.scale;
        parameters->pen = curve.pen;
        parameters->is_selected = view.curves.empty();
        view.curves.push_back(channel);
        view.scales.push_back(std::move(parameters));
    }
}

void ColumnBuilder::AddFill(QString const& name, int curve_a, int curve_b, FILL_AREA_METHODS method,
                            QColor const& color)
{
    auto& view = dynamic_cast<USER_DATAVIEW_STRUCT&>(*column_.views.back());
    view.fill_areas.push_back({.name = name,
                               .curve_a = view.curves.at(static_cast<std::size_t>(curve_a)),
                               .curve_b = view.curves.at(static_cast<std::size_t>(curve_b)),
                               .method = method,
                               .color = color});
}

void ColumnBuilder::AddFill(QString const& name, int curve_a, float value, FILL_AREA_METHODS method,
                            QColor const& color)
{
    AddFill(name, curve_a, curve_a, method, color);
    dynamic_cast<USER_DATAVIEW_STRUCT&>(*column_.views.back()).fill_areas.back().value = value;
}

void ColumnBuilder::StoreScreen(QString const& name)
{
    std::vector<std::pair<QString, int>> widths;
    for (qsizetype i = 0; i < names_.size(); ++i) {
        widths.emplace_back(names_[i], column_.splitter_sizes[i]);
    }
    StoreScreen(name, widths);
}

void ColumnBuilder::StoreScreen(QString const& name, std::vector<std::pair<QString, int>> const& widths)
{
    ScreenRecord screen;
    for (auto const& view : names_) {
        auto const found = std::find_if(widths.begin(), widths.end(),
                                        [&](auto const& entry) { return entry.first == view; });
        screen.emplace_back(view, found == widths.end() ? 0 : found->second);
    }
    column_.screens[name] = std::move(screen);
    if (first_screen_.isEmpty()) {
        first_screen_ = name;
    }
}

COLUMN_WINDOW_Struct ColumnBuilder::Build(Interval const& shown, Interval const& total) const
{
    auto column = column_;
    column.view_count = static_cast<int>(column.views.size());
    column.view_depth_interval = shown;
    column.total_displayed_interval = total;
    column.override_interval = true;
    column.current_screen_name = first_screen_;
    return column;
}
