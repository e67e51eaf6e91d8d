// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthAxisScale.h"

#include "display/DepthUnitLabel.h"

#include <QPainter>
#include <QVBoxLayout>

DepthAxisScale::DepthAxisScale(QWidget* parent)
    : BaseScaleView(parent), unit_label_(new DepthUnitLabel(GetItemsArea()))
{
    GetItemsLayout()->addWidget(unit_label_);
    connect(this, &DepthAxisScale::DepthUnitChanged_Signal, unit_label_, qOverload<>(&QWidget::update));
}

void DepthAxisScale::SetScale(std::vector<std::shared_ptr<ScaleItemParameters>> /*scales*/) {}

void DepthAxisScale::OnSelected(ScaleItem* /*item*/) {}

void DepthAxisScale::RenderScalesToPainter(QPainter& painter, int height, QColor const& color)
{
    BaseScaleView::RenderScalesToPainter(painter, height, color);
    painter.save();
    QRect const window = painter.window();
    painter.setPen(color);
    painter.drawText(window.adjusted(0, height, 0, 0), Qt::AlignCenter, DepthUnitLabel::UnitText());
    painter.drawLine(window.left(), window.bottom(), window.right(), window.bottom());
    painter.restore();
}
