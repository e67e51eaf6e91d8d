// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/TimeCurve.h"
#include "display/TimeLogChart.h"

#include <QPushButton>

#include <functional>

/// The mark of a stationary measurement on a data view: a bar over the extent of its values at its log depth,
/// with a stroke at the average. A click opens a chart of the samples against time.
class TimeCurveOverlay : public QPushButton, public TimeCurve
{
    Q_OBJECT
public:
    using ChartOpener = std::function<void(TimeLogChart const&, QWidget* parent)>;

    TimeCurveOverlay(QWidget* parent_view, std::weak_ptr<TimeLogDataChannel const> const& channel);
    ~TimeCurveOverlay() override;

    /// Charts live on a floor above this one: the application says how to open one.
    static void SetChartOpener(ChartOpener opener);

    /// Half the overlay's height in pixels: 7% of the dots per inch of the first call with a usable
    /// resolution, the same for the rest of the program's life.
    [[nodiscard]] static int GetHalfHeight(double dpi);
    /// Place of the mark in a view of `width` x `height` pixels; `half_height` from GetHalfHeight.
    [[nodiscard]] static QRect CalculateGeometry(Interval const& values, Interval const& scale, float depth,
                                                 Interval const& view, int width, int height,
                                                 int half_height);

    /// Moves the overlay to its place for this scale and depth interval, and shows it.
    void Place(Interval const& scale, float depth, Interval const& view, int width, int height, double dpi);

    /// Draws the mark over the whole of a `width` x `height` area, in a line of `line_width` pixels.
    void RenderToPainter(QPainter& painter, int width, int height, int line_width) const;

    /// The chart that a click opens; null vectors when the channel is gone.
    [[nodiscard]] TimeLogChart GetChart() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void OnClicked();

    bool is_hovered_ = false;
    bool is_mirrored_ = false; ///< the scale runs from right to left
};
