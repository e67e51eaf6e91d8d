// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/MyAbstractScrollArea.h"

#include <QScrollBar>
#include <QWheelEvent>

MyAbstractScrollArea::MyAbstractScrollArea(QWidget* parent) : QAbstractScrollArea(parent)
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // What lies in the viewport inherits this role; its own is the ground of text fields.
    viewport()->setBackgroundRole(QPalette::Window);
    verticalScrollBar()->setPageStep(50);
    verticalScrollBar()->setSingleStep(30);
}

void MyAbstractScrollArea::showEvent(QShowEvent* event)
{
    QAbstractScrollArea::showEvent(event);
    emit OnShowEvent_Signal();
}

void MyAbstractScrollArea::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        emit OnScrollZoomEvent_Signal(event);
        event->accept();
    } else {
        QAbstractScrollArea::wheelEvent(event);
    }
}

void MyAbstractScrollArea::scrollContentsBy(int dx, int dy)
{
    emit OnscrollContentsBy_Signal(dx, dy);
}
