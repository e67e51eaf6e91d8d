// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseChart.h"

#include "app/kit/SettingsSingleton.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr int TICK_PIXELS = 70; ///< least distance of two ticks
constexpr int MARGIN = 8;
constexpr int TICK_LENGTH = 5;
constexpr int MAXIMUM_TICKS = 1000;
/// The share of a step by which an end may miss a tick through rounding.
constexpr double TICK_TOLERANCE = 1e-9;

Interval Extent(BaseChart::Values const& values)
{
    Interval extent;
    if (values) {
        for (float const value : *values) {
            if (std::isfinite(value)) {
                extent.lower = std::min(extent.lower, static_cast<double>(value));
                extent.upper = std::max(extent.upper, static_cast<double>(value));
            }
        }
    }
    return extent;
}

QString WithUnit(QString const& title, QString const& unit)
{
    return unit.isEmpty() ? title : title + QStringLiteral(" [") + unit + QLatin1Char(']');
}

QString TickText(double value, double step)
{
    // No "-0": a tick that misses zero by rounding is zero.
    double const shown = std::fabs(value) < step / 2 ? 0.0 : value;
    return SettingsSingleton::Instance().GetLocale().toString(shown, 'f', BaseChart::CalculateDecimals(step));
}

/// Calls `draw(value)` for each tick of the axis.
template <typename Draw>
void ForEachTick(BaseChart::Axis const& axis, Draw const& draw)
{
    int const count =
        static_cast<int>(std::min(std::round(axis.interval.Delta() / axis.step), 1.0 * MAXIMUM_TICKS));
    for (int i = 0; i <= count; ++i) {
        draw(axis.interval.lower + i * axis.step);
    }
}
} // namespace

BaseChart::BaseChart(Values x, Values y, QWidget* parent)
    : QWidget(parent), x_(std::move(x)), y_(std::move(y)), x_extent_(Extent(x_)), y_extent_(Extent(y_))
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setMinimumSize(160, 120);
}

BaseChart::~BaseChart() = default;

void BaseChart::SetChartTitle(QString const& title)
{
    title_ = title;
    UpdateDrawParameters();
}

void BaseChart::SetAxesTitles(QString const& x_title, QString const& y_title)
{
    x_title_ = x_title;
    y_title_ = y_title;
    UpdateDrawParameters();
}

void BaseChart::SetAxesUnits(QString const& x_unit, QString const& y_unit)
{
    x_unit_ = x_unit;
    y_unit_ = y_unit;
    UpdateDrawParameters();
}

void BaseChart::SetYAxisDownwards(bool downwards)
{
    y_downwards_ = downwards;
    update();
}

QString BaseChart::GetXAxisTitle() const
{
    return WithUnit(x_title_, x_unit_);
}

QString BaseChart::GetYAxisTitle() const
{
    return WithUnit(y_title_, y_unit_);
}

QSize BaseChart::sizeHint() const
{
    return {700, 500};
}

BaseChart::Axis BaseChart::CalculateAxis(Interval const& interval, int pixels)
{
    double const lower = interval.lower;
    double upper = interval.upper;
    if (!std::isfinite(lower) || !std::isfinite(upper) || lower > upper) {
        return {};
    }
    double start = lower;
    if (!(upper - lower > std::max(std::fabs(lower), std::fabs(upper)) * 1e-7)) {
        // One value stands in the middle of an axis that single precision can resolve.
        double const margin = std::max(std::fabs(lower) * 1e-3, 0.5);
        start = lower - margin;
        upper += margin;
    }
    double const least_step = (upper - start) / std::max(pixels / TICK_PIXELS, 1);
    double const power = std::pow(10.0, std::floor(std::log10(least_step)));
    double step = 10 * power;
    for (double const factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least_step * (1 - TICK_TOLERANCE)) {
            step = factor * power;
            break;
        }
    }
    return {.interval = Interval(std::floor(start / step + TICK_TOLERANCE) * step,
                                 std::ceil(upper / step - TICK_TOLERANCE) * step),
            .step = step};
}

int BaseChart::CalculateDecimals(double step)
{
    if (!(step > 0) || !std::isfinite(step)) {
        return 0;
    }
    return std::clamp(static_cast<int>(-std::floor(std::log10(step) + TICK_TOLERANCE)), 0, 12);
}

