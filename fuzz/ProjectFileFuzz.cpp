// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/ProjectFile.h"
#include "model/DataContainer.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>

namespace {
QByteArray Read(QString const& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void LoadAndSave(QString const& from, QString const& to)
{
    DataContainer container;
    auto const project = project_file::Load(from, container);
    project_file::Save(to, container, *project.windows, project.current_survey_key);
}
} // namespace

/// A project file. One that loads is saved, and what was saved loads and is saved again the same.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    static QTemporaryDir const folder;
    auto const given = folder.filePath("given.qz4");
    auto const saved = folder.filePath("saved.qz4");
    auto const again = folder.filePath("again.qz4");
    {
        QFile file(given);
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(reinterpret_cast<char const*>(data), static_cast<qint64>(size)) !=
                static_cast<qint64>(size)) {
            std::abort(); // without files there is no test
        }
    }
    try {
        LoadAndSave(given, saved);
    } catch (std::exception const&) {
        return 0;
    }
    LoadAndSave(saved, again);
    if (Read(saved) != Read(again)) {
        std::abort();
    }
    return 0;
}
