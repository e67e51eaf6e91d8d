// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <QString>

/// A row of the flat pipe table that older projects keep. OD and ID in inches, depth in metres.
struct Pipe
{
    bool is_tubing = false;
    float od = 0;
    float id = 0;
    float weight = 0;
    QString name;
    Interval depth;

    Pipe() = default;
    Pipe(Interval const& depth_metres, float od_inches, float id_inches, float entered_weight, bool tubing,
         QString const& pipe_name)
        : is_tubing(tubing),
          od(od_inches),
          id(id_inches),
          weight(entered_weight),
          name(pipe_name),
          depth(depth_metres)
    {
    }

    [[nodiscard]] bool operator<(Pipe const& other) const { return depth < other.depth; }
    /// The depth takes no part.
    [[nodiscard]] bool operator==(Pipe const& other) const
    {
        return od == other.od && id == other.id && weight == other.weight && name == other.name &&
               is_tubing == other.is_tubing;
    }
};
