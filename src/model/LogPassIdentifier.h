// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/ScalarTypes.h"

#include <QMetaType>
#include <QString>

/// The key of a log: its survey and the MD5 hash of its file path in lower-case hexadecimal.
struct LogPassIdentifier
{
    KeyType survey_key = -1;
    QString hash;

    LogPassIdentifier() = default;
    LogPassIdentifier(KeyType survey, QString const& log_pass_hash) : survey_key(survey), hash(log_pass_hash)
    {
    }

    [[nodiscard]] bool operator==(LogPassIdentifier const&) const = default;
};

Q_DECLARE_METATYPE(LogPassIdentifier)
