// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "formats/project/ProjectFile.h"

#include "formats/project/ByteBuilder.h"
#include "formats/project/SmallProject.h"
#include "model/DataContainer.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {
// The comparisons take each record apart by the number of its members: a new member does not compile until it
// is compared here (and so stored).

void ExpectSameScale(ScaleItemParameters const& actual, ScaleItemParameters const& expected)
{
    auto const& [header, index, scale, pen, is_selected] = actual;
    EXPECT_EQ(header, expected.header);
    EXPECT_EQ(index, expected.index);
    EXPECT_EQ(scale.lower, expected.scale.lower);
    EXPECT_EQ(scale.upper, expected.scale.upper);
    EXPECT_EQ(pen, expected.pen);
    EXPECT_EQ(is_selected, expected.is_selected);
}

void ExpectSameFill(FillAreaDefinition const& actual, FillAreaDefinition const& expected)
{
    auto const& [name, curve_a, curve_b, value, method, pattern, color] = actual;
    EXPECT_EQ(name, expected.name);
    EXPECT_TRUE(curve_a == expected.curve_a && curve_b == expected.curve_b);
    EXPECT_EQ(value, expected.value);
    EXPECT_EQ(method, expected.method);
    EXPECT_EQ(pattern, expected.pattern);
    EXPECT_EQ(color, expected.color);
}

template <typename T>
bool CompareAs(VIEW_WIDGET_BASE_STRUCT const& actual, VIEW_WIDGET_BASE_STRUCT const& expected,
               void (*compare)(T const&, T const&))
{
    auto const* const a = dynamic_cast<T const*>(&actual);
    auto const* const e = dynamic_cast<T const*>(&expected);
    if (a && e) {
        compare(*a, *e);
    }
    EXPECT_EQ(a == nullptr, e == nullptr) << expected.object_name.toStdString();
    return a && e;
}

void ExpectSameUser(USER_DATAVIEW_STRUCT const& actual, USER_DATAVIEW_STRUCT const& expected)
{
    EXPECT_TRUE(actual.curves == expected.curves);
    ASSERT_EQ(actual.fill_areas.size(), expected.fill_areas.size());
    for (std::size_t i = 0; i < expected.fill_areas.size(); ++i) {
        ExpectSameFill(actual.fill_areas[i], expected.fill_areas[i]);
    }
}

void ExpectSameImage(IMAGE_DATAVIEW_STRUCT const& actual, IMAGE_DATAVIEW_STRUCT const& expected)
{
    EXPECT_TRUE(actual.log_pass == expected.log_pass);
    EXPECT_EQ(actual.mnemonic, expected.mnemonic);
    EXPECT_EQ(actual.scale_low, expected.scale_low);
    EXPECT_EQ(actual.scale_high, expected.scale_high);
    EXPECT_EQ(actual.color_scale_name, expected.color_scale_name);
}

void ExpectSameCaliper(MFC_DATAVIEW_STRUCT const& actual, MFC_DATAVIEW_STRUCT const& expected)
{
    EXPECT_EQ(actual.log_pass_hash, expected.log_pass_hash);
    EXPECT_EQ(actual.caliper_mnemonic, expected.caliper_mnemonic);
    EXPECT_EQ(actual.center_scale, expected.center_scale);
    EXPECT_EQ(actual.variation_scale, expected.variation_scale);
    EXPECT_EQ(actual.nominal_inner_diameter, expected.nominal_inner_diameter);
    EXPECT_EQ(actual.nominal_outer_diameter, expected.nominal_outer_diameter);
}

void ExpectSameScales(INTERMEDIATE_DATAVIEW_STRUCT const& actual,
                      INTERMEDIATE_DATAVIEW_STRUCT const& expected)
{
    ASSERT_EQ(actual.scales.size(), expected.scales.size());
    for (std::size_t i = 0; i < expected.scales.size(); ++i) {
        ExpectSameScale(*actual.scales[i], *expected.scales[i]);
    }
}

void ExpectSameFlags(BASE_DATAVIEW_STRUCT const& actual, BASE_DATAVIEW_STRUCT const& expected)
{
    EXPECT_EQ(actual.show_markers_a, expected.show_markers_a);
    EXPECT_EQ(actual.show_markers_b, expected.show_markers_b);
    EXPECT_EQ(actual.show_baseline, expected.show_baseline);
}

