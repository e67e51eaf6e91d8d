// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthAxisCombinedViewWidget.h"

#include "display/DepthAxis.h"
#include "display/DepthAxisRenderer.h"
#include "display/DepthAxisScale.h"

#include <QPainter>

DepthAxisCombinedViewWidget::DepthAxisCombinedViewWidget(QString const& name, ColumnContext const& context,
                                                         ColumnSlots const* column, QWidget* parent)
    : BaseCombinedViewWidget(parent),
      scale_(new DepthAxisScale(this)),
      view_(new DepthAxis(this, name, context))
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    policy.setVerticalStretch(1);
    setSizePolicy(policy);
    view_->setSizePolicy(policy);
    scale_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    SetPair(scale_, view_);
    ConnectSignalsSlots(column, view_);
}

BaseViewWidget const* DepthAxisCombinedViewWidget::GetBaseViewWidget() const
{
    return view_;
}

BaseViewWidget* DepthAxisCombinedViewWidget::GetBaseViewWidget()
{
    return view_;
}

void DepthAxisCombinedViewWidget::RenderScales(QPainter& painter, int height, QColor const& color)
{
    scale_->RenderScalesToPainter(painter, height, color);
}

void DepthAxisCombinedViewWidget::RenderDataview(QPainter& painter, Interval const& interval, double dpi,
                                                 double axis_factor, double /*major_start*/,
                                                 double /*major_step*/)
{
    DepthAxisRenderer renderer;
    renderer.RenderToPainter(painter, interval, dpi, axis_factor, Qt::lightGray, true);
}

QSize DepthAxisCombinedViewWidget::sizeHint() const
{
    return view_->sizeHint();
}
