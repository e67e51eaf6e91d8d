// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ZoneCombinedViewWidget.h"

#include "display/ColumnContext.h"
#include "well/ZoneScale.h"
#include "well/ZoneView.h"

#include <QPainter>

ZoneCombinedViewWidget::ZoneCombinedViewWidget(QString const& name, ColumnContext const& context,
                                               QWidget* parent)
    : BaseCombinedViewWidget(parent),
      view_(new ZoneView(this, name, context.parameters, *context.directional_survey,
                         *context.perforation_zones, *context.zone_tracks, *context.interpretation_zones))
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    policy.setVerticalStretch(1);
    setSizePolicy(policy);
    view_->setSizePolicy(policy);
    auto* scale = new ZoneScale(this, [view = view_] { return view->GetHeadings(); });
    scale->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    SetPair(scale, view_);
    connect(view_, &ZoneView::ZoneClicked_Signal, this, &ZoneCombinedViewWidget::ZoneClicked_Signal);
}

BaseViewWidget const* ZoneCombinedViewWidget::GetBaseViewWidget() const
{
    return view_;
}

BaseViewWidget* ZoneCombinedViewWidget::GetBaseViewWidget()
{
    return view_;
}

void ZoneCombinedViewWidget::RenderScales(QPainter& painter, int height, QColor const& color)
{
    GetBaseScaleView()->RenderScalesToPainter(painter, height, color);
}

void ZoneCombinedViewWidget::RenderDataview(QPainter& painter, Interval const& interval, double /*dpi*/,
                                            double /*axis_factor*/, double /*major_start*/,
                                            double /*major_step*/)
{
    view_->RenderToPainter(painter, interval, painter.window().width());
    // The areas just made are the paper's; the screen needs its own.
    view_->ForceRedraw();
}

QSize ZoneCombinedViewWidget::sizeHint() const
{
    return view_->sizeHint();
}
