// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellSketchCombinedViewWidget.h"

#include "display/BaseScaleView.h"
#include "well/WellSketchView.h"

#include <QPainter>

WellSketchCombinedViewWidget::WellSketchCombinedViewWidget(QString const& name, ColumnContext const& context,
                                                           QWidget* parent)
    : BaseCombinedViewWidget(parent), view_(new WellSketchView(this, name, context))
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    policy.setHorizontalStretch(1);
    setSizePolicy(policy);
    policy.setVerticalStretch(1);
    view_->setSizePolicy(policy);
    auto* scale = new BaseScaleView(this);
    QSizePolicy scale_policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    scale_policy.setHorizontalStretch(1);
    scale->setSizePolicy(scale_policy);
    SetPair(scale, view_);
    connect(view_, &WellSketchView::WellComponentClicked_Signal, this,
            &WellSketchCombinedViewWidget::WellComponentClicked_Signal);
}

BaseViewWidget const* WellSketchCombinedViewWidget::GetBaseViewWidget() const
{
    return view_;
}

BaseViewWidget* WellSketchCombinedViewWidget::GetBaseViewWidget()
{
    return view_;
}

std::optional<Interval> WellSketchCombinedViewWidget::GetDepthInterval_metric() const
{
    return view_->GetDepthInterval_metric();
}

void WellSketchCombinedViewWidget::RenderScales(QPainter& painter, int height, QColor const& color)
{
    GetBaseScaleView()->RenderScalesToPainter(painter, height, color);
}

void WellSketchCombinedViewWidget::RenderDataview(QPainter& painter, Interval const& interval, double dpi,
                                                  double /*axis_factor*/, double /*major_start*/,
                                                  double /*major_step*/)
{
    view_->RenderToPainter(painter, interval, dpi, dpi, WellSketchRenderer::PrintScheme());
    // The areas just made are the paper's; the screen needs its own.
    view_->ForceRedraw();
}

QSize WellSketchCombinedViewWidget::sizeHint() const
{
    return view_->sizeHint();
}
