// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

#include <cstddef>

namespace Quorrel {
/// Colour of the curve at position `index` of a view: red, green, cyan, magenta, yellow, white, and round
/// again.
[[nodiscard]] QColor CurveCycleColor(std::size_t index);
} // namespace Quorrel
