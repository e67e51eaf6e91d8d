// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseViewWidgetParameters.h"

#include "app/kit/Globals.h"

#include <cmath>

void BaseViewWidgetParameters::SetTotalDisplayedDepthInterval(Interval const& total)
{
    total_ = total;
    if (!view_.IsValid() || !view_.IsInside(total_)) {
        view_ = total_;
    }
}

void BaseViewWidgetParameters::CheckZoomLevel()
{
    view_.ForceInside(total_);
    float const metres_per_pixel = static_cast<float>(view_.Delta() / visible_height_pixels_);
    if (!std::isfinite(metres_per_pixel)) {
        return;
    }
    // One inch of screen shows at least 5 cm. Until the screen is known there is no limit.
    float const limit = static_cast<float>(0.05 / Quorrel::DPI_Y);
    if (!std::isfinite(limit) || !(limit > metres_per_pixel)) {
        return;
    }
    float const delta = metres_per_pixel > 0 ? static_cast<float>(view_.Delta()) / (metres_per_pixel / limit)
                                             : limit * static_cast<float>(visible_height_pixels_);
    float const centre = static_cast<float>(view_.Center());
    view_ = Interval(static_cast<double>(centre - 0.5F * delta), static_cast<double>(centre + 0.5F * delta));
}
