// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/QuorrelFrame.h"
#include "app/kit/SettingsSingleton.h"
#include "well/JsonImporterDialog.h"
#include "well/WellDetailsDialog.h"
#include "well/WellDetailsImport.h"
#include "well/WellDetailsImporter.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

// What is known of the well besides its logs: the form for it and the import of a well details file.

void QuorrelFrame::OnWellDetails()
{
    WellDetailsDialog dialog(this, *this);
    connect(&dialog, &WellDetailsDialog::UpdateColumnWindow_Signal, this,
            &QuorrelFrame::RedrawAllColumnWindows);
    dialog.exec();
}

void QuorrelFrame::OnImportWellDetails()
{
    auto& settings = SettingsSingleton::Instance();
    auto const path =
        QFileDialog::getOpenFileName(this, tr("Import JSON Well Details File"),
                                     settings.GetWellDetailsJsonImportDataPath(), tr("JSON (*.json)"));
    if (path.isEmpty()) {
        return;
    }
    WellDetailsImporter const importer(path);
    if (auto const message = WellDetailsImport::Check(importer); !message.isEmpty()) {
        QMessageBox box(QMessageBox::Warning, tr("Import JSON Well Details File"), message, QMessageBox::Ok,
                        this);
        box.setTextFormat(Qt::PlainText);
        box.exec();
        return;
    }
    JsonImporterDialog dialog(this, !importer.GetInclinationSurvey().first.empty(),
                              !importer.GetPerforaitons().isEmpty(), !importer.GetPipeStringVector().empty(),
                              !importer.GetMiscComponents().isEmpty());
    dialog.SetNote(importer.GetError());
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    settings.SetWellDetailsJsonImportDataPath(QFileInfo(path).absolutePath());
    WellDetailsImport::Apply(*this, importer,
                             {.inclination = dialog.InclinationChecked(),
                              .perforations = dialog.PerfChecked(),
                              .pipe_strings = dialog.PipeStringChecked(),
                              .components = dialog.WellComponentsChecked(),
                              .replace = dialog.ReplaceDataMode()});
    RedrawAllColumnWindows();
}
