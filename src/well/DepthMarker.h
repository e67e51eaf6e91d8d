// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A named depth in metres, drawn across the data views.
struct DepthMarker
{
    float depth = 0;
    QString text;

    DepthMarker() = default;
    DepthMarker(float depth_metres, QString const& marker_text) : depth(depth_metres), text(marker_text) {}

    [[nodiscard]] bool operator==(DepthMarker const&) const = default;
};
