// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/AutomaticDataView.h"

#include "model/DepthLogPass.h"

#include <QEvent>

#include <algorithm>

AutomaticDataView::AutomaticDataView(QWidget* parent, QString const& name, ColumnContext const& context)
    : IntermediateDataView(parent, name, context)
{
    setObjectName(OBJECT_NAME_);
}

QString AutomaticDataView::GetDescription() const
{
    BaseCurve const* const first = GetCurveAt(0);
    return first != nullptr ? first->GetScaleItemParameters()->header.description : QString();
}

Interval AutomaticDataView::GetDefaultScale() const
{
    Interval values = depth_curves_.GetMinMaxValue();
    Interval const time_values = time_curves_.GetMinMaxValue();
    values.lower = std::min(values.lower, time_values.lower);
    values.upper = std::max(values.upper, time_values.upper);
    return CalculateDefaultHorizontalScale(values);
}

bool AutomaticDataView::FollowsValues() const
{
    return IsEmpty() || scale_ == GetDefaultScale();
}

void AutomaticDataView::AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const> channel,
                                               QPen const& pen)
{
    bool const follows = FollowsValues();
    IntermediateDataView::AssignDepthDataChannel(std::move(channel), pen);
    if (follows) {
        ResetHorizontalScale();
    }
    UpdateScales();
}

void AutomaticDataView::AssignTimeDataChannel(std::weak_ptr<TimeLogDataChannel const> channel)
{
    bool const follows = FollowsValues();
    IntermediateDataView::AssignTimeDataChannel(std::move(channel));
    if (follows) {
        ResetHorizontalScale();
        UpdateScales();
    }
}

void AutomaticDataView::SetAutomaticDataViewScales(Interval const& scale)
{
    scale_ = scale;
    if (selected_scale_) {
        selected_scale_->scale = scale; // the baseline stands on it, also before the header follows
    }
    ForceRedraw();
}

void AutomaticDataView::SetScales(DataChannelIdentifier const& /*identifier*/, Interval const& scale)
{
    SetAutomaticDataViewScales(scale);
    UpdateScales();
}

void AutomaticDataView::SetScales(BaseCurve& /*curve*/, Interval const& scale)
{
    SetAutomaticDataViewScales(scale);
}

void AutomaticDataView::SetScales(std::vector<std::shared_ptr<ScaleItemParameters>> scales)
{
    if (scales.empty() || !scales.front() || scales.front()->scale == scale_) {
        return;
    }
    Interval const before = scale_;
    SetAutomaticDataViewScales(scales.front()->scale);
    emit PushUndoObject_Signal(GetName(), DataChannelIdentifier(), before, scale_);
}

void AutomaticDataView::ResetHorizontalScale()
{
    SetAutomaticDataViewScales(GetDefaultScale());
}

void AutomaticDataView::ResetHorizontalScale_Clicked()
{
    Interval const before = scale_;
    ResetHorizontalScale();
    emit PushUndoObject_Signal(GetName(), DataChannelIdentifier(), before, scale_);
    UpdateScales();
}

std::vector<Interval> AutomaticDataView::GetMinMaxInInterval(double top, double bottom) const
{
    Interval extent;
    for (Interval const& values : IntermediateDataView::GetMinMaxInInterval(top, bottom)) {
        if (values.IsValid() && values.lower <= values.upper) {
            extent.lower = std::min(extent.lower, values.lower);
            extent.upper = std::max(extent.upper, values.upper);
        }
    }
    return {extent};
}

void AutomaticDataView::ResetScalesToVisibleDepth()
{
    Interval const extent = GetMinMaxInVisibleInterval().front();
    if (extent.IsValid()) {
        SetAutomaticDataViewScales(CalculateDefaultHorizontalScale(extent));
    }
}

void AutomaticDataView::ResetScalesToVisibleDepth_Clicked()
{
    Interval const before = scale_;
    ResetScalesToVisibleDepth();
    emit PushUndoObject_Signal(GetName(), DataChannelIdentifier(), before, scale_);
    UpdateScales();
}

std::vector<std::shared_ptr<ScaleItemParameters>> AutomaticDataView::GetScales() const
{
    BaseCurve const* const first = GetCurveAt(0);
    if (first == nullptr) {
        return {};
    }
    auto record = std::make_shared<ScaleItemParameters>();
    record->header = first->GetScaleItemParameters()->header;
    record->index = 0;
    record->scale = scale_;
    record->pen = QPen(palette().color(QPalette::WindowText));
    return {record};
}

QPen AutomaticDataView::GetPen(DepthCurve const& curve) const
{
    return curve.GetLogPassPen();
}

Interval AutomaticDataView::GetScale(BaseCurve const& /*curve*/) const
{
    return scale_;
}

void AutomaticDataView::HorizontalZoom(int x1, int x2)
{
    Interval const before = scale_;
    SetAutomaticDataViewScales(
        Interval(static_cast<double>(ConvertXtoCurveValue(static_cast<float>(x1), before)),
                 static_cast<double>(ConvertXtoCurveValue(static_cast<float>(x2), before))));
    emit PushUndoObject_Signal(GetName(), DataChannelIdentifier(), before, scale_);
}

void AutomaticDataView::changeEvent(QEvent* event)
{
    IntermediateDataView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        UpdateScales();
    }
}

DepthCurve const* AutomaticDataView::RenderCurveTracker(QPainter& painter)
{
    auto const pass = context_.current_pass != nullptr ? context_.current_pass->pass.lock() : nullptr;
    std::optional<double> const depth = GetCursorDepth();
    if (!pass || !depth) {
        return nullptr;
    }
    LogPassIdentifier const identifier = pass->GetLogPassIdentifier();
    for (DepthCurve const& curve : depth_curves_) {
        if (curve.GetDataChannelIdentifier().GetLogPassIdentifier() == identifier) {
            return RenderCurveTracker_common(painter, *depth, curve, {}, 0) ? &curve : nullptr;
        }
    }
    return nullptr;
}
