// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthAxisRenderer.h"

#include "app/kit/Quorrel.h"

#include <QFontMetrics>
#include <QPainter>

#include <cmath>

namespace {
constexpr int HALF_TICK_LENGTH = 20;
constexpr int MINOR_TICK_LENGTH = 5;
constexpr double SMALLEST_FONT = 0.6; ///< share of the default size, below which labels would not be legible

double SettingsDepth(double metres)
{
    return static_cast<double>(Quorrel::MetricsDepthToSettingsDepth(static_cast<float>(metres)));
}

/// 1, 2, 5 or 10 times the power of ten at or below `span`.
double ChooseStep(double span)
{
    double const exponent = span <= 1 ? std::floor(std::log10(span)) : std::trunc(std::log10(span));
    double const power = std::pow(10, exponent);
    double const mantissa = span / power;
    if (mantissa <= 1.5) {
        return power;
    }
    if (mantissa <= 3.5) {
        return 2 * power;
    }
    return (mantissa <= 7.5 ? 5 : 10) * power;
}

/// Makes the painter's font smaller, as far as it stays legible, so that `text` fits into `width` pixels.
void FitFont(QPainter& painter, QString const& text, int width)
{
    QFont font = painter.font();
    double const size = font.pointSizeF() > 0 ? font.pointSizeF() : font.pixelSize();
    double const smallest = SMALLEST_FONT * size;
    double const step = size / 40;
    double fitting = size;
    while (painter.fontMetrics().horizontalAdvance(text) > width && fitting - step >= smallest) {
        fitting -= step;
        font.pointSizeF() > 0 ? font.setPointSizeF(fitting) : font.setPixelSize(qRound(fitting));
        painter.setFont(font);
    }
}

/// Calls `draw(depth in the settings' unit, y)` for the ticks at start + i * step that lie above the bottom
/// row.
template <typename Draw>
void ForEachTick(double start, double step, int height, Interval const& interval, Draw const& draw)
{
    // No two ticks share a row unless single precision has run out; then the ruler ends early.
    int const most = 16 * height + 32;
    for (int i = 0; i < most; ++i) {
        auto const depth = static_cast<float>(start + i * step);
        int const y =
            BaseRenderer::ConvertDepthToYValue(Quorrel::SettingsDepthToMetricDepth(depth), height, interval);
        if (y >= height) {
            return;
        }
        draw(depth, y);
    }
}
} // namespace

DepthAxisRenderer::AxisScale DepthAxisRenderer::CalculateAxisScale(double dpi, Interval const& interval,
                                                                   int height, double k)
{
    if (height < 1 || !interval.IsValid()) {
        return {};
    }
    double const span = std::trunc(k * dpi) * (SettingsDepth(interval.Delta()) / height);
    if (!(span > 0) || !std::isfinite(span)) {
        return {};
    }
    AxisScale scale;
    scale.step = ChooseStep(span);
    scale.start = std::ceil(SettingsDepth(interval.lower) / scale.step) * scale.step;
    return scale;
}

void DepthAxisRenderer::RenderToPainter(QPainter& painter, Interval const& interval, double dpi, double k,
                                        QColor const& color, bool bold)
{
    if (!interval.IsValid()) {
        return;
    }
    ResetRenderer(painter);
    painter.save();
    painter.fillRect(0, 0, width_, height_, color);
    painter.setPen(Qt::black);
    AxisScale const scale = CalculateAxisScale(dpi, interval, height_, k);
    if (scale.step > 0) {
        int const decimals = scale.step > 0.9 ? 0 : 1;
        QFont font;
        if (bold) {
            font.setWeight(QFont::Bold);
        }
        painter.setFont(font);
        // The longest label stands at one of the two ends.
        for (double const depth : {scale.start, SettingsDepth(interval.upper)}) {
            FitFont(painter, Quorrel::FloatTypeToString(static_cast<float>(depth), decimals), width_);
        }
        int const label_height = painter.fontMetrics().boundingRect(QStringLiteral("0")).height();
        ForEachTick(scale.start, scale.step, height_, interval, [&](float depth, int y) {
            painter.drawLine(0, y, width_, y);
            painter.drawText(QRect(0, y - label_height, width_, label_height), Qt::AlignCenter,
                             Quorrel::FloatTypeToString(depth, decimals));
        });
        auto const side_ticks = [&](double start, double step, int length) {
            ForEachTick(start, step, height_, interval, [&](float, int y) {
                painter.drawLine(0, y, length, y);
                painter.drawLine(width_ - length, y, width_, y);
            });
        };
        side_ticks(scale.start - scale.step / 2, scale.step, HALF_TICK_LENGTH);
        side_ticks(scale.start - scale.step, scale.step / 10, MINOR_TICK_LENGTH);
    }
    painter.restore();
}
