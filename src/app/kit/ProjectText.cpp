// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/ProjectText.h"

#include <QCoreApplication>

namespace Quorrel {
bool FitsProjectFile(QString const& text)
{
    // A UTF-16 unit takes at most three bytes.
    return text.size() <= MAX_PROJECT_TEXT_BYTES / 3 || text.toUtf8().size() <= MAX_PROJECT_TEXT_BYTES;
}

QString CheckProjectText(QString const& subject, QString const& text)
{
    if (FitsProjectFile(text)) {
        return {};
    }
    return QCoreApplication::translate("ProjectText",
                                       "%1 too long for a project file: %2 bytes of at most %3. "
                                       "Please shorten the text.")
        .arg(subject)
        .arg(text.toUtf8().size())
        .arg(MAX_PROJECT_TEXT_BYTES);
}

QString CheckProjectText(QString const& text)
{
    return CheckProjectText(
        QCoreApplication::translate("ProjectText", "The text beginning with \"%1...\" is").arg(text.left(40)),
        text);
}
} // namespace Quorrel
