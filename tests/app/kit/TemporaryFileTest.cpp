// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/TemporaryFile.h"

#include "support/TestFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
/// All entries of the folder, hidden ones too.
QStringList Entries(test_files::Folder const& folder)
{
    return QDir(folder.Path(QString()))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}
} // namespace

TEST(TemporaryFile, MakesANewFileInAHiddenFolderAndLeavesNothingElse)
{
    test_files::Folder const folder;
    QString const name = QStringLiteral("Brønn 7 – test.qz4");
    {
        TemporaryFile file(folder.Path(name));
        QString const temporary = file.GetFullTemporaryFileName();
        EXPECT_EQ(QFileInfo(temporary).fileName(), name);
        QFileInfo const directory(QFileInfo(temporary).absolutePath());
        EXPECT_EQ(directory.absolutePath(), QDir(folder.Path(QString())).absolutePath());
        EXPECT_TRUE(directory.isHidden());
        folder.Write(temporary, "new");
        EXPECT_FALSE(QFile::exists(folder.Path(name)));
        EXPECT_TRUE(file.MoveTemporaryFileToDestination());
    }
    EXPECT_EQ(Entries(folder), QStringList(name));
    EXPECT_EQ(test_files::Read(folder.Path(name)), "new");
}

TEST(TemporaryFile, ReplacesAnExistingFile)
{
    test_files::Folder const folder;
    QString const path = folder.Write("a.qz4", "old");
    folder.Write("a.qz4.tmp", "left behind by an earlier crash");
    {
        TemporaryFile file(path);
        folder.Write(file.GetFullTemporaryFileName(), "new");
        EXPECT_EQ(test_files::Read(path), "old");
        EXPECT_TRUE(file.MoveTemporaryFileToDestination());
    }
    EXPECT_EQ(Entries(folder), QStringList("a.qz4"));
    EXPECT_EQ(test_files::Read(path), "new");
}

TEST(TemporaryFile, AMissingOrUnfinishedFileLeavesTheOldOne)
{
    test_files::Folder const folder;
    QString const path = folder.Write("a.qz4", "old");
    {
        TemporaryFile file(path);
        EXPECT_FALSE(file.MoveTemporaryFileToDestination()); // the name was never asked for
        (void)file.GetFullTemporaryFileName();
        EXPECT_FALSE(file.MoveTemporaryFileToDestination()); // nothing was written there
    }
    EXPECT_EQ(Entries(folder), QStringList("a.qz4"));
    EXPECT_EQ(test_files::Read(path), "old");
    {
        TemporaryFile file(path);
        folder.Write(file.GetFullTemporaryFileName(), "hal");
    }
    EXPECT_EQ(Entries(folder), QStringList("a.qz4"));
    EXPECT_EQ(test_files::Read(path), "old");
}

TEST(TemporaryFile, NeverReplacesOrMakesAFolder)
{
    test_files::Folder const folder;
    ASSERT_TRUE(QDir().mkdir(folder.Path("a.qz4")));
    ASSERT_TRUE(QDir().mkdir(folder.Path("b.qz4.tmp")));
    QString const path = folder.Write("b.qz4", "old");
    for (char const* name : {"a.qz4", "b.qz4", "missing/a.qz4"}) {
        TemporaryFile file(folder.Path(name));
        folder.Write(file.GetFullTemporaryFileName(), "new");
        EXPECT_FALSE(file.MoveTemporaryFileToDestination()) << name;
    }
    EXPECT_EQ(Entries(folder), (QStringList{"a.qz4", "b.qz4", "b.qz4.tmp"}));
    EXPECT_TRUE(QFileInfo(folder.Path("a.qz4")).isDir());
    EXPECT_EQ(test_files::Read(path), "old");
}

TEST(TemporaryFile, UsesTheSystemsFolderWhereItCannotWrite)
{
    test_files::Folder const folder;
    QString temporary;
    {
        // Nobody, not even root, makes folders in /proc; and it is another volume, so the rename must fail.
        TemporaryFile file(QStringLiteral("/proc/a.qz4"));
        temporary = file.GetFullTemporaryFileName();
        EXPECT_TRUE(temporary.startsWith(QDir::tempPath())) << temporary.toStdString();
        folder.Write(temporary, "new");
        EXPECT_FALSE(file.MoveTemporaryFileToDestination());
        EXPECT_TRUE(QFile::exists(temporary));
    }
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(temporary).absolutePath()));
}
