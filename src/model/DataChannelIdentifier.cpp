// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DataChannelIdentifier.h"

bool DataChannelIdentifier::IsDependentOn(DataChannelIdentifier const& pattern) const
{
    return (pattern.GetSurveyKey() == -1 || pattern.GetSurveyKey() == GetSurveyKey()) &&
           (pattern.GetHash().isEmpty() || pattern.GetHash() == GetHash()) &&
           (pattern.GetIndex() == -1 || pattern.GetIndex() == GetIndex());
}
