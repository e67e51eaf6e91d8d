// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseModelTable.h"
#include "well/WellComponent.h"

class WellComponentModel;

/// Edits a list of well components.
class WellComponentTable : public BaseModelTable
{
    Q_OBJECT
public:
    explicit WellComponentTable(QWidget* parent = nullptr);

    /// Replaces all rows.
    void InitializeTable(QList<WellComponent> const& components);
    void AddRow(WellComponent const& component);
    /// A component from 0 to 0 of no type.
    void AddRow();
    /// In the table's order, each interval in ascending order.
    /// @throws std::invalid_argument naming the first wrong cell
    [[nodiscard]] QList<WellComponent> GetComponents() const;
    static void OrderWellComponentInterval(QList<WellComponent>& components);

    void ParsePasteAction() override;

private:
    explicit WellComponentTable(WellComponentModel* model, QWidget* parent);

    WellComponentModel* model_;
};
