// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DirectionalSurveyData.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "model/StorageDataChannel.h"
#include "well/SortOrder.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {
using std::numbers::pi;

/// Above this the resampled survey would only be a matter of memory; it is thirty times the deepest well.
constexpr double MAXIMUM_RESAMPLED_FEET = 1e6;

/// Slack in radians of the range test that gives an interpolated azimuth its sign back.
constexpr double AZIMUTH_TOLERANCE = 1e-9;

/// The division is done in single precision.
double ToRadians(float degrees)
{
    return static_cast<double>(degrees / 180.0F) * pi;
}

float ToRadiansFloat(float degrees)
{
    return static_cast<float>(ToRadians(degrees));
}

/// Sine and cosine of a station's angles, which the formulas share.
struct Tangent
{
    double sin_incl;
    double cos_incl;
    double sin_azi;
    double cos_azi;

    Tangent(double incl, double azi)
        : sin_incl(std::sin(incl)), cos_incl(std::cos(incl)), sin_azi(std::sin(azi)), cos_azi(std::cos(azi))
    {
    }
};

double DeltaNorth(Tangent const& from, Tangent const& to, double factor)
{
    return (from.sin_incl * from.cos_azi + to.sin_incl * to.cos_azi) * factor;
}

double DeltaEast(Tangent const& from, Tangent const& to, double factor)
{
    return (from.sin_incl * from.sin_azi + to.sin_incl * to.sin_azi) * factor;
}

double DeltaTVD(Tangent const& from, Tangent const& to, double factor)
{
    return (from.cos_incl + to.cos_incl) * factor;
}

/// Rounding may carry the argument of an acos just past 1; NaN stays NaN.
double ClampedAcos(double cosine)
{
    return std::acos(std::clamp(cosine, -1.0, 1.0));
}

/// The first item whose measured depth is greater: a binary search between bounds found by doubling steps
/// from where the item would stand if all courses were of equal length. O(log n) on any survey; on usual ones
/// it touches few items far apart, which is what a plain search of a long survey spends its time on. `md` is
/// not above the last depth.
DirectionalSurveyData::TrajectoryVector::const_iterator
FindFirstBelow(DirectionalSurveyData::TrajectoryVector const& trajectory, float md)
{
    auto const is_above = [](float depth, WellTrajectoryItem const& item) {
        return depth < item.GetMeasuredDepth();
    };
    auto const last = static_cast<std::ptrdiff_t>(trajectory.size()) - 1;
    double const first_md = trajectory.front().GetMeasuredDepth();
    double const share = (md - first_md) / (trajectory.back().GetMeasuredDepth() - first_md);
    auto low = share >= 0 && share <= 1 ? static_cast<std::ptrdiff_t>(share * static_cast<double>(last)) : 0;
    auto high = low;
    for (std::ptrdiff_t step = 1; low > 0 && is_above(md, trajectory[low]); step *= 2) {
        high = low;
        low = std::max<std::ptrdiff_t>(low - step, 0);
    }
    for (std::ptrdiff_t step = 1; high < last && !is_above(md, trajectory[high]); step *= 2) {
        low = high;
        high = std::min(high + step, last);
    }
    return std::upper_bound(trajectory.cbegin() + low, trajectory.cbegin() + high + 1, md, is_above);
}

/// Single-precision text of a depth cut to whole units; no "-0".
QString WholeDepthText(float metres)
{
    return Quorrel::FloatTypeToString(std::trunc(Quorrel::MetricsDepthToSettingsDepth(metres)) + 0.0F, 0,
                                      false);
}

QString DepthText(float metres)
{
    return Quorrel::FloatTypeToString(Quorrel::MetricsDepthToSettingsDepth(metres), 0, false);
}
} // namespace

DirectionalSurveyData::DirectionalSurveyData(StationVector const& stations,
                                             DirectionalSurveyTieInData const& tie_in)
    : tie_in_(tie_in)
{
    SetSurveyData(stations);
}

void DirectionalSurveyData::SetSurveyData(StationVector const& stations)
{
    StationVector sorted = stations;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](DirectionalSurveyItem const& a, DirectionalSurveyItem const& b) {
                         return Quorrel::AscendingNanLast(a.measured_depth, b.measured_depth);
                     });
    GenerateWellTrajectory(sorted);
}

void DirectionalSurveyData::GenerateWellTrajectory(StationVector const& stations)
{
    if (stations.size() < 2) {
        return;
    }
    trajectory_.reserve(trajectory_.size() + stations.size());
    double tvd = tie_in_.tvd;
    double ns = tie_in_.ns;
    double ew = tie_in_.ew;
    auto const append = [&](DirectionalSurveyItem const& station, double dls) {
        trajectory_.emplace_back(station, static_cast<float>(tvd), static_cast<float>(ns),
                                 static_cast<float>(ew), static_cast<float>(dls), 0.0F);
    };
    append(stations.front(), 0.0);
    for (std::size_t i = 1; i < stations.size(); ++i) {
        TrajectoryDeltaValues const delta = CalculateWellTrajectoryItem(stations[i - 1], stations[i]);
        tvd += delta.delta_tvd;
        ns += delta.delta_ns;
        ew += delta.delta_ew;
        append(stations[i], delta.dls);
    }

    double const closure_azimuth = CalculateAzimuth(trajectory_.back().ns, trajectory_.back().ew);
    for (WellTrajectoryItem& item : trajectory_) {
        item.vertical_section =
            static_cast<float>(CalculateVerticalSection(item.ns, item.ew, closure_azimuth));
    }
}

