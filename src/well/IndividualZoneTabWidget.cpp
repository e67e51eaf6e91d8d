// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/IndividualZoneTabWidget.h"

#include "well/NameEdit.h"
#include "well/ZoneTable.h"

#include <QFormLayout>

IndividualZoneTabWidget::IndividualZoneTabWidget(ZoneTrack const& track, QWidget* parent)
    : QWidget(parent), name_(new NameEdit(track.GetName())), table_(new ZoneTable)
{
    table_->InitializeTable(track.GetZones());
    name_->setObjectName("ZoneTrackName");
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    form->addRow(tr("Name:"), name_);
    layout->addLayout(form);
    layout->addWidget(table_);
    connect(name_, &QLineEdit::textChanged, this, &IndividualZoneTabWidget::NameChanged_Signal);
}

ZoneTrack IndividualZoneTabWidget::GetZoneTrack() const
{
    ZoneTrack track(name_->text());
    track.SetZones(table_->GetZones());
    return track;
}