void ExpectSameName(VIEW_WIDGET_STRUCT const& actual, VIEW_WIDGET_STRUCT const& expected)
{
    EXPECT_EQ(actual.name, expected.name);
}

void ExpectSameWindow(COLUMN_WINDOW_Struct const& actual, COLUMN_WINDOW_Struct const& expected)
{
    auto const& [view_depth, view_count, override_interval, total, sizes, views, screens, current] = actual;
    EXPECT_TRUE(view_depth.lower == expected.view_depth_interval.lower &&
                view_depth.upper == expected.view_depth_interval.upper);
    EXPECT_EQ(view_count, expected.view_count);
    EXPECT_EQ(override_interval, expected.override_interval);
    EXPECT_TRUE(total.lower == expected.total_displayed_interval.lower &&
                total.upper == expected.total_displayed_interval.upper);
    EXPECT_EQ(sizes, expected.splitter_sizes);
    EXPECT_TRUE(screens == expected.screens);
    EXPECT_EQ(current, expected.current_screen_name);
    ASSERT_EQ(views.size(), expected.views.size());
    int compared = 0;
    for (std::size_t i = 0; i < views.size(); ++i) {
        auto const& a = *views[i];
        auto const& e = *expected.views[i];
        EXPECT_EQ(a.object_name, e.object_name);
        EXPECT_EQ(a.is_visible, e.is_visible);
        compared += CompareAs(a, e, ExpectSameName) + CompareAs(a, e, ExpectSameFlags) +
                    CompareAs(a, e, ExpectSameScales) + CompareAs(a, e, ExpectSameUser) +
                    CompareAs(a, e, ExpectSameImage) + CompareAs(a, e, ExpectSameCaliper);
    }
    EXPECT_EQ(compared, 3 + 2 + 4 + 3 + 3 + 1); // each view as itself and as what it builds on
}

void ExpectSameLog(BaseLog const& actual, BaseLog const& expected)
{
    auto const& [highlighted, hidden, identifier, pen] = actual.GetProperties();
    EXPECT_EQ(highlighted, expected.GetProperties().highlighted);
    EXPECT_EQ(hidden, expected.GetProperties().hidden);
    EXPECT_TRUE(identifier == expected.GetLogPassIdentifier());
    EXPECT_EQ(pen, expected.GetProperties().pen);
    EXPECT_TRUE(actual.GetVersionHeader() == expected.GetVersionHeader());
    EXPECT_TRUE(actual.GetWellInfoHeader() == expected.GetWellInfoHeader());
    EXPECT_TRUE(actual.GetCurveInfoHeader() == expected.GetCurveInfoHeader());
    EXPECT_TRUE(actual.GetParameterInfoHeader() == expected.GetParameterInfoHeader());
    EXPECT_TRUE(actual.GetOtherHeader() == expected.GetOtherHeader());
    EXPECT_EQ(actual.GetArrayMnems(), expected.GetArrayMnems());
    EXPECT_EQ(actual.GetFilePathAndName(), expected.GetFilePathAndName());
    EXPECT_EQ(actual.GetNullValue(), expected.GetNullValue());
    ASSERT_EQ(actual.GetData().size(), expected.GetData().size());
    for (std::size_t i = 0; i < expected.GetData().size(); ++i) {
        EXPECT_EQ(*actual.GetData()[i], *expected.GetData()[i]);
    }
}

void ExpectSameDepth(DepthChannel const& actual, DepthChannel const& expected)
{
    EXPECT_EQ(actual.IsNativeDepthMetric(), expected.IsNativeDepthMetric());
    EXPECT_EQ(actual.GetShift(), expected.GetShift());
    EXPECT_EQ(actual.GetStretch(), expected.GetStretch());
    EXPECT_EQ(actual.GetNativeDepthVector(), expected.GetNativeDepthVector());
    EXPECT_EQ(actual.GetMetricDepths(), expected.GetMetricDepths());
}

