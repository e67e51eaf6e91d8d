// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/TemporaryFile.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace {
/// A rename within one volume, which replaces an existing file; QFile::rename would silently copy across
/// volumes.
bool Rename(QString const& from, QString const& to)
{
    std::error_code error;
    std::filesystem::rename(QFileInfo(from).filesystemFilePath(), QFileInfo(to).filesystemFilePath(), error);
    return !error;
}
} // namespace

TemporaryFile::TemporaryFile(QString const& destination)
    : destination_(destination), directory_(MakeDirectory(destination))
{
}

QTemporaryDir TemporaryFile::MakeDirectory(QString const& destination)
{
    QFileInfo const info(destination);
    // The template's run of X is the part that is replaced, so the destination's own name stays out of it.
    QTemporaryDir beside(info.absolutePath() + QStringLiteral("/.quorrel-XXXXXX"));
    if (beside.isValid()) {
        return beside;
    }
    return QTemporaryDir();
}

QString TemporaryFile::GetFullTemporaryFileName()
{
    if (!directory_.isValid()) {
        return {};
    }
    full_temporary_file_name_ = directory_.filePath(QFileInfo(destination_).fileName());
    return full_temporary_file_name_;
}

QString TemporaryFile::GetSetAsideName(QString const& destination)
{
    return destination + QStringLiteral(".tmp");
}

bool TemporaryFile::MoveTemporaryFileToDestination()
{
    QFileInfo const destination(destination_);
    // An empty name would stand for the working directory; a folder or a device is nothing to replace.
    if (full_temporary_file_name_.isEmpty() || (destination.exists() && !destination.isFile())) {
        return false;
    }
    if (!destination.exists()) {
        return Rename(full_temporary_file_name_, destination_);
    }
    QString const previous = GetSetAsideName(destination_);
    if (!Rename(destination_, previous)) {
        return false;
    }
    if (!Rename(full_temporary_file_name_, destination_)) {
        Rename(previous, destination_);
        return false;
    }
    QFile::remove(previous);
    return true;
}
