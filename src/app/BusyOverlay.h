// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/OverlayWidget.h"

#include <QTimer>

/// Veils its parent and turns an indicator while a worker runs. Shown at once.
class BusyOverlay : public OverlayWidget
{
    Q_OBJECT
public:
    /// Each `interval_ms` the indicator turns by 45 degrees; `veil` is the opacity of the black veil, 0 to 1.
    BusyOverlay(QWidget* parent, int interval_ms, double veil);

    /// Present turn of the indicator in degrees, below 360.
    [[nodiscard]] int GetAngle() const { return angle_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer timer_;
    double veil_;
    int angle_ = 0;
};
