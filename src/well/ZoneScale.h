// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseScaleView.h"
#include "well/ZoneScaleItem.h"

/// The header of the zone view: its name and the headings of its columns.
class ZoneScale final : public BaseScaleView
{
    Q_OBJECT
public:
    ZoneScale(QWidget* parent, ZoneScaleItem::Headings headings);
};
