// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/DataContainer.h"

#include "ModelFixtures.h"
#include "model/DataContainerWrapper.h"
#include "model/ProjectAccess.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
/// Two surveys: "A" (0) with a depth pass over 100 to 102 m and a copy of its GR in storage, and the empty
/// "B" (1).
class DataContainerTest : public testing::Test
{
protected:
    DataContainerTest()
    {
        container_.AddSurvey("A");
        container_.AddSurvey("B");
        LASFile file =
            MakeDepthFile({100, 101, 102}, {{"GR", {1, 2, 3}}, {"RAD1", {4, 5, 6}}, {"RAD2", {7, 8, 9}}});
        pass_ = *container_.AddImportedLogPassToSurvey(file, "/logs/pass.las", 0);
        gr_ = DataChannelIdentifier(pass_, 0);
        stored_ = container_.CopyDataChannelToStorage(gr_, 0);
    }

    [[nodiscard]] Interval Depth(DataChannelIdentifier const& identifier) const
    {
        return container_.GetDepthDataChannel(identifier)->GetDepthInterval_metric();
    }

    DataContainer container_;
    LogPassIdentifier pass_;
    DataChannelIdentifier gr_;
    DataChannelIdentifier stored_;
};
} // namespace

TEST_F(DataContainerTest, CopiesAChannelIntoAnotherSurvey)
{
    EXPECT_EQ(stored_, DataChannelIdentifier(0, Survey::DATA_STORAGE_NAME_IDENTIFIER, 0));
    EXPECT_NE(container_.GetDataChannel(stored_)->GetSamples(), container_.GetDataChannel(gr_)->GetSamples());
    DataChannelIdentifier const copy =
        container_.CopyDataChannelToStorage(DataChannelIdentifier(pass_, 1), 1);
    EXPECT_EQ(copy, DataChannelIdentifier(1, Survey::DATA_STORAGE_NAME_IDENTIFIER, 0));
    EXPECT_EQ(container_.GetStorageDataChannel(1, 0)->GetName(), "S0_L0_RAD1");
    EXPECT_THAT(Values(*container_.GetDataChannel(copy)), ElementsAre(4, 5, 6));
    EXPECT_EQ(container_.CopyDataChannelToStorage(gr_, 9), DataChannelIdentifier());
    EXPECT_EQ(container_.CopyDataChannelToStorage({9, "x", 0}, 1), DataChannelIdentifier());
}

TEST_F(DataContainerTest, CorrectsAWholePassOrOneStorageChannel)
{
    DataChannelIdentifier const rad(pass_, 1);
    container_.ApplyShift(gr_, 5);
    EXPECT_EQ(Depth(gr_), Interval(105, 107));
    EXPECT_EQ(Depth(rad), Interval(105, 107));
    EXPECT_EQ(Depth(stored_), Interval(100, 102));

    container_.ApplyShift(stored_, -1);
    EXPECT_EQ(Depth(stored_), Interval(99, 101));
    EXPECT_EQ(Depth(gr_), Interval(105, 107));

    // Stretch, then shift: 2 * 100 + 3.
    container_.SetDepthStretchShift(stored_, 2, 3);
    EXPECT_EQ(Depth(stored_), Interval(203, 207));
    EXPECT_EQ(Depth(gr_), Interval(105, 107));
    container_.SetDepthStretchShift(rad, 2, 4);
    EXPECT_EQ(Depth(gr_), Interval(204, 208));
    container_.SetDepthStretchShift(pass_, 1, 0);
    EXPECT_EQ(Depth(gr_), Interval(100, 102));

    // Drag 102 to 104 with 100 for the anchor.
    container_.ApplyStretch(gr_, 102, 104, 100);
    EXPECT_EQ(Depth(rad), Interval(100, 104));
    EXPECT_EQ(Depth(stored_), Interval(203, 207));
    container_.ApplyStretch(stored_, 207, 205, 203);
    EXPECT_EQ(Depth(stored_), Interval(203, 205));
    EXPECT_EQ(Depth(rad), Interval(100, 104));
}

