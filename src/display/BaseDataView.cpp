// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseDataView.h"

#include "app/kit/Globals.h"
#include "app/kit/Quorrel.h"
#include "display/BaseViewWidgetParameters.h"
#include "display/ClippedDrawing.h"
#include "display/CurveColors.h"
#include "display/CurveRenderer.h"
#include "display/DepthGeometry.h"
#include "well/DirectionalSurveyData.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
DirectionalSurveyData const& SurveyOf(ColumnContext const& context)
{
    static DirectionalSurveyData const none;
    return context.directional_survey != nullptr ? *context.directional_survey : none;
}

bool HasExtent(Interval const& values)
{
    return values.IsValid() && values.upper >= values.lower;
}

/// The ends of a scale for values without length.
Interval ScaleAround(Interval const& value)
{
    Interval scale(std::floor(value.lower - 0.1), std::ceil(value.upper + 0.1));
    if (!(scale.Delta() > 0)) {
        // So great that 0.1 is lost in rounding.
        double const margin = std::fabs(value.lower) * 1e-6;
        scale = Interval(value.lower - margin, value.upper + margin);
    }
    return scale;
}
} // namespace

BaseDataView::BaseDataView(QWidget* parent, QString const& name, ColumnContext const& context)
    : BaseViewWidget(parent, name, context.parameters, SurveyOf(context)), context_(context)
{
}

BaseDataView::~BaseDataView() = default;

// --- what is shown

void BaseDataView::AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const> channel)
{
    AssignDepthDataChannel(std::move(channel), QPen(Quorrel::CurveCycleColor(depth_curves_.size())));
}

void BaseDataView::AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const> channel, QPen const& pen)
{
    auto const [is_new, curve] = depth_curves_.AssignDataChannel(channel, pen);
    if (!is_new) {
        return;
    }
    curve->SetScales(CalculateDefaultHorizontalScale(curve->GetValueInterval()));
    if (isVisible()) {
        curve->ProcessCurve();
    }
    ForceRedraw();
}

void BaseDataView::AssignTimeDataChannel(std::weak_ptr<TimeLogDataChannel const> channel)
{
    BaseCurve const* const first = GetCurveAt(0);
    TimeCurveOverlay* const overlay = time_curves_.AssignDataChannel(this, channel);
    if (overlay == nullptr) {
        return;
    }
    Interval const scale =
        first != nullptr ? GetScale(*first) : CalculateDefaultHorizontalScale(overlay->GetValueInterval());
    for (int i = 0; BaseCurve* const curve = GetCurveAt(i); ++i) {
        SetScales(*curve, scale);
    }
    ForceRedraw();
    UpdateScales();
}

void BaseDataView::RemoveDepthDataChannel(DataChannelIdentifier const& identifier)
{
    depth_curves_.RemoveDataChannel(identifier);
    ForceRedraw();
    UpdateScales();
}

bool BaseDataView::DeleteDependencies(DataChannelIdentifier const& identifier)
{
    std::size_t const count = depth_curves_.size() + time_curves_.size();
    depth_curves_.DeleteDependencies(identifier);
    time_curves_.DeleteDependencies(identifier);
    if (depth_curves_.size() + time_curves_.size() != count) {
        ForceRedraw();
        UpdateScales();
    }
    return !IsEmpty();
}

std::optional<Interval> BaseDataView::GetDepthInterval_metric() const
{
    std::optional<Interval> const depth = depth_curves_.GetDepthInterval_metric();
    std::optional<Interval> const time = time_curves_.GetDepthInterval_metric();
    if (!depth || !time) {
        return depth ? depth : time;
    }
    return Interval(std::min(depth->lower, time->lower), std::max(depth->upper, time->upper));
}

void BaseDataView::SetShowMarkersA(bool show)
{
    show_markers_a_ = show;
    ForceRedraw();
}

