// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QString>

/// How wrong input is marked in line edits and table cells.
namespace Quorrel {
/// Ground of a wrong cell; its text is black then, whatever the palette.
inline constexpr QColor INVALID_INPUT_COLOR(0xff, 0xb0, 0xb0);
inline QString const VALID_INPUT_STYLE = QStringLiteral("QLineEdit { background: ;}");
/// Dark text on light red, whatever the palette.
inline QString const INVALID_INPUT_STYLE = QStringLiteral("QLineEdit { background: #ffb0b0; color: black;}");
} // namespace Quorrel
