// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ZoneView.h"

#include "app/kit/Globals.h"
#include "display/BaseViewWidgetParameters.h"
#include "display/DepthGeometry.h"
#include "well/DirectionalSurveyData.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr double MARGIN_SHARE = 0.02; ///< of the width, at each side of a column
constexpr double COLUMN_INCHES = 0.6; ///< a column's width where there is room
constexpr double LEAST_INCHES = 1.2;  ///< room for two columns, before there are any
constexpr int HIGHLIGHT_PEN = 3;
/// Rows beyond this are far outside every window, and their differences still fit an integer.
constexpr int FARTHEST_ROW = 1 << 24;

Interval Ascending(Interval interval)
{
    interval.Sort();
    return interval;
}
} // namespace

ZoneView::ZoneView(QWidget* parent, QString const& name, BaseViewWidgetParameters const* parameters,
                   DirectionalSurveyData const& survey, QList<Zone> const& perforation_zones,
                   QList<ZoneTrack> const& zone_tracks, QList<Zone> const& interpretation_zones)
    : BaseViewWidget(parent, name, parameters, survey),
      perforation_zones_(perforation_zones),
      zone_tracks_(zone_tracks),
      interpretation_zones_(interpretation_zones)
{
    setObjectName(OBJECT_NAME_);
}

QString ZoneView::GetDescription() const
{
    return QStringLiteral("Zones");
}

StatusMessage ZoneView::GetStatusMessage(int x, int y) const
{
    ZoneBoundingBox const* const box = FineZoneBoundingBox(x, y);
    return {ConvertYValueToDepth_metric(y), box != nullptr ? box->status_text : QStringLiteral("No zone")};
}

QSize ZoneView::sizeHint() const
{
    double const inches = std::max(COLUMN_INCHES * CountNumberOfZoneColumns(), LEAST_INCHES);
    return {static_cast<int>(Quorrel::DPI_X * inches), 50};
}

QStringList ZoneView::GetHeadings() const
{
    QStringList headings;
    if (!perforation_zones_.isEmpty()) {
        headings.append(QStringLiteral("Perforation"));
    }
    for (ZoneTrack const& track : zone_tracks_) {
        headings.append(track.GetName());
    }
    if (!interpretation_zones_.isEmpty()) {
        headings.append(QStringLiteral("Interpretation"));
    }
    return headings;
}

bool ZoneView::IsVisible(Interval const& zone, Interval const& interval)
{
    Interval const depth = Ascending(zone);
    return depth.lower <= interval.upper && depth.upper >= interval.lower;
}

int ZoneView::CalculateZoneWidthInPixels(int width) const
{
    return width / std::max(CountNumberOfZoneColumns(), 1);
}

void ZoneView::RenderToPainter(QPainter& painter, Interval const& interval, int width)
{
    boxes_.clear();
    column_width_ = CalculateZoneWidthInPixels(width);
    if (!(std::isfinite(interval.Delta()) && interval.Delta() > 0)) {
        return;
    }
    if (!perforation_zones_.isEmpty()) {
        RenderColumn(painter, QStringLiteral("Perforation"), perforation_zones_, interval, width);
    }
    for (ZoneTrack const& track : zone_tracks_) {
        RenderColumn(painter, track.GetName(), track.GetZones(), interval, width);
    }
    if (!interpretation_zones_.isEmpty()) {
        RenderColumn(painter, QStringLiteral("Interpretation"), interpretation_zones_, interval, width);
    }
}

void ZoneView::RenderColumn(QPainter& painter, QString const& heading, QList<Zone> const& zones,
                            Interval const& interval, int width)
{
    int const margin = Quorrel::TruncateToInt(width * MARGIN_SHARE);
    int const x = static_cast<int>(boxes_.size()) * column_width_ + margin;
    int const zone_width = std::max(column_width_ - 2 * margin, 1);
    boxes_.emplace_back();
    int const window_height = painter.window().height();
    auto const row = [&](double depth) {
        return std::clamp(ConvertDepthToYValue(static_cast<float>(depth), window_height, interval),
                          -FARTHEST_ROW, FARTHEST_ROW);
    };
    for (Zone const& zone : zones) {
        if (!IsVisible(zone.GetDepth(), interval)) {
            continue;
        }
        Interval const depth = Ascending(zone.GetDepth());
        int const y = row(depth.lower);
        int const height = row(depth.upper) - y;
        zone.PaintMe(&painter, x, y, zone_width, height, zone.GetColor());
        int const top = std::max(y, 0);
        int const bottom = std::min(y + height, window_height);
        AddBoundingBox(heading, zone, QRect(x, top, zone_width, std::max(bottom - top, 1)));
    }
}

