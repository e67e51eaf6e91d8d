// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// What one step between two stations adds: the dogleg severity in degrees per 30 m and three lengths in
/// metres.
struct TrajectoryDeltaValues
{
    double dls = 0;
    double delta_tvd = 0;
    double delta_ew = 0;
    double delta_ns = 0;
};
