// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "support/RecordingPaintDevice.h"

int RecordingPaintDevice::metric(PaintDeviceMetric metric) const
{
    constexpr int dpi = 96;
    switch (metric) {
    case PdmWidth:
        return width_;
    case PdmHeight:
        return height_;
    case PdmWidthMM:
        return width_ * 254 / (10 * dpi);
    case PdmHeightMM:
        return height_ * 254 / (10 * dpi);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dpi;
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return 0;
    }
}
