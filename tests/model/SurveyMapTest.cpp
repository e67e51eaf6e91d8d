// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/SurveyMap.h"

#include "ModelFixtures.h"
#include "model/UniqueNames.h"

using testing::ElementsAre;

TEST(SurveyMap, GivesKeysAndUniqueNames)
{
    SurveyMap surveys;
    EXPECT_EQ(surveys.AddSurvey("Name"), 0);
    EXPECT_EQ(surveys.AddSurvey("Name"), 1);
    EXPECT_EQ(surveys.AddSurvey("Name"), 2);
    EXPECT_THAT(surveys.GetAllSurveyNames(), ElementsAre("Name", "Name_#1", "Name_#2"));

    surveys.DeleteSurvey(1);
    EXPECT_EQ(surveys.AddSurvey("Name"), 3); // the hole stays, its name is free again
    EXPECT_EQ(surveys.at(3).lock()->GetName(), "Name_#1");
    surveys.DeleteSurvey(3);
    EXPECT_EQ(surveys.AddSurvey("Other"), 3); // the greatest key is used again
    EXPECT_THAT(surveys.GetAllSurveyKeys(), ElementsAre(0, 2, 3));

    EXPECT_EQ(surveys.RenameSurvey(3, "Name"), "Name_#1");
    EXPECT_EQ(surveys.RenameSurvey(3, "Third"), "Third");
    EXPECT_EQ(surveys.RenameSurvey(99, "Name"), "");
    EXPECT_EQ(surveys.AddSurvey(17, "Third"), "Third_#1");
    EXPECT_EQ(surveys.AddSurvey("Next"), 18);
    EXPECT_TRUE(surveys.at(99).expired());
    EXPECT_EQ(surveys.at(17).lock()->GetSurveyKey(), 17);

    // A stored key that is there already does not cost its survey.
    EXPECT_EQ(surveys.AddSurvey(17, "Again"), "Third_#1");
    // Nor does the greatest possible key overflow.
    surveys.AddSurvey(std::numeric_limits<int>::max(), "Last");
    EXPECT_EQ(surveys.AddSurvey("After"), 1);
    surveys.ClearSurveyMap();
    EXPECT_EQ(surveys.AddSurvey("First"), 0);
}

TEST(UniqueNames, NumbersAreInTheSettingsFormat)
{
    NumberFormatScope const scope({International, true});
    QSet<QString> taken{"N"};
    for (int i = 1; i < 1000; ++i) {
        taken.insert(QStringLiteral("N_#%1").arg(i));
    }
    EXPECT_EQ(Quorrel::GenerateUniqueName("N", taken), "N_#1.000");
    EXPECT_EQ(Quorrel::GenerateUniqueName("n", taken), "n");
}

TEST(DataStorageMap, KeysAndNamesOfStoredChannels)
{
    DataStorageMap storage;
    EXPECT_EQ(storage.MoveStorageDataChannelToStorage(MakeChannel({1}, {1}, "GR"), 5), 0);
    EXPECT_EQ(storage.MoveStorageDataChannelToStorage(MakeChannel({1}, {2}, "GR"), 5), 1);
    EXPECT_EQ(storage.MoveStorageDataChannelToStorage(MakeChannel({1}, {3}, "CCL"), 5), 2);
    EXPECT_EQ(storage.at(0)->GetName(), "GR");
    EXPECT_EQ(storage.at(1)->GetName(), "GR_1");
    EXPECT_EQ(storage.at(2)->GetName(), "CCL");
    EXPECT_EQ(storage.at(1)->GetDataChannelIdentifier(),
              DataChannelIdentifier(5, Survey::DATA_STORAGE_NAME_IDENTIFIER, 1));
    EXPECT_EQ(Survey::DATA_STORAGE_NAME_IDENTIFIER, "DATA_STORAGE_IDENTIFIER");

    EXPECT_EQ(storage.RenameStorageDataChannel({5, "", 2}, "GR"), "GR_#1");
    EXPECT_EQ(storage.at(2)->GetName(), "GR_#1");
    EXPECT_EQ(storage.GenerateUniqueStorageChannelName("GR"), "GR_#2");
    EXPECT_EQ(storage.GenerateUniqueStorageChannelName("free"), "free");

    storage.DeleteStorageDataChannel({5, "", 2});
    storage.DeleteStorageDataChannel({5, "", 2});
    EXPECT_THAT(storage.GetStorageKeys(), ElementsAre(0, 1));
    EXPECT_EQ(MessageOf<std::out_of_range>([&] { (void)storage.at(2); }), "map::at");
    EXPECT_THROW(storage.RenameStorageDataChannel({5, "", 2}, "x"), std::out_of_range);
    storage.AddDataChannelToDataStorage(40, MakeChannel({1}, {1}, "stored"));
    EXPECT_EQ(storage.MoveStorageDataChannelToStorage(MakeChannel({1}, {1}, "new"), 5), 41);
    EXPECT_EQ(storage.MoveStorageDataChannelToStorage(nullptr, 5), -1);
    EXPECT_EQ(Survey(5, "S").CopyDataChannelToStorage({}, 0), -1);
    EXPECT_EQ(storage.size(), 4U);
}
