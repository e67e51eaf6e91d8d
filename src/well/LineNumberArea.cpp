// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/LineNumberArea.h"

#include <utility>

LineNumberArea::LineNumberArea(QWidget* viewer, std::function<void(QPaintEvent*)> paint)
    : QWidget(viewer), paint_(std::move(paint))
{
    setObjectName("LineNumberArea");
}
