// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "well/WellComponentType.h"

/// A point item of the well: packer, plug, perforation and so on. Depth in metres, not necessarily in order.
struct WellComponent
{
    Interval depth;
    WellComponentType type = WellComponentType::Undefined;
    QString description;

    WellComponent() = default;
    WellComponent(Interval const& depth_metres, QString const& text, WellComponentType component_type)
        : depth(depth_metres), type(component_type), description(text)
    {
    }

    [[nodiscard]] bool operator<(WellComponent const& other) const { return depth < other.depth; }
    [[nodiscard]] bool operator==(WellComponent const&) const = default;
};
