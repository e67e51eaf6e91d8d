// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsDialog.h"

#include "model/ProjectAccess.h"
#include "well/DepthMarkerTable.h"
#include "well/DirectionalSurveyTable.h"
#include "well/MainPipeStringTabWidget.h"
#include "well/MainZoneTabWidget.h"
#include "well/PipeData.h"
#include "well/PipeTable.h"
#include "well/TieInWidget.h"
#include "well/WellComponentTable.h"
#include "well/ZoneTable.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>

#include <algorithm>
#include <exception>

// Between the form of the well details and the project.

namespace {
/// What a table makes of stored data when nothing is edited: intervals in ascending order. Only what differs
/// from that is a change.
QList<Zone> Ordered(QList<Zone> zones)
{
    ZoneTable::OrderZoneInterval(zones);
    return zones;
}

QList<ZoneTrack> Ordered(QList<ZoneTrack> tracks)
{
    for (auto& track : tracks) {
        track.SetZones(Ordered(track.GetZones()));
    }
    return tracks;
}

QList<WellComponent> Ordered(QList<WellComponent> components)
{
    WellComponentTable::OrderWellComponentInterval(components);
    return components;
}
} // namespace

WellDetails WellDetailsDialog::ReadForm()
{
    // An editor still open in a cell gives its text when it loses the focus.
    if (QWidget* focus = focusWidget(); focus != nullptr && qobject_cast<QPushButton*>(focus) == nullptr) {
        focus->clearFocus();
    }
    // The pages in the order of their tabs; the one that throws is the one shown.
    int page = 0;
    try {
        WellDetails details;
        details.stations = survey_table_->GetSurveyVector();
        details.tie_in = tie_in_->GetTieIn();
        ++page;
        details.perforations = perfo_table_->GetZones();
        ++page;
        details.zone_tracks = zone_tracks_->GetZoneTracks();
        ++page;
        details.markers_a = markers_a_table_->GetMarkers();
        ++page;
        details.markers_b = markers_b_table_->GetMarkers();
        ++page;
        details.pipes = pipe_table_->GetPipes_OD_Sorted();
        ++page;
        details.pipe_strings = pipe_strings_->GetPipeStrings();
        ++page;
        details.components = component_table_->GetComponents();
        ++page;
        details.well_name = GetMiscWellDetails();
        return details;
    } catch (std::exception const&) {
        tabs_->setCurrentIndex(page);
        throw;
    }
}

void WellDetailsDialog::Write(WellDetails const& details)
{
    auto stations = details.stations;
    std::stable_sort(stations.begin(), stations.end());
    if (stations != project_.GetDirectionalSurveyVector() ||
        details.tie_in != project_.GetDirectionalSurveyTieInData()) {
        project_.SetTrajectorySurvey(stations, details.tie_in);
    }
    if (details.perforations != Ordered(project_.GetPerforationZones())) {
        project_.SetPerforationZones(details.perforations);
    }
    if (details.zone_tracks != Ordered(project_.GetZoneTracks())) {
        project_.SetZoneTracks(details.zone_tracks);
    }
    if (details.markers_a != project_.GetMarkersA()) {
        project_.SetMarkersA(details.markers_a);
    }
    if (details.markers_b != project_.GetMarkersB()) {
        project_.SetMarkersB(details.markers_b);
    }
    if (details.pipe_strings != project_.GetPipeStringData().GetPipeStringVector()) {
        project_.SetPipeStringData(details.pipe_strings);
    }
    if (details.well_name != project_.GetWellName()) {
        project_.SetWellName(details.well_name);
    }
    if (details.components != Ordered(project_.GetComponents())) {
        project_.SetComponents(details.components);
    }
    if (!details.pipes.isEmpty()) {
        std::vector<PipeString> converted;
        ConvertPipeListToPipeStringVector(details.pipes, converted);
        project_.SetPipeStringData(converted);
    }
}

bool WellDetailsDialog::ApplyData()
{
    try {
        Write(ReadForm());
    } catch (std::exception const& error) {
        ShowError(QString::fromUtf8(error.what()));
        return false;
    }
    emit UpdateColumnWindow_Signal();
    Refresh();
    return true;
}

void WellDetailsDialog::Refresh()
{
    survey_table_->AssignSurveyItemVector(project_.GetDirectionalSurveyVector());
    tie_in_->SetTieIn(project_.GetDirectionalSurveyTieInData());
    perfo_table_->InitializeTable(project_.GetPerforationZones());
    zone_tracks_->SetZoneTracks(project_.GetZoneTracks());
    markers_a_table_->InitializeTable(project_.GetMarkersA());
    markers_b_table_->InitializeTable(project_.GetMarkersB());
    pipe_table_->setRowCount(0);
    pipe_strings_->SetPipeStrings(project_.GetPipeStringData().GetPipeStringVector());
    component_table_->InitializeTable(project_.GetComponents());
    SetMiscWellDetails(project_.GetWellName());
}

void WellDetailsDialog::ShowError(QString const& text)
{
    QMessageBox box(QMessageBox::Warning, windowTitle(), text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void WellDetailsDialog::OnApply()
{
    ApplyData();
}

void WellDetailsDialog::accept()
{
    if (ApplyData()) {
        QDialog::accept();
    }
}
