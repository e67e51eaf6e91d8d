// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/BusyOverlay.h"
#include "app/QuorrelFrame.h"
#include "app/SurveyComboBox.h"
#include "app/kit/SettingsSingleton.h"
#include "display/ColumnWindow.h"
#include "display/ViewFactory.h"
#include "formats/las/LasLoadingThread.h"
#include "model/UndefinedMnem.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QTimer>

// The flow that brings LAS files into the current survey: a reader thread per file, a check, the insertion,
// the views.

void QuorrelFrame::OnImport()
{
    auto& settings = SettingsSingleton::Instance();
    auto const files = QFileDialog::getOpenFileNames(this, tr("Open LAS File"), settings.GetLasPath(),
                                                     tr("LAS Files (*.las)"));
    if (files.isEmpty() || !current_column_window_) {
        return;
    }
    settings.SetLasPath(QFileInfo(files.first()).absolutePath());
    for (auto const& path : files) {
        // Undo recording stays off until the last result has gone through.
        auto const token = current_column_window_->GetUndoDisableToken();
        auto* thread = new LasLoadingThread(this, path, token);
        auto* overlay = new BusyOverlay(this, 200, 0.1);
        connect(thread, &LasLoadingThread::resultReady, this, &QuorrelFrame::OnLasFileLoaded);
        connect(thread, &LasLoadingThread::finished, thread, &QObject::deleteLater);
        connect(this, &QuorrelFrame::LasFileFinishedLoading_Signal, overlay, &QObject::deleteLater);
        overlay->show();
        thread->start(QThread::InheritPriority);
    }
}

void QuorrelFrame::OnLasFileLoaded(std::shared_ptr<LASFile> file, QString const& path, bool ok,
                                   QString const& error, DisableToken token)
{
    if (busy_overlay_) { // a project thread has the model
        QTimer::singleShot(50, this, [=, this] { OnLasFileLoaded(file, path, ok, error, token); });
        return;
    }
    if (!ok || !file) {
        QMessageBox::warning(this, tr("Warning"), error);
        emit LasFileFinishedLoading_Signal();
        return;
    }
    if (!VerifyLASFile(*file)) {
        emit LasFileFinishedLoading_Signal();
        return;
    }
    try {
        auto const key = GetCurrentSurveyKey();
        bool const is_depth = !file->IsTimeLog();
        if (auto const identifier = AddImportedLogPassToSurvey(*file, path, key)) {
            OnLogPassImported(*identifier, is_depth);
            UpdateMfcMenuBar();
        }
    } catch (std::exception const& exception) {
        qCritical("%sexception cought: %s", Q_FUNC_INFO, exception.what());
        QMessageBox::warning(this, tr("Warning"),
                             "Exception cought while adding logpass to datacontainer: " + path + "\n" +
                                 QString::fromUtf8(exception.what()));
    }
    emit LasFileFinishedLoading_Signal();
}

bool QuorrelFrame::VerifyLASFile(LASFile const& file)
{
    try {
        [[maybe_unused]] auto const& version = file.GetLASVersion().GetData("VERS");
        auto const& well = file.GetLASWellInfo();
        for (auto const* mnemonic : {"STRT", "STOP", "NULL"}) {
            [[maybe_unused]] auto const& data = well.GetData(mnemonic);
        }
        bool is_number = false;
        double const step = well.GetData("STEP").trimmed().toDouble(&is_number);
        // The reader takes a STEP that is no number as 0 too, and resamples.
        if (!is_number || step == 0) {
            QMessageBox::information(
                this, tr("Information"),
                tr("NOTICE: LAS File has STEP == 0. It has been resampled to fixed depth steps "
                   "to be compatible with Quorrel."));
        }
        return true;
    } catch (UndefinedMnem const& undefined) {
        QMessageBox::warning(this, tr("Warning"),
                             tr("Undefined MNEM: ") + QString::fromStdString(undefined.GetMnemonic()));
        return false;
    }
}

void QuorrelFrame::OnLogPassImported(LogPassIdentifier const& identifier, bool is_depth)
{
    auto const column = GetColumnWindow(identifier.survey_key);
    if (!column) {
        return;
    }
    if (is_depth) {
        column->AddImportedDepthLog(GetDepthLogPass(identifier));
        if (identifier.survey_key == GetCurrentSurveyKey()) {
            UpdatePassComboBox();
        }
    } else {
        column->OnTimeLogAdded(GetTimeLog(identifier));
    }
}
