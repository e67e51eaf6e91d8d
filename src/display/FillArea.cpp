// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/FillArea.h"

#include "display/ClippedDrawing.h"
#include "display/DepthGeometry.h"
#include "display/FillAreaSource.h"

#include <QBrush>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {
using Points = FillArea::Points;

/// Stands for a border value too far away for a pixel number.
constexpr double FARTHEST_COLUMN = 1e30;

/// Steps of the walk longer than this, in rows, get the point where the curves cross.
constexpr double LONGEST_STEP_WITHOUT_CROSSING = 1.0;

QPointF Interpolate(QPointF const& from, QPointF const& to, double y)
{
    return {from.x() + (to.x() - from.x()) * ((y - from.y()) / (to.y() - from.y())), y};
}

/// Goes down a polyline row by row. A row of two points, the least and the greatest value of a bin, counts as
/// the one that is nearer to the other curve.
class RowWalker
{
public:
    enum class Take
    {
        LeastX,
        GreatestX
    };

    RowWalker(Points const& points, Take take) : points_(points), take_(take) {}

    [[nodiscard]] double FirstY() const { return points_.front().y(); }

    /// Starts at the first point of the last row above `y`, or at the first point where there is none.
    void Start(double y)
    {
        auto const below = std::find_if(points_.begin(), points_.end(),
                                        [&](QPointF const& point) { return !(point.y() < y); });
        index_ = below == points_.begin() ? 0 : static_cast<std::size_t>(below - points_.begin()) - 1;
        while (index_ > 0 && points_[index_ - 1].y() == points_[index_].y()) {
            --index_;
        }
        former_ = current_ = ReadRow();
    }

    /// Goes to the next row; false at the end.
    bool Advance()
    {
        std::size_t next = index_ + 1;
        while (next < points_.size() && !(points_[next].y() > points_[index_].y())) {
            ++next;
        }
        if (next >= points_.size()) {
            return false;
        }
        index_ = next;
        former_ = current_;
        current_ = ReadRow();
        return true;
    }

    [[nodiscard]] QPointF const& Current() const { return current_; }
    /// The curve between the former and the current row, at `y`.
    [[nodiscard]] QPointF At(double y) const
    {
        return current_.y() == y ? current_ : Interpolate(former_, current_, y);
    }

private:
    [[nodiscard]] QPointF ReadRow() const
    {
        QPointF point = points_[index_];
        for (std::size_t i = index_ + 1; i < points_.size() && points_[i].y() == point.y(); ++i) {
            double const x = points_[i].x();
            point.setX(take_ == Take::LeastX ? std::min(point.x(), x) : std::max(point.x(), x));
        }
        return point;
    }

    Points const& points_;
    Take take_;
    std::size_t index_ = 0;
    QPointF former_;
    QPointF current_;
};

/// Where the segments of the two curves meet; no value when they run parallel.
std::optional<QPointF> FindCrossing(QPointF const& p_from, QPointF const& p_to, QPointF const& q_from,
                                    QPointF const& q_to)
{
    double const p_slope = (p_to.x() - p_from.x()) / (p_to.y() - p_from.y());
    double const q_slope = (q_to.x() - q_from.x()) / (q_to.y() - q_from.y());
    double const p_intercept = p_from.x() - p_slope * p_from.y();
    double const q_intercept = q_from.x() - q_slope * q_from.y();
    double const y = (q_intercept - p_intercept) / (p_slope - q_slope);
    // The flatter curve gives x with the smaller rounding error.
    double const x =
        std::fabs(p_slope) < std::fabs(q_slope) ? p_slope * y + p_intercept : q_slope * y + q_intercept;
    if (!std::isfinite(x) || !std::isfinite(y)) {
        return std::nullopt;
    }
    return QPointF(x, y);
}

bool IsLongStep(QPointF const& from, QPointF const& to)
{
    return std::fabs(to.y() - from.y()) > LONGEST_STEP_WITHOUT_CROSSING;
}

void RemoveNonFinite(Points& points)
{
    std::erase_if(
        points, [](QPointF const& point) { return !std::isfinite(point.x()) || !std::isfinite(point.y()); });
}

bool IsValueMethod(FILL_AREA_METHODS method)
{
    return method == FILL_AREA_METHODS::A_RIGHT_OF_VALUE || method == FILL_AREA_METHODS::A_LEFT_OF_VALUE ||
           method == FILL_AREA_METHODS::BETWEEN_A_AND_VALUE;
}
} // namespace

FillArea::FillArea(FillAreaSource* view, QPainter& painter, Interval const& interval) : view_(view)
{
    painter.save();
    RenderFillAreas(painter, interval);
    painter.restore();
}

