// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The running build, as the title, the update check and its tip name it, and where its successors are found.
class BuildDate
{
public:
    /// The date of compilation: "02-Mar-2026".
    [[nodiscard]] static QString GetDate();
    /// The file of this build on the publisher's server: "Quorrel_02-Mar-2026.zip".
    [[nodiscard]] static QString GetVersionFileName();
    /// The publisher's web domain.
    [[nodiscard]] static QString GetSiteName();
    /// Rewrites a date of the compiler ("Mar  2 2026").
    [[nodiscard]] static QString FromCompilerDate(QString const& date);
};