TEST_F(DataContainerTest, FindsIdentifiersByPatternAndByList)
{
    EXPECT_THAT(container_.GetDataChannelIdentifiers(pass_, QString("RAD*")),
                ElementsAre(DataChannelIdentifier(pass_, 1), DataChannelIdentifier(pass_, 2)));
    EXPECT_EQ(container_.GetDataChannelIdentifiers(pass_, QString("rad?")).size(), 2);
    EXPECT_THAT(container_.GetDataChannelIdentifiers(pass_, QList<QString>{"RAD2", "MISSING", "GR", "RAD2"}),
                ElementsAre(DataChannelIdentifier(pass_, 2), gr_, DataChannelIdentifier(pass_, 2)));
    EXPECT_EQ(container_.GetCurveInfo(DataChannelIdentifier(pass_, 2)).mnemonic, "RAD2");
    EXPECT_EQ(container_.GetLogPassNumber(pass_), 0);
    EXPECT_EQ(container_.GetLogPassNumber({0, "unknown"}), -1);
}

TEST_F(DataContainerTest, AnswersEmptyForASurveyThatIsNotThere)
{
    LogPassIdentifier const gone(7, pass_.hash);
    DataChannelIdentifier const gone_channel(gone, 0);
    LASFile file = MakeDepthFile({1, 2}, {{"GR", {1, 2}}});
    EXPECT_FALSE(container_.AddImportedLogPassToSurvey(file, "/x.las", 7).has_value());
    EXPECT_EQ(file.GetDataMatrix().size(), 1U);
    EXPECT_TRUE(container_.GetSurvey(7).expired());
    EXPECT_EQ(container_.GetDepthLogPass(gone), nullptr);
    EXPECT_EQ(container_.GetTimeLog(gone), nullptr);
    EXPECT_EQ(container_.GetDataChannel(gone_channel), nullptr);
    EXPECT_EQ(container_.GetDepthDataChannel(gone_channel), nullptr);
    EXPECT_EQ(container_.GetTimeDataChannel(gone_channel), nullptr);
    EXPECT_EQ(container_.GetStorageDataChannel(7, 0), nullptr);
    EXPECT_EQ(container_.MoveStorageDataChannelToStorage(7, MakeChannel({1}, {1})), -1);
    EXPECT_EQ(container_.GetCurveInfo(gone_channel), HeaderRow());
    EXPECT_EQ(container_.GetLogPassNumber(gone), -1);
    EXPECT_EQ(container_.GetLogPassProperties(gone), LogPassProperties());
    EXPECT_THAT(container_.GetDataChannelIdentifiers(gone, QString("*")), IsEmpty());
    EXPECT_THAT(container_.GetInterpretationZones(7), IsEmpty());
    EXPECT_EQ(container_.GetTotalDepthInterval(7), Interval());
    EXPECT_EQ(container_.GetSurveyName(7), "");
    container_.ApplyShift(gone, 1);
    container_.ApplyShift(gone_channel, 1);
    container_.SetDepthStretchShift(DataChannelIdentifier(7, Survey::DATA_STORAGE_NAME_IDENTIFIER, 0), 1, 1);
    container_.DeleteSurvey(7);
    container_.DeleteLogPass(gone);
    EXPECT_THAT(container_.GetAllSurveyKeys(), ElementsAre(0, 1));

    EXPECT_THROW((void)container_.GetDepthLogPass({0, "unknown"}), std::runtime_error);
    EXPECT_THROW((void)container_.GetDataChannel({0, "unknown", 0}), std::runtime_error);
    EXPECT_THROW((void)container_.GetDataChannel({0, stored_.GetHash(), 1}), std::out_of_range);
}

TEST_F(DataContainerTest, DeletingALogEndsItsChannels)
{
    std::weak_ptr<BaseDepthDataChannel const> const channel = container_.GetDepthDataChannel(gr_);
    std::weak_ptr<BaseDepthDataChannel const> const stored = container_.GetDepthDataChannel(stored_);
    container_.DeleteLogPass(pass_);
    EXPECT_TRUE(channel.expired());
    EXPECT_FALSE(stored.expired());
    container_.DeleteStorageDataChannel(stored_);
    EXPECT_TRUE(stored.expired());
    EXPECT_EQ(container_.GetTotalDepthInterval(0), Interval());
}

