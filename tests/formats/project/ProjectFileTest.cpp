// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/ProjectFile.h"

#include "formats/project/ByteBuilder.h"
#include "formats/project/SmallProject.h"
#include "model/DataContainer.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFile>

namespace {
#ifdef Q_OS_LINUX
/// Size of an object of these members in this order; its virtual functions count as one pointer, its base as
/// a member.
template <typename... Members>
constexpr std::size_t SizeOf()
{
    std::size_t size = 0;
    std::size_t alignment = 1;
    auto const round_up = [](std::size_t value, std::size_t unit) {
        return (value + unit - 1) / unit * unit;
    };
    ((size = round_up(size, alignof(Members)) + sizeof(Members),
      alignment = std::max(alignment, alignof(Members))),
     ...);
    return round_up(size, alignment);
}

// What a project holds, member by member. One that is new does not compile here: store it, give it a value of
// its own in the small project and in its bytes, and list it.
using Table = void*;
using Texts = QList<QString>;
using Depths = std::vector<double>;
using Shared = std::shared_ptr<void>;
template <typename Object, typename... Members>
constexpr bool Holds = sizeof(Object) == SizeOf<Members...>();
static_assert(Holds<VIEW_WIDGET_STRUCT, Table, QString, bool, QString>);
static_assert(Holds<BASE_DATAVIEW_STRUCT, Table, QString, bool, QString, bool, bool, bool>);
static_assert(Holds<INTERMEDIATE_DATAVIEW_STRUCT, BASE_DATAVIEW_STRUCT, std::vector<Shared>>);
static_assert(Holds<USER_DATAVIEW_STRUCT, INTERMEDIATE_DATAVIEW_STRUCT, std::vector<int>, std::vector<int>>);
static_assert(
    Holds<IMAGE_DATAVIEW_STRUCT, BASE_DATAVIEW_STRUCT, LogPassIdentifier, QString, double, double, QString>);
static_assert(
    Holds<MFC_DATAVIEW_STRUCT, BASE_DATAVIEW_STRUCT, QString, QString, double, double, double, double>);
static_assert(Holds<FillAreaDefinition, QString, DataChannelIdentifier, DataChannelIdentifier, float, int,
                    int, QColor>);
static_assert(Holds<HeaderRow, QString, QString, QString, QString>);
static_assert(Holds<LASHeaderSection, std::vector<HeaderRow>>);
static_assert(Holds<DataChannelIdentifier, LogPassIdentifier, int>);
static_assert(Holds<LogPassIdentifier, int, QString>);
static_assert(Holds<BaseLog, Table, BaseLog::DataMatrix, LASHeaderSection, LASHeaderSection, LASHeaderSection,
                    LASHeaderSection, LASHeaderSection, Texts, Shared, float, QString>);
static_assert(Holds<DepthLogPass, BaseLog, std::vector<Shared>, DepthChannel>);
static_assert(Holds<TimeLog, BaseLog, std::vector<Shared>, Depths, float>);
static_assert(Holds<DepthChannel, Shared, Shared, Depths, bool, double, double>);
static_assert(Holds<BaseDataChannel, Table, DataChannelIdentifier, HeaderRow, Shared>);
static_assert(Holds<StorageDataChannel, BaseDataChannel, DepthChannel, QString>);
static_assert(Holds<InterpretationParameters, int, float, float, float, float, float, QString, QString, bool,
                    float, bool, QString, QString>);
static_assert(Holds<Survey, CombinedLogMap, DataStorageMap, InterpretationParameters, QList<Zone>, int,
                    QString, QString>);
static_assert(Holds<Zone, Interval, QString, QColor>);
static_assert(Holds<ZoneTrack, QString, QList<Zone>>);
static_assert(Holds<DepthMarker, float, QString>);
static_assert(Holds<WellComponent, Interval, int, QString>);
static_assert(Holds<DirectionalSurveyItem, float, float, float>);
static_assert(Holds<DirectionalSurveyTieInData, double, double, double>);
static_assert(Holds<PipeComponent, float, float, float, double, QString>);
static_assert(Holds<PipeString, PipeString::ComponentVector, QString, double, bool, QString, Interval, double,
                    double, Interval, Interval, Interval>);
static_assert(
    Holds<DataContainer, QString, SurveyMap, DirectionalSurveyData, PipeStringData, QList<WellComponent>,
          QList<ZoneTrack>, QList<Zone>, QList<DepthMarker>, QList<DepthMarker>>);
#endif

class ProjectFileTest : public ::testing::Test
{
protected:
    void SetUp() override { small_project::Fill(container_); }
    void Save(QString const& path)
    {
        project_file::Save(path, container_, small_project::Windows(), small_project::SURVEY_KEY);
    }