void ExpectSameWell(DataContainer const& actual, DataContainer const& expected)
{
    EXPECT_EQ(actual.GetWellName(), expected.GetWellName());
    EXPECT_TRUE(actual.GetPerforationZones() == expected.GetPerforationZones());
    EXPECT_TRUE(actual.GetZoneTracks() == expected.GetZoneTracks());
    EXPECT_TRUE(actual.GetDirectionalSurveyVector() == expected.GetDirectionalSurveyVector());
    EXPECT_TRUE(actual.GetDirectionalSurveyTieInData() == expected.GetDirectionalSurveyTieInData());
    EXPECT_TRUE(actual.GetComponents() == expected.GetComponents());
    EXPECT_TRUE(actual.GetMarkersA() == expected.GetMarkersA());
    EXPECT_TRUE(actual.GetMarkersB() == expected.GetMarkersB());
    EXPECT_TRUE(actual.GetPipeStringData().GetPipeStringVector() ==
                expected.GetPipeStringData().GetPipeStringVector());
}

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

TEST_F(ProjectFileTest, RoundTripKeepsEveryField)
{
    constexpr int key = small_project::SURVEY_KEY;
    auto const path = folder_.Path("a.qz4");
    Save(path);
    DataContainer loaded;
    auto const project = project_file::Load(path, loaded);

    EXPECT_EQ(project.current_survey_key, key);
    ExpectSameWell(loaded, container_);
    ASSERT_EQ(loaded.GetAllSurveyKeys(), QList<int>{key});
    EXPECT_EQ(loaded.GetSurveyName(key), "S");
    EXPECT_EQ(loaded.GetSurveyText(key), "text");
    EXPECT_TRUE(loaded.GetInterpretationZones(key) == container_.GetInterpretationZones(key));
    EXPECT_TRUE(loaded.GetInterpretationParameters(key) == container_.GetInterpretationParameters(key));

    LogPassIdentifier const pass(key, "aa");
    ASSERT_EQ(loaded.GetDepthLogIdentifierHashes(key), QList<QString>{"aa"});
    ExpectSameLog(*loaded.GetDepthLogPass(pass), *container_.GetDepthLogPass(pass));
    ExpectSameDepth(loaded.GetDepthLogPass(pass)->GetDepth(), container_.GetDepthLogPass(pass)->GetDepth());
    LogPassIdentifier const time(key, "bb");
    ASSERT_EQ(loaded.GetTimeLogIdentifierHashes(key), QList<QString>{"bb"});
    ExpectSameLog(*loaded.GetTimeLog(time), *container_.GetTimeLog(time));
    EXPECT_EQ(loaded.GetTimeLog(time)->GetTime(), container_.GetTimeLog(time)->GetTime());
    EXPECT_EQ(loaded.GetTimeLog(time)->GetLogDepth(), 2500.5F);

    ASSERT_EQ(loaded.GetStorageKeys(key), QList<int>{small_project::STORAGE_KEY});
    auto const storage = loaded.GetStorageDataChannel(key, small_project::STORAGE_KEY);
    auto const expected = container_.GetStorageDataChannel(key, small_project::STORAGE_KEY);
    EXPECT_EQ(storage->GetName(), "ST");
    EXPECT_EQ(storage->GetCurveInfo(), expected->GetCurveInfo());
    EXPECT_TRUE(storage->GetDataChannelIdentifier() == expected->GetDataChannelIdentifier());
    EXPECT_EQ(*storage->GetSamples(), *expected->GetSamples());
    ExpectSameDepth(std::as_const(*storage).GetDepth(), std::as_const(*expected).GetDepth());

    ASSERT_EQ(project.windows->size(), 1U);
    ExpectSameWindow(project.windows->at(key), small_project::Windows().at(key));

    auto const again = folder_.Path("b.qz4");
    project_file::Save(again, loaded, *project.windows, project.current_survey_key);
    EXPECT_TRUE(test_files::Read(again) == test_files::Read(path));
}

TEST_F(ProjectFileTest, ReplacesAnOlderFileAndLeavesNothingBeside)
{
    auto const path = folder_.Write("a.qz4", "older");
    Save(path);
    EXPECT_TRUE(test_files::Read(path) == small_project::File());
    EXPECT_EQ(QDir(folder_.Path("")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{"a.qz4"});
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
TEST_F(ProjectFileTest, AFolderThatCannotBeWrittenKeepsTheOldFile)
{
    if (geteuid() == 0) {
        GTEST_SKIP() << "root may write everywhere";
    }
    auto const path = folder_.Write("a.qz4", "older");
    QFile::setPermissions(path, QFile::ReadOwner);
    QFile::setPermissions(folder_.Path(""), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_THROW(Save(path), std::exception);
    QFile::setPermissions(folder_.Path(""), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(test_files::Read(path), "older");
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
