// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace Quorrel {
/// Greatest length of a text that a project file can hold, in bytes of UTF-8.
inline constexpr qsizetype MAX_PROJECT_TEXT_BYTES = 65535;

[[nodiscard]] bool FitsProjectFile(QString const& text);

/// Empty when `text` fits into a project file; otherwise a message that begins with `subject` ("The notes
/// are").
[[nodiscard]] QString CheckProjectText(QString const& subject, QString const& text);
/// The same for one of many texts: the message names it by its beginning.
[[nodiscard]] QString CheckProjectText(QString const& text);
} // namespace Quorrel
