// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellTrajectoryTable.h"

#include "well/WellTrajectoryModel.h"

#include <QHeaderView>

WellTrajectoryTable::WellTrajectoryTable(std::vector<WellTrajectoryItem> const& trajectory, QWidget* parent)
    : BaseModelTable(new WellTrajectoryModel(trajectory), parent)
{
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setMinimumSectionSize(95);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
}
