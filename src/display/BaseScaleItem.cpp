// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseScaleItem.h"

#include <QPainter>

BaseScaleItem::BaseScaleItem(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BaseScaleItem::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    DrawScaleItem(painter, palette().color(QPalette::Window));
}
