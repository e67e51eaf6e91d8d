// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellTrajectoryTable.h"

#include "well/WellTrajectoryModel.h"

WellTrajectoryTable::WellTrajectoryTable(std::vector<WellTrajectoryItem> const& trajectory, QWidget* parent)
    : BaseModelTable(new WellTrajectoryModel(trajectory), parent)
{
}
