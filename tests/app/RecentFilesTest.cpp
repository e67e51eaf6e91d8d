// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/RecentFiles.h"

#include "app/kit/SettingsSingleton.h"

#include "support/TestFiles.h"

#include <QAction>
#include <QFile>
#include <QMenu>

namespace {
class RecentFilesMenu : public ::testing::Test
{
protected:
    void SetUp() override
    {
        for (int i = 0; i < 12; ++i) {
            paths.append(folder.Write(QStringLiteral("project %1.qz4").arg(i), "x"));
        }
    }
    void TearDown() override { SettingsSingleton::Instance().SetRecentFiles({}); }

    void Create(QStringList const& files)
    {
        SettingsSingleton::Instance().SetRecentFiles(files);
        recent.CreateRecentFileActionList(&owner);
        recent.AddActionsToMenu(&menu);
    }

    /// Paths of the visible entries.
    [[nodiscard]] QStringList Shown() const
    {
        QStringList result;
        for (QAction const* action : menu.actions()) {
            if (action->isVisible()) {
                result.append(action->data().toString());
            }
        }
        return result;
    }

    [[nodiscard]] static QStringList Stored() { return SettingsSingleton::Instance().GetRecentFiles(); }

    test_files::Folder folder;
    QStringList paths;
    QObject owner;
    QMenu menu;
    RecentFiles recent;
};
} // namespace

TEST_F(RecentFilesMenu, ShowsTheStoredFilesAndHidesTheRest)
{
    QString const ampersand = folder.Write("A&B.qz4", "x");
    Create({paths[0], paths[1], ampersand});
    EXPECT_EQ(menu.actions().size(), 10);
    EXPECT_EQ(Shown(), (QStringList{paths[0], paths[1], ampersand}));
    EXPECT_EQ(menu.actions()[1]->text(), "project 1.qz4");
    EXPECT_EQ(menu.actions()[1]->toolTip(), paths[1]);
    EXPECT_EQ(menu.actions()[2]->text(), "A&&B.qz4");
}

TEST_F(RecentFilesMenu, ForgetsFilesThatAreGone)
{
    QFile::remove(paths[0]);
    QFile::remove(paths[2]);
    Create({paths[0], paths[1], paths[2], paths[3]});
    EXPECT_EQ(Shown(), (QStringList{paths[1], paths[3]}));
    EXPECT_EQ(Stored(), (QStringList{paths[1], paths[3]}));
}

TEST_F(RecentFilesMenu, ALongStoredListShowsTen)
{
    Create(paths);
    EXPECT_EQ(Shown(), paths.mid(0, 10));
    EXPECT_EQ(Stored().size(), 12);
}

TEST_F(RecentFilesMenu, AFileMovesToTheFrontOnce)
{
    Create(paths.mid(0, 10));
    recent.AdjustForFileChange(paths[4]);
    EXPECT_EQ(Shown(), QStringList{paths[4]} + paths.mid(0, 4) + paths.mid(5, 5));
    recent.AdjustForFileChange(paths[11]); // an eleventh pushes the oldest out
    EXPECT_EQ(Shown(), (QStringList{paths[11], paths[4]} + paths.mid(0, 4) + paths.mid(5, 4)));
    EXPECT_EQ(Stored(), Shown());
}

TEST_F(RecentFilesMenu, TellsWhichFileWasChosen)
{
    Create(paths.mid(0, 3));
    QStringList chosen;
    QObject::connect(&recent, &RecentFiles::LoadRecent_Signal,
                     [&](QString const& path) { chosen.append(path); });
    menu.actions()[2]->trigger();
    recent.AdjustForFileChange(paths[2]);
    menu.actions()[2]->trigger(); // now another file's entry
    EXPECT_EQ(chosen, (QStringList{paths[2], paths[1]}));
}