TEST_F(DataContainerTest, ClearAllGivesANewProject)
{
    Zone const zone(Interval(1, 2), "zone", Qt::red);
    container_.SetWellName("Well 1");
    container_.SetPerforationZones({zone});
    container_.SetZoneTracks({ZoneTrack("track")});
    container_.SetComponents({WellComponent()});
    container_.SetMarkersA({DepthMarker(1, "a")});
    container_.SetMarkersB({DepthMarker(2, "b")});
    container_.AddInterpretationZone(0, zone);
    container_.SetPipeStringData({PipeString()});
    container_.SetTrajectorySurvey({{0, 0, 0}, {100, 0, 0}}, {10, 0, 0});
    container_.SetTrajectorySurvey({{0, 0, 0}, {200, 0, 0}}, {10, 0, 0}); // replaces, does not append
    ASSERT_EQ(container_.GetTrajectorySurvey().size(), 2U);
    ASSERT_EQ(container_.GetDirectionalSurveyVector().size(), 2U);
    ASSERT_TRUE(container_.GetWellTrajectory(150).has_value());
    ASSERT_EQ(container_.GetDirectionalSurveyTieInData().tvd, 10);
    ASSERT_THAT(container_.GetInterpretationZones(0), ElementsAre(zone));

    container_.ClearAll();
    EXPECT_THAT(container_.GetAllSurveyKeys(), IsEmpty());
    EXPECT_EQ(container_.GetTotalDepthInterval(0), Interval());
    EXPECT_EQ(container_.GetWellName(), "");
    EXPECT_THAT(container_.GetPerforationZones(), IsEmpty());
    EXPECT_THAT(container_.GetZoneTracks(), IsEmpty());
    EXPECT_THAT(container_.GetComponents(), IsEmpty());
    EXPECT_THAT(container_.GetMarkersA(), IsEmpty());
    EXPECT_THAT(container_.GetMarkersB(), IsEmpty());
    EXPECT_THAT(container_.GetPipeStringData().GetPipeStringVector(), IsEmpty());
    EXPECT_THAT(container_.GetTrajectorySurvey(), IsEmpty());
    EXPECT_FALSE(container_.GetWellTrajectory(50).has_value());
    EXPECT_EQ(container_.GetDirectionalSurveyTieInData().tvd, 0);
    EXPECT_EQ(container_.AddSurvey("new"), 0);
}

TEST(DataContainerWrapper, SaysThatWriteAccessWasAskedFor)
{
    DataContainerWrapper wrapper;
    int signals_seen = 0;
    QString name_at_signal = "unset";
    QObject::connect(&wrapper, &DataContainerWrapper::DataContainerWriteAccessRequested_Signal, [&] {
        ++signals_seen;
        name_at_signal = wrapper.GetReadAccess().GetWellName();
    });
    wrapper.GetWriteAccess(true).SetWellName("silent");
    EXPECT_EQ(signals_seen, 0);
    wrapper.GetWriteAccess(false).SetWellName("loud");
    EXPECT_EQ(signals_seen, 1);
    EXPECT_EQ(name_at_signal, "silent"); // raised before the change
    (void)wrapper.GetWriteAccess(false);
    EXPECT_EQ(signals_seen, 2);
    EXPECT_EQ(wrapper.GetReadAccess().GetWellName(), "loud");
}

TEST(ProjectAccess, MarksTheProjectOnWritesOnly)
{
    ProjectAccess project;
    int writes = 0;
    QObject::connect(&project.GetDataContainerWrapper(),
                     &DataContainerWrapper::DataContainerWriteAccessRequested_Signal,
                     [&writes] { ++writes; });
    int const survey = project.AddSurvey("survey");
    LASFile file = MakeDepthFile({100, 101}, {{"GR", {1, 2}}});
    LogPassIdentifier const pass = *project.AddImportedLogPassToSurvey(file, "/a.las", survey);
    project.SetDepthStretchShift(pass, 2, 5);
    DataChannelIdentifier const copy = project.CopyDataChannelToStorage({pass, 0}, survey);
    EXPECT_EQ(writes, 4);

    EXPECT_EQ(project.GetSurveyName(survey), "survey");
    EXPECT_EQ(project.GetDepthLogPass(pass)->GetMinDepth_metric(), 205);
    EXPECT_THAT(project.GetDataChannelNames(pass), ElementsAre("GR"));
    EXPECT_EQ(project.GetDepthDataChannel(copy)->GetName(), "S0_L0_GR");
    EXPECT_EQ(project.GetTotalDepthInterval(survey), Interval(205, 207));
    EXPECT_THAT(project.GetStorageKeys(survey), ElementsAre(0));
    EXPECT_EQ(writes, 4);
}