void BaseDataView::SetShowMarkersB(bool show)
{
    show_markers_b_ = show;
    ForceRedraw();
}

void BaseDataView::SetShowBaseline(bool show)
{
    show_baseline_ = show;
    ForceRedraw();
}

// --- scales

Interval BaseDataView::CalculateDefaultHorizontalScale(Interval const& values)
{
    if (!HasExtent(values) || !std::isfinite(values.Delta())) {
        return {0, 1};
    }
    double const delta = values.Delta();
    if (delta == 0) {
        return ScaleAround(values);
    }
    // One power of ten below the extent, so that the ends are round to about a tenth of it.
    int const exponent = static_cast<int>(std::ceil(std::log10(delta))) - 1;
    double const power = std::pow(10.0, exponent);
    Interval const scale(std::floor(values.lower / power) * power, std::ceil(values.upper / power) * power);
    if (!scale.IsValid() || std::isnan(scale.Delta())) {
        return values;
    }
    return scale.Delta() == 0 ? ScaleAround(scale) : scale;
}

float BaseDataView::ConvertCurveValueToX(float value, Interval const& scale, int width)
{
    return Quorrel::ConvertCurveValueToX(value, scale, width);
}

float BaseDataView::ConvertXtoCurveValue(float x, Interval const& scale) const
{
    return Quorrel::ConvertXtoCurveValue(x, scale, width());
}

QPen BaseDataView::GetPen(DepthCurve const& curve) const
{
    return curve.GetCurvePen();
}

Interval BaseDataView::GetScale(BaseCurve const& curve) const
{
    return curve.GetScale();
}

void BaseDataView::SetScales(BaseCurve& curve, Interval const& scale)
{
    curve.SetScales(scale);
}

void BaseDataView::SetScales(DataChannelIdentifier const& identifier, Interval const& scale)
{
    for (DepthCurve& curve : depth_curves_) {
        if (curve.GetDataChannelIdentifier() == identifier) {
            SetScales(static_cast<BaseCurve&>(curve), scale);
        }
    }
    for (auto const& overlay : time_curves_) {
        if (overlay->GetDataChannelIdentifier() == identifier) {
            SetScales(static_cast<BaseCurve&>(*overlay), scale);
        }
    }
    ForceRedraw();
    UpdateScales();
}

void BaseDataView::SetScales(std::vector<std::shared_ptr<ScaleItemParameters>> scales)
{
    for (auto const& record : scales) {
        BaseCurve* const curve = record ? GetCurveAt(record->index) : nullptr;
        if (curve == nullptr || curve->GetScale() == record->scale) {
            continue;
        }
        Interval const before = curve->GetScale();
        SetScales(*curve, record->scale);
        emit PushUndoObject_Signal(GetName(), GetIdentifierAt(record->index), before, record->scale);
    }
}

void BaseDataView::ResetHorizontalScale()
{
    for (int i = 0; BaseCurve* const curve = GetCurveAt(i); ++i) {
        SetScales(*curve, CalculateDefaultHorizontalScale(curve->GetValueInterval()));
    }
}

void BaseDataView::ResetHorizontalScale_Clicked()
{
    for (int i = 0; BaseCurve* const curve = GetCurveAt(i); ++i) {
        Interval const before = curve->GetScale();
        Interval const after = CalculateDefaultHorizontalScale(curve->GetValueInterval());
        SetScales(*curve, after);
        emit PushUndoObject_Signal(GetName(), GetIdentifierAt(i), before, after);
    }
    ForceRedraw();
    UpdateScales();
}

std::vector<Interval> BaseDataView::GetMinMaxInInterval(double top, double bottom) const
{
    std::vector<Interval> extents;
    extents.reserve(depth_curves_.size() + time_curves_.size());
    for (DepthCurve const& curve : depth_curves_) {
        extents.push_back(curve.GetMinMaxValues(top, bottom));
    }
    for (auto const& overlay : time_curves_) {
        double const depth = static_cast<double>(overlay->GetLogDepth());
        extents.push_back(top <= depth && depth <= bottom ? overlay->GetMinMax() : Interval());
    }
    return extents;
}

