// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseTableModel.h"
#include "well/WellTrajectoryItem.h"

/// Calculated stations as rows, read-only, lengths and dogleg severity in the settings' units.
class WellTrajectoryModel : public BaseTableModel
{
    Q_OBJECT
public:
    explicit WellTrajectoryModel(std::vector<WellTrajectoryItem> const& trajectory,
                                 QObject* parent = nullptr);
};