void ZoneView::AddBoundingBox(QString const& heading, Zone const& zone, QRect const& area)
{
    QString const text = QLatin1Char('[') + heading + QStringLiteral("] - ") + zone.GetDescription() +
                         directional_survey_.GenerateIntervalDepthString(Ascending(zone.GetDepth()));
    boxes_.back().push_back({zone, heading, text, area});
}

int ZoneView::FindZoneColumn(int x) const
{
    if (x < 0 || column_width_ < 1) {
        return -1;
    }
    int const column = x / column_width_;
    return column < static_cast<int>(boxes_.size()) ? column : -1;
}

ZoneBoundingBox const* ZoneView::FindZoneBoundingBoxAtY(std::vector<ZoneBoundingBox> const& column, int y)
{
    auto const box = std::find_if(column.crbegin(), column.crend(), [y](ZoneBoundingBox const& candidate) {
        return y >= candidate.area.top() && y <= candidate.area.bottom();
    });
    return box != column.crend() ? &*box : nullptr;
}

ZoneBoundingBox const* ZoneView::FineZoneBoundingBox(int x, int y) const
{
    int const column = FindZoneColumn(x);
    return column >= 0 ? FindZoneBoundingBoxAtY(boxes_[static_cast<std::size_t>(column)], y) : nullptr;
}

void ZoneView::RenderSelection(QPainter& painter) const
{
    ZoneBoundingBox const* const box = FineZoneBoundingBox(mouse_.x(), mouse_.y());
    if (box == nullptr) {
        return;
    }
    QPen const saved_pen = painter.pen();
    painter.setPen(QPen(QColor(127, 255, 165), HIGHLIGHT_PEN));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box->area.adjusted(1, 1, -2, -2));
    painter.setPen(saved_pen);
}

void ZoneView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    DrawCachedPixmap(painter, event->region(), [this](QPainter& pixmap_painter) {
        RenderToPainter(pixmap_painter, parameters_->GetViewDepthMetric(), pixmap_painter.window().width());
    });
    RenderSelection(painter);
    RenderMouseCursor(painter);
}

bool ZoneView::IsSelecting() const
{
    return parameters_->GetVerticalZoomChecked() || parameters_->GetInterpretationZonesDefinitionChecked();
}

void ZoneView::SetMouse(QPoint mouse)
{
    ZoneBoundingBox const* const before = FineZoneBoundingBox(mouse_.x(), mouse_.y());
    mouse_ = mouse;
    if (FineZoneBoundingBox(mouse_.x(), mouse_.y()) != before) {
        update();
    }
}

void ZoneView::mouseMoveEvent(QMouseEvent* event)
{
    SetMouse(IsSelecting() ? QPoint(-1, -1) : event->position().toPoint());
    BaseViewWidget::mouseMoveEvent(event);
}

void ZoneView::mousePressEvent(QMouseEvent* event)
{
    bool const hits =
        FineZoneBoundingBox(qRound(event->position().x()), qRound(event->position().y())) != nullptr;
    if (IsSelecting() || !hits) {
        BaseViewWidget::mousePressEvent(event);
    }
}

void ZoneView::mouseReleaseEvent(QMouseEvent* event)
{
    ZoneBoundingBox const* const box =
        FineZoneBoundingBox(qRound(event->position().x()), qRound(event->position().y()));
    bool const is_click =
        !IsSelecting() && event->button() == Qt::LeftButton && press_y_ < 0 && box != nullptr;
    if (!is_click) {
        BaseViewWidget::mouseReleaseEvent(event);
        return;
    }
    // Copies: what the click opens may render the zones anew.
    Interval const depth = Ascending(box->zone.GetDepth());
    QString const text = QLatin1Char('[') + box->column + QStringLiteral("] - ") + box->zone.GetDescription();
    emit ZoneClicked_Signal(depth, text);
}

void ZoneView::leaveEvent(QEvent* event)
{
    SetMouse({-1, -1});
    BaseViewWidget::leaveEvent(event);
}
