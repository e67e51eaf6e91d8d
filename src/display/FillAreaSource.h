// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/FillAreaDefinition.h"

#include <QPointF>

#include <vector>

/// What a FillArea asks of the view whose fills it paints.
class FillAreaSource
{
public:
    virtual ~FillAreaSource() = default;

    [[nodiscard]] virtual std::vector<FillAreaDefinition> const& GetFillAreaDefinitions() const = 0;
    /// Renders the curve of this channel for an area of `width` x `height` pixels over `interval` (metres);
    /// `points` becomes exactly its polyline. False when no curve of the view shows the channel.
    virtual bool RenderCurvePoints(DataChannelIdentifier const& identifier, int width, int height,
                                   Interval const& interval, std::vector<QPointF>& points) = 0;
    /// The scale of that curve.
    [[nodiscard]] virtual Interval GetCurveScale(DataChannelIdentifier const& identifier) const = 0;
};
