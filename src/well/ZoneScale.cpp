// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ZoneScale.h"

#include <QVBoxLayout>

ZoneScale::ZoneScale(QWidget* parent, ZoneScaleItem::Headings headings) : BaseScaleView(parent)
{
    GetItemsLayout()->addWidget(new ZoneScaleItem(GetItemsArea(), std::move(headings)));
    GetItemsArea()->setMinimumHeight(LINE_HEIGHT);
}