std::vector<Interval> BaseDataView::GetMinMaxInVisibleInterval() const
{
    Interval const& view = parameters_->GetViewDepthMetric();
    return GetMinMaxInInterval(view.lower, view.upper);
}

void BaseDataView::ResetScalesToVisibleDepth()
{
    std::vector<Interval> const extents = GetMinMaxInVisibleInterval();
    for (std::size_t i = 0; i < extents.size(); ++i) {
        if (HasExtent(extents[i])) {
            SetScales(*GetCurveAt(static_cast<int>(i)), CalculateDefaultHorizontalScale(extents[i]));
        }
    }
    ForceRedraw();
}

void BaseDataView::ResetScalesToVisibleDepth_Clicked()
{
    std::vector<Interval> before;
    for (int i = 0; BaseCurve const* const curve = GetCurveAt(i); ++i) {
        before.push_back(curve->GetScale());
    }
    ResetScalesToVisibleDepth();
    for (std::size_t i = 0; i < before.size(); ++i) {
        int const index = static_cast<int>(i);
        emit PushUndoObject_Signal(GetName(), GetIdentifierAt(index), before[i],
                                   GetCurveAt(index)->GetScale());
    }
    UpdateScales();
}

void BaseDataView::HorizontalZoom(int x1, int x2)
{
    int const index = selected_scale_ ? selected_scale_->index : -1;
    BaseCurve* const curve = GetCurveAt(index);
    if (curve == nullptr) {
        return;
    }
    Interval const before = GetScale(*curve);
    Interval const after(static_cast<double>(ConvertXtoCurveValue(static_cast<float>(x1), before)),
                         static_cast<double>(ConvertXtoCurveValue(static_cast<float>(x2), before)));
    SetScales(*curve, after);
    emit PushUndoObject_Signal(GetName(), GetIdentifierAt(index), before, after);
}

std::vector<std::shared_ptr<ScaleItemParameters>> BaseDataView::GetScales() const
{
    std::vector<std::shared_ptr<ScaleItemParameters>> records;
    auto const append = [&records](BaseCurve const& curve, HeaderRow const& header) {
        std::shared_ptr<ScaleItemParameters> const& record = curve.GetScaleItemParameters();
        record->header = header;
        record->index = static_cast<int>(records.size());
        records.push_back(record);
    };
    for (DepthCurve const& curve : depth_curves_) {
        append(curve, curve.GetDataChannel() ? curve.GetCurveInfo() : curve.GetScaleItemParameters()->header);
    }
    for (auto const& overlay : time_curves_) {
        append(*overlay, overlay->GetDataChannel() ? overlay->GetCurveInfo()
                                                   : overlay->GetScaleItemParameters()->header);
    }
    return records;
}

void BaseDataView::UpdateScales()
{
    std::vector<std::shared_ptr<ScaleItemParameters>> const scales = GetScales();
    auto const selected =
        std::find_if(scales.begin(), scales.end(), [](auto const& record) { return record->is_selected; });
    if (selected != scales.end()) {
        SetSelectedScaleCurveInfo(*selected);
    } else if (std::find(scales.begin(), scales.end(), selected_scale_) == scales.end()) {
        SetSelectedScaleCurveInfo(nullptr);
    }
    emit SetScale_Signal(scales);
    if (!scales.empty()) {
        emit SetScaleName_Signal(GetName());
    }
}

std::shared_ptr<ScaleItemParameters> BaseDataView::GetSelectedScaleCurveInfo() const
{
    return selected_scale_;
}

