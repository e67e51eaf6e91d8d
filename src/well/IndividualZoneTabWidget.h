// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/ZoneTrack.h"

#include <QWidget>

class QLineEdit;
class ZoneTable;

/// Edits one zone track: its name and its zones.
class IndividualZoneTabWidget : public QWidget
{
    Q_OBJECT
public:
    explicit IndividualZoneTabWidget(ZoneTrack const& track, QWidget* parent = nullptr);

    [[nodiscard]] ZoneTable* GetZoneTable() const { return table_; }
    /// @throws std::invalid_argument for a wrong cell
    [[nodiscard]] ZoneTrack GetZoneTrack() const;

signals:
    void NameChanged_Signal(QString const& name);

private:
    QLineEdit* name_;
    ZoneTable* table_;
};
