// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/QZ4LoadFile.h"

#include "formats/project/ByteBuilder.h"
#include "formats/project/SmallProject.h"
#include "model/DataContainer.h"
#include "support/TestFiles.h"

namespace {
using B = ByteBuilder;

/// Loads the bytes as a project; what the exception says, empty when it loads.
std::string LoadError(QByteArray const& bytes)
{
    static test_files::Folder const folder;
    DataContainer container;
    try {
        (void)project_file::Load(folder.Write("p.qz4", bytes), container);
    } catch (std::invalid_argument const& error) {
        return std::string("invalid: ") + error.what();
    } catch (std::exception const& error) {
        return error.what();
    }
    return {};
}

QString PathOf(test_files::Folder const& folder, QByteArray const& bytes)
{
    return folder.Write("p.qz4", small_project::Header() + bytes);
}

/// The items of a main record, loaded.
struct LoadedMain
{
    explicit LoadedMain(B const& items)
    {
        test_files::Folder const folder;
        QZ4LoadFile file(PathOf(folder, B().Str("MAIN").Raw(items).End().Bytes()));
        record = file.LoadMain(container);
    }

    DataContainer container;
    QZ4LoadFile::MainRecord record;
};

TEST(QZ4LoadFileTest, TellsWhatNoProjectHolds)
{
    auto const header = [](int version, int further) {
        return B().Raw("FILEFORMAT_MAGIC_WORD").I32(version).I32(further);
    };
    auto const main = [&](B const& items) { return header(3, 0).Str("MAIN").Raw(items); };
    std::string const premature =
        std::ios_base::failure("Reached premature end-of-file").what(); // with the code's own words
    EXPECT_NE(premature.find("Reached premature end-of-file"), std::string::npos);
    std::pair<B, std::string> const cases[] = {
        {B().Raw("FILEFORMAT"), premature}, // before it can be seen to be another format
        {B().Raw("FILEFORMAT_OTHER_WORD").I32(3).I32(0), "invalid: File format outdated"},
        {header(2, 0),
         "invalid: Unsupported QZ4 version. File version is: 2. Currently supported version is: 3"},
        {header(3, -1), "invalid: Invalid .qz4 file. Negative size of the file header: -1"},
        {header(3, 100), premature},
        {header(3, 0).Str("MAIM"), "invalid: bool QZ4LoadFile::LoadMagicWord(const std::string&): Invalid "
                                   ".qz4 file. Expected magic word: "
                                   "MAIN. Actual magic word: MAIM"},
        {main(B().Item("DEPTH_MARKER_A_DATA", B().I32(-1)).End()),
         "invalid: Invalid .qz4 file. Negative count: -1"},
        {main(B().Item("DEPTH_MARKER_A_DATA", B().I32(0x7FFFFFFF)).End()), premature},
        {main(B().U8(2)), "invalid: Invalid .qz4 file. Expected 0 or 1 before an item, found: 2"},
        {main(B().U8(1).I32(5).Str("UNKNOWN").End()), // ends within its own tag
         "invalid: Invalid .qz4 file. Item \"UNKNOWN\" ends before its content"},
        {main(B().U8(1).I32(-100).Str("UNKNOWN").End()),
         "invalid: Invalid .qz4 file. Item \"UNKNOWN\" ends before its content"},
        {main(B().U8(1).I32(1000).Str("UNKNOWN").End()), premature},
        // further header bytes, and bytes behind the last record
        {header(3, 5)
             .Raw("12345")
             .Raw(small_project::Main())
             .Raw(small_project::Survey())
             .Raw(small_project::Window() + "more"),
         ""},
    };
    for (auto const& [bytes, message] : cases) {
        EXPECT_EQ(LoadError(bytes.Bytes()), message);
    }
}

TEST(QZ4LoadFileTest, ReadsTheOlderTags)
{
    B pipes;
    pipes.I32(2).F64(0).F64(100).F32(9.625F).F32(8.5F).F32(47).U8(0).Str("casing");
    pipes.F64(0).F64(80).F32(4.5F).F32(3.9F).F32(12).U8(1).Str("joint");
    LoadedMain const main(
        B().Item("PRODUCTION_ZONES_DATA", B().I32(1).F64(1).F64(2).Str("z").Color(1, 2, 3))
            .Item("TRAJECTORY_SURVEY_DATA", B().I32(2).F64(0).F32(0).F32(0).F64(50).F32(1).F32(2))
            .Item("PIPES_DATA", pipes)
            .Item("PIPE_STRING_DATA", B().I32(1).F64(60).Str("liner").U8(0).I32(0)));
    auto const& container = main.container;
    EXPECT_EQ(main.record.current_survey_key, -1);
    EXPECT_EQ(main.record.survey_count, 0);
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
    // Sorted, the tubing comes first.
    LoadedMain const main(
        B().Item("PIPE_STRING_DATA",
                 B().I32(2).F64(60).Str("casing").U8(0).I32(0).F64(50).Str("tubing").U8(1).I32(0))
            .Item("OUTER_CEMENT",
                  B().I32(3).U8(1).Str("c").F64(40).F64(20).U8(0).U8(1).Str("nobody's").F64(1).F64(2)));
    for (auto const& string : main.container.GetPipeStringData().GetPipeStringVector()) {
        bool const is_casing = string.GetName() == "casing";
        EXPECT_EQ(string.GetOuterCementData().first, is_casing ? "c" : "");
        EXPECT_TRUE(!is_casing || string.GetOuterCementData().second == Interval(40, 20));
    }
}

TEST(QZ4LoadFileTest, SkipsUnknownItemsInEveryChain)
{
    auto const plain = small_project::File();
    B::later = B().Item("SOMETHING_NEWER", B().I32(-1).Str("from a later version").F64(1)).Bytes();
    auto const grown = small_project::File();
    B::later.clear();
    // main 11, survey 3, counts 3, two logs 6, axes 3, storage 1; column 3, heads of views 18, flags 5,
    // scales 2, user 1, image 2, caliper 3, screens 2
    EXPECT_EQ(grown.count("SOMETHING_NEWER"), 2 * (11 + 3 + 3 + 6 + 3 + 1 + 3 + 18 + 5 + 2 + 1 + 2 + 3 + 2));

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
    InterpretationParameters const usual;
    EXPECT_TRUE(file.LoadSurveyData().interpretation_parameters == usual);
    EXPECT_TRUE(usual.GetVpcf() == 0.83F && usual.GetUseSecondCaliper() && !usual.GetUseFixedId());
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
} // namespace
