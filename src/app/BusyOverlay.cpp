// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/BusyOverlay.h"

#include <QPainter>

namespace {
constexpr int STEP_DEGREES = 45;
constexpr int SPOKES = 360 / STEP_DEGREES;
constexpr double PANEL_SIZE = 96.0;
constexpr double DOT_DISTANCE = 28.0;
constexpr double DOT_RADIUS = 6.0;
} // namespace

BusyOverlay::BusyOverlay(QWidget* parent, int interval_ms, double veil) : OverlayWidget(parent), veil_(veil)
{
    connect(&timer_, &QTimer::timeout, this, [this] {
        angle_ = (angle_ + STEP_DEGREES) % 360;
        update();
    });
    timer_.start(interval_ms);
    show();
}

void BusyOverlay::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), QColor::fromRgbF(0, 0, 0, static_cast<float>(veil_)));

    // A panel of its own keeps the white dots legible over light and dark windows.
    painter.translate(QRectF(rect()).center());
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(30, 32, 36, 190));
    painter.drawRoundedRect(QRectF(-PANEL_SIZE / 2, -PANEL_SIZE / 2, PANEL_SIZE, PANEL_SIZE), 14, 14);
    painter.rotate(angle_);
    for (int i = 0; i < SPOKES; ++i) {
        double const strength = 1.0 - static_cast<double>(i) / SPOKES;
        painter.setBrush(QColor::fromRgbF(1, 1, 1, static_cast<float>(strength)));
        painter.drawEllipse(QPointF(0, -DOT_DISTANCE), DOT_RADIUS, DOT_RADIUS);
        painter.rotate(-STEP_DEGREES);
    }
}