DirectionalSurveyData::StationVector DirectionalSurveyData::GetDirectionalSurveyVector() const
{
    StationVector stations;
    stations.reserve(trajectory_.size());
    for (WellTrajectoryItem const& item : trajectory_) {
        stations.push_back(item.survey_item);
    }
    return stations;
}

std::optional<WellTrajectoryItem> DirectionalSurveyData::InterpolateWellTrajectory(float md) const
{
    if (trajectory_.empty() || md < trajectory_.front().GetMeasuredDepth() ||
        md > trajectory_.back().GetMeasuredDepth()) {
        return std::nullopt;
    }
    auto upper = trajectory_.cend() - 1;
    if (md != upper->GetMeasuredDepth()) {
        upper = FindFirstBelow(trajectory_, md);
    }
    if (upper == trajectory_.cend() || upper == trajectory_.cbegin()) {
        return std::nullopt;
    }
    WellTrajectoryItem const& start = *(upper - 1);
    WellTrajectoryItem const& end = *upper;

    double const incl1 = ToRadians(start.GetInclination());
    double const incl2 = ToRadians(end.GetInclination());
    double const azi1 = ToRadians(start.GetAzimuth());
    double const azi2 = ToRadians(end.GetAzimuth());
    double const md1 = start.GetMeasuredDepth();
    double const md2 = end.GetMeasuredDepth();
    Tangent const from(incl1, azi1);
    Tangent const to(incl2, azi2);
    double const beta = CalculateBeta(incl1, incl2, azi1, azi2);
    double const delta_md = md2 - md1;
    double const d = md - md1;
    double const b = beta / delta_md * d;

    // Direction: along the great circle from one station's tangent to the other's.
    double const sin_b = std::sin(b);
    double const cos_b = std::cos(b);
    double const sin_beta = std::sin(beta);
    double const cos_beta = std::cos(beta);
    double inclination = incl1;
    if (beta != 0 && incl1 != incl2) {
        inclination =
            ClampedAcos(from.cos_incl * cos_b + (to.cos_incl - cos_beta * from.cos_incl) / sin_beta * sin_b);
    }
    double azimuth = azi1;
    if (azi1 != azi2) {
        double candidate = 0;
        if (inclination != 0) {
            double const turned = to.sin_incl * to.cos_azi - cos_beta * from.sin_incl * from.cos_azi;
            candidate = ClampedAcos((cos_b * from.sin_incl * from.cos_azi + turned * sin_b / sin_beta) /
                                    std::sin(inclination));
        }
        bool const is_between = candidate >= std::min(azi1, azi2) - AZIMUTH_TOLERANCE &&
                                candidate <= std::max(azi1, azi2) + AZIMUTH_TOLERANCE;
        azimuth = is_between ? candidate : 2 * pi - candidate;
    }

    // Position: along the chord, in proportion to the measured depth.
    double const factor = CalculateRatioFactor(md1, md, beta);
    double const tvd = start.tvd + DeltaTVD(from, to, factor);
    double const ns = start.ns + DeltaNorth(from, to, factor);
    double const ew = start.ew + DeltaEast(from, to, factor);

    return WellTrajectoryItem(DirectionalSurveyItem(md, static_cast<float>(inclination / pi * 180),
                                                    static_cast<float>(azimuth / pi * 180)),
                              static_cast<float>(tvd), static_cast<float>(ns), static_cast<float>(ew),
                              static_cast<float>(CalculateDoglegSeverity(md1, md2, beta)), 0.0F);
}

TrajectoryDeltaValues DirectionalSurveyData::CalculateDeltaValues(float md1, float md2, float incl1,
                                                                  float incl2, float azi1, float azi2)
{
    double const beta = CalculateBeta(incl1, incl2, azi1, azi2);
    double const factor = CalculateRatioFactor(md1, md2, beta);
    Tangent const from(incl1, azi1);
    Tangent const to(incl2, azi2);
    return {.dls = CalculateDoglegSeverity(md1, md2, beta),
            .delta_tvd = DeltaTVD(from, to, factor),
            .delta_ew = DeltaEast(from, to, factor),
            .delta_ns = DeltaNorth(from, to, factor)};
}

TrajectoryDeltaValues DirectionalSurveyData::CalculateWellTrajectoryItem(DirectionalSurveyItem const& from,
                                                                         DirectionalSurveyItem const& to)
{
    return CalculateDeltaValues(from.measured_depth, to.measured_depth, ToRadiansFloat(from.inclination),
                                ToRadiansFloat(to.inclination), ToRadiansFloat(from.azimuth),
                                ToRadiansFloat(to.azimuth));
}

