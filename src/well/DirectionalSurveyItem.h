// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// One station of the directional survey: measured depth in metres, inclination and azimuth in degrees.
struct DirectionalSurveyItem
{
    float measured_depth = 0;
    float inclination = 0;
    float azimuth = 0;

    constexpr DirectionalSurveyItem() = default;
    constexpr DirectionalSurveyItem(float measured_depth_metres, float inclination_degrees,
                                    float azimuth_degrees)
        : measured_depth(measured_depth_metres), inclination(inclination_degrees), azimuth(azimuth_degrees)
    {
    }

    /// By measured depth alone.
    [[nodiscard]] constexpr bool operator<(DirectionalSurveyItem const& other) const
    {
        return measured_depth < other.measured_depth;
    }
    [[nodiscard]] constexpr bool operator==(DirectionalSurveyItem const&) const = default;
};
