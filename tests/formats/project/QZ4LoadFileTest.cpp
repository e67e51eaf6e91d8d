// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/QZ4LoadFile.h"

#include "formats/project/ByteBuilder.h"
#include "formats/project/ProjectFile.h"
#include "formats/project/SmallProject.h"
#include "model/DataContainer.h"
#include "support/TestFiles.h"

#include <QElapsedTimer>

#include <stdexcept>
#include <string>

namespace {
using B = ByteBuilder;

/// Loads the bytes as a project; what the exception says, empty when it loads.
std::string LoadError(QByteArray const& bytes)
{
    static test_files::Folder const folder;
    DataContainer container;
    try {
        (void)project_file::Load(folder.Write("p.qz4", bytes), container);
    } catch (std::exception const& error) {
        return error.what();
    }
    return {};
}

QString PathOf(test_files::Folder const& folder, QByteArray const& bytes)
{
    return folder.Write("p.qz4", small_project::Header() + bytes);
}

B UnknownItem()
{
    return B().Item("SOMETHING_NEWER", B().I32(-1).Str("from a later version").F64(1));
}

TEST(QZ4LoadFileTest, TellsWhatIsWrongWithTheHeader)
{
    EXPECT_EQ(LoadError("FILEFORMAT_OTHER_WORD" + B().I32(3).I32(0).Bytes()), "File format outdated");
    EXPECT_EQ(LoadError("FILEFORMAT_MAGIC_WORD" + B().I32(2).I32(0).Bytes()),
              "Unsupported QZ4 version. File version is: 2. Currently supported version is: 3");
    EXPECT_EQ(
        LoadError("FILEFORMAT_MAGIC_WORD" + B().I32(3).I32(0).Str("MAIM").Bytes()),
        "bool QZ4LoadFile::LoadMagicWord(const std::string&): Invalid .qz4 file. Expected magic word: MAIN. "
        "Actual magic word: MAIM");
    EXPECT_NE(LoadError("FILEFORMAT_MAGIC_WORD" + B().I32(3).I32(-1).Bytes()), "");
    std::string const premature =
        std::ios_base::failure("Reached premature end-of-file").what(); // with the code's own words
    EXPECT_NE(premature.find("Reached premature end-of-file"), std::string::npos);
    EXPECT_EQ(LoadError("FILEFORMAT"), premature); // before it can be seen to be another format
    EXPECT_EQ(LoadError("FILEFORMAT_MAGIC_WORD" + B().I32(3).I32(100).Bytes()), premature);
}

TEST(QZ4LoadFileTest, SkipsFurtherHeaderBytesAndBytesBehindTheLastRecord)
{
    auto const records = small_project::Main() + small_project::Survey() + small_project::Window();
    auto const header = B().Raw("FILEFORMAT_MAGIC_WORD").I32(3).I32(5).Raw("12345").Bytes();
    EXPECT_EQ(LoadError(header + records + "more"), "");
}

TEST(QZ4LoadFileTest, RefusesWhatNoProjectHolds)
{
    auto const main = [](B const& items) {
        return small_project::Header() + B().Str("MAIN").Raw(items).Bytes();
    };
    test_files::Folder const folder;
    auto const expect_invalid = [&](QByteArray const& bytes, char const* what) {
        DataContainer container;
        EXPECT_THROW((void)project_file::Load(folder.Write("p.qz4", bytes), container), std::invalid_argument)
            << what;
    };
    expect_invalid(main(B().Item("DEPTH_MARKER_A_DATA", B().I32(-1)).End()), "negative count");
    expect_invalid(main(B().U8(2)), "chain byte 2");
    expect_invalid(main(B().U8(1).I32(5).Str("UNKNOWN").End()), "item that ends within its own tag");
    expect_invalid(main(B().U8(1).I32(-100).Str("UNKNOWN").End()), "negative item size");
    std::string const premature = std::ios_base::failure("Reached premature end-of-file").what();
    EXPECT_EQ(LoadError(main(B().Item("DEPTH_MARKER_A_DATA", B().I32(0x7FFFFFFF)).End())), premature);
    EXPECT_EQ(LoadError(main(B().U8(1).I32(1000).Str("UNKNOWN").End())), premature);
}

TEST(QZ4LoadFileTest, ReadsTheOlderTags)
{
    test_files::Folder const folder;
    B main;
    main.Str("MAIN").Item("PRODUCTION_ZONES_DATA", B().I32(1).F64(1).F64(2).Str("z").Color(1, 2, 3));
    main.Item("TRAJECTORY_SURVEY_DATA", B().I32(2).F64(0).F32(0).F32(0).F64(50).F32(1).F32(2));
    B pipes;
    pipes.I32(2).F64(0).F64(100).F32(9.625F).F32(8.5F).F32(47).U8(0).Str("casing");
    pipes.F64(0).F64(80).F32(4.5F).F32(3.9F).F32(12).U8(1).Str("joint");
    main.Item("PIPES_DATA", pipes);
    main.Item("PIPE_STRING_DATA", B().I32(1).F64(60).Str("liner").U8(0).I32(0)).End();
    DataContainer container;
    QZ4LoadFile file(PathOf(folder, main.Bytes()));
    auto const record = file.LoadMain(container);
    EXPECT_EQ(record.current_survey_key, -1);
    EXPECT_EQ(record.survey_count, 0);
    ASSERT_EQ(container.GetZoneTracks().size(), 1);
    EXPECT_EQ(container.GetZoneTracks()[0].GetName(), "No Name");
    EXPECT_TRUE(container.GetZoneTracks()[0].GetZones() == QList<Zone>{Zone({1, 2}, "z", QColor(1, 2, 3))});
    EXPECT_TRUE(container.GetDirectionalSurveyVector() ==
                (std::vector<DirectionalSurveyItem>{{0, 0, 0}, {50, 1, 2}}));
    EXPECT_TRUE(container.GetDirectionalSurveyTieInData() == DirectionalSurveyTieInData());
    QStringList names;
    for (auto const& string : container.GetPipeStringData().GetPipeStringVector()) {
        names << string.GetName() + " " + QString::number(string.GetSetDepth_metric());
    }
    names.sort();
    EXPECT_EQ(names, (QStringList{"Tubing 80", "casing 100", "liner 60"}));
}

TEST(QZ4LoadFileTest, CementBelongsToTheStringsInTheOrderOfTheFile)
{
    test_files::Folder const folder;
    B main;
    // Sorted, the tubing comes first.
    main.Str("MAIN").Item("PIPE_STRING_DATA",
                          B().I32(2).F64(60).Str("casing").U8(0).I32(0).F64(50).Str("tubing").U8(1).I32(0));
    main.Item("OUTER_CEMENT",
              B().I32(3).U8(1).Str("c").F64(40).F64(20).U8(0).U8(1).Str("nobody's").F64(1).F64(2));
    main.End();
    DataContainer container;
    QZ4LoadFile file(PathOf(folder, main.Bytes()));
    (void)file.LoadMain(container);
    for (auto const& string : container.GetPipeStringData().GetPipeStringVector()) {
        EXPECT_EQ(string.ContainsOuterCementData(), string.GetName() == "casing");
        if (string.ContainsOuterCementData()) {
            EXPECT_EQ(string.GetOuterCementData().first, "c");
            EXPECT_EQ(string.GetOuterCementData().second.lower, 40);
            EXPECT_EQ(string.GetOuterCementData().second.upper, 20);
        }
    }
}

TEST(QZ4LoadFileTest, SkipsUnknownItemsInEveryChain)
{
    // An unknown item and further bytes at the end of each known item: of each item of the file, found by its
    // tag and its size.
    auto const plain = small_project::File();
    QByteArray grown = small_project::Header();
    int items = 0;
    auto const extra = UnknownItem().Bytes();
    for (qsizetype i = grown.size(); i < plain.size();) {
        int size = 0;
        int tag_length = 0;
        bool is_item = false;
        if (plain[i] == 1 && i + 9 < plain.size()) {
            std::memcpy(&size, plain.constData() + i + 1, 4);
            tag_length =
                static_cast<unsigned char>(plain[i + 5]) + 256 * static_cast<unsigned char>(plain[i + 6]);
            auto const tag = plain.mid(i + 7, tag_length);
            is_item = tag_length > 8 && size >= 6 + tag_length && i + 1 + size <= plain.size() &&
                      std::all_of(tag.begin(), tag.end(), [](char c) {
                          return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
                      });
        }
        if (!is_item) {
            grown += plain[i++];
            continue;
        }
        ++items;
        auto const payload = plain.mid(i + 7 + tag_length, size - 6 - tag_length);
        grown +=
            extra + B().Item(plain.mid(i + 7, tag_length), B().Raw(payload).Raw("later")).Bytes() + extra;
        i += 1 + size;
    }
    // main 11, survey 3, counts 3, two logs 6, axes 3, storage 1; column 3, heads of views 18, flags 5,
    // scales 2, user 1, image 2, caliper 3, screens 2
    ASSERT_EQ(items, 11 + 3 + 3 + 6 + 3 + 1 + 3 + 18 + 5 + 2 + 1 + 2 + 3 + 2);

    test_files::Folder const folder;
    DataContainer container;
    auto const project = project_file::Load(folder.Write("grown.qz4", grown), container);
    auto const again = folder.Path("again.qz4");
    project_file::Save(again, container, *project.windows, project.current_survey_key);
    EXPECT_TRUE(test_files::Read(again) == plain);
}

TEST(QZ4LoadFileTest, MissingItemsLeaveTheirDefaults)
{
    test_files::Folder const folder;
    B bytes;
    bytes.Str("MAIN").End(); // main
    bytes.Str("SURVEYDATA_MAGIC_WORD").End();
    bytes.End().End().End();               // log, samples, depths
    bytes.Str("TIMELOG_MAGIC_WORD").End(); // times
    bytes.End().End();                     // counts
    B window;
    window.Str("COLUMNWINDOW_MAGIC_WORD").Chain("COLUMN_WINDOW_BASIC_DATA", B().I32(2).F64(1).F64(2));
    window.Chain("BASIC_DATAVIEW_DATA", B().Str("VIEW_WIDGET_MF_CALIPER_DATA_VIEW"));
    window.Str("COMBINEDVIEWWIDGET_MAGIC_WORD").End().End().End().End();
    window.End().Str("COMBINEDVIEWWIDGET_MAGIC_WORD").End().End(); // a view without any item
    window.End();                                                  // screens
    QZ4LoadFile file(PathOf(folder, bytes.Raw(window).Bytes()));

    DataContainer container;
    auto const main = file.LoadMain(container);
    EXPECT_EQ(main.current_survey_key, -1);
    EXPECT_EQ(main.survey_count, 0);
    EXPECT_TRUE(file.LoadSurveyData().interpretation_parameters == InterpretationParameters());
    EXPECT_EQ(file.LoadBaseLogPass().properties.identifier.survey_key, -1);
    EXPECT_TRUE(file.LoadGenericLogPass().empty());
    auto const depth = file.LoadBaseDepthChannel();
    EXPECT_TRUE(depth.is_metric && depth.shift == 0 && depth.stretch == 1 && depth.depths.empty());
    EXPECT_TRUE(file.LoadTimeLog().times.empty());
    EXPECT_EQ(file.LoadGenericLogPassMap(), 0U);
    EXPECT_EQ(file.LoadDataStorageMap(), 0U);
    auto const column = file.LoadColumnWindow();
    EXPECT_FALSE(column.override_interval);
    ASSERT_EQ(column.views.size(), 2U);
    auto const caliper = std::dynamic_pointer_cast<MFC_DATAVIEW_STRUCT>(column.views[0]);
    ASSERT_TRUE(caliper);
    EXPECT_EQ(caliper->nominal_inner_diameter, 3.9579999446868896);
    EXPECT_EQ(caliper->nominal_outer_diameter, 4.5);
    EXPECT_EQ(column.views[1]->object_name, "");
    EXPECT_EQ(file.GetRemaining(), 0);
}

TEST(QZ4LoadFileTest, CutAnywhereItEndsPrematurely)
{
    auto const whole = small_project::File();
    std::string const premature = std::ios_base::failure("Reached premature end-of-file").what();
    for (qsizetype length = 0; length < whole.size(); ++length) {
        ASSERT_EQ(LoadError(whole.left(length)), premature) << "cut at " << length;
    }
    EXPECT_EQ(LoadError(whole), "");
}

TEST(QZ4LoadFileTest, ADamagedByteLoadsOrIsReported)
{
    auto const whole = small_project::File();
    QElapsedTimer timer;
    int loaded = 0;
    int refused = 0;
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (int const mask : {0xFF, 0x80, 0x01}) {
            auto damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ mask);
            timer.start();
            ++(LoadError(damaged).empty() ? loaded : refused);
            ASSERT_LT(timer.elapsed(), 5000) << "at " << at;
        }
    }
    EXPECT_GT(loaded, 0);
    EXPECT_GT(refused, 0);
}
} // namespace
