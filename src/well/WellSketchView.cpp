// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellSketchView.h"

#include "app/kit/Globals.h"
#include "display/BaseViewWidgetParameters.h"
#include "display/ClippedDrawing.h"
#include "display/ColumnContext.h"
#include "well/SketchDrawing.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr int HIGHLIGHT_PEN = 7;
constexpr double WIDTH_INCHES = 2;
} // namespace

WellSketchView::WellSketchView(QWidget* parent, QString const& name, ColumnContext const& context)
    : BaseViewWidget(parent, name, context.parameters, *context.directional_survey),
      pipe_strings_(*context.pipe_strings),
      renderer_(*context.pipe_strings, *context.components, *context.directional_survey, boxes_, polygons_)
{
    setObjectName(OBJECT_NAME_);
}

QString WellSketchView::GetDescription() const
{
    return QStringLiteral("Well Sketch");
}

StatusMessage WellSketchView::GetStatusMessage(int /*x*/, int y) const
{
    SketchItemText const* const item = GetItemText();
    return {ConvertYValueToDepth_metric(y),
            item != nullptr ? item->GetStatusText(directional_survey_) : QStringLiteral("Well Sketch")};
}

std::optional<Interval> WellSketchView::GetDepthInterval_metric() const
{
    std::optional<Interval> const depth = pipe_strings_.GetDepthInterval_metric();
    bool const is_finite = depth && std::isfinite(depth->lower) && std::isfinite(depth->upper);
    return is_finite ? depth : std::nullopt;
}

QSize WellSketchView::sizeHint() const
{
    return {static_cast<int>(Quorrel::DPI_X * WIDTH_INCHES), 50};
}

void WellSketchView::RenderToPainter(QPainter& painter, Interval const& interval, double dpi_x, double dpi_y,
                                     WellSketchRenderer::ColorScheme const& scheme)
{
    ClearItem();
    renderer_.RenderToPainter(painter, interval, dpi_x, dpi_y, scheme);
}

void WellSketchView::RenderBoundingBox(QPainter& painter) const
{
    QPen const saved_pen = painter.pen();
    painter.setPen(QPen(QColor(127, 255, 165), HIGHLIGHT_PEN));
    painter.setBrush(Qt::NoBrush);
    if (box_ != nullptr) {
        Quorrel::DrawFrame(painter, QRectF(box_->area).adjusted(0, 0, -1, -1));
    } else if (polygon_ != nullptr) {
        Quorrel::DrawPolygonClipped(painter, polygon_->area.constData(),
                                    static_cast<std::size_t>(polygon_->area.size()));
    }
    painter.setPen(saved_pen);
}

void WellSketchView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    DrawCachedPixmap(painter, event->region(), [this](QPainter& pixmap_painter) {
        // The item under the mouse is found again among the new areas.
        bool const had_item = GetItemText() != nullptr;
        RenderToPainter(pixmap_painter, parameters_->GetViewDepthMetric(), Quorrel::DPI_X, Quorrel::DPI_Y,
                        WellSketchRenderer::ScreenScheme());
        if (had_item && cursor_x_ >= 0 && cursor_y_ >= 0) {
            FindItem(QPointF(cursor_x_, cursor_y_));
        }
    });
    RenderMouseCursor(painter);
    RenderBoundingBox(painter);
}

void WellSketchView::FindItem(QPointF const& point)
{
    ClearItem();
    auto const box =
        std::find_if(boxes_.crbegin(), boxes_.crend(), [&](WellComponentBoundingBox const& candidate) {
            return candidate.area.contains(point.toPoint());
        });
    if (box != boxes_.crend()) {
        box_ = &*box;
        return;
    }
    auto const polygon =
        std::find_if(polygons_.crbegin(), polygons_.crend(), [&](PolygonBoundingBox const& candidate) {
            return candidate.area.containsPoint(point, Qt::OddEvenFill);
        });
    polygon_ = polygon != polygons_.crend() ? &*polygon : nullptr;
}

void WellSketchView::ClearItem()
{
    box_ = nullptr;
    polygon_ = nullptr;
}

SketchItemText const* WellSketchView::GetItemText() const
{
    if (box_ != nullptr) {
        return &box_->text;
    }
    return polygon_ != nullptr ? &polygon_->text : nullptr;
}

void WellSketchView::mouseMoveEvent(QMouseEvent* event)
{
    if (!parameters_->GetVerticalZoomChecked() && !parameters_->GetInterpretationZonesDefinitionChecked()) {
        SketchItemText const* const before = GetItemText();
        FindItem(event->position());
        if (GetItemText() != before) {
            update();
        }
    }
    BaseViewWidget::mouseMoveEvent(event);
}

void WellSketchView::mousePressEvent(QMouseEvent* event)
{
    if (GetItemText() == nullptr || parameters_->GetVerticalZoomChecked() ||
        parameters_->GetInterpretationZonesDefinitionChecked()) {
        BaseViewWidget::mousePressEvent(event);
    }
}

void WellSketchView::mouseReleaseEvent(QMouseEvent* event)
{
    SketchItemText const* const item = GetItemText();
    bool const selects =
        parameters_->GetVerticalZoomChecked() || parameters_->GetInterpretationZonesDefinitionChecked();
    if (item == nullptr || selects || event->button() != Qt::LeftButton) {
        BaseViewWidget::mouseReleaseEvent(event);
        return;
    }
    // Copies: what the click opens may render the sketch anew.
    SketchItemText const clicked = *item;
    emit WellComponentClicked_Signal(clicked.depth, clicked.description);
}

void WellSketchView::leaveEvent(QEvent* event)
{
    if (GetItemText() != nullptr) {
        ClearItem();
        update();
    }
    BaseViewWidget::leaveEvent(event);
}
