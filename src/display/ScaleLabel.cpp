// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ScaleLabel.h"

#include <QMouseEvent>
#include <QPainter>

void ScaleLabel::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void ScaleLabel::mouseMoveEvent(QMouseEvent* event)
{
    emit MoveViewWidget_Signal(event->globalPosition());
}

void ScaleLabel::mouseReleaseEvent(QMouseEvent* event)
{
    emit MoveButtonReleased_Signal(static_cast<int>(event->globalPosition().y()));
}

void ScaleLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), static_cast<int>(alignment()),
                     fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}
