// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/UniqueNames.h"

#include "app/kit/SettingsSingleton.h"

namespace Quorrel {
QString GenerateUniqueName(QString const& name, QSet<QString> const& taken)
{
    QString candidate = name;
    for (int n = 1; taken.contains(candidate); ++n) {
        candidate = name + QStringLiteral("_#") + SettingsSingleton::Instance().GetLocale().toString(n);
    }
    return candidate;
}
} // namespace Quorrel
