// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/CurveColors.h"

#include <array>

namespace Quorrel {
QColor CurveCycleColor(std::size_t index)
{
    static constexpr std::array colors{Qt::red, Qt::green, Qt::cyan, Qt::magenta, Qt::yellow, Qt::white};
    return colors[index % colors.size()];
}
} // namespace Quorrel