double DirectionalSurveyData::CalculateBeta(double incl1, double incl2, double azi1, double azi2)
{
    double const sin_incl = std::sin((incl2 - incl1) / 2);
    double const sin_azi = std::sin((azi2 - azi1) / 2);
    return 2 * std::asin(
                   std::sqrt(sin_incl * sin_incl + std::sin(incl1) * std::sin(incl2) * (sin_azi * sin_azi)));
}

double DirectionalSurveyData::CalculateRatioFactor(double md1, double md2, double beta)
{
    double const delta_md = md2 - md1;
    return beta == 0 ? delta_md * 0.5 : delta_md * std::tan(beta / 2) / beta;
}

double DirectionalSurveyData::CalculateDeltaNorth(double incl1, double incl2, double azi1, double azi2,
                                                  double factor)
{
    return DeltaNorth(Tangent(incl1, azi1), Tangent(incl2, azi2), factor);
}

double DirectionalSurveyData::CalculateDeltaEast(double incl1, double incl2, double azi1, double azi2,
                                                 double factor)
{
    return DeltaEast(Tangent(incl1, azi1), Tangent(incl2, azi2), factor);
}

double DirectionalSurveyData::CalculateDeltaTVD(double incl1, double incl2, double factor)
{
    return DeltaTVD(Tangent(incl1, 0), Tangent(incl2, 0), factor);
}

double DirectionalSurveyData::CalculateDoglegSeverity(double md1, double md2, double beta)
{
    return beta / pi * 180 * 30 / (md2 - md1);
}

double DirectionalSurveyData::CalculateVerticalSection(double ns, double ew, double closure_azimuth)
{
    return std::sqrt(ns * ns + ew * ew) * std::cos(closure_azimuth - CalculateAzimuth(ns, ew));
}

double DirectionalSurveyData::CalculateAzimuth(double ns, double ew)
{
    if (ns == 0) {
        return ew < 0 ? 2 * pi : 0;
    }
    double const azimuth = std::atan(ew / ns);
    if (ns > 0) {
        return ew < 0 ? azimuth + 2 * pi : azimuth;
    }
    return azimuth + pi;
}

QString DirectionalSurveyData::GenerateIntervalDepthString(Interval const& interval) const
{
    auto const top = static_cast<float>(interval.lower);
    auto const bottom = static_cast<float>(interval.upper);
    QString const unit = SettingsSingleton::Instance().GetDepthUnit();
    QString text = "     MD[" + DepthText(top) + " - " + DepthText(bottom) + "]" + unit;
    std::optional<WellTrajectoryItem> const top_item = InterpolateWellTrajectory(top);
    std::optional<WellTrajectoryItem> const bottom_item = InterpolateWellTrajectory(bottom);
    if (top_item && bottom_item) {
        text += "  /  TVD[" + WholeDepthText(top_item->tvd) + " - " + WholeDepthText(bottom_item->tvd) + "]" +
                unit;
    }
    return text;
}

std::pair<std::shared_ptr<StorageDataChannel>, std::shared_ptr<StorageDataChannel>>
DirectionalSurveyData::GenerateWellSurveyStorageDataChannels(
    DataChannelIdentifier const& deviation_identifier, DataChannelIdentifier const& tvd_identifier) const
{
    constexpr float foot = 0.3048F;
    DepthChannel::DepthVector depths;
    auto const deviation = std::make_shared<BaseDataChannel::SampleVector>();
    auto const tvd = std::make_shared<BaseDataChannel::SampleVector>();
    if (!trajectory_.empty()) {
        double const first = trajectory_.front().GetMeasuredDepth();
        double const last = trajectory_.back().GetMeasuredDepth();
        double const steps = (last - first) / static_cast<double>(foot) + 1.0;
        auto const count = steps <= MAXIMUM_RESAMPLED_FEET ? static_cast<int>(steps) : 0;
        depths.reserve(count);
        deviation->reserve(count);
        tvd->reserve(count);
        for (int i = 0; i < count; ++i) {
            auto const depth = static_cast<float>(first + static_cast<double>(static_cast<float>(i) * foot));
            if (auto const item = InterpolateWellTrajectory(depth)) {
                depths.push_back(item->GetMeasuredDepth());
                deviation->push_back(item->GetInclination());
                tvd->push_back(item->tvd);
            }
        }
    }
    DepthChannel const depth_channel(depths, true);
    auto deviation_channel = std::make_shared<StorageDataChannel>(
        deviation, depth_channel, "Deviation", HeaderRow("DEV", "deg", "", "Deviation survey channel"),
        deviation_identifier);
    auto tvd_channel = std::make_shared<StorageDataChannel>(
        tvd, depth_channel, "TVD", HeaderRow("TVD", "m", "", "TVD channel"), tvd_identifier);
    return {std::move(tvd_channel), std::move(deviation_channel)};
}
