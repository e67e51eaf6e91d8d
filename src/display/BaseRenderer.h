// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

class QPainter;

/// Size of the area a renderer paints.
class BaseRenderer
{
public:
    virtual ~BaseRenderer() = default;

    /// Takes the size from the painter's window.
    void ResetRenderer(QPainter const& painter);
    [[nodiscard]] int GetWidth() const { return width_; }
    [[nodiscard]] int GetHeight() const { return height_; }

    /// As Quorrel::ConvertDepthToYValue.
    [[nodiscard]] static int ConvertDepthToYValue(float depth, int height, Interval const& interval);

protected:
    int width_ = 0;
    int height_ = 0;
};
