// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// The demo project as it is committed: whole, of one piece, and what its tool writes.

#include "formats/project/ProjectFile.h"
#include "model/DataContainer.h"
#include "support/TestFiles.h"

#include <QProcess>

namespace {
class DemoProject : public testing::Test
{
protected:
    void SetUp() override { project_ = project_file::Load(QUORREL_EXAMPLES "/demo.qz4", container_); }

    COLUMN_WINDOW_Struct const& Column(int survey) const { return project_.windows->at(survey); }

    template <typename Record>
    Record const* View(int survey, QString const& name) const
    {
        for (auto const& view : Column(survey).views) {
            auto const* record = dynamic_cast<Record const*>(view.get());
            if (record != nullptr && record->name == name) {
                return record;
            }
        }
        return nullptr;
    }

    DataContainer container_;
    project_file::LoadedProject project_;
};

TEST_F(DemoProject, HoldsTheLogsOfBothWellsAndTheWellItself)
{
    EXPECT_THAT(container_.GetAllSurveyNames(),
                testing::ElementsAre("Open Hole", "Production Logs", "Caliper"));
    EXPECT_EQ(project_.current_survey_key, 0);
    EXPECT_EQ(container_.GetDepthLogIdentifierHashes(0).size(), 2);
    EXPECT_EQ(container_.GetDepthLogIdentifierHashes(1).size(), 6);
    EXPECT_EQ(container_.GetDepthLogIdentifierHashes(2).size(), 1);
    ASSERT_EQ(container_.GetTimeLogIdentifierHashes(1).size(), 1);
    auto const station = container_.GetTimeLog({1, container_.GetTimeLogIdentifierHashes(1).first()});
    EXPECT_FLOAT_EQ(station->GetLogDepth(), 2895);

    EXPECT_EQ(container_.GetWellName(), "Demo A-7");
    EXPECT_EQ(container_.GetPipeStringData().GetPipeStringVector().size(), 5U);
    EXPECT_EQ(container_.GetPerforationZones().size(), 3);
    EXPECT_EQ(container_.GetComponents().size(), 11); // with a perforation symbol for each interval
    ASSERT_EQ(container_.GetZoneTracks().size(), 1);
    EXPECT_EQ(container_.GetZoneTracks().first().GetZones().size(), 9);
    EXPECT_EQ(container_.GetMarkersA().size(), 5);
    EXPECT_TRUE(container_.GetWellTrajectory(3000.0F).has_value());
}

TEST_F(DemoProject, EveryCurveFillAndScreenRefersToSomethingThatIsThere)
{
    for (int survey = 0; survey < 3; ++survey) {
        auto const& column = Column(survey);
        EXPECT_EQ(static_cast<std::size_t>(column.splitter_sizes.size()), column.views.size());
        EXPECT_TRUE(column.view_depth_interval.IsInside(column.total_displayed_interval));
        std::set<QString> names;
        for (auto const& view : column.views) {
            names.insert(dynamic_cast<VIEW_WIDGET_STRUCT const&>(*view).name);
            auto const* user = dynamic_cast<USER_DATAVIEW_STRUCT const*>(view.get());
            if (user == nullptr) {
                continue;
            }
            ASSERT_EQ(user->scales.size(), user->curves.size());
            for (auto const& scale : user->scales) {
                auto const channel = container_.GetDepthDataChannel(user->curves.at(scale->index));
                ASSERT_TRUE(channel);
                EXPECT_EQ(channel->GetCurveInfo().mnemonic, scale->header.mnemonic);
            }
            for (auto const& fill : user->fill_areas) {
                EXPECT_THAT(user->curves, testing::Contains(fill.curve_a));
                EXPECT_THAT(user->curves, testing::Contains(fill.curve_b));
            }
        }
        EXPECT_EQ(names.size(), column.views.size()) << "two views of one name in survey " << survey;
        EXPECT_TRUE(column.screens.contains(column.current_screen_name));
        for (auto const& [screen, views] : column.screens) {
            for (auto const& [view, width] : views) {
                EXPECT_TRUE(names.contains(view)) << screen.toStdString() << ": " << view.toStdString();
            }
        }
    }
}

TEST_F(DemoProject, ShowsDensityOverNeutronOnTheUsualScales)
{
    auto const* view = View<USER_DATAVIEW_STRUCT>(0, "RHOB + NPHI");
    ASSERT_NE(view, nullptr);
    EXPECT_TRUE(view->is_visible);
    ASSERT_EQ(view->scales.size(), 2U);
    // Stored in single precision.
    EXPECT_EQ(view->scales[0]->scale, Interval(1.95F, 2.95F));
    EXPECT_EQ(view->scales[1]->scale, Interval(0.45F, -0.15F));
    EXPECT_FALSE(view->fill_areas.empty());
    auto const* spinner = View<INTERMEDIATE_DATAVIEW_STRUCT>(1, "SPIN");
    ASSERT_NE(spinner, nullptr);
    EXPECT_TRUE(spinner->is_visible);
}

TEST(DemoProjectTool, WritesTheCommittedFile)
{
    test_files::Folder const folder;
    auto const path = folder.Path("demo.qz4");
    ASSERT_EQ(QProcess::execute(QUORREL_DEMO_PROJECT_TOOL, {QUORREL_EXAMPLES, path}), 0);
    EXPECT_TRUE(test_files::Read(path) == test_files::Read(QUORREL_EXAMPLES "/demo.qz4"))
        << "write examples/demo.qz4 again";
}
} // namespace
