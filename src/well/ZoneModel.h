// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseTableModel.h"
#include "well/Zone.h"

/// Zones as rows: "Top", "Bottom", "Length" (calculated), "Description", "Color".
class ZoneModel : public BaseTableModel
{
    Q_OBJECT
public:
    static constexpr int DESCRIPTION_COLUMN = 3;
    static constexpr int COLOR_COLUMN = 4;

    explicit ZoneModel(QObject* parent = nullptr);

    void AppendZones(QList<Zone> const& zones);
    /// As entered, not put in order.
    /// @throws std::invalid_argument naming the first wrong cell
    [[nodiscard]] QList<Zone> GetZones() const;

protected:
    void Calculate(std::vector<Row>& rows) const override;
};
