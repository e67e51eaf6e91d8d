// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/BusyOverlay.h"
#include "app/ColumnRestorer.h"
#include "app/ProjectThreads.h"
#include "app/QuorrelFrame.h"
#include "app/RecentFiles.h"
#include "app/ScreensManager.h"
#include "app/SurveyComboBox.h"
#include "app/kit/SettingsSingleton.h"
#include "display/ColumnWindow.h"
#include "display/ViewFactory.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QSignalBlocker>
#include <QToolBar>

// The project flows of the main frame, saving and opening behind an overlay, and the stored screens.

namespace {
constexpr char const* FILE_FILTER = "Quorrel File (*.qz4)";

/// The well name as a file name.
QString ProposeFileName(QString well_name)
{
    for (QChar const character : QStringLiteral("\\/<>:\"|?*")) {
        well_name.replace(character, '-');
    }
    return well_name;
}
} // namespace

void QuorrelFrame::SetBusy(bool busy)
{
    if (busy) {
        busy_overlay_ = new BusyOverlay(this, 200, 0.1);
    } else {
        delete busy_overlay_;
    }
    // The overlay takes the mouse; this takes the keys.
    menuBar()->setEnabled(!busy);
    for (auto* tool_bar : findChildren<QToolBar*>()) {
        tool_bar->setEnabled(!busy);
    }
    centralWidget()->setEnabled(!busy);
    if (!busy) {
        UpdateAvailability();
    }
}

void QuorrelFrame::OnSaveProject()
{
    auto const folder = SettingsSingleton::Instance().GetQz4Path();
    auto proposal = ProposeFileName(GetDataContainerWrapper().GetReadAccess().GetWellName());
    if (QFileInfo(folder).isDir()) {
        proposal = QFileInfo(folder + '/' + proposal).absoluteFilePath();
    }
    auto path = QFileDialog::getSaveFileName(this, tr("Save Quorrel File"), proposal, tr(FILE_FILTER));
    QFileInfo const info(path);
    if (info.baseName().isEmpty()) {
        return;
    }
    if (info.suffix() != QLatin1String("qz4")) {
        path += ".qz4";
        // The dialog has asked for the name as it was typed.
        if (QFileInfo::exists(path) &&
            QMessageBox::question(
                this, tr("Save Quorrel File"),
                tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(path).fileName())) !=
                QMessageBox::Yes) {
            return;
        }
    }
    SaveProject(path);
}

void QuorrelFrame::SaveProject(QString const& path)
{
    // The windows' records are taken here: widgets belong to this thread.
    project_file::ColumnWindowRecords windows;
    for (auto const& [key, column] : column_windows_.GetColumnWindows()) {
        windows.emplace(key, column->WriteState_ColumnWindow());
    }
    auto* thread = new ProjectSavingThread(this, path, GetDataContainerWrapper().GetReadAccess(),
                                           std::move(windows), GetCurrentSurveyKey());
    connect(thread, &ProjectSavingThread::resultReady, this, &QuorrelFrame::OnProjectSaved);
    connect(thread, &ProjectSavingThread::finished, thread, &QObject::deleteLater);
    SetBusy(true);
    thread->start();
}

void QuorrelFrame::OnProjectSaved(QString const& path, bool success, QString const& message)
{
    SetBusy(false);
    if (success) {
        AdjustForFileChange(path);
    } else {
        QMessageBox::warning(this, tr("Warning"), message);
    }
    emit ProjectSaved_Signal(success);
}

void QuorrelFrame::AdjustForFileChange(QString const& path)
{
    SettingsSingleton::Instance().SetQz4Path(QFileInfo(path).absolutePath());
    project_file_name_ = path;
    SetQuorrelTitle(false);
    recent_files_->AdjustForFileChange(QFileInfo(path).absoluteFilePath());
}

void QuorrelFrame::OnLoadProject()
{
    auto const path = QFileDialog::getOpenFileName(
        this, tr("Open Quorrel File"), SettingsSingleton::Instance().GetQz4Path(), tr(FILE_FILTER));
    if (!path.isEmpty()) {
        LoadProject(path);
    }
}

void QuorrelFrame::LoadProject(QString const& path)
{
    OnNewProject();
    if (QFile file(path); !file.open(QIODevice::ReadOnly)) {
        QMessageBox::warning(this, tr("Warning"), tr("File Not Found"));
        emit ProjectLoaded_Signal(false);
        return;
    }
    auto* thread = new ProjectLoadingThread(this, path, GetDataContainerWrapper().GetWriteAccess(true));
    connect(thread, &ProjectLoadingThread::resultReady, this, &QuorrelFrame::OnQz4FileLoaded);
    connect(thread, &ProjectLoadingThread::finished, thread, &QObject::deleteLater);
    SetBusy(true);
    thread->start();
}

void QuorrelFrame::OnQz4FileLoaded(QString const& path,
                                   std::shared_ptr<project_file::ColumnWindowRecords> const& windows,
                                   int current_survey_key, bool success, QString const& message)
{
    SetBusy(false);
    if (!success) {
        OnNewProject(); // nothing of a half read project stays
        QMessageBox::warning(this, tr("Warning"), message);
        emit ProjectLoaded_Signal(false);
        return;
    }
    QStringList warnings;
    {
        QSignalBlocker const blocker(survey_combo_box_);
        RestoreGuiAfterDatacontainerLoad();
        for (auto const& [key, record] : *windows) {
            if (auto const column = GetColumnWindow(key)) {
                warnings += ColumnRestorer(*column, *this).RestoreColumnWindow(record);
            }
        }
        column_windows_.HideAll();
        survey_combo_box_->SetCurrentSurvey(current_survey_key);
    }
    OnSurveyComboBoxSelection(survey_combo_box_->FindIndex(current_survey_key));
    AdjustForFileChange(path);
    for (auto const& warning : warnings) {
        QMessageBox::warning(this, tr("Warning"), warning);
    }
    emit ProjectLoaded_Signal(true);
}

void QuorrelFrame::RestoreGuiAfterDatacontainerLoad()
{
    for (auto const key : GetAllSurveyKeys()) {
        CreateColumnWindow(key);
        SetupNewSurvey(key, GetSurveyName(key));
    }
}

void QuorrelFrame::OnScreensManager()
{
    if (!current_column_window_) {
        return;
    }
    ScreensManager manager(*current_column_window_, this);
    auto const changed = [this] {
        OnDataContainerWrite(); // screens are stored with the project
        UpdateScreensCombobox();
    };
    connect(&manager, &ScreensManager::ScreenAdded_Signal, this, changed);
    connect(&manager, &ScreensManager::ScreenDeleted_Signal, this, changed);
    manager.exec();
}

void QuorrelFrame::UpdateScreensCombobox()
{
    QSignalBlocker const blocker(screens_combo_box_);
    screens_combo_box_->clear();
    if (current_column_window_) {
        screens_combo_box_->addItems(current_column_window_->GetScreenNames());
        screens_combo_box_->setCurrentIndex(
            screens_combo_box_->findText(current_column_window_->GetScreens().GetCurrentScreenName()));
    }
    screens_tool_bar_->setEnabled(!current_column_window_.isNull());
}

void QuorrelFrame::OnScreensComboboxSelection(QString const& name)
{
    if (current_column_window_) {
        current_column_window_->RestoreScreen(name);
    }
}
