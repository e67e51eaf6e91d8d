// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/DirectionalSurveyItem.h"

#include <iosfwd>

/// One calculated station of the well path. Lengths in metres, dogleg severity in degrees per 30 m whatever
/// the settings say; inclination and azimuth stay in degrees.
struct WellTrajectoryItem
{
    DirectionalSurveyItem survey_item;
    float tvd = 0;
    float ns = 0;
    float ew = 0;
    float dls = 0;
    float vertical_section = 0;

    constexpr WellTrajectoryItem() = default;
    constexpr WellTrajectoryItem(DirectionalSurveyItem const& item, float tvd_metres, float ns_metres,
                                 float ew_metres, float dogleg_severity, float vertical_section_metres)
        : survey_item(item),
          tvd(tvd_metres),
          ns(ns_metres),
          ew(ew_metres),
          dls(dogleg_severity),
          vertical_section(vertical_section_metres)
    {
    }

    [[nodiscard]] constexpr float GetMeasuredDepth() const { return survey_item.measured_depth; }
    /// Degrees.
    [[nodiscard]] constexpr float GetInclination() const { return survey_item.inclination; }
    /// Degrees.
    [[nodiscard]] constexpr float GetAzimuth() const { return survey_item.azimuth; }

    /// By measured depth alone.
    [[nodiscard]] constexpr bool operator<(WellTrajectoryItem const& other) const
    {
        return survey_item < other.survey_item;
    }
};

/// A line for diagnosis only: it scales inclination and azimuth by 180/pi although they are degrees already.
std::ostream& operator<<(std::ostream& stream, WellTrajectoryItem const& item);
