// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DeviationDataView.h"

#include "app/kit/Globals.h"
#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "display/DepthGeometry.h"
#include "model/StorageDataChannel.h"
#include "model/Survey.h"
#include "well/DirectionalSurveyData.h"

#include <QPainter>

#include <algorithm>

namespace {
// Keys that no storage of a survey gives; the two channels are nobody else's.
DataChannelIdentifier DeviationIdentifier()
{
    return {-1, Survey::DATA_STORAGE_NAME_IDENTIFIER, -2};
}
DataChannelIdentifier TvdIdentifier()
{
    return {-1, Survey::DATA_STORAGE_NAME_IDENTIFIER, -3};
}
QColor const deviation_color(Qt::green);
QColor const tvd_color(Qt::cyan);
constexpr double WIDTH_INCHES = 2;
} // namespace

DeviationDataView::DeviationDataView(QWidget* parent, QString const& name, ColumnContext const& context)
    : BaseDataView(parent, name, context)
{
    setObjectName(OBJECT_NAME_);
    SetupDataChannels();
}

DeviationDataView::~DeviationDataView() = default;

QString DeviationDataView::GetDescription() const
{
    return QStringLiteral("Inclination Survey View");
}

QPen DeviationDataView::GetPen(DepthCurve const& curve) const
{
    return curve.GetCurvePen();
}

QSize DeviationDataView::sizeHint() const
{
    return {static_cast<int>(Quorrel::DPI_X * WIDTH_INCHES), 50};
}

void DeviationDataView::SetupDataChannels()
{
    auto const [tvd, deviation] =
        directional_survey_.GenerateWellSurveyStorageDataChannels(DeviationIdentifier(), TvdIdentifier());
    bool const is_known = deviation_ && *deviation_->GetSamples() == *deviation->GetSamples() &&
                          tvd_metres_ == *tvd->GetSamples() &&
                          deviation_->GetDepth().GetMetricDepths() == deviation->GetDepth().GetMetricDepths();
    if (is_known) {
        return;
    }
    depth_curves_.clear();
    deviation_ = deviation;
    tvd_ = tvd;
    tvd_metres_ = *tvd->GetSamples();
    if (!tvd_metres_.empty()) {
        AssignDepthDataChannel(deviation_, QPen(deviation_color));
        AssignDepthDataChannel(tvd_, QPen(tvd_color));
        if (!SettingsSingleton::Instance().IsMetricDepth()) {
            ToggleTvdUnit();
        }
    }
    UpdateScales();
    ForceRedraw();
}

void DeviationDataView::ToggleTvdUnit()
{
    if (tvd_metres_.empty()) {
        return;
    }
    auto values = std::make_shared<BaseDataChannel::SampleVector>(tvd_metres_.size());
    std::transform(tvd_metres_.cbegin(), tvd_metres_.cend(), values->begin(),
                   &Quorrel::MetricsDepthToSettingsDepth);
    HeaderRow header = tvd_->GetCurveInfo();
    header.unit = SettingsSingleton::Instance().IsMetricDepth() ? QStringLiteral("m") : QStringLiteral("ft");
    ReplaceTvdChannel(std::make_shared<StorageDataChannel>(values, tvd_->GetDepth(), tvd_->GetName(), header,
                                                           tvd_->GetDataChannelIdentifier()));
}

void DeviationDataView::ReplaceTvdChannel(std::shared_ptr<StorageDataChannel> const& channel)
{
    RemoveDepthDataChannel(TvdIdentifier());
    tvd_ = channel;
    AssignDepthDataChannel(tvd_, QPen(tvd_color));
    UpdateScales();
}

void DeviationDataView::RenderBaseline(QPainter& painter) const
{
    int const column = Quorrel::TruncateToInt(
        Quorrel::ConvertCurveValueToX(0, selected_scale_->scale, painter.window().width()));
    int const bottom = painter.window().height() - 1;
    QPen pen = painter.pen();
    pen.setColor(Qt::white);
    pen.setStyle(Qt::SolidLine);
    painter.setPen(pen);
    painter.drawLine(column, 0, column, bottom);
    pen.setColor(Qt::blue);
    pen.setStyle(Qt::DashLine);
    painter.setPen(pen);
    painter.drawLine(column, 0, column, bottom);
}

void DeviationDataView::RenderToPainter(QPainter& painter, Interval const& interval, double /*dpi*/,
                                        bool on_screen)
{
    int const width = painter.window().width();
    int const height = painter.window().height();
    QPen const saved_pen = painter.pen();
    if (show_baseline_ && selected_scale_ && !IsEmpty() && selected_scale_->scale.lower < 0 &&
        selected_scale_->scale.upper > 0) {
        RenderBaseline(painter);
    }
    for (DepthCurve const& curve : depth_curves_) {
        int const count = RenderCurve(curve, width, height, interval);
        painter.setPen(GetPen(curve));
        DrawCurve(painter, count, 0);
    }
    painter.setPen(saved_pen);
    QColor const marker_color = on_screen ? Qt::white : Qt::black;
    if (show_markers_a_ && context_.markers_a != nullptr) {
        RenderDepthMarkers(painter, *context_.markers_a, interval, marker_color);
    }
    if (show_markers_b_ && context_.markers_b != nullptr) {
        RenderDepthMarkers(painter, *context_.markers_b, interval, marker_color);
    }
    painter.setPen(saved_pen);
}
