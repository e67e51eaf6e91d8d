// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ZoneTable.h"

#include "well/ColorPickerDelegate.h"
#include "well/WellTablePaste.h"
#include "well/ZoneModel.h"

#include <QHeaderView>

ZoneTable::ZoneTable(QWidget* parent) : ZoneTable(new ZoneModel, parent) {}

ZoneTable::ZoneTable(ZoneModel* model, QWidget* parent) : BaseModelTable(model, parent), model_(model)
{
    setItemDelegateForColumn(ZoneModel::COLOR_COLUMN, new ColorPickerDelegate(this));
    StretchColumn(*this, ZoneModel::DESCRIPTION_COLUMN);
    horizontalHeader()->resizeSection(ZoneModel::COLOR_COLUMN, 120);
}

void ZoneTable::InitializeTable(QList<Zone> const& zones)
{
    model_->Clear();
    model_->AppendZones(zones);
}

void ZoneTable::AddRow(Zone const& zone)
{
    model_->AppendZones({zone});
    ShowRow(model_->rowCount() - 1);
}

void ZoneTable::AddRow()
{
    AddRow(Zone(Interval(0, 0), QString(), default_color_));
}

QList<Zone> ZoneTable::GetZones() const
{
    auto zones = model_->GetZones();
    OrderZoneInterval(zones);
    return zones;
}

void ZoneTable::OrderZoneInterval(QList<Zone>& zones)
{
    for (auto& zone : zones) {
        Interval depth = zone.GetDepth();
        depth.Sort();
        zone = Zone(depth, zone.GetDescription(), zone.GetColor());
    }
}

void ZoneTable::ParsePasteAction()
{
    AppendPasted(*this, WellTablePaste::ReadZones(GetClipboardText(), default_color_),
                 tr("No Zone/Perf data found in pasted data. Check number format and try again"),
                 [this](auto const& rows) { model_->AppendZones(QList<Zone>(rows.cbegin(), rows.cend())); });
}
