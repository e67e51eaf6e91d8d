// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "support/TestFiles.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace test_files {
QString Folder::Path(QString const& name) const
{
    return QDir(directory_.path()).filePath(name);
}

QString Folder::Write(QString const& name, QByteArray const& content) const
{
    QString path = Path(name);
    QFile file(path);
    bool const written = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    EXPECT_TRUE(written) << "cannot write " << path.toStdString();
    return path;
}

QByteArray Read(QString const& path)
{
    QFile file(path);
    bool const opened = file.open(QIODevice::ReadOnly);
    EXPECT_TRUE(opened) << "cannot read " << path.toStdString();
    return file.readAll();
}

QString DataPath(QString const& name)
{
    return QStringLiteral(QUORREL_TEST_DATA "/") + name;
}

QString SamplesFolder()
{
    QString const folder = qEnvironmentVariable("QUORREL_SAMPLES", QStringLiteral(QUORREL_DEFAULT_SAMPLES));
    return !folder.isEmpty() && QDir(folder).exists() ? QDir(folder).absolutePath() : QString();
}

QStringList SampleFiles(QString const& sub_folder, QStringList const& patterns)
{
    QStringList files;
    if (QString const samples = SamplesFolder(); !samples.isEmpty()) {
        QDirIterator iterator(samples + QLatin1Char('/') + sub_folder, patterns, QDir::Files,
                              QDirIterator::Subdirectories);
        while (iterator.hasNext()) {
            files.append(iterator.next());
        }
    }
    files.sort();
    return files;
}
} // namespace test_files