void BaseDataView::SetSelectedScaleCurveInfo(std::shared_ptr<ScaleItemParameters> selected)
{
    if (selected_scale_ == selected) {
        return;
    }
    selected_scale_ = std::move(selected);
    if (show_baseline_) {
        ForceRedraw(); // the baseline stands on the selected scale
    } else {
        update();
    }
}

// --- curves by the index of their scale record

BaseCurve* BaseDataView::GetCurveAt(int index)
{
    return const_cast<BaseCurve*>(std::as_const(*this).GetCurveAt(index));
}

BaseCurve const* BaseDataView::GetCurveAt(int index) const
{
    if (index < 0) {
        return nullptr;
    }
    auto const position = static_cast<std::size_t>(index);
    if (position < depth_curves_.size()) {
        return &depth_curves_[position];
    }
    std::size_t const time_position = position - depth_curves_.size();
    return time_position < time_curves_.size() ? time_curves_[time_position].get() : nullptr;
}

DataChannelIdentifier BaseDataView::GetIdentifierAt(int index) const
{
    BaseCurve const* const curve = GetCurveAt(index);
    if (auto const* depth_curve = dynamic_cast<DepthCurve const*>(curve)) {
        return depth_curve->GetDataChannelIdentifier();
    }
    auto const* time_curve = dynamic_cast<TimeCurve const*>(curve);
    return time_curve != nullptr ? time_curve->GetDataChannelIdentifier() : DataChannelIdentifier();
}

DepthCurve const* BaseDataView::GetSelectedCurve() const
{
    if (!selected_scale_ || selected_scale_->index < 0 ||
        static_cast<std::size_t>(selected_scale_->index) >= depth_curves_.size()) {
        return nullptr;
    }
    return &depth_curves_[static_cast<std::size_t>(selected_scale_->index)];
}

StatusMessage BaseDataView::GetStatusMessage(int x, int y) const
{
    StatusMessage message{ConvertYValueToDepth_metric(y), {}};
    if (!selected_scale_) {
        message.text = QStringLiteral("No Selected Curve");
        return message;
    }
    BaseCurve const* const curve = GetCurveAt(selected_scale_->index);
    if (curve == nullptr) {
        return message;
    }
    auto const* depth_curve = dynamic_cast<DepthCurve const*>(curve);
    auto const channel = depth_curve != nullptr ? depth_curve->GetDataChannel() : nullptr;
    QString const name = channel ? channel->GetName() : selected_scale_->header.mnemonic;
    float const value = ConvertXtoCurveValue(static_cast<float>(x), GetScale(*curve));
    message.text =
        name + QStringLiteral(": ") + Quorrel::FloatTypeToString(value, 3) + selected_scale_->header.unit;
    return message;
}

// --- painting

void BaseDataView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    DrawCachedPixmap(painter, event->region(), [this](QPainter& pixmap_painter) {
        RenderToPainter(pixmap_painter, parameters_->GetViewDepthMetric(), Quorrel::DPI_Y, true);
    });
    RenderMouseCursor(painter);
    DepthCurve const* const tracked = Quorrel::TRACKING_MODE ? RenderCurveTracker(painter) : nullptr;
    if (press_x_ >= 0 && press_y_ >= 0) {
        RenderMeasurements(painter, tracked);
    }
}

bool BaseDataView::DrawsMoreThanCrossHair() const
{
    return Quorrel::TRACKING_MODE || BaseViewWidget::DrawsMoreThanCrossHair();
}

int BaseDataView::RenderCurve(DepthCurve const& curve, int width, int height, Interval const& interval)
{
    return CurveRenderer::RenderCurve(curve, GetScale(curve), width, height, interval, render_points_);
}

void BaseDataView::DrawCurve(QPainter& painter, int count, int first)
{
    if (first < 0 || count <= 0 ||
        static_cast<std::size_t>(first) + static_cast<std::size_t>(count) > render_points_.size()) {
        return;
    }
    Quorrel::DrawPolylineClipped(painter, render_points_.data() + first, static_cast<std::size_t>(count));
}

