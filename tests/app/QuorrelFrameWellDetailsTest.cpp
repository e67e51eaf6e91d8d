// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/FrameFixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

// The well details and their import through the actions of the main frame.

namespace {
class QuorrelFrameWellDetailsTest : public FrameFixture
{
protected:
    /// The import's form is answered after its file dialog.
    Seen Import(QString const& path, std::vector<DialogAnswer::Answer> answers = {})
    {
        answers.insert(answers.begin(), ChooseFiles({path}));
        DialogAnswer const dialogs(std::move(answers));
        Action("Import Well Details From JSON")->trigger();
        EXPECT_EQ(dialogs.GetTitles().value(0), "Import JSON Well Details File");
        return {dialogs.GetTitles(), dialogs.GetMessages()};
    }
};
} // namespace

TEST_F(QuorrelFrameWellDetailsTest, ImportsTheChosenDataOfAJsonFile)
{
    auto const path = folder_.Write("well.json", R"({"Metric Depth": true, "Well Name": "W",
        "Perforations": [{"Top Depth": 10, "Bottom Depth": 20, "Description": "p"}],
        "Misc Well Components": [{"Top Depth": 1, "Bottom Depth": 2, "Type": "Plug"}]})");
    auto const stored_folder = [] {
        return SettingsSingleton::Instance().GetWellDetailsJsonImportDataPath();
    };
    Import(path); // its form is cancelled
    EXPECT_EQ(frame_->GetWellName(), "");
    EXPECT_NE(stored_folder(), QFileInfo(path).absolutePath());
    frame_->SetPerforationZones({Zone({1, 2}, "replaced", Qt::red)});
    QStringList offered;
    Import(path, {[&offered](QDialog* dialog) {
               for (auto* box : dialog->findChildren<QCheckBox*>()) {
                   EXPECT_EQ(box->isChecked(), box->isEnabled());
                   offered << (box->isEnabled() ? box->text() : QString());
                   box->setChecked(box->text() == "Perforations");
               }
               for (auto* button : dialog->findChildren<QRadioButton*>()) {
                   button->setChecked(button->text().startsWith("Replace"));
               }
               dialog->accept();
           }});
    EXPECT_EQ(offered, QStringList({"", "Perforations", "", "Well Components"}));
    EXPECT_EQ(frame_->GetWellName(), "W");
    EXPECT_EQ(frame_->GetPerforationZones(), QList<Zone>({Zone({10, 20}, "p", Zone::DEFAULT_COLOR)}));
    EXPECT_TRUE(frame_->GetComponents().isEmpty());
    EXPECT_EQ(stored_folder(), QFileInfo(path).absolutePath());
}

TEST_F(QuorrelFrameWellDetailsTest, AFileThatIsNoJsonOffersNothingAndSaysWhy)
{
    auto const path = folder_.Write("junk.json", QByteArray("\x00\xff junk", 7));
    auto const seen = Import(path, {[](QDialog* dialog) {
                                 for (auto const* box : dialog->findChildren<QCheckBox*>()) {
                                     EXPECT_FALSE(box->isEnabled());
                                 }
                                 EXPECT_NE(dialog->findChildren<QLabel*>().first()->text(), "");
                                 dialog->accept();
                             }});
    EXPECT_EQ(seen.titles.size(), 2);
}

TEST_F(QuorrelFrameWellDetailsTest, TheWellDetailsAreAppliedToTheProject)
{
    frame_->SetWellName("before");
    DialogAnswer const dialogs({[](QDialog* dialog) {
        EXPECT_EQ(dialog->windowTitle(), "Well Details");
        dialog->findChild<QLineEdit*>("WellName")->setText("after");
        dialog->accept();
    }});
    Action("Well Details Window")->trigger();
    EXPECT_EQ(frame_->GetWellName(), "after");
}
