// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseTable.h"
#include "well/DirectionalSurveyItem.h"

#include <vector>

/// Edits the stations of the directional survey: "MD", "Inclination", "Azimuth".
class DirectionalSurveyTable : public BaseTable
{
    Q_OBJECT
public:
    explicit DirectionalSurveyTable(QWidget* parent = nullptr);

    /// Replaces all rows.
    void AssignSurveyItemVector(std::vector<DirectionalSurveyItem> const& stations);
    void AddSurveyItem(DirectionalSurveyItem const& station = {});
    /// In the table's order. Marks wrong cells.
    /// @throws std::invalid_argument with the messages of all wrong cells, NoTableItemError for a missing one
    [[nodiscard]] std::vector<DirectionalSurveyItem> GetSurveyVector();

    void ParsePasteAction() override;

private:
    void Append(std::vector<DirectionalSurveyItem> const& stations);
};