void BaseDataView::showEvent(QShowEvent* event)
{
    depth_curves_.ProcessAllCurves();
    BaseViewWidget::showEvent(event);
}

void BaseDataView::hideEvent(QHideEvent* event)
{
    EndDrag();
    depth_curves_.ClearAllProcessedCurves();
    BaseViewWidget::hideEvent(event);
}

// --- mouse

bool BaseDataView::event(QEvent* event)
{
    // As in the base class, for the drag of a depth correction.
    if (event->type() == QEvent::ContextMenu && drag_y_ != NO_DRAG) {
        event->accept();
        return true;
    }
    return BaseViewWidget::event(event);
}

void BaseDataView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        BaseViewWidget::mousePressEvent(event);
        return;
    }
    if (parameters_->GetHorizontalZoomChecked()) {
        selection_start_x_ = static_cast<int>(event->position().x());
        if (!parameters_->GetVerticalZoomChecked()) {
            return;
        }
    } else if (parameters_->GetShiftChecked() || parameters_->GetStretchChecked()) {
        if (GetDragTarget() != DragTarget::None) {
            drag_y_ = static_cast<int>(event->position().y());
            is_stretch_drag_ = !parameters_->GetShiftChecked();
            is_stretch_drag_ ? emit DepthStretchStarted_Signal() : emit ShiftStarted_Signal();
        }
        return;
    }
    BaseViewWidget::mousePressEvent(event);
}

void BaseDataView::mouseMoveEvent(QMouseEvent* event)
{
    ContinueDrag(static_cast<int>(event->position().y()));
    BaseViewWidget::mouseMoveEvent(event);
}

void BaseDataView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        EndDrag();
        if (selection_start_x_ >= 0 && parameters_->GetHorizontalZoomChecked()) {
            MouseReleaseHorizontalZoom(static_cast<int>(event->position().x()));
        }
    }
    BaseViewWidget::mouseReleaseEvent(event);
}

void BaseDataView::MouseReleaseHorizontalZoom(int x)
{
    if (selection_start_x_ == x) {
        return;
    }
    // A drag that ends beyond an edge widens the scale beyond its end there.
    HorizontalZoom(std::min(selection_start_x_, x), std::max(selection_start_x_, x));
    emit HorizontalZoomEnd_Signal();
    UpdateScales();
    ForceRedraw();
}

void BaseDataView::ContinueDrag(int y)
{
    if (drag_y_ == NO_DRAG || drag_y_ == y) {
        return;
    }
    DragTarget const target = GetDragTarget();
    if (target == DragTarget::None) {
        return;
    }
    DataChannelIdentifier selected;
    if (target == DragTarget::SelectedCurve) {
        selected = GetSelectedCurve()->GetDataChannelIdentifier();
    }
    DataChannelIdentifier const* const identifier = target == DragTarget::SelectedCurve ? &selected : nullptr;
    float const from = ConvertYValueToDepth_metric(drag_y_);
    float const to = ConvertYValueToDepth_metric(y);
    if (is_stretch_drag_) {
        // A drag from, to or across the anchor has no finite factor or turns the log upside down; the drag
        // goes on from its last good row when the mouse comes back.
        float const anchor = parameters_->GetStretchAnchorDepth();
        float const factor = (to - anchor) / (from - anchor);
        if (!std::isfinite(factor) || factor <= 0) {
            return;
        }
        emit ApplyStretch_Signal(identifier, from, to, anchor);
    } else {
        emit ApplyShift_Signal(identifier, to - from);
    }
    ForceRedraw();
    drag_y_ = y;
}

void BaseDataView::EndDrag()
{
    if (drag_y_ == NO_DRAG) {
        return;
    }
    drag_y_ = NO_DRAG;
    is_stretch_drag_ ? emit DepthStretchCompleted_Signal() : emit ShiftCompleted_Signal();
}
