// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/FrameActions.h"
#include "app/LogPassComboBox.h"
#include "app/QuorrelFrame.h"
#include "app/SurveyComboBox.h"
#include "app/SurveyNotesDialog.h"
#include "app/kit/ProjectText.h"
#include "display/ColumnContext.h"
#include "display/ColumnWindow.h"
#include "display/ViewFactory.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QMessageBox>

// Surveys of the main frame: making, selecting, renaming and deleting them with their column windows.

KeyType QuorrelFrame::GetCurrentSurveyKey() const
{
    return survey_combo_box_ ? survey_combo_box_->GetCurrentSurveyKey() : -1;
}

QPointer<ColumnWindow> QuorrelFrame::GetColumnWindow(int survey_key)
{
    auto const& columns = column_windows_.GetColumnWindows();
    auto const found = columns.find(survey_key);
    return found == columns.end() ? nullptr : found->second.get();
}

void QuorrelFrame::OnNewSurvey()
{
    bool accepted = false;
    auto const name = QInputDialog::getText(this, tr("New Survey"), tr("Survey Name:"), QLineEdit::Normal,
                                            QString(), &accepted);
    if (!accepted || name.isEmpty()) {
        QMessageBox::information(this, tr("Empty survey name"), tr("Please enter valid survey name"));
        return;
    }
    if (auto const message = Quorrel::CheckProjectText(tr("The name is"), name); !message.isEmpty()) {
        QMessageBox::information(this, tr("New Survey"), message);
        return;
    }
    AddNewSurvey(name);
    OnImport();
}

KeyType QuorrelFrame::AddNewSurvey(QString const& name)
{
    auto const key = AddSurvey(name);
    CreateColumnWindow(key);
    SetupNewSurvey(key, GetSurveyName(key));
    return key;
}

ColumnContext QuorrelFrame::MakeColumnContext(KeyType key) const
{
    auto const& container = GetDataContainerWrapper().GetReadAccess();
    ColumnContext context;
    context.directional_survey = &container.GetDirectionalSurveyData();
    context.pipe_strings = &container.GetPipeStringData();
    context.components = &container.GetComponents();
    context.perforation_zones = &container.GetPerforationZones();
    context.interpretation_zones = &container.GetInterpretationZones(key);
    context.zone_tracks = &container.GetZoneTracks();
    context.markers_a = &container.GetMarkersA();
    context.markers_b = &container.GetMarkersB();
    return context;
}

void QuorrelFrame::CreateColumnWindow(KeyType key)
{
    auto* column = new ColumnWindow(key, MakeColumnContext(key), view_factory_.get());
    column_windows_.CreateColumnWindow(key, column);
    connect(column, &ColumnWindow::DepthStretchCompleted_Signal, this,
            [this] { actions_->Get(ActionId::StretchPass)->setChecked(false); });
    connect(column, &ColumnWindow::DepthShiftCompleted_Signal, this,
            [this] { actions_->Get(ActionId::ShiftPass)->setChecked(false); });
    connect(column, &ColumnWindow::ApplyShift_Signal, this, &QuorrelFrame::OnApplyShift);
    connect(column, &ColumnWindow::ApplyStretch_Signal, this, &QuorrelFrame::OnApplyStretch);
    connect(this, &QuorrelFrame::SeparatorChange_Signal, column, &ColumnWindow::SeparatorChange_Signal);
}

void QuorrelFrame::SetupNewSurvey(KeyType key, QString const& name)
{
    auto* column = column_windows_.GetColumnWindow(key);
    connect(column, &ColumnWindow::UpdateStatusBar_Signal, this, &QuorrelFrame::OnUpdateStatusBar);
    connect(column, &ColumnWindow::SelectionEnd_Signal, this, &QuorrelFrame::OnSelectionEnd);
    connect(column, &ColumnWindow::HorizontalZoomEnd_Signal, this, &QuorrelFrame::OnHorizontalZoomEnd);
    connect(column, &ColumnWindow::UpdateAllDepthIntervals_Signal, this,
            &QuorrelFrame::OnUpdateAllDepthIntervals);
    connect(column, &ColumnWindow::DataChannelDroppedOnUserDataView_Signal, this,
            &QuorrelFrame::OnDataChannelDroppedOnUserDataView);
    connect(column, &ColumnWindow::UpdateUndoRedoStatus_Signal, this, &QuorrelFrame::UpdateUndoRedoStatus);
    column->AddAddScrollAreaToLayout(central_layout_);
    column->hide();
    survey_combo_box_->AddSurvey(name, key);
    survey_combo_box_->SetCurrentSurvey(key);
    UpdateAvailability();
}

