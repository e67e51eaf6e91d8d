// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/QuorrelFrame.h"
#include "resources/Resources.h"
#include "support/DialogAnswer.h"
#include "support/NumberFormats.h"
#include "support/TestFiles.h"

#include <QAction>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

// The well details and their import through the actions of the main frame.

namespace {
class QuorrelFrameWellDetailsTest : public testing::Test
{
protected:
    void SetUp() override
    {
        qInitResources_Quorrel();
        SettingsSingleton::Instance().SetAutomaticCheckForUpdates(false);
        SettingsSingleton::Instance().SetIsMaximized(false);
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        frame_ = std::make_unique<QuorrelFrame>();
        frame_->OnNewProject();
    }

    void Trigger(QString const& text)
    {
        auto* action = frame_->GetAction(text);
        ASSERT_NE(action, nullptr);
        ASSERT_TRUE(action->isEnabled());
        action->trigger();
    }

    [[nodiscard]] static DialogAnswer::Answer Choose(QString const& path)
    {
        return [path](QDialog* dialog) {
            auto* files = qobject_cast<QFileDialog*>(dialog);
            ASSERT_NE(files, nullptr);
            EXPECT_EQ(files->windowTitle(), "Import JSON Well Details File");
            files->findChild<QLineEdit*>("fileNameEdit")->setText(path);
            static_cast<QDialog*>(files)->accept();
        };
    }

    NumberFormatScope scope_;
    test_files::Folder folder_;
    std::unique_ptr<QuorrelFrame> frame_;
};
} // namespace

TEST_F(QuorrelFrameWellDetailsTest, ImportsTheChosenDataOfAJsonFile)
{
    auto const path = folder_.Write("well.json", R"({"Metric Depth": true, "Well Name": "W",
        "Perforations": [{"Top Depth": 10, "Bottom Depth": 20, "Description": "p"}],
        "Misc Well Components": [{"Top Depth": 1, "Bottom Depth": 2, "Type": "Plug"}]})");
    {
        DialogAnswer const cancelled({Choose(path)});
        Trigger("Import Well Details From JSON");
        EXPECT_EQ(frame_->GetWellName(), "");
        EXPECT_NE(SettingsSingleton::Instance().GetWellDetailsJsonImportDataPath(),
                  QFileInfo(path).absolutePath());
    }
    DialogAnswer const dialogs({Choose(path), [](QDialog* dialog) {
                                    for (auto* box : dialog->findChildren<QCheckBox*>()) {
                                        box->setChecked(box->text() == "Perforations");
                                    }
                                    dialog->accept();
                                }});
    Trigger("Import Well Details From JSON");
    EXPECT_EQ(frame_->GetWellName(), "W");
    EXPECT_EQ(frame_->GetPerforationZones(), QList<Zone>({Zone({10, 20}, "p", Zone::DEFAULT_COLOR)}));
    EXPECT_TRUE(frame_->GetComponents().isEmpty());
    EXPECT_EQ(SettingsSingleton::Instance().GetWellDetailsJsonImportDataPath(),
              QFileInfo(path).absolutePath());
}

TEST_F(QuorrelFrameWellDetailsTest, AFileThatIsNoJsonOffersNothingAndSaysWhy)
{
    auto const path = folder_.Write("junk.json", QByteArray("\x00\xff junk", 7));
    QString note;
    DialogAnswer const dialogs({Choose(path), [&note](QDialog* dialog) {
                                    for (auto const* box : dialog->findChildren<QCheckBox*>()) {
                                        EXPECT_FALSE(box->isEnabled());
                                    }
                                    note = dialog->findChildren<QLabel*>().first()->text();
                                    dialog->accept();
                                }});
    Trigger("Import Well Details From JSON");
    EXPECT_NE(note, "");
    EXPECT_EQ(dialogs.GetTitles().size(), 2);
}

TEST_F(QuorrelFrameWellDetailsTest, TheWellDetailsAreAppliedToTheProject)
{
    frame_->SetWellName("before");
    DialogAnswer const dialogs({[](QDialog* dialog) {
        EXPECT_EQ(dialog->windowTitle(), "Well Details");
        dialog->findChild<QLineEdit*>("WellName")->setText("after");
        dialog->accept();
    }});
    Trigger("Well Details Window");
    EXPECT_EQ(frame_->GetWellName(), "after");
}
