// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsDialog.h"

#include "well/DepthMarkerTable.h"
#include "well/DirectionalSurveyData.h"
#include "well/DirectionalSurveyTable.h"
#include "well/MainPipeStringTabWidget.h"
#include "well/MainZoneTabWidget.h"
#include "well/NameEdit.h"
#include "well/PipeComponentTable.h"
#include "well/PipeTable.h"
#include "well/SurveyImporter.h"
#include "well/TieInWidget.h"
#include "well/WellComponentTable.h"
#include "well/WellTrajectoryDialog.h"
#include "well/ZoneTable.h"

#include <exception>

// What the buttons of the well details do.

void WellDetailsDialog::OnAddSurvey()
{
    survey_table_->AddSurveyItem();
}

void WellDetailsDialog::OnDeleteSurvey()
{
    survey_table_->DeleteSelectedRows();
}

void WellDetailsDialog::OnImportSurvey()
{
    SurveyImporter importer(this);
    if (importer.exec() == QDialog::Accepted) {
        survey_table_->AssignSurveyItemVector(importer.GetImportedSurvey());
    }
}

void WellDetailsDialog::OnRecalculateSurvey()
{
    try {
        DirectionalSurveyData const survey(survey_table_->GetSurveyVector(), tie_in_->GetTieIn());
        WellTrajectoryDialog(survey, this).exec();
    } catch (std::exception const& error) {
        ShowError(QString::fromUtf8(error.what()));
    }
}

void WellDetailsDialog::OnAddPerfo()
{
    perfo_table_->AddRow();
}

void WellDetailsDialog::OnDeletePerfo()
{
    perfo_table_->DeleteSelectedRows();
}

void WellDetailsDialog::OnAddZone()
{
    if (zone_tracks_->GetCurrentZoneTable() == nullptr) {
        OnAddZoneTrack();
    }
    zone_tracks_->GetCurrentZoneTable()->AddRow();
}

void WellDetailsDialog::OnDeleteZone()
{
    if (auto* table = zone_tracks_->GetCurrentZoneTable()) {
        table->DeleteSelectedRows();
    }
}

void WellDetailsDialog::OnAddZoneTrack()
{
    zone_tracks_->AddZoneTrack(ZoneTrack(tr("Zones %1").arg(zone_tracks_->count() + 1)));
}

void WellDetailsDialog::OnDeleteZoneTrack()
{
    zone_tracks_->DeleteCurrentZoneTrack();
}

void WellDetailsDialog::OnAddMarkerA()
{
    markers_a_table_->AddRow();
}

void WellDetailsDialog::OnDeleteMarkerA()
{
    markers_a_table_->DeleteSelectedRows();
}

void WellDetailsDialog::OnAddMarkerB()
{
    markers_b_table_->AddRow();
}

void WellDetailsDialog::OnDeleteMarkerB()
{
    markers_b_table_->DeleteSelectedRows();
}

void WellDetailsDialog::OnAddPipe()
{
    pipe_table_->AddRow(Pipe(Interval(0, 0), 0, 0, 0, false, QString()));
}

void WellDetailsDialog::OnDeletePipe()
{
    pipe_table_->DeleteSelectedRows();
}

void WellDetailsDialog::OnAddPipeString()
{
    pipe_strings_->AddPipeString(
        PipeString(tr("Pipe String %1").arg(pipe_strings_->count() + 1), 0, false, {}));
}

void WellDetailsDialog::OnDeletePipeString()
{
    pipe_strings_->DeleteCurrentPipeString();
}

void WellDetailsDialog::OnAddPipeComponent()
{
    if (pipe_strings_->GetCurrentPipeComponentTable() == nullptr) {
        OnAddPipeString();
    }
    pipe_strings_->GetCurrentPipeComponentTable()->AddRow();
}

void WellDetailsDialog::OnDeletePipeComponent()
{
    if (auto* table = pipe_strings_->GetCurrentPipeComponentTable()) {
        table->DeleteSelectedRows();
    }
}

void WellDetailsDialog::OnAddComponent()
{
    component_table_->AddRow();
}

void WellDetailsDialog::OnDeleteComponent()
{
    component_table_->DeleteSelectedRows();
}

QString WellDetailsDialog::GetMiscWellDetails() const
{
    return well_name_->text();
}

void WellDetailsDialog::SetMiscWellDetails(QString const& well_name)
{
    well_name_->setText(well_name);
}
