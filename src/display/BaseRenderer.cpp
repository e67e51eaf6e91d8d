// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseRenderer.h"

#include "display/DepthGeometry.h"

#include <QPainter>

void BaseRenderer::ResetRenderer(QPainter const& painter)
{
    width_ = painter.window().width();
    height_ = painter.window().height();
}

int BaseRenderer::ConvertDepthToYValue(float depth, int height, Interval const& interval)
{
    return Quorrel::ConvertDepthToYValue(depth, height, interval);
}
