// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// The tools a data view draws over its curves, and the grid of print.

#include "display/BaseDataView.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "display/DepthGeometry.h"
#include "well/DepthMarker.h"
#include "well/DirectionalSurveyData.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPolygon>

#include <algorithm>
#include <cmath>

namespace {
constexpr int tracker_size = 10;     ///< half the side of the tracker's cross
constexpr int tool_width = 5;        ///< of the lines of tracker and measuring arrow
constexpr double label_factor = 1.2; ///< of the tracker's label box to its text
constexpr int head_room = 15;        ///< of an arrow's line for its head
constexpr int text_indent = 10;      ///< of the measured depths
constexpr int least_measured_rows = 25;
constexpr int text_margin = 4; ///< between a measured value and the arrow or the view's edge
constexpr int maximum_grid_lines = 100000;

/// Value of the curve's channel at a depth in metres; nothing where the channel cannot tell.
std::optional<float> ValueAtDepth(DepthCurve const& curve, double depth)
{
    auto const channel = curve.GetDataChannel();
    if (!channel || channel->size() < 2 || channel->GetDepth().size() < 2) {
        return std::nullopt;
    }
    return channel->GetValueAtDepth(depth);
}

QString Delta(float value, int precision)
{
    return QChar(0x0394) + Quorrel::FloatTypeToString(value, precision);
}

void DrawArrowHead(QPainter& painter, QPolygon head, QPoint tip, bool mirrored)
{
    if (mirrored) {
        for (QPoint& point : head) {
            point = -point;
        }
    }
    painter.drawPolygon(head.translated(tip));
}
} // namespace

std::optional<double> BaseDataView::GetCursorDepth() const
{
    if (cursor_y_ < 0) {
        return std::nullopt;
    }
    return static_cast<double>(ConvertYValueToDepth_metric(cursor_y_));
}

void BaseDataView::RenderBaseline(QPainter& painter, int width) const
{
    Interval const& scale = selected_scale_->scale;
    int const x = Quorrel::TruncateToInt((0 - scale.lower) / (scale.upper - scale.lower) * width);
    int const bottom = painter.window().height() - 1;
    for (auto const& [color, style] :
         {std::pair(Qt::white, Qt::SolidLine), std::pair(Qt::blue, Qt::DashLine)}) {
        QPen pen(color, 1, style);
        pen.setCosmetic(true); // a pixel of the device, however the window is mapped onto it
        painter.setPen(pen);
        painter.drawLine(x, 0, x, bottom);
    }
}

void BaseDataView::RenderDepthMarkers(QPainter& painter, QList<DepthMarker> const& markers,
                                      Interval const& interval, QColor const& color) const
{
    int const width = painter.window().width();
    int const height = painter.window().height();
    painter.setPen(color);
    QFontMetrics const metrics(painter.font(), painter.device());
    int const text_height = metrics.height();
    for (DepthMarker const& marker : markers) {
        // The painter clips what lies outside; here only what its text cannot reach is left out.
        int const y = Quorrel::ConvertDepthToYValue(marker.depth, height, interval);
        if (y < -2 * text_height - 10 || y > height) {
            continue;
        }
        painter.drawLine(0, y, static_cast<int>(width * 0.1), y);
        painter.drawLine(static_cast<int>(width * 0.9), y, width, y);
        int const x = width / 2 - metrics.horizontalAdvance(marker.text) / 2;
        painter.drawText(x, y + text_height + 5, marker.text);
    }
}

