// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellTrajectoryModel.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"

namespace {
std::vector<BaseTableModel::Column> MakeColumns()
{
    using Kind = BaseTableModel::Kind;
    QString const unit = " [" + SettingsSingleton::Instance().GetDepthUnit() + "]";
    QString const dogleg_unit = SettingsSingleton::Instance().IsMetricDepth() ? " [deg/30m]" : " [deg/100ft]";
    std::vector<BaseTableModel::Column> columns = {
        {.heading = "MD" + unit, .kind = Kind::Depth},
        {.heading = "Incl [deg]", .kind = Kind::Number},
        {.heading = "Azi [deg]", .kind = Kind::Number},
        {.heading = "TVD" + unit, .kind = Kind::Depth},
        {.heading = "NS" + unit, .kind = Kind::Depth},
        {.heading = "EW" + unit, .kind = Kind::Depth},
        {.heading = "DLS" + dogleg_unit, .kind = Kind::Number},
        {.heading = "Vertical Section" + unit, .kind = Kind::Depth}};
    for (auto& column : columns) {
        column.is_editable = false;
    }
    return columns;
}
} // namespace

WellTrajectoryModel::WellTrajectoryModel(std::vector<WellTrajectoryItem> const& trajectory, QObject* parent)
    : BaseTableModel(MakeColumns(), parent)
{
    std::vector<Row> rows;
    rows.reserve(trajectory.size());
    for (auto const& item : trajectory) {
        Row row;
        for (float const value :
             {item.GetMeasuredDepth(), item.GetInclination(), item.GetAzimuth(), item.tvd, item.ns, item.ew,
              Quorrel::ConvertDoglegSeverityToSettingsUnit(item.dls), item.vertical_section}) {
            row.push_back(NumberCell(static_cast<double>(value)));
        }
        rows.push_back(std::move(row));
    }
    AppendRows(std::move(rows));
}
