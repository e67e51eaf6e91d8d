// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <QRectF>
#include <QString>
#include <QWidget>

#include <memory>
#include <vector>

/// The frame of a small chart: axes with round ticks, grid and titles. Values that are not numbers count for
/// nothing. Draws in the palette's colours.
class BaseChart : public QWidget
{
    Q_OBJECT
public:
    using Values = std::shared_ptr<std::vector<float> const>;
    /// An axis whose ends lie on ticks.
    struct Axis
    {
        Interval interval{0, 1};
        double step = 1;
    };

    /// `x` and `y` may be null. Titles stand as given, each followed by its unit when that is not empty.
    BaseChart(Values x, Values y, QWidget* parent = nullptr);
    ~BaseChart() override;

    void SetChartTitle(QString const& title);
    void SetAxesTitles(QString const& x_title, QString const& y_title);
    void SetAxesUnits(QString const& x_unit, QString const& y_unit);
    /// Large values at the bottom, as depths are drawn.
    void SetYAxisDownwards(bool downwards);

    [[nodiscard]] QString const& GetChartTitle() const { return title_; }
    [[nodiscard]] QString GetXAxisTitle() const;
    [[nodiscard]] QString GetYAxisTitle() const;
    [[nodiscard]] Axis const& GetXAxis() const { return x_axis_; }
    [[nodiscard]] Axis const& GetYAxis() const { return y_axis_; }
    [[nodiscard]] QSize sizeHint() const override;

    /// Round ticks over an interval shown on so many pixels: a step of 1, 2 or 5 times a power of ten, ends
    /// on multiples of it. An empty interval gives 0 to 1.
    [[nodiscard]] static Axis CalculateAxis(Interval const& interval, int pixels);
    /// Decimals that tell ticks of this distance apart.
    [[nodiscard]] static int CalculateDecimals(double step);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// Draws the data into GetPlotArea().
    virtual void DrawData(QPainter& painter) = 0;
    [[nodiscard]] virtual bool HasData() const = 0;

    /// Axes and plot area for the present size, data and titles.
    void UpdateDrawParameters();
    void DrawChartStructure(QPainter& painter) const;
    void DrawChartTitle(QPainter& painter) const;
    void DrawAxesTitles(QPainter& painter) const;
    /// Between two points in values.
    void DrawLine(QPainter& painter, float x1, float y1, float x2, float y2) const;

    [[nodiscard]] Values const& GetX() const { return x_; }
    [[nodiscard]] Values const& GetY() const { return y_; }
    [[nodiscard]] QRectF const& GetPlotArea() const { return plot_; }
    [[nodiscard]] QPointF ToPixel(double x, double y) const;

private:
    Values x_;
    Values y_;
    Interval x_extent_;
    Interval y_extent_;
    QString title_;
    QString x_title_;
    QString y_title_;
    QString x_unit_;
    QString y_unit_;
    bool y_downwards_ = false;
    Axis x_axis_;
    Axis y_axis_;
    QRectF plot_;
};
