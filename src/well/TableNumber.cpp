// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/TableNumber.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"

#include <QRegularExpression>

#include <cmath>

namespace TableNumber {
QString Pattern()
{
    auto const& settings = SettingsSingleton::Instance();
    QString const thousands = QRegularExpression::escape(QString(settings.GetThousandsSeparator()));
    QString const decimal = QRegularExpression::escape(QString(settings.GetDecimalSeparator()));
    // Possessive throughout: no part gives characters back, so that junk fails in linear time.
    return " *+[-+]?+(?:[0-9][0-9" + thousands + "]*+(?:" + decimal + "[0-9]*+)?+|" + decimal +
           "[0-9]++)(?:[eE][-+]?+[0-9]++)?+ *+";
}

std::optional<float> Parse(QString const& text)
{
    bool ok = false;
    float const number = Quorrel::StringToFloatType(Quorrel::ParseCopiedText(text).trimmed(), &ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<float> ParseDepth(QString const& text)
{
    auto const depth = Parse(text);
    return depth ? std::optional(Quorrel::SettingsDepthToMetricDepth(*depth)) : std::nullopt;
}

QString DepthText(double metres, int decimals)
{
    float depth = Quorrel::MetricsDepthToSettingsDepth(static_cast<float>(metres));
    if (std::fabs(depth) < 0.5 * std::pow(10, -decimals)) {
        depth = 0; // no "-0.00" for what rounding left of a sum of lengths
    }
    return Quorrel::FloatTypeToString(depth, decimals, false);
}

QString FormatError(QString const& text)
{
    return QStringLiteral("Error in number format: Unable to convert to number. Number-text: %1 ")
        .arg(Shorten(text));
}

QString Shorten(QString const& text)
{
    constexpr int longest = 80;
    return text.size() > longest ? text.left(longest) + "..." : text;
}
} // namespace TableNumber