void BaseChart::UpdateDrawParameters()
{
    QFontMetrics const metrics = fontMetrics();
    int const line = metrics.height();
    double const top = MARGIN + (title_.isEmpty() ? 0 : 1.5 * line);
    double const bottom = MARGIN + 2.2 * line + TICK_LENGTH;
    y_axis_ = CalculateAxis(y_extent_, static_cast<int>(height() - top - bottom));
    double label_width = 0;
    for (double const end : {y_axis_.interval.lower, y_axis_.interval.upper}) {
        label_width = std::max(label_width, 1.0 * metrics.horizontalAdvance(TickText(end, y_axis_.step)));
    }
    double const left = MARGIN + 1.4 * line + label_width + TICK_LENGTH + 4;
    double const right = MARGIN + 1.5 * line;
    plot_ = QRectF(left, top, std::max(width() - left - right, 1.0), std::max(height() - top - bottom, 1.0));
    x_axis_ = CalculateAxis(x_extent_, static_cast<int>(plot_.width()));
    update();
}

QPointF BaseChart::ToPixel(double x, double y) const
{
    double const across = (x - x_axis_.interval.lower) / x_axis_.interval.Delta();
    double const up = (y - y_axis_.interval.lower) / y_axis_.interval.Delta();
    return {plot_.left() + across * plot_.width(),
            plot_.top() + (y_downwards_ ? up : 1 - up) * plot_.height()};
}

void BaseChart::DrawLine(QPainter& painter, float x1, float y1, float x2, float y2) const
{
    painter.drawLine(ToPixel(x1, y1), ToPixel(x2, y2));
}

void BaseChart::DrawChartStructure(QPainter& painter) const
{
    QColor grid = palette().color(QPalette::Text);
    grid.setAlphaF(0.15F);
    QColor const text = palette().color(QPalette::Text);
    QFontMetrics const metrics = painter.fontMetrics();
    ForEachTick(x_axis_, [&](double value) {
        double const x = std::round(ToPixel(value, 0).x());
        painter.setPen(grid);
        painter.drawLine(QPointF(x, plot_.top()), QPointF(x, plot_.bottom()));
        painter.setPen(text);
        painter.drawLine(QPointF(x, plot_.bottom()), QPointF(x, plot_.bottom() + TICK_LENGTH));
        QString const label = TickText(value, x_axis_.step);
        painter.drawText(QPointF(x - metrics.horizontalAdvance(label) / 2.0,
                                 plot_.bottom() + TICK_LENGTH + metrics.ascent()),
                         label);
    });
    ForEachTick(y_axis_, [&](double value) {
        double const y = std::round(ToPixel(0, value).y());
        painter.setPen(grid);
        painter.drawLine(QPointF(plot_.left(), y), QPointF(plot_.right(), y));
        painter.setPen(text);
        painter.drawLine(QPointF(plot_.left() - TICK_LENGTH, y), QPointF(plot_.left(), y));
        QString const label = TickText(value, y_axis_.step);
        painter.drawText(QPointF(plot_.left() - TICK_LENGTH - 3 - metrics.horizontalAdvance(label),
                                 y + metrics.ascent() / 2.0 - 1),
                         label);
    });
    painter.setPen(text);
    painter.drawRect(plot_);
}

void BaseChart::DrawChartTitle(QPainter& painter) const
{
    painter.save();
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRectF(0, 0, width(), plot_.top()), Qt::AlignCenter, title_);
    painter.restore();
}

void BaseChart::DrawAxesTitles(QPainter& painter) const
{
    painter.save();
    painter.setPen(palette().color(QPalette::Text));
    int const line = painter.fontMetrics().height();
    painter.drawText(QRectF(plot_.left(), height() - line - MARGIN / 2.0, plot_.width(), line),
                     Qt::AlignCenter, GetXAxisTitle());
    painter.translate(MARGIN / 2.0, plot_.bottom());
    painter.rotate(-90);
    painter.drawText(QRectF(0, 0, plot_.height(), line), Qt::AlignCenter, GetYAxisTitle());
    painter.restore();
}

void BaseChart::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    DrawChartTitle(painter);
    if (!HasData()) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawRect(plot_);
        painter.drawText(plot_, Qt::AlignCenter, tr("No data"));
        DrawAxesTitles(painter);
        return;
    }
    DrawChartStructure(painter);
    DrawAxesTitles(painter);
    DrawData(painter);
}

void BaseChart::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    UpdateDrawParameters();
}
