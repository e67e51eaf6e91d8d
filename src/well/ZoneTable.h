// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseModelTable.h"
#include "well/Zone.h"

class ZoneModel;

/// Edits a list of zones.
class ZoneTable : public BaseModelTable
{
    Q_OBJECT
public:
    explicit ZoneTable(QWidget* parent = nullptr);

    /// Replaces all rows.
    void InitializeTable(QList<Zone> const& zones);
    void AddRow(Zone const& zone);
    /// A zone from 0 to 0 in the default colour.
    void AddRow();
    /// The colour of new zones and of pasted ones without a colour.
    void SetDefaultColor(QColor const& color) { default_color_ = color; }
    /// In the table's order, each interval in ascending order.
    /// @throws std::invalid_argument naming the first wrong cell
    [[nodiscard]] QList<Zone> GetZones() const;
    static void OrderZoneInterval(QList<Zone>& zones);

    void ParsePasteAction() override;

private:
    explicit ZoneTable(ZoneModel* model, QWidget* parent);

    ZoneModel* model_;
    QColor default_color_ = Zone::DEFAULT_COLOR;
};
