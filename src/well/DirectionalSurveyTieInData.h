// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

/// Where the first station lies, in metres; north and east count positive.
struct DirectionalSurveyTieInData
{
    double tvd = 0;
    double ns = 0;
    double ew = 0;

    [[nodiscard]] constexpr bool operator==(DirectionalSurveyTieInData const&) const = default;
};
