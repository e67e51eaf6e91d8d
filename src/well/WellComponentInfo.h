// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <QGroupBox>
#include <QString>
#include <QWidget>

/// What is known of a clicked well component: its text and its depths, read-only, in the settings' unit.
/// Clicks in the form stay in it.
class WellComponentInfo final : public QWidget
{
    Q_OBJECT
public:
    /// Depths in metres.
    WellComponentInfo(QWidget* parent, Interval const& md, Interval const& tvd, QString const& description);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QGroupBox* MakeIntervalBox(QString const& title, Interval const& interval);
};
