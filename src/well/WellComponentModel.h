// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseTableModel.h"
#include "well/WellComponent.h"

/// Well components as rows: "Top", "Bottom", "Type", "Description".
class WellComponentModel : public BaseTableModel
{
    Q_OBJECT
public:
    static constexpr int TYPE_COLUMN = 2;

    explicit WellComponentModel(QObject* parent = nullptr);

    void AppendComponents(QList<WellComponent> const& components);
    /// As entered, not put in order.
    /// @throws std::invalid_argument naming the first wrong cell
    [[nodiscard]] QList<WellComponent> GetComponents() const;
};
