// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/QZ4SaveFile.h"

#include "formats/project/ByteBuilder.h"
#include "formats/project/QZ4LoadFile.h"
#include "formats/project/SmallProject.h"
#include "model/DataContainer.h"
#include "support/TestFiles.h"

#include <QDir>

namespace {
using B = ByteBuilder;

/// The first place where two files differ, with what stands around it.
void ExpectSameBytes(QByteArray const& actual, QByteArray const& expected)
{
    qsizetype at = 0;
    while (at < actual.size() && at < expected.size() && actual[at] == expected[at]) {
        ++at;
    }
    EXPECT_TRUE(actual == expected) << "first difference at byte " << at << " of " << expected.size()
                                    << ", behind: "
                                    << expected.mid(std::max<qsizetype>(0, at - 60), 60).toStdString();
}

TEST(QZ4SaveFileTest, WritesEveryRecordOverAnOlderFileAndNothingBeside)
{
    test_files::Folder const folder;
    DataContainer container;
    small_project::Fill(container);
    auto const path = folder.Write("small.qz4", "older");
    project_file::Save(path, container, small_project::Windows(), small_project::SURVEY_KEY);
    ExpectSameBytes(test_files::Read(path), small_project::File());
    EXPECT_EQ(QDir(folder.Path("")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{"small.qz4"})
        << "nothing beside it";
}

TEST(QZ4SaveFileTest, AnEmptyProjectIsItsMainRecord)
{
    test_files::Folder const folder;
    auto const path = folder.Path("empty.qz4");
    project_file::Save(path, DataContainer(), {}, -1);
    B main;
    main.Str("MAIN").Item("PERFORATIONS_DATA", B().I32(0)).Item("ZONE_TRACK_DATA", B().I32(0));
    main.Item("TRAJECTORY_SURVEY_DATA_INCL_TIE_IN", B().I32(0).F64(0).F64(0).F64(0));
    main.Item("WELL_COMPONENTS_DATA", B().I32(0)).Item("DEPTH_MARKER_A_DATA", B().I32(0));
    main.Item("DEPTH_MARKER_B_DATA", B().I32(0)).Item("CURRENT_SURVEY_KEY_DATA", B().I32(-1));
    main.Item("SURVEY_MAP_SIZE_DATA", B().I32(0)).Item("PIPE_STRING_DATA", B().I32(0));
    main.Item("OUTER_CEMENT", B().I32(0)).Item("WELL_NAME", B().Str("")).End();
    ExpectSameBytes(test_files::Read(path), small_project::Header() + main.Bytes());
}

TEST(QZ4SaveFileTest, CutsATextAtWholeCharactersToWhatItsLengthCanTell)
{
    test_files::Folder const folder;
    auto const path = folder.Path("text.qz4");
    {
        QZ4SaveFile file(path);
        file.SaveString(QString(65535, 'a'));
        file.SaveString(QString(65534, 'a') +
                        QString::fromUtf8("\xC3\xB8")); // its two bytes would end at 65,536
        file.SaveInt(42);
        file.Close();
    }
    ExpectSameBytes(test_files::Read(path),
                    small_project::Header() +
                        B().Str(QByteArray(65535, 'a')).Str(QByteArray(65534, 'a')).I32(42).Bytes());
}
} // namespace
