// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/DataChannelIdentifier.h"
#include "well/DirectionalSurveyItem.h"
#include "well/DirectionalSurveyTieInData.h"
#include "well/TrajectoryDeltaValues.h"
#include "well/WellTrajectoryItem.h"

#include <QString>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

class StorageDataChannel;

/// The well's path: the stations with what minimum curvature makes of them, and the tie-in. Built whole and
/// replaced whole. All lengths in metres. Running totals are double, the calculated items float. Formulas:
/// minimum curvature with the ratio factor, as in API Bulletin D20 and Sawaryn & Thorogood (2005). Faulty
/// stations (repeated depths, NaN) give infinities and NaN, never an error.
class DirectionalSurveyData
{
public:
    using TrajectoryVector = std::vector<WellTrajectoryItem>;
    using StationVector = std::vector<DirectionalSurveyItem>;

    DirectionalSurveyData() = default;
    DirectionalSurveyData(StationVector const& stations, DirectionalSurveyTieInData const& tie_in);

    /// Sorts a copy by measured depth (equal depths in any order, NaN last) and appends its trajectory.
    void SetSurveyData(StationVector const& stations);
    /// Appends the trajectory of the stations, which are in ascending depth; fewer than two give none.
    void GenerateWellTrajectory(StationVector const& stations);

    [[nodiscard]] TrajectoryVector const& GetWellTrajectoryData() const { return trajectory_; }
    [[nodiscard]] DirectionalSurveyTieInData GetDirectionalSurveyTieInData() const { return tie_in_; }
    /// The stations, rebuilt from the trajectory.
    [[nodiscard]] StationVector GetDirectionalSurveyVector() const;

    /// Position and direction at a measured depth (metres), both ends included; O(log n). Inclination and
    /// azimuth follow the arc, the position the chord between the stations. The vertical section is not
    /// interpolated (always 0).
    [[nodiscard]] std::optional<WellTrajectoryItem> InterpolateWellTrajectory(float md) const;

    /// One step from station 1 to station 2; angles in radians.
    [[nodiscard]] static TrajectoryDeltaValues CalculateDeltaValues(float md1, float md2, float incl1,
                                                                    float incl2, float azi1, float azi2);
    /// The same for two stations with their angles in degrees.
    [[nodiscard]] static TrajectoryDeltaValues CalculateWellTrajectoryItem(DirectionalSurveyItem const& from,
                                                                           DirectionalSurveyItem const& to);

    /// The pieces of the step; all angles in radians.
    [[nodiscard]] static double CalculateBeta(double incl1, double incl2, double azi1, double azi2);
    [[nodiscard]] static double CalculateRatioFactor(double md1, double md2, double beta);
    [[nodiscard]] static double CalculateDeltaNorth(double incl1, double incl2, double azi1, double azi2,
                                                    double factor);
    [[nodiscard]] static double CalculateDeltaEast(double incl1, double incl2, double azi1, double azi2,
                                                   double factor);
    [[nodiscard]] static double CalculateDeltaTVD(double incl1, double incl2, double factor);
    /// Degrees per 30 m.
    [[nodiscard]] static double CalculateDoglegSeverity(double md1, double md2, double beta);
    [[nodiscard]] static double CalculateVerticalSection(double ns, double ew, double closure_azimuth);
    /// Direction of a point in radians, 0 to 2 pi. A point due east counts as 0 and one due west as 2 pi: the
    /// vertical sections of wells that end with NS 0 rest on this.
    [[nodiscard]] static double CalculateAzimuth(double ns, double ew);

    /// "     MD[top - bottom]unit" and, when both ends lie within the survey, "  /  TVD[top - bottom]unit";
    /// takes metres, shows the settings' unit.
    [[nodiscard]] QString GenerateIntervalDepthString(Interval const& interval) const;

    /// The survey resampled at one-foot steps: (TVD in metres, deviation in degrees). Both are empty without
    /// a trajectory and for one longer than any well (over a million feet).
    [[nodiscard]] std::pair<std::shared_ptr<StorageDataChannel>, std::shared_ptr<StorageDataChannel>>
    GenerateWellSurveyStorageDataChannels(DataChannelIdentifier const& deviation_identifier,
                                          DataChannelIdentifier const& tvd_identifier) const;

private:
    TrajectoryVector trajectory_;
    DirectionalSurveyTieInData tie_in_;
};
