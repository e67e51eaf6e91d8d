// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/MainZoneTabWidget.h"

#include "well/IndividualZoneTabWidget.h"
#include "well/TabTitle.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

MainZoneTabWidget::MainZoneTabWidget(QWidget* parent) : QTabWidget(parent) {}

IndividualZoneTabWidget* MainZoneTabWidget::GetTab(int index) const
{
    return static_cast<IndividualZoneTabWidget*>(widget(index));
}

void MainZoneTabWidget::SetZoneTracks(QList<ZoneTrack> const& tracks)
{
    int const current = currentIndex();
    while (count() > 0) {
        DeleteCurrentZoneTrack();
    }
    for (auto const& track : tracks) {
        AddZoneTrack(track);
    }
    setCurrentIndex(std::clamp(current, 0, std::max(count() - 1, 0)));
}

void MainZoneTabWidget::AddZoneTrack(ZoneTrack const& track)
{
    auto* tab = new IndividualZoneTabWidget(track);
    setCurrentIndex(addTab(tab, TabTitle(track.GetName())));
    connect(tab, &IndividualZoneTabWidget::NameChanged_Signal, this,
            [this, tab](QString const& name) { setTabText(indexOf(tab), TabTitle(name)); });
}

void MainZoneTabWidget::DeleteCurrentZoneTrack()
{
    std::unique_ptr<QWidget> const tab(currentWidget());
    removeTab(currentIndex());
}

QList<ZoneTrack> MainZoneTabWidget::GetZoneTracks()
{
    QList<ZoneTrack> tracks;
    for (int i = 0; i < count(); ++i) {
        try {
            tracks.push_back(GetTab(i)->GetZoneTrack());
        } catch (std::exception const&) {
            setCurrentIndex(i);
            throw;
        }
    }
    return tracks;
}

ZoneTrack MainZoneTabWidget::GetCurrentZoneTrack() const
{
    auto const* tab = GetTab(currentIndex());
    if (tab == nullptr) {
        throw std::invalid_argument("There is no zone track.");
    }
    return tab->GetZoneTrack();
}

ZoneTable* MainZoneTabWidget::GetCurrentZoneTable() const
{
    auto const* tab = GetTab(currentIndex());
    return tab != nullptr ? tab->GetZoneTable() : nullptr;
}
