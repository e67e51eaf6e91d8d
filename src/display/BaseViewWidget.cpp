// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseViewWidget.h"

#include "app/kit/SettingsSingleton.h"
#include "display/BaseViewWidgetParameters.h"
#include "display/DepthGeometry.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {
QColor const selection_color(0, 0, 255, 100);
} // namespace

BaseViewWidget::BaseViewWidget(QWidget* parent, QString const& name,
                               BaseViewWidgetParameters const* parameters,
                               DirectionalSurveyData const& directional_survey)
    : QWidget(parent), parameters_(parameters), directional_survey_(directional_survey)
{
    SetNameAndTitle(name);
    setAttribute(Qt::WA_MouseTracking);
    // The cached pixmap covers the whole widget, so nothing below it needs painting on a mouse move.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::BlankCursor);
}

BaseViewWidget::~BaseViewWidget() = default;

void BaseViewWidget::SetNameAndTitle(QString const& name)
{
    name_ = name;
    setWindowTitle(name);
}

void BaseViewWidget::ForceRedraw()
{
    needs_redraw_ = true;
    update();
}

void BaseViewWidget::SetCursorRow(int y)
{
    if (cursor_y_ != y) {
        UpdateCrossHair();
        cursor_y_ = y;
        UpdateCrossHair();
    }
}

void BaseViewWidget::SetCursorColumn(int x)
{
    if (cursor_x_ != x) {
        UpdateCrossHair();
        cursor_x_ = x;
        UpdateCrossHair();
    }
}

void BaseViewWidget::UpdateCrossHair()
{
    if (DrawsMoreThanCrossHair()) {
        update();
        return;
    }
    // A pixel to each side, for lines between the pixels of a screen of a fractional scale.
    if (cursor_y_ >= 0) {
        update(0, cursor_y_ - 1, width(), 3);
    }
    if (cursor_x_ >= 0) {
        update(cursor_x_ - 1, 0, 3, height());
    }
}

bool BaseViewWidget::DrawsMoreThanCrossHair() const
{
    return IsDragging();
}

void BaseViewWidget::SetSelectionStartRow(int y)
{
    if (selection_start_y_ != y) {
        selection_start_y_ = y;
        update();
    }
}

int BaseViewWidget::ConvertDepthToYValue(float depth, int height, Interval const& interval)
{
    return Quorrel::ConvertDepthToYValue(depth, height, interval);
}

float BaseViewWidget::ConvertYValueToDepth_metric(int y) const
{
    return static_cast<float>(
        Quorrel::ConvertYValueToDepth_metric(y, height(), parameters_->GetViewDepthMetric()));
}

int BaseViewWidget::ConvertDepthToIndex(float depth, std::size_t size, float first, float last)
{
    return Quorrel::ConvertDepthToIndex(depth, size, first, last);
}

float BaseViewWidget::GetTopDepthVisible_metric() const
{
    return static_cast<float>(parameters_->GetViewDepthMetric().lower);
}

float BaseViewWidget::GetBottomDepthVisible_metric() const
{
    return static_cast<float>(parameters_->GetViewDepthMetric().upper);
}

bool BaseViewWidget::event(QEvent* event)
{
    // A menu would swallow the release that ends the drag.
    if (event->type() == QEvent::ContextMenu && IsDragging()) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void BaseViewWidget::mousePressEvent(QMouseEvent* event)
{
    if (parameters_->GetVerticalZoomChecked() || parameters_->GetInterpretationZonesDefinitionChecked()) {
        selection_start_y_ = static_cast<int>(event->position().y());
        emit VerticalSelectionBegin_Signal(selection_start_y_);
        return;
    }
    if (event->button() != Qt::LeftButton) {
        return;
    }
    press_x_ = Quorrel::RoundToInt(event->position().x());
    press_y_ = Quorrel::RoundToInt(event->position().y());
}

void BaseViewWidget::mouseMoveEvent(QMouseEvent* event)
{
    int const x = static_cast<int>(event->position().x());
    int const y = static_cast<int>(event->position().y());
    SetCursorColumn(x);
    ReportMouse(x, y);
}

void BaseViewWidget::ReportMouse(int x, int y)
{
    StatusMessage const message = GetStatusMessage(x, y);
    emit MouseMove_Signal(y, message.depth, message.text);
}

void BaseViewWidget::ReportRestingMouse()
{
    if (cursor_x_ >= 0 && cursor_y_ >= 0) {
        ReportMouse(cursor_x_, cursor_y_);
    }
}

void BaseViewWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if ((parameters_->GetVerticalZoomChecked() || parameters_->GetInterpretationZonesDefinitionChecked()) &&
        selection_start_y_ >= 0) {
        int const start = selection_start_y_;
        int const end = static_cast<int>(event->position().y());
        emit VerticalSelectionEnd_Signal(std::min(start, end), std::max(start, end));
    }
    selection_start_x_ = -1;
    selection_start_y_ = -1;
    press_x_ = -1;
    press_y_ = -1;
    update();
}