    test_files::Folder folder_;
    DataContainer container_;
};

// Every field has a value of its own, and its bytes are written as QZ4SaveFileTest has them.
TEST_F(ProjectFileTest, WhatIsLoadedIsWrittenAgainByteForByte)
{
    DataContainer loaded;
    auto const project = project_file::Load(folder_.Write("a.qz4", small_project::File()), loaded);
    auto const again = folder_.Path("b.qz4");
    project_file::Save(again, loaded, *project.windows, project.current_survey_key);
    EXPECT_TRUE(test_files::Read(again) == small_project::File());

    // What the file does not hold as such.
    LogPassIdentifier const pass(small_project::SURVEY_KEY, "aa");
    auto const& expected = *container_.GetDepthLogPass(pass);
    EXPECT_EQ(loaded.GetDepthLogPass(pass)->GetNullValue(), expected.GetNullValue());
    EXPECT_EQ(loaded.GetDepthLogPass(pass)->GetDepth().GetMetricDepths(),
              expected.GetDepth().GetMetricDepths());
}

TEST_F(ProjectFileTest, AFolderAtTheDestinationIsLeftAloneAndReported)
{
    QDir(folder_.Path("")).mkdir("a.qz4");
    auto const inside = folder_.Write("a.qz4/kept.txt", "kept");
    EXPECT_THROW(Save(folder_.Path("a.qz4")), std::exception);
    EXPECT_EQ(test_files::Read(inside), "kept");
    EXPECT_THROW(Save(folder_.Path("missing/a.qz4")), std::exception);
}

#ifdef Q_OS_UNIX
TEST_F(ProjectFileTest, AFullDeviceIsLeftAloneAndReported)
{
    if (!QFile::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full here";
    }
    auto const link = folder_.Path("full.qz4");
    ASSERT_TRUE(QFile::link("/dev/full", link));
    EXPECT_THAT([&] { Save(link); },
                testing::ThrowsMessage<std::exception>(testing::HasSubstr("No space left on device")));
    EXPECT_EQ(QFile::symLinkTarget(link), "/dev/full");
}
#endif

TEST_F(ProjectFileTest, TwoSurveysOfOneKeyAreRefused)
{
    auto bytes = small_project::Header() + small_project::Main() + small_project::Survey() +
                 small_project::Survey() + small_project::Window() + small_project::Window();
    auto const count = bytes.indexOf("SURVEY_MAP_SIZE_DATA") + 20;
    ASSERT_EQ(bytes[count], 1);
    bytes[count] = 2;
    DataContainer loaded;
    EXPECT_THROW((void)project_file::Load(folder_.Write("two.qz4", bytes), loaded), std::invalid_argument);
}

TEST_F(ProjectFileTest, ColumnsWithoutSamplesDoNotTakeTheAxisLengthEach)
{
    constexpr int columns = 20000;
    constexpr int depths = 20000; // together 1.6 GB of samples from a file of 240 KB
    using B = ByteBuilder;
    B survey;
    survey.BareItem("SURVEY_NAME_AND_KEY_DATA", B().I32(7).Str("S")).End();
    survey.Str("SURVEYDATA_MAGIC_WORD").End().Chain("GENERIC_LOGPASS_MAP_DATA", B().I32(1)).End();
    survey.Chain("GENERIC_LOG_BASIC_DATA", B().I32(columns).Raw(QByteArray(4 * columns, '\0')));
    survey.Chain("BASE_DEPTHCHANNEL_BASIC_DATA",
                 B().U8(1).F32(0).F32(1).I32(depths).Raw(QByteArray(8 * depths, '\0')));
    DataContainer loaded;
    auto const path =
        folder_.Write("c.qz4", small_project::Header() + small_project::Main() + survey.Bytes());
    EXPECT_THROW((void)project_file::Load(path, loaded), std::invalid_argument);
}
} // namespace