void QuorrelFrame::OnSurveyComboBoxSelection(int index)
{
    auto const next = GetColumnWindow(survey_combo_box_->GetSurveyKey(index));
    if (current_column_window_ && current_column_window_ != next) {
        ResetCheckablePushButtons(nullptr); // a mouse mode stays with the column in which it was begun
        current_column_window_->hide();
    }
    current_column_window_ = next;
    undo_available_ = redo_available_ = false;
    if (current_column_window_) {
        current_column_window_->show();
        current_column_window_->UpdateUndoRedoStatus();
    }
    UpdateScreensCombobox();
    UpdatePassComboBox();
    UpdateMfcMenuBar();
}

void QuorrelFrame::OnSurveyDeleted(KeyType key)
{
    if (!GetColumnWindow(key)) {
        return;
    }
    if (key == GetCurrentSurveyKey()) {
        ResetCheckablePushButtons(nullptr);
    }
    column_windows_.DeleteColumnWindow(key);
    column_windows_.DeleteDependencies(DataChannelIdentifier(key, QString(), -1));
    DeleteSurvey(key);
    survey_combo_box_->DeleteSurvey(key); // selects a neighbour, where there is one
    UpdatePassComboBox();
    UpdateMfcMenuBar();
}

void QuorrelFrame::RenameSurvey(KeyType key, QString const& name)
{
    survey_combo_box_->RenameSurvey(key, ProjectAccess::RenameSurvey(key, name));
}

QString QuorrelFrame::RenameUserDataView(KeyType key, QString const& view, QString const& name)
{
    auto const column = GetColumnWindow(key);
    if (!column || !column->FindUserDataView(view)) {
        return {};
    }
    static_cast<void>(GetDataContainerWrapper().GetWriteAccess(false)); // views are stored with the project
    return column->RenameUserDataView(view, name);
}

void QuorrelFrame::OnEditSurveyText()
{
    auto const key = GetCurrentSurveyKey();
    SurveyNotesDialog dialog(GetSurveyName(key), GetSurveyText(key), this);
    if (dialog.exec() == QDialog::Accepted && dialog.GetText() != GetSurveyText(key)) {
        SetSurveyText(key, dialog.GetText());
    }
}

void QuorrelFrame::ClearAll()
{
    survey_combo_box_->ClearSurveyComboBox();
    log_pass_combo_box_->ClearLogPassComboBox();
    screens_combo_box_->clear();
    ResetCheckablePushButtons(nullptr);
    column_windows_.Clear();
    undo_available_ = redo_available_ = false;
    GetDataContainerWrapper().GetWriteAccess(false).ClearAll();
    UpdateAvailability();
}

void QuorrelFrame::OnNewProject()
{
    ClearAll();
    UpdateMfcMenuBar();
    project_file_name_.clear();
    SetQuorrelTitle(false);
}

void QuorrelFrame::OnSelectionEnd(Zone const& zone)
{
    auto const* vertical_zoom = actions_->Get(ActionId::ZoomVerticalInterval);
    if (vertical_zoom->isChecked()) {
        actions_->Get(ActionId::ZoomVerticalInterval)->setChecked(false);
        return;
    }
    actions_->Get(ActionId::DefineInterpretationZones)->setChecked(false);
    if (zone.GetDepth().IsValid() && zone.GetDepth().Delta() > 0) {
        try {
            AddInterpretationZone(GetCurrentSurveyKey(), zone);
            UpdateAvailability();
            RedrawCurrentColumnWindow();
        } catch (std::exception const& exception) {
            qCritical("%sexception cought: %s", Q_FUNC_INFO, exception.what());
            QMessageBox::warning(this, tr("Warning"), QString::fromUtf8(exception.what()));
        }
    }
}

void QuorrelFrame::OnUpdateAllDepthIntervals()
{
    for (auto const& [key, column] : column_windows_.GetColumnWindows()) {
        column->OnVisibleWidgetDataChanged();
    }
}

void QuorrelFrame::OnDataChannelDroppedOnUserDataView(QString const& view,
                                                      DataChannelIdentifier const& identifier)
{
    if (current_column_window_) {
        current_column_window_->AddDepthDataChannelToDataView(view, GetDepthDataChannel(identifier));
    }
}
