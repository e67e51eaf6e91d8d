// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/LogPassIdentifier.h"

/// The one way in which views, project files and commands refer to a channel. For a channel of a log the
/// index is its position in the curve list; for a storage channel the hash is DATA_STORAGE_NAME_IDENTIFIER
/// and the index its storage key. As a pattern in IsDependentOn, -1 and "" stand for any.
struct DataChannelIdentifier
{
    LogPassIdentifier log_pass;
    int index = -1;

    DataChannelIdentifier() = default;
    DataChannelIdentifier(KeyType survey_key, QString const& hash, int channel_index)
        : log_pass(survey_key, hash), index(channel_index)
    {
    }
    DataChannelIdentifier(LogPassIdentifier const& log, int channel_index)
        : log_pass(log), index(channel_index)
    {
    }

    [[nodiscard]] LogPassIdentifier const& GetLogPassIdentifier() const { return log_pass; }
    [[nodiscard]] KeyType GetSurveyKey() const { return log_pass.survey_key; }
    [[nodiscard]] QString const& GetHash() const { return log_pass.hash; }
    [[nodiscard]] int GetIndex() const { return index; }

    /// True when each field of `pattern` equals this one's or is a wildcard (-1, "").
    [[nodiscard]] bool IsDependentOn(DataChannelIdentifier const& pattern) const;

    [[nodiscard]] bool operator==(DataChannelIdentifier const&) const = default;
};

Q_DECLARE_METATYPE(DataChannelIdentifier)
