// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/QuorrelFrame.h"

#include "display/BaseCombinedViewWidget.h"
#include "display/ColumnWindow.h"
#include "resources/Resources.h"
#include "support/DialogAnswer.h"
#include "support/NumberFormats.h"
#include "support/TestFiles.h"
#include "support/Texts.h"
#include "support/WaitFor.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

/// A LAS file of `rows` rows from 1000 m on, step 1 m, with a GR curve.
inline QByteArray MakeLas(QByteArray const& step = "1.0", QByteArray const& extra_well = "NULL. -999.25 :\n",
                          QByteArray const& index = "DEPT.M : depth\n", int rows = 11)
{
    QByteArray las = "~Version\nVERS. 2.0 :\nWRAP. NO :\n~Well\nSTRT.M 1000 :\nSTOP.M " +
                     QByteArray::number(999 + rows) + " :\nSTEP.M " + step + " :\n" + extra_well +
                     "~Curve\n" + index + "GR.GAPI : gamma\n~Ascii\n";
    for (int i = 0; i < rows; ++i) {
        las += QByteArray::number(1000 + i) + " " + QByteArray::number(40 + i) + ".5\n";
    }
    return las;
}

/// The main frame on screen, in metres and with the number format "US", whose actions are pressed and whose
/// dialogs are answered.
class FrameFixture : public testing::Test
{
protected:
    /// The dialogs that an action opened.
    struct Seen
    {
        QStringList titles;
        QStringList messages;
    };

    void SetUp() override
    {
        qInitResources_Quorrel();
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        auto& settings = SettingsSingleton::Instance();
        settings.SetAutomaticCheckForUpdates(false);
        settings.SetIsMaximized(false);
        frame_ = std::make_unique<QuorrelFrame>();
        frame_->resize(1200, 800);
        frame_->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(frame_.get()));
    }

    QAction* Action(QString const& text)
    {
        auto* action = frame_->GetAction(text);
        EXPECT_NE(action, nullptr) << text.toStdString();
        return action;
    }

    QComboBox* PassComboBox() { return frame_->findChild<QComboBox*>("LogPassComboBox"); }

    /// Names of the current column's views on screen, from left to right.
    QStringList ShownViews()
    {
        return Texts(frame_->GetCurrentColumnWindow()->FindAllVisibleCombinedViewWidgets(),
                     &BaseCombinedViewWidget::GetBaseViewWidgetName);
    }

    /// Answers a file dialog with these files.
    static DialogAnswer::Answer ChooseFiles(QStringList const& paths)
    {
        return [paths](QDialog* dialog) {
            auto* files = qobject_cast<QFileDialog*>(dialog);
            ASSERT_NE(files, nullptr);
            files->findChild<QLineEdit*>("fileNameEdit")
                ->setText(paths.size() == 1 ? paths.first() : '"' + paths.join("\" \"") + '"');
            static_cast<QDialog*>(files)->accept();
        };
    }

    /// Chooses files through "Add LAS File to Survey" and waits for all of them. The file dialog is answered
    /// first, then `answers` in order.
    Seen Import(QStringList const& paths, std::vector<DialogAnswer::Answer> answers = {})
    {
        answers.insert(answers.begin(), ChooseFiles(paths));
        DialogAnswer dialogs(std::move(answers));
        QSignalSpy finished(frame_.get(), &QuorrelFrame::LasFileFinishedLoading_Signal);
        Action("Add LAS File to Survey")->trigger();
        EXPECT_TRUE(WaitFor([&] { return finished.count() >= paths.size(); }));
        // A reader that is not gone yet still keeps undo from recording.
        EXPECT_TRUE(WaitFor([&] { return frame_->findChildren<QThread*>().isEmpty(); }));
        return {dialogs.GetTitles(), dialogs.GetMessages()};
    }

    NumberFormatScope scope_; // in metres, ends after the frame
    test_files::Folder folder_;
    std::unique_ptr<QuorrelFrame> frame_;
};