void BaseDataView::GenerateGridLines(QPainter& painter, Interval const& interval, double major_start,
                                     double major_step) const
{
    int const width = painter.window().width();
    int const height = painter.window().height();
    double const bottom =
        static_cast<double>(Quorrel::MetricsDepthToSettingsDepth(static_cast<float>(interval.upper)));
    if (!(major_step > 0) || !std::isfinite(major_start) ||
        !((bottom - major_start) / major_step * 10 < maximum_grid_lines)) {
        return;
    }
    painter.save();
    QPen const major_pen(Qt::darkGray, 1, Qt::SolidLine);
    QPen const minor_pen(Qt::darkGray, 1, Qt::DashDotDotLine);
    auto const draw_row = [&](double depth) {
        float const metric = Quorrel::SettingsDepthToMetricDepth(static_cast<float>(depth));
        int const y = Quorrel::ConvertDepthToYValue(metric, height, interval);
        if (y >= 0 && y < height) {
            painter.drawLine(0, y, width, y);
        }
    };
    // The interval before the first major line has minor lines only.
    for (int major = -1;; ++major) {
        double const depth = major_start + major * major_step;
        if (depth > bottom) {
            break;
        }
        if (major >= 0) {
            painter.setPen(major_pen);
            draw_row(depth);
        }
        painter.setPen(minor_pen);
        for (int minor = major < 0 ? 0 : 1; minor < 10; ++minor) {
            double const minor_depth = depth + minor * major_step / 10;
            if (minor_depth <= bottom) {
                draw_row(minor_depth);
            }
        }
    }
    painter.setPen(minor_pen);
    for (int k = 1; qRound(k * width / 5.0) < width - 1; ++k) {
        int const x = qRound(k * width / 5.0);
        painter.drawLine(x, 0, x, height);
    }
    painter.restore();
}

DepthCurve const* BaseDataView::RenderCurveTracker(QPainter& painter)
{
    DepthCurve const* const curve = GetSelectedCurve();
    std::optional<double> const depth = GetCursorDepth();
    if (curve == nullptr || !depth || !RenderCurveTracker_common(painter, *depth, *curve, {}, 0)) {
        return nullptr;
    }
    return curve;
}

bool BaseDataView::RenderCurveTracker_common(QPainter& painter, double depth, DepthCurve const& curve,
                                             QString const& prefix, float x_offset)
{
    if (curve.IsHidden() || !(depth > curve.GetMinDepth_metric() && depth < curve.GetMaxDepth_metric())) {
        return false;
    }
    std::optional<float> const value = ValueAtDepth(curve, depth);
    if (!value) {
        return false;
    }
    float const place = ConvertCurveValueToX(*value, GetScale(curve), width()) + x_offset;
    // Far outside the view the cross is not seen, but the side of the label still follows it.
    int const x = std::clamp(Quorrel::TruncateToInt(static_cast<double>(place)), -10 * width(), 10 * width());
    int const y = cursor_y_;

    painter.save();
    painter.setCompositionMode(QPainter::RasterOp_SourceAndNotDestination);
    painter.setPen(QPen(Qt::white, tool_width));
    painter.drawLine(x - tracker_size, y - tracker_size, x + tracker_size, y + tracker_size);
    painter.drawLine(x - tracker_size, y + tracker_size, x + tracker_size, y - tracker_size);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);

    QString text = Quorrel::FloatTypeToString(*value, 3);
    if (!prefix.isEmpty()) {
        text.prepend(prefix + QStringLiteral(": "));
    }
    if (x > width() * 0.6) {
        tracker_label_side_ = true;
    } else if (x < width() * 0.4) {
        tracker_label_side_ = false;
    }
    QSizeF const box_size = painter.boundingRect(QRectF(), Qt::AlignLeft, text).size() * label_factor;
    // Half the frame lies outside the box; the box stays whole at the view's edges as far as it fits.
    double const inset = tool_width * 0.5;
    double const left = tracker_label_side_ ? inset : width() - inset - box_size.width();
    QRectF box(QPointF(std::max(inset, left), y), box_size);
    if (box.bottom() + inset > height()) {
        box.moveBottom(y);
    }
    painter.setPen(QPen(Qt::red, tool_width));
    painter.setBrush(Qt::white);
    painter.drawRect(box);
    painter.setPen(Qt::black);
    painter.drawText(box, Qt::AlignCenter, text);
    painter.restore();
    return true;
}

