// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DataChannelIdentifier.h"

#include <QColor>
#include <QString>

/// Which side of what a fill covers. The numbers stand in project files.
enum class FILL_AREA_METHODS : int
{
    A_RIGHT_OF_B = 0,
    A_LEFT_OF_B = 1,
    BETWEEN_A_AND_B = 2,
    A_RIGHT_OF_VALUE = 3,
    A_LEFT_OF_VALUE = 4,
    BETWEEN_A_AND_VALUE = 5,
};

inline constexpr int FILL_AREA_METHOD_COUNT = 6;

/// One area fill of a user view.
struct FillAreaDefinition
{
    QString name;
    DataChannelIdentifier curve_a;
    DataChannelIdentifier curve_b; ///< unused by the value methods
    float value = 0;               ///< the border of the value methods, in the unit of curve A
    FILL_AREA_METHODS method = FILL_AREA_METHODS::BETWEEN_A_AND_B;
    Qt::BrushStyle pattern = Qt::SolidPattern;
    QColor color;

    [[nodiscard]] bool operator==(FillAreaDefinition const&) const = default;
};

namespace Quorrel {
/// Text of a method in the table of fills. @throws std::invalid_argument for a number that is no method
[[nodiscard]] QString FillAreaMethodText(FILL_AREA_METHODS method);
/// Resource path of the method's icon. @throws std::invalid_argument for a number that is no method
[[nodiscard]] QString FillAreaMethodIconPath(FILL_AREA_METHODS method);
} // namespace Quorrel
