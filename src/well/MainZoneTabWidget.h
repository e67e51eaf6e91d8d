// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/ZoneTrack.h"

#include <QTabWidget>

class IndividualZoneTabWidget;
class ZoneTable;

/// Edits the zone tracks, one tab each.
class MainZoneTabWidget : public QTabWidget
{
    Q_OBJECT
public:
    explicit MainZoneTabWidget(QWidget* parent = nullptr);

    /// Replaces all tabs.
    void SetZoneTracks(QList<ZoneTrack> const& tracks);
    /// Adds a tab and shows it.
    void AddZoneTrack(ZoneTrack const& track);
    void DeleteCurrentZoneTrack();
    /// @throws std::invalid_argument for wrong input; the tab with it is shown then
    [[nodiscard]] QList<ZoneTrack> GetZoneTracks();
    /// @throws std::invalid_argument for wrong input or without tracks
    [[nodiscard]] ZoneTrack GetCurrentZoneTrack() const;
    /// Null without tracks.
    [[nodiscard]] ZoneTable* GetCurrentZoneTable() const;

private:
    [[nodiscard]] IndividualZoneTabWidget* GetTab(int index) const;
};
