// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthAxis.h"

#include "app/kit/Globals.h"
#include "display/BaseViewWidgetParameters.h"
#include "display/ColumnContext.h"
#include "display/DepthAxisRenderer.h"

#include <QPaintEvent>
#include <QPainter>

DepthAxis::DepthAxis(QWidget* parent, QString const& name, ColumnContext const& context)
    : BaseViewWidget(parent, name, context.parameters, *context.directional_survey)
{
    setObjectName(OBJECT_NAME_);
}

QString DepthAxis::GetDescription() const
{
    return QStringLiteral("Depth axis");
}

StatusMessage DepthAxis::GetStatusMessage(int /*x*/, int y) const
{
    return {ConvertYValueToDepth_metric(y), {}};
}

QSize DepthAxis::sizeHint() const
{
    return {static_cast<int>(Quorrel::DPI_Y * 0.4), 50};
}

void DepthAxis::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    DrawCachedPixmap(painter, event->region(), [this](QPainter& pixmap_painter) {
        DepthAxisRenderer renderer;
        renderer.RenderToPainter(pixmap_painter, parameters_->GetViewDepthMetric(), Quorrel::DPI_Y, 1.0,
                                 Qt::lightGray, true);
    });
    RenderMouseCursor(painter);
}
