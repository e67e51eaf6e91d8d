// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>

/// Process-wide display state. Written on the main thread only, by the main frame.
namespace Quorrel {
/// Available size of the screen under the frame, in pixels; (-1, -1) until the frame's first resize.
extern QSize available_screen_size_pixels;
/// Logical dots per inch of that screen; 0 until the frame's first resize.
extern double DPI_X;
extern double DPI_Y;
/// The curve tracker follows the mouse in all views.
extern bool TRACKING_MODE;
/// Caliper tracks share the view area.
extern bool MFC_MODE_SHARED_TRACKS;
/// Caliper data draw as a colour map.
extern bool MFC_COLOR_MAP;
} // namespace Quorrel