void BaseDataView::RenderMeasurements(QPainter& painter, DepthCurve const* tracked) const
{
    if (cursor_y_ < 0) {
        return;
    }
    float const depth_press = ConvertYValueToDepth_metric(press_y_);
    float const depth_cursor = ConvertYValueToDepth_metric(cursor_y_);
    float x1 = static_cast<float>(press_x_);
    float x2 = static_cast<float>(cursor_x_ >= 0 ? cursor_x_ : press_x_);
    Interval scale = selected_scale_ ? selected_scale_->scale : Interval();
    if (tracked != nullptr && selected_scale_) {
        auto const value1 = ValueAtDepth(*tracked, static_cast<double>(depth_press));
        auto const value2 = ValueAtDepth(*tracked, static_cast<double>(depth_cursor));
        if (value1 && value2) {
            scale = GetScale(*tracked);
            x1 = ConvertCurveValueToX(*value1, scale, width());
            x2 = ConvertCurveValueToX(*value2, scale, width());
        }
    }
    // Ends far outside the view would only overflow the painter.
    float const limit = 10.0F * static_cast<float>(width());
    int const column1 = static_cast<int>(std::isfinite(x1) ? std::clamp(x1, -limit, limit) : 0);
    int const column2 = static_cast<int>(std::isfinite(x2) ? std::clamp(x2, -limit, limit) : 0);

    painter.save();
    QColor const arrow_color(0, 255, 255, 150);
    painter.setPen(QPen(arrow_color, tool_width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(arrow_color);
    int const rows = cursor_y_ - press_y_;
    if (std::abs(rows) > head_room) {
        painter.drawLine(column1, press_y_, column1, cursor_y_ - (rows > 0 ? head_room : -head_room));
    }
    if (rows != 0) {
        DrawArrowHead(painter, QPolygon({QPoint(-5, 10), QPoint(5, 10), QPoint(0, 0)}),
                      QPoint(column1, cursor_y_), rows > 0);
    }
    int const columns = column2 - column1;
    if (std::abs(columns) > head_room) {
        painter.drawLine(column1, press_y_, column2 - (columns > 0 ? head_room : -head_room), press_y_);
    }
    if (columns != 0) {
        DrawArrowHead(painter, QPolygon({QPoint(-10, 5), QPoint(-10, -5), QPoint(0, 0)}),
                      QPoint(column2, press_y_), columns < 0);
    }

    QFont font = painter.font();
    font.setPointSize(15);
    font.setWeight(QFont::Bold);
    painter.setFont(font);
    painter.setPen(QColor(0, 255, 0));
    QFontMetrics const metrics(font, painter.device());
    // Texts stay inside the view as far as they fit.
    auto const draw_text = [&](int x, int baseline, QString const& text) {
        x = std::max(text_margin, std::min(x, width() - text_margin - metrics.horizontalAdvance(text)));
        painter.drawText(
            x,
            std::clamp(baseline, metrics.ascent(), std::max(metrics.ascent(), height() - metrics.descent())),
            text);
    };

    QString const depth_unit = SettingsSingleton::Instance().GetDepthUnit();
    QString const bracketed_unit = QLatin1Char('[') + depth_unit + QLatin1Char(']');
    auto const from = directional_survey_.InterpolateWellTrajectory(depth_press);
    auto const to = directional_survey_.InterpolateWellTrajectory(depth_cursor);
    float const tvd_difference = from && to ? Quorrel::MetricsDepthToSettingsDepth(to->tvd - from->tvd) : 0;
    if (std::abs(rows) > least_measured_rows) {
        int const middle = press_y_ + rows / 2;
        float const difference = Quorrel::MetricsDepthToSettingsDepth(depth_cursor - depth_press);
        draw_text(text_indent, middle, Delta(difference, 2) + bracketed_unit + QStringLiteral(" (MD)"));
        if (from && to) {
            draw_text(text_indent, middle + metrics.lineSpacing(),
                      Delta(tvd_difference, 2) + bracketed_unit + QStringLiteral(" (TVD)"));
        }
    }
    if (selected_scale_ && column1 != column2) {
        QString const& unit = selected_scale_->header.unit;
        float const value = ConvertXtoCurveValue(x2, scale) - ConvertXtoCurveValue(x1, scale);
        int const precision = std::fabs(value) < 0.1F ? 3 : 2;
        // Beside the end of the horizontal leg, on the side where the arrow does not go.
        int const baseline = rows > 0 ? press_y_ - tool_width - text_margin
                                      : press_y_ + tool_width + text_margin + metrics.ascent();
        int const step = rows > 0 ? -metrics.lineSpacing() : metrics.lineSpacing();
        draw_text(column2, baseline, Delta(value, precision) + unit);
        float const gradient = tvd_difference != 0 ? value / tvd_difference : 0;
        if (std::fabs(gradient) >= 0.1F) {
            draw_text(column2, baseline + step,
                      Quorrel::FloatTypeToString(gradient, 2) + unit + QLatin1Char('/') + depth_unit +
                          QStringLiteral(" TVD"));
        }
    }
    painter.restore();
}
