// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Style sheets of line edits by what was typed into them.
namespace Quorrel {
inline QString const VALID_INPUT_STYLE = QStringLiteral("QLineEdit { background: ;}");
/// Dark text on light red, whatever the palette.
inline QString const INVALID_INPUT_STYLE = QStringLiteral("QLineEdit { background: #ffb0b0; color: black;}");
} // namespace Quorrel
