// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTemporaryDir>

/// Makes the replacement of a file safe: the writer writes to GetFullTemporaryFileName() and, only when that
/// succeeded, calls MoveTemporaryFileToDestination(). Errors are reported by the return values alone.
/// The private directory is hidden and stands beside the destination (so that the move is a plain rename
/// on one volume), or in the system's temporary folder where that cannot be written; it removes itself and
/// what is left in it.
class TemporaryFile
{
public:
    explicit TemporaryFile(QString const& destination);

    /// Path inside the private directory with the destination's file name; empty when there is no directory.
    [[nodiscard]] QString GetFullTemporaryFileName();

    /// Where an existing destination is kept until its replacement stands: the name + ".tmp".
    [[nodiscard]] static QString GetSetAsideName(QString const& destination);

    /// Renames the temporary file to the destination; an existing destination is set aside until that has
    /// succeeded, and is put back when it has not. True on success.
    [[nodiscard]] bool MoveTemporaryFileToDestination();

private:
    static QTemporaryDir MakeDirectory(QString const& destination);

    QString full_temporary_file_name_;
    QString destination_;
    QTemporaryDir directory_;
};
