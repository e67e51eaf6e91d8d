// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/FillAreaDefinition.h"

#include <array>
#include <stdexcept>
#include <string>

namespace {
struct MethodTexts
{
    char const* text;
    char const* icon;
};

constexpr std::array<MethodTexts, FILL_AREA_METHOD_COUNT> METHODS{{
    {"A right of B", ":/Icons/AreaFill/A_right_of_B.svg"},
    {"A left of B", ":/Icons/AreaFill/A_left_of_B.svg"},
    {"Between A and B", ":/Icons/AreaFill/Always_between_A_and_B.svg"},
    {"A right of value", ":/Icons/AreaFill/A_right_of_Value.svg"},
    {"A left of value", ":/Icons/AreaFill/A_left_of_Value.svg"},
    {"Between A and value", ":/Icons/AreaFill/Always_between_A_and_Value.svg"},
}};

MethodTexts const& Find(FILL_AREA_METHODS method, char const* function)
{
    int const number = static_cast<int>(method);
    if (number < 0 || number >= FILL_AREA_METHOD_COUNT) {
        throw std::invalid_argument(std::string(function) + "Unknown method: " + std::to_string(number));
    }
    return METHODS[static_cast<std::size_t>(number)];
}
} // namespace

namespace Quorrel {
QString FillAreaMethodText(FILL_AREA_METHODS method)
{
    return QString::fromLatin1(Find(method, "QString Quorrel::FillAreaMethodText(FILL_AREA_METHODS)").text);
}

QString FillAreaMethodIconPath(FILL_AREA_METHODS method)
{
    return QString::fromLatin1(
        Find(method, "QString Quorrel::FillAreaMethodIconPath(FILL_AREA_METHODS)").icon);
}
} // namespace Quorrel
