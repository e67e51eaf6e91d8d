// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ClippedDrawing.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {
/// Beyond the window: wider than any pen, so that joins and caps on the border stay out of sight.
constexpr double BORDER = 4096;

struct Range
{
    double low;
    double high;

    [[nodiscard]] bool Contains(double value) const { return value >= low && value <= high; }
};

using Points = std::vector<QPointF>;
using Coordinate = qreal& (QPointF::*)();

double& X(QPointF& point)
{
    return point.rx();
}
double& Y(QPointF& point)
{
    return point.ry();
}

/// Folds everything outside the range onto its ends, with a point where a segment meets an end. The path
/// inside the range stays as it is.
template <typename Axis>
Points FoldOntoRange(Points const& points, Range const& range, Axis const& axis)
{
    Points folded;
    folded.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        QPointF end = points[i];
        if (i > 0) {
            QPointF begin = points[i - 1];
            double const from = axis(begin);
            double const to = axis(end);
            // In the order in which the segment meets the two ends.
            double const crossings[2] = {from < to ? range.low : range.high,
                                         from < to ? range.high : range.low};
            for (double const crossing : crossings) {
                if ((from < crossing && crossing < to) || (to < crossing && crossing < from)) {
                    QPointF meeting = begin + (end - begin) * ((crossing - from) / (to - from));
                    axis(meeting) = crossing;
                    folded.push_back(meeting);
                }
            }
        }
        axis(end) = std::clamp(axis(end), range.low, range.high);
        folded.push_back(end);
    }
    return folded;
}

bool NeedsFolding(QPointF const* points, std::size_t count, Range const& columns, Range const& rows)
{
    // False for NaN, too.
    return !std::all_of(points, points + count, [&](QPointF const& point) {
        return columns.Contains(point.x()) && rows.Contains(point.y());
    });
}

Points Fold(QPointF const* points, std::size_t count, Range const& columns, Range const& rows, bool is_closed)
{
    Points finite;
    finite.reserve(count + 1);
    std::copy_if(points, points + count, std::back_inserter(finite),
                 [](QPointF const& point) { return std::isfinite(point.x()) && std::isfinite(point.y()); });
    if (is_closed && !finite.empty()) {
        finite.push_back(finite.front());
    }
    return FoldOntoRange(FoldOntoRange(finite, columns, X), rows, Y);
}

template <typename Draw>
void DrawFolded(QPainter const& painter, QPointF const* points, std::size_t count, bool is_closed,
                Draw const& draw)
{
    QRect const window = painter.window();
    Range const columns{window.left() - BORDER, window.right() + BORDER};
    Range const rows{window.top() - BORDER, window.bottom() + BORDER};
    if (!NeedsFolding(points, count, columns, rows)) {
        draw(points, static_cast<int>(count));
        return;
    }
    Points const folded = Fold(points, count, columns, rows, is_closed);
    draw(folded.data(), static_cast<int>(folded.size()));
}
} // namespace

namespace Quorrel {
void DrawPolylineClipped(QPainter& painter, QPointF const* points, std::size_t count)
{
    DrawFolded(painter, points, count, false, [&](QPointF const* drawn, int size) {
        if (size > 1) {
            painter.drawPolyline(drawn, size);
        }
    });
}

void DrawPolygonClipped(QPainter& painter, QPointF const* points, std::size_t count)
{
    DrawFolded(painter, points, count, true, [&](QPointF const* drawn, int size) {
        if (size > 1) {
            painter.drawPolygon(drawn, size, Qt::OddEvenFill);
        }
    });
}
} // namespace Quorrel
