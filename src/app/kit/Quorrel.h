// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Globals.h"
#include "app/kit/ScalarTypes.h"

#include <QString>

#include <tuple>
#include <vector>

class QWidget;

/// Numbers and depths as text, in the number format and depth unit that SettingsSingleton holds at the
/// moment of the call. All but SetWindowSize may be called from worker threads.
namespace Quorrel {
/// Text of `value` in the locale of the settings, in format 'f', or 'e' when `scientific`.
/// A negative precision gives the shortest text that reads back to the same (double) number.
[[nodiscard]] QString FloatTypeToString(float value, int precision, bool scientific = false);

/// Reads `text` in the locale of the settings; `ok`, where given, as in QLocale::toDouble. Never throws.
[[nodiscard]] float StringToFloatType(QString const& text, bool* ok = nullptr);

/// Settings' unit to metres: times 0.3048 in single precision, unchanged when the unit is metric.
[[nodiscard]] float SettingsDepthToMetricDepth(float depth);
/// Metres to the settings' unit: times 3.28084 in single precision, unchanged when the unit is metric.
[[nodiscard]] float MetricsDepthToSettingsDepth(float depth);
/// Degrees per 30 m to degrees per 100 ft (times 1.016) unless the unit is metric.
[[nodiscard]] float ConvertDoglegSeverityToSettingsUnit(float dogleg_severity);

/// Resizes `widget` to fractions of available_screen_size_pixels, each product truncated.
void SetWindowSize(QWidget* widget, float width_fraction, float height_fraction);

/// A copy with every U+202F and U+00A0 (no-break spaces of spreadsheets and of our own copies) made a blank.
[[nodiscard]] QString ParseCopiedText(QString const& text);

/// The three values at index truncate(n * p) of the ascending order, without interpolation.
/// @throws std::out_of_range for an index beyond the last value (p = 1, or no values); p3 is checked first.
[[nodiscard]] std::tuple<float, float, float> GetPercentiles(std::vector<float> const& values, float p1,
                                                             float p2, float p3);

/// Factors for whole depth vectors: single-precision constants carried in double, deliberately not
/// exact inverses of each other.
inline constexpr double FEET_TO_METRES = static_cast<double>(0.3048F);
inline constexpr double METRES_TO_FEET = static_cast<double>(3.28084F);
} // namespace Quorrel
