// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/DataChannelIdentifier.h"
#include "model/HeaderRow.h"

/// What a project file says of a storage channel besides its depths and samples.
struct DATA_STORAGE_CHANNEL_Struct
{
    QString name;
    HeaderRow curve_info;
    DataChannelIdentifier identifier;
};
