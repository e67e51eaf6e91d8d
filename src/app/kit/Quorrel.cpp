// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/Quorrel.h"

#include "app/kit/SettingsSingleton.h"

#include <QLocale>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <stdexcept>

namespace Quorrel {
namespace {
constexpr float DOGLEG_30_METRES_TO_100_FEET = 1.016F;

/// truncate(count * p), multiplied in single precision.
std::size_t PercentileIndex(std::size_t count, float p)
{
    float const position = static_cast<float>(count) * p;
    // The conversion to an integer is undefined outside these limits (and for NaN).
    bool const convertible = position > -1.0F && position < 0x1p63F;
    std::uint64_t const index =
        convertible ? static_cast<std::uint64_t>(std::fmax(position, 0.0F)) : UINT64_MAX;
    if (index >= count) {
        throw std::out_of_range("Percentile outside of the data range");
    }
    return static_cast<std::size_t>(index);
}
} // namespace

QString FloatTypeToString(float value, int precision, bool scientific)
{
    int const digits = precision < 0 ? static_cast<int>(QLocale::FloatingPointShortest) : precision;
    return SettingsSingleton::Instance().GetLocale().toString(static_cast<double>(value),
                                                              scientific ? 'e' : 'f', digits);
}

float StringToFloatType(QString const& text, bool* ok)
{
    QLocale const locale = SettingsSingleton::Instance().GetLocale();
    return static_cast<float>(locale.toDouble(text, ok));
}

float SettingsDepthToMetricDepth(float depth)
{
    return SettingsSingleton::Instance().IsMetricDepth() ? depth : depth * 0.3048F;
}

float MetricsDepthToSettingsDepth(float depth)
{
    return SettingsSingleton::Instance().IsMetricDepth() ? depth : depth * 3.28084F;
}

float ConvertDoglegSeverityToSettingsUnit(float dogleg_severity)
{
    return SettingsSingleton::Instance().IsMetricDepth() ? dogleg_severity
                                                         : dogleg_severity * DOGLEG_30_METRES_TO_100_FEET;
}

void SetWindowSize(QWidget* widget, float width_fraction, float height_fraction)
{
    float const width = width_fraction * static_cast<float>(available_screen_size_pixels.width());
    float const height = height_fraction * static_cast<float>(available_screen_size_pixels.height());
    widget->resize(static_cast<int>(width), static_cast<int>(height));
}

QString ParseCopiedText(QString const& text)
{
    QString result = text;
    result.replace(QChar(0x202F), QLatin1Char(' '));
    result.replace(QChar(QChar::Nbsp), QLatin1Char(' '));
    return result;
}

std::tuple<float, float, float> GetPercentiles(std::vector<float> const& values, float p1, float p2, float p3)
{
    std::size_t const index3 = PercentileIndex(values.size(), p3);
    std::size_t const index2 = PercentileIndex(values.size(), p2);
    std::size_t const index1 = PercentileIndex(values.size(), p1);

    std::vector<float> copy = values;
    // NaN counts as greatest: with a bare "<" it would break the ordering and with it the algorithm's bounds.
    auto const less = [](float a, float b) { return a < b || (std::isnan(b) && !std::isnan(a)); };
    auto const nth = [&](std::size_t index) {
        auto const position = copy.begin() + static_cast<std::ptrdiff_t>(index);
        std::nth_element(copy.begin(), position, copy.end(), less);
        return *position;
    };
    float const value3 = nth(index3);
    float const value2 = nth(index2);
    float const value1 = nth(index1);
    return {value1, value2, value3};
}
} // namespace Quorrel
