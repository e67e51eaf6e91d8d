// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/Globals.h"

namespace Quorrel {
QSize available_screen_size_pixels(-1, -1);
double DPI_X = 0;
double DPI_Y = 0;
bool TRACKING_MODE = false;
bool MFC_MODE_SHARED_TRACKS = false;
bool MFC_COLOR_MAP = true;
} // namespace Quorrel