void FillArea::RenderFillAreas(QPainter& painter, Interval const& interval)
{
    int const width = painter.window().width();
    int const height = painter.window().height();
    auto const& definitions = view_->GetFillAreaDefinitions();
    for (auto definition = definitions.rbegin(); definition != definitions.rend(); ++definition) {
        if (!view_->RenderCurvePoints(definition->curve_a, width, height, interval, points_a_)) {
            continue;
        }
        RemoveNonFinite(points_a_);
        if (IsValueMethod(definition->method)) {
            if (points_a_.empty()) {
                continue;
            }
            double const x =
                std::clamp(static_cast<double>(Quorrel::ConvertCurveValueToX(
                               definition->value, view_->GetCurveScale(definition->curve_a), width)),
                           -FARTHEST_COLUMN, FARTHEST_COLUMN);
            points_b_ = {{x, points_a_.front().y()}, {x, points_a_.back().y()}};
            RemoveNonFinite(points_b_);
        } else {
            if (!view_->RenderCurvePoints(definition->curve_b, width, height, interval, points_b_)) {
                continue;
            }
            RemoveNonFinite(points_b_);
            if (points_a_.empty() || points_b_.empty()) {
                return;
            }
        }
        switch (definition->method) {
        case FILL_AREA_METHODS::A_RIGHT_OF_B:
        case FILL_AREA_METHODS::A_RIGHT_OF_VALUE:
            ProcessPoints_A_RIGHT_OF_B(painter, *definition, points_a_, points_b_);
            break;
        case FILL_AREA_METHODS::A_LEFT_OF_B:
        case FILL_AREA_METHODS::A_LEFT_OF_VALUE:
            ProcessPoints_A_RIGHT_OF_B(painter, *definition, points_b_, points_a_);
            break;
        case FILL_AREA_METHODS::BETWEEN_A_AND_B:
        case FILL_AREA_METHODS::BETWEEN_A_AND_VALUE:
            ProcessPoints_A_RIGHT_OF_B(painter, *definition, points_a_, points_b_);
            ProcessPoints_A_RIGHT_OF_B(painter, *definition, points_b_, points_a_);
            break;
        }
    }
}

void FillArea::ProcessPoints_A_RIGHT_OF_B(QPainter& painter, FillAreaDefinition const& definition,
                                          Points const& p_points, Points const& q_points)
{
    left_boundary_.clear();
    right_boundary_.clear();
    if (p_points.empty() || q_points.empty() || p_points.back().y() < q_points.front().y() ||
        q_points.back().y() < p_points.front().y()) {
        return; // no row in common
    }
    painter.setPen(definition.color);
    painter.setBrush(QBrush(definition.color, definition.pattern));

    // Of each row the points that face each other: a fill shows only where the envelopes do not touch.
    RowWalker p_walker(p_points, RowWalker::Take::LeastX);
    RowWalker q_walker(q_points, RowWalker::Take::GreatestX);
    p_walker.Start(q_walker.FirstY());
    q_walker.Start(p_walker.FirstY());

    QPointF p = p_walker.Current();
    QPointF q = q_walker.Current();
    bool is_inside = false;
    auto const push_step = [&] {
        left_boundary_.push_back(q);
        right_boundary_.push_back(p);
        is_inside = true;
    };
    if (p.x() > q.x()) {
        push_step();
    }
    while (true) {
        double const p_y = p_walker.Current().y();
        double const q_y = q_walker.Current().y();
        if ((p_y <= q_y && !p_walker.Advance()) || (q_y <= p_y && !q_walker.Advance())) {
            break;
        }
        double const y = std::min(p_walker.Current().y(), q_walker.Current().y());
        QPointF const former_p = p;
        QPointF const former_q = q;
        p = p_walker.At(y);
        q = q_walker.At(y);
        bool const is_right = p.x() > q.x();
        if (is_right != is_inside && (IsLongStep(former_p, p) || IsLongStep(former_q, q))) {
            if (auto const crossing = FindCrossing(former_p, p, former_q, q)) {
                left_boundary_.push_back(*crossing);
            }
        }
        if (is_right) {
            push_step();
        } else if (is_inside) {
            if (!left_boundary_.empty() && !right_boundary_.empty()) {
                DrawAreaFill(painter);
            }
            is_inside = false;
        }
    }
    DrawAreaFill(painter);
}

void FillArea::DrawAreaFill(QPainter& painter)
{
    Points& polygon = right_boundary_;
    polygon.insert(polygon.end(), left_boundary_.rbegin(), left_boundary_.rend());
    Quorrel::DrawPolygonClipped(painter, polygon.data(), polygon.size());
    left_boundary_.clear();
    right_boundary_.clear();
}
