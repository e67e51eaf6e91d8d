// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/OverlayWidget.h"

#include <QChildEvent>
#include <QEvent>

OverlayWidget::OverlayWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_NoSystemBackground);
    setAttribute(Qt::WA_NoMousePropagation);
    NewParent();
}

void OverlayWidget::NewParent()
{
    if (parentWidget() != nullptr) {
        parentWidget()->installEventFilter(this);
        resize(parentWidget()->size());
        raise();
    }
}

bool OverlayWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent()) {
        if (event->type() == QEvent::Resize) {
            resize(parentWidget()->size());
        } else if (event->type() == QEvent::ChildAdded && static_cast<QChildEvent*>(event)->child() != this) {
            raise();
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool OverlayWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ParentAboutToChange && parent() != nullptr) {
        parent()->removeEventFilter(this);
    } else if (event->type() == QEvent::ParentChange) {
        NewParent();
    }
    return QWidget::event(event);
}