void BaseViewWidget::enterEvent(QEnterEvent* event)
{
    QWidget::enterEvent(event);
    emit MouseEnter_Signal();
}

void BaseViewWidget::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    SetCursorColumn(-1);
    emit MouseLeave_Signal();
}

void BaseViewWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    needs_redraw_ = true;
    emit VisibilityChanged_Signal();
}

void BaseViewWidget::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    emit VisibilityChanged_Signal();
}

void BaseViewWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // The first view that sees the new height updates the shared value, so the others stay silent.
    if (height() != parameters_->GetVisibleHeightPixels()) {
        emit VisibleHeightChanged_Signal(height());
    }
    update();
}

void BaseViewWidget::DrawCachedPixmap(QPainter& painter, QRegion const& region,
                                      std::function<void(QPainter&)> const& render)
{
    if (width() < 1 || height() < 1) {
        return;
    }
    QSize const pixels = size() * devicePixelRatioF();
    if (!cached_pixmap_ || cached_pixmap_->size() != pixels) {
        cached_pixmap_ = std::make_shared<QPixmap>(pixels);
        cached_pixmap_->setDevicePixelRatio(devicePixelRatioF());
        needs_redraw_ = true;
    }
    if (needs_redraw_) {
        needs_redraw_ = false;
        ++render_count_;
        cached_pixmap_->fill(SettingsSingleton::Instance().GetBackgroundColor());
        QPainter pixmap_painter(cached_pixmap_.get());
        // Renderers take their size from the window; on a dense screen it is still that of the widget.
        pixmap_painter.setWindow(rect());
        pixmap_painter.setViewport(rect());
        // Cuts nothing off, but only under a clip rectangle does Qt draw thin lines straight into the pixels,
        // which takes a third of the time and gives the same picture.
        pixmap_painter.setClipRect(rect());
        render(pixmap_painter);
        if (cursor_x_ >= 0) {
            // Other depths and values lie under the mouse now; told when this painting is over.
            QMetaObject::invokeMethod(this, &BaseViewWidget::ReportRestingMouse, Qt::QueuedConnection);
        }
    }
    // Part by part, for under a clip of several rectangles the raster engine draws span by span and waits for
    // its thread pool, where one rectangle is simply copied.
    for (QRect const& part : region) {
        painter.setClipRect(part);
        painter.drawPixmap(0, 0, *cached_pixmap_);
    }
    painter.setClipping(false);
}

namespace {
// The lines of the cross-hair are filled in pieces that the raster engine draws at once: as lines they would
// be one span per pixel, and long runs of spans go to its thread pool, where waiting costs more than drawing.
void DrawColumnLine(QPainter& painter, int x, int height)
{
    constexpr int piece = 64;
    for (int top = 0; top < height; top += piece) {
        painter.fillRect(x, top, 1, std::min(piece, height - top), Qt::white);
    }
}

void DrawRowLine(QPainter& painter, int y, int width)
{
    painter.fillRect(0, y, width, 1, Qt::white);
}
} // namespace

void BaseViewWidget::RenderMouseCursor(QPainter& painter) const
{
    painter.setCompositionMode(QPainter::RasterOp_SourceAndNotDestination);
    if (cursor_y_ >= 0) {
        DrawRowLine(painter, cursor_y_, width());
    }
    if (cursor_x_ >= 0) {
        DrawColumnLine(painter, cursor_x_, height());
    }
    // A drag may run out of the view on any side, so the cursor may be at negative pixels here.
    bool const has_columns = selection_start_x_ >= 0 && selection_start_x_ != cursor_x_;
    bool const has_rows = selection_start_y_ >= 0 && selection_start_y_ != cursor_y_;
    if (has_columns) {
        DrawColumnLine(painter, selection_start_x_, height());
    }
    if (has_rows) {
        DrawRowLine(painter, selection_start_y_, width());
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);

    bool const horizontal = parameters_->GetHorizontalZoomChecked() && selection_start_x_ >= 0;
    bool const vertical = parameters_->GetVerticalZoomChecked();
    auto const [left, right] = std::minmax(selection_start_x_, cursor_x_);
    auto const [top, bottom] = std::minmax(selection_start_y_, cursor_y_);
    // In the neighbours of a view where a rectangle is drawn, the rows show as a band.
    if (horizontal && vertical) {
        if (has_columns && has_rows) {
            painter.fillRect(left, top, right - left, bottom - top, selection_color);
        }
    } else if (horizontal) {
        if (has_columns) {
            painter.fillRect(left, 0, right - left, height(), selection_color);
        }
    } else if (vertical && has_rows) {
        painter.fillRect(0, top, width(), bottom - top, selection_color);
    }
}
