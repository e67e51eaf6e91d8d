// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/FormDialog.h"
#include "well/WellDetails.h"

class DepthMarkerTable;
class DirectionalSurveyTable;
class MainPipeStringTabWidget;
class MainZoneTabWidget;
class NameEdit;
class PipeTable;
class ProjectAccess;
class QTabWidget;
class TablePage;
class TieInWidget;
class WellComponentTable;
class ZoneTable;

/// The form for all that is known of the well besides its logs, a tab for each kind of data. Every table can
/// be copied to and pasted from a spreadsheet. Nothing reaches the project until it is applied, and then only
/// what was changed.
class WellDetailsDialog : public FormDialog
{
    Q_OBJECT
public:
    WellDetailsDialog(QWidget* parent, ProjectAccess& project);

    /// Reads the form and writes what differs from the project, then shows what is stored. Wrong input is
    /// marked and told, and nothing is written. True when the dialog may close.
    bool ApplyData();

    /// The hint on a table's clipboard text, in the settings' number format: F and f are numbers, T a tab, D
    /// a description, I a whole number, C a colour, S<...> a fixed text.
    [[nodiscard]] static QString GeneratePasteFormatString(QString const& format);

    /// The well's name.
    [[nodiscard]] QString GetMiscWellDetails() const;
    void SetMiscWellDetails(QString const& well_name);

public slots:
    void OnApply();
    void accept() override;
    void OnAddSurvey();
    void OnDeleteSurvey();
    void OnImportSurvey();
    void OnRecalculateSurvey();
    void OnAddPerfo();
    void OnDeletePerfo();
    void OnAddZone();
    void OnDeleteZone();
    void OnAddZoneTrack();
    void OnDeleteZoneTrack();
    void OnAddMarkerA();
    void OnDeleteMarkerA();
    void OnAddMarkerB();
    void OnDeleteMarkerB();
    void OnAddPipe();
    void OnDeletePipe();
    void OnAddPipeString();
    void OnDeletePipeString();
    void OnAddPipeComponent();
    void OnDeletePipeComponent();
    void OnAddComponent();
    void OnDeleteComponent();

signals:
    /// Well data were applied; what draws them is to be drawn anew.
    void UpdateColumnWindow_Signal();

private:
    void AddSurveyPage();
    void AddZonePages();
    void AddMarkerPages();
    void AddPipePages();
    void AddComponentPage();
    void AddMiscPage();

    /// Fills the form from the project.
    void Refresh();
    /// @throws std::exception for wrong input, whose tab is shown then
    [[nodiscard]] WellDetails ReadForm();
    void Write(WellDetails const& details);
    void ShowError(QString const& text);

    ProjectAccess& project_;
    QTabWidget* tabs_;
    DirectionalSurveyTable* survey_table_;
    TieInWidget* tie_in_;
    ZoneTable* perfo_table_;
    MainZoneTabWidget* zone_tracks_;
    DepthMarkerTable* markers_a_table_;
    DepthMarkerTable* markers_b_table_;
    PipeTable* pipe_table_;
    MainPipeStringTabWidget* pipe_strings_;
    WellComponentTable* component_table_;
    NameEdit* well_name_;
};
