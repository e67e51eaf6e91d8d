// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/Zone.h"

#include <QList>

/// A named list of zones, drawn as one column.
class ZoneTrack
{
public:
    ZoneTrack() = default;
    explicit ZoneTrack(QString const& name) : name_(name) {}

    [[nodiscard]] QString const& GetName() const { return name_; }
    void SetName(QString const& name) { name_ = name; }
    [[nodiscard]] QList<Zone> const& GetZones() const { return zones_; }
    void SetZones(QList<Zone> const& zones) { zones_ = zones; }
    /// By depth interval.
    void SortZones();

    [[nodiscard]] bool operator==(ZoneTrack const&) const = default;

private:
    QString name_;
    QList<Zone> zones_;
};
