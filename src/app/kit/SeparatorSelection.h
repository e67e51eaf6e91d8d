// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// The number formats, with the values stored under the settings key "separator_selection".
enum Separator_Selection : int
{
    US = 0,                      ///< "1,234,567.89"
    International = 1,           ///< "1.234.567,89"
    AlternativeInternational = 2 ///< "1 234 567,89"
};
