// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/XYChart.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr double LINE_WIDTH = 1.5;
constexpr double POINT_RADIUS = 2.5;
constexpr std::size_t MOST_MARKED_POINTS = 200;

/// Collects a line; of a run of points in one pixel column only its first, lowest, highest and last point
/// count, so that drawing never costs more than the chart is wide.
class ThinnedLine
{
public:
    void Add(QPointF const& point)
    {
        double const column = std::floor(point.x());
        if (points_.isEmpty() || column != column_) {
            Flush();
            column_ = column;
            points_.append(point);
            lowest_ = highest_ = last_ = point;
            has_run_ = true;
            return;
        }
        if (point.y() < lowest_.y()) {
            lowest_ = point;
        }
        if (point.y() > highest_.y()) {
            highest_ = point;
        }
        last_ = point;
    }

    void Draw(QPainter& painter)
    {
        Flush();
        if (points_.size() > 1) {
            painter.drawPolyline(points_);
        }
        points_.clear();
    }

private:
    void Flush()
    {
        if (has_run_) {
            points_.append({lowest_, highest_, last_});
            has_run_ = false;
        }
    }

    QPolygonF points_;
    QPointF lowest_;
    QPointF highest_;
    QPointF last_;
    double column_ = 0;
    bool has_run_ = false;
};
} // namespace

XYChart::XYChart(Values x, Values y, QWidget* parent) : BaseChart(std::move(x), std::move(y), parent) {}

std::size_t XYChart::CountPoints() const
{
    return GetX() && GetY() ? std::min(GetX()->size(), GetY()->size()) : 0;
}

void XYChart::DrawData(QPainter& painter)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(GetPlotArea().adjusted(-POINT_RADIUS, -POINT_RADIUS, POINT_RADIUS, POINT_RADIUS));
    QColor const color = palette().color(QPalette::Highlight);
    painter.setPen(QPen(color, LINE_WIDTH));
    std::size_t const count = CountPoints();
    ThinnedLine line;
    for (std::size_t i = 0; i < count; ++i) {
        float const x = (*GetX())[i];
        float const y = (*GetY())[i];
        if (!std::isfinite(x) || !std::isfinite(y)) {
            line.Draw(painter);
            continue;
        }
        line.Add(ToPixel(x, y));
        if (count <= MOST_MARKED_POINTS) {
            painter.setBrush(color);
            painter.drawEllipse(ToPixel(x, y), POINT_RADIUS, POINT_RADIUS);
        }
    }
    painter.setBrush(Qt::NoBrush);
    line.Draw(painter);
    painter.restore();
}
