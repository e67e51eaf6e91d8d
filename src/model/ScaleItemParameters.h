// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/HeaderRow.h"

#include <QPen>

/// The record of one scale in a header, shared by a curve and by the scale items that show it.
struct ScaleItemParameters {
    HeaderRow header;
    int index = 0;          ///< position of the curve in its view
    Interval scale{0, 1};   ///< value range mapped to the view's width; a reversed range stays reversed
    QPen pen;
    bool is_selected = false;
};
