// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseModelTable.h"
#include "well/WellTrajectoryItem.h"

#include <vector>

/// Shows calculated stations, which can be copied and not changed.
class WellTrajectoryTable : public BaseModelTable
{
    Q_OBJECT
public:
    explicit WellTrajectoryTable(std::vector<WellTrajectoryItem> const& trajectory,
                                 QWidget* parent = nullptr);

    void ParsePasteAction() override {}
    void DeleteSelectedRows() override {}
};
