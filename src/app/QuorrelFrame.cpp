// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/QuorrelFrame.h"

#include "app/BuildDate.h"
#include "app/FrameActions.h"
#include "app/FrameState.h"
#include "app/LogPassComboBox.h"
#include "app/RecentFiles.h"
#include "app/SettingsDialog.h"
#include "app/SurveyComboBox.h"
#include "app/VersionCheck.h"
#include "app/kit/ColorScheme.h"
#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "display/ColumnWindow.h"
#include "display/DisplayedIntervalDialog.h"
#include "display/ScrollAreaWrapper.h"
#include "display/TimeCurveOverlay.h"
#include "display/XYChart.h"
#include "model/LogDepthQuestion.h"
#include "well/WellViewFactory.h"

#include <QComboBox>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScreen>
#include <QStatusBar>
#include <QThread>
#include <QTimer>
#include <QToolBar>

#include <cmath>

namespace {
/// A window of its own, which deletes itself.
void OpenTimeLogChart(TimeLogChart const& data, QWidget* parent)
{
    auto* chart = new XYChart(data.x, data.y, parent);
    chart->setWindowFlag(Qt::Window);
    chart->setAttribute(Qt::WA_DeleteOnClose);
    chart->setWindowTitle(data.window_title);
    chart->SetChartTitle(data.title);
    chart->SetAxesTitles(data.x_axis_title, data.y_axis_title);
    chart->show();
}
} // namespace

namespace {
constexpr QSize DEFAULT_SIZE(1200, 800);
} // namespace

QuorrelFrame::QuorrelFrame(QWidget* parent)
    : QMainWindow(parent),
      recent_files_(std::make_unique<RecentFiles>()),
      view_factory_(std::make_unique<WellViewFactory>())
{
    color_scheme_ = new ColorScheme(this);
    connect(color_scheme_, &ColorScheme::Changed_Signal, this, &QuorrelFrame::SetActionIcons);
    LogDepthQuestion::Install([this](QString const& title, QString const& label) -> std::optional<double> {
        bool accepted = false;
        double const depth = QInputDialog::getDouble(this, title, label, 0, -100000, 1000000, 2, &accepted,
                                                     Qt::WindowFlags(), 1);
        return accepted ? std::optional(depth) : std::nullopt;
    });

    TimeCurveOverlay::SetChartOpener(&OpenTimeLogChart);

    CreateActions();
    CreateMenus();
    CreateToolBars();
    statusBar()->showMessage(tr("Ready"));

    auto* central = new QWidget(this);
    central_layout_ = new QHBoxLayout(central);
    central_layout_->setContentsMargins(0, 0, 0, 0);
    setCentralWidget(central);
    setObjectName("MainWindow");

    SetQuorrelTitle(false);
    resize(DEFAULT_SIZE);
    InitialWindowResize();
    ClearAll();
    UpdateMfcMenuBar();
    project_file_name_.clear();
    SetQuorrelTitle(false);
    if (SettingsSingleton::Instance().GetAutomaticCheckForUpdates()) {
        MakeVersionCheck()->CheckForNewVersion();
    }
    // Last, so that nothing done during construction counts as a change.
    connect(&GetDataContainerWrapper(), &DataContainerWrapper::DataContainerWriteAccessRequested_Signal, this,
            &QuorrelFrame::OnDataContainerWrite);
}

QuorrelFrame::~QuorrelFrame()
{
    // Readers and savers end their work first: a thread must not be destroyed while it runs.
    for (auto* thread : findChildren<QThread*>()) {
        thread->wait();
    }
    auto& settings = SettingsSingleton::Instance();
    settings.SetFrameGeometry(saveGeometry());
    settings.SetIsMaximized(isMaximized() || covers_screen_);
    LogDepthQuestion::Install({});
    TimeCurveOverlay::SetChartOpener({});
    // The columns' last signals would find members gone.
    for (auto const& [key, column] : column_windows_.GetColumnWindows()) {
        column->disconnect(this);
    }
    survey_combo_box_->disconnect(this);
    log_pass_combo_box_->disconnect(this);
    column_windows_.Clear();
}

void QuorrelFrame::CreateActions()
{
    actions_ = new FrameActions(this);
    auto on = [this](ActionId id, void (QuorrelFrame::*slot)()) {
        connect(actions_->Get(id), &QAction::triggered, this, slot);
    };
    auto on_toggled = [this](ActionId id, void (QuorrelFrame::*slot)(bool)) {
        connect(actions_->Get(id), &QAction::toggled, this, slot);
    };
    on(ActionId::NewSurvey, &QuorrelFrame::OnNewSurvey);
    on(ActionId::NewProject, &QuorrelFrame::OnNewProject);
    on(ActionId::OpenProject, &QuorrelFrame::OnLoadProject);
    on(ActionId::SaveProject, &QuorrelFrame::OnSaveProject);
    on(ActionId::ScreensManager, &QuorrelFrame::OnScreensManager);
    on(ActionId::AddLasFile, &QuorrelFrame::OnImport);
    on(ActionId::Exit, &QuorrelFrame::OnClose);
    on(ActionId::SetDisplayInterval, &QuorrelFrame::OnSetDisplayInterval);
    on(ActionId::ZoomIn, &QuorrelFrame::OnZoomIn);
    on(ActionId::ZoomOut, &QuorrelFrame::OnZoomOut);
    on(ActionId::Undo, &QuorrelFrame::OnUndo);
    on(ActionId::Redo, &QuorrelFrame::OnRedo);
    on(ActionId::ResetZooms, &QuorrelFrame::OnZoomHome);
    on(ActionId::AdjustScales, &QuorrelFrame::OnAdjustScalesToVisibleDepth);
    on(ActionId::EditSurveyNotes, &QuorrelFrame::OnEditSurveyText);
    on(ActionId::ShowVerticalSection, &QuorrelFrame::OnShowVerticalSection);
    on(ActionId::About, &QuorrelFrame::OnAbout);
    on(ActionId::AboutQt, &QuorrelFrame::OnAbout);
    on(ActionId::Homepage, &QuorrelFrame::OnWebpage);
    on(ActionId::CheckForUpdates, &QuorrelFrame::OnCheckForNewVersion_MenuAction);
    on(ActionId::PreviousPass, &QuorrelFrame::OnPreviousPass);
    on(ActionId::NextPass, &QuorrelFrame::OnNextPass);
    on(ActionId::WellDetails, &QuorrelFrame::OnWellDetails);
    on(ActionId::ImportWellDetails, &QuorrelFrame::OnImportWellDetails);
    on(ActionId::Settings, &QuorrelFrame::OnSettings);
    on_toggled(ActionId::ZoomVerticalInterval, &QuorrelFrame::ZoomVerticalIntervalToggled);
    on_toggled(ActionId::ZoomHorizontalInterval, &QuorrelFrame::ZoomHorizontalIntervalToggled);
    on_toggled(ActionId::DefineInterpretationZones, &QuorrelFrame::InterpretationZoneDefinitionToggled);
    on_toggled(ActionId::ShiftPass, &QuorrelFrame::OnShiftToggled);
    on_toggled(ActionId::StretchPass, &QuorrelFrame::OnStretchToggled);
    on_toggled(ActionId::HidePass, &QuorrelFrame::OnHidePassToggled);
    on_toggled(ActionId::HighlightPass, &QuorrelFrame::OnHighLightPassToggled);
    on_toggled(ActionId::TrackingMode, &QuorrelFrame::OnTrackingMode);

    actions_->Get(ActionId::MfcMode)->setChecked(Quorrel::MFC_MODE_SHARED_TRACKS);
    actions_->Get(ActionId::MfcColorMap)->setChecked(Quorrel::MFC_COLOR_MAP);
    on_toggled(ActionId::MfcMode, &QuorrelFrame::OnMfcMode);
    on_toggled(ActionId::MfcColorMap, &QuorrelFrame::OnMfcColorMap);

    // These two follow the model and the settings, so only the user's hand counts, not setChecked.
    auto on_triggered = [this](ActionId id, void (QuorrelFrame::*slot)(bool)) {
        connect(actions_->Get(id), &QAction::triggered, this, slot);
    };
    on_triggered(ActionId::ToggleDepthUnit, &QuorrelFrame::OnIsMetricDepthToggled);
    on_triggered(ActionId::ToggleSeparator, &QuorrelFrame::OnIsSeparatorPeriodToggled);
    InitializeSeparatorAction();
    InitializeDepthUnitAction();
    actions_->Get(ActionId::CheckForUpdates)
        ->setStatusTip(tr("Check whether a newer version of Quorrel exist (Current: ") +
                       BuildDate::GetVersionFileName() + ")");

    recent_files_->CreateRecentFileActionList(this);
    connect(recent_files_.get(), &RecentFiles::LoadRecent_Signal, this, &QuorrelFrame::LoadProject);
}

void QuorrelFrame::CreateMenus()
{
    auto* file = menuBar()->addMenu(tr("&File"));
    actions_->AddToMenu(MenuId::File, file);
    auto* recent = new QMenu(tr("Recent Files"), file);
    recent_files_->AddActionsToMenu(recent);
    file->insertMenu(actions_->Get(ActionId::SaveProject), recent);
    actions_->AddToMenu(MenuId::View, menuBar()->addMenu(tr("&View")));
    actions_->AddToMenu(MenuId::Edit, menuBar()->addMenu(tr("&Edit")));
    actions_->AddToMenu(MenuId::Help, menuBar()->addMenu(tr("&Help")));
}

void QuorrelFrame::CreateToolBars()
{
    auto make = [this](QString const& title) {
        auto* tool_bar = addToolBar(title);
        tool_bar->setObjectName(title);
        return tool_bar;
    };
    file_tool_bar_ = make(tr("File"));
    zoom_tool_bar_ = make(tr("Zoom"));
    screens_tool_bar_ = make(tr("Screens Toolbar"));
    settings_tool_bar_ = make(tr("Settings"));
    addToolBarBreak();
    well_tool_bar_ = make(tr("Well"));
    survey_tool_bar_ = make(tr("Survey"));
    passes_tool_bar_ = make(tr("Passes"));
    caliper_tool_bar_ = make(tr("Multifinger Caliper"));
    interpretation_tool_bar_ = make(tr("Interpretation"));

    actions_->AddToToolBar(ToolBarId::File, file_tool_bar_);
    actions_->AddToToolBar(ToolBarId::Zoom, zoom_tool_bar_);
    screens_combo_box_ = new QComboBox(screens_tool_bar_);
    screens_combo_box_->setToolTip(tr("Select stored screen"));
    screens_combo_box_->setWindowTitle(tr("Select stored screen"));
    screens_combo_box_->setMinimumContentsLength(12);
    screens_tool_bar_->addWidget(screens_combo_box_);
    connect(screens_combo_box_, &QComboBox::textActivated, this, &QuorrelFrame::OnScreensComboboxSelection);
    actions_->AddToToolBar(ToolBarId::Screens, screens_tool_bar_);
    actions_->AddToToolBar(ToolBarId::Settings, settings_tool_bar_);
    actions_->AddToToolBar(ToolBarId::Well, well_tool_bar_);

    survey_combo_box_ = new SurveyComboBox(this);
    survey_combo_box_->AddSurveyComboBoxToToolBar(survey_tool_bar_);
    actions_->AddToToolBar(ToolBarId::Survey, survey_tool_bar_);
    connect(survey_combo_box_, &SurveyComboBox::SurveyComboBoxSelection_Signal, this,
            &QuorrelFrame::OnSurveyComboBoxSelection);

    log_pass_combo_box_ = new LogPassComboBox(this);
    passes_tool_bar_->addAction(actions_->Get(ActionId::PreviousPass));
    log_pass_combo_box_->AddLogPassComboBoxToToolBar(passes_tool_bar_);
    for (auto id : {ActionId::NextPass, ActionId::HidePass, ActionId::HighlightPass, ActionId::StretchPass,
                    ActionId::ShiftPass}) {
        passes_tool_bar_->addAction(actions_->Get(id));
    }
    connect(log_pass_combo_box_, &LogPassComboBox::OnLogPassComboBoxSelection_Signal, this,
            &QuorrelFrame::OnPassComboboxSelection);

    actions_->AddToToolBar(ToolBarId::Caliper, caliper_tool_bar_);
    actions_->AddToToolBar(ToolBarId::Interpretation, interpretation_tool_bar_);
}

void QuorrelFrame::InitialWindowResize()
{
    auto const& settings = SettingsSingleton::Instance();
    if (settings.GetFrameGeometry().isEmpty()) {
        auto const available = Quorrel::available_screen_size_pixels;
        // Before the frame's first resize the screen is not known and the default size stays.
        QSize const wanted(static_cast<int>(std::lround(available.width() * 0.7)),
                           static_cast<int>(std::lround(available.height() * 0.7)));
        if (wanted.isValid()) {
            resize(wanted);
        }
    } else {
        restoreGeometry(settings.GetFrameGeometry());
    }
    if (settings.GetIsMaximized()) {
        showMaximized();
    }
}

void QuorrelFrame::SetQuorrelTitle(bool modified)
{
    auto const version = "Quorrel - Build date: " + BuildDate::GetDate() + QString(8, ' ') +
                         "Latest version can be found at " + BuildDate::GetSiteName();
    if (project_file_name_.isEmpty()) {
        setWindowTitle(version);
        return;
    }
    setWindowTitle('[' + QFileInfo(project_file_name_).fileName() + ']' + (modified ? "*" : "") +
                   QString(6, ' ') + version);
}

void QuorrelFrame::OnDataContainerWrite()
{
    SetQuorrelTitle(true);
}

void QuorrelFrame::SetActionIcons()
{
    actions_->SetActionIcons();
}

void QuorrelFrame::InitializeSeparatorAction()
{
    actions_->Get(ActionId::ToggleSeparator)
        ->setChecked(SettingsSingleton::Instance().GetDecimalSeparator() == '.');
    SetActionIcons();
}

void QuorrelFrame::InitializeDepthUnitAction()
{
    actions_->Get(ActionId::ToggleDepthUnit)->setChecked(SettingsSingleton::Instance().IsMetricDepth());
    SetActionIcons();
}

QAction* QuorrelFrame::GetAction(QString const& text) const
{
    for (auto const& definition : ActionTable()) {
        if (tr(definition.text) == text) {
            return actions_->Get(definition.id);
        }
    }
    return nullptr;
}

FrameState QuorrelFrame::GetState() const
{
    FrameState state;
    state.has_survey = !current_column_window_.isNull();
    state.has_pass = !log_pass_combo_box_->IsEmpty();
    state.is_first_pass = log_pass_combo_box_->IsFirstLogPassSelected();
    state.is_last_pass = log_pass_combo_box_->IsLastLogPassSelected();
    state.undo_available = undo_available_;
    state.redo_available = redo_available_;
    state.has_interpretation_zones =
        state.has_survey && !GetInterpretationZones(GetCurrentSurveyKey()).isEmpty();
    state.has_caliper_view = state.has_survey && current_column_window_->ContainsMfcDataViews();
    return state;
}

void QuorrelFrame::UpdateAvailability()
{
    auto const state = GetState();
    actions_->UpdateAvailability(state);
    for (auto* tool_bar : {zoom_tool_bar_, survey_tool_bar_, interpretation_tool_bar_, screens_tool_bar_}) {
        tool_bar->setEnabled(state.has_survey);
    }
    passes_tool_bar_->setEnabled(state.has_survey && state.has_pass);
    caliper_tool_bar_->setEnabled(state.has_caliper_view);
}

void QuorrelFrame::UpdateMfcMenuBar()
{
    UpdateAvailability();
}

void QuorrelFrame::UpdateUndoRedoStatus(bool undo_available, bool redo_available)
{
    undo_available_ = undo_available;
    redo_available_ = redo_available;
    UpdateAvailability();
}

void QuorrelFrame::RedrawCurrentColumnWindow()
{
    if (current_column_window_) {
        current_column_window_->ForceRedraw();
    }
}

void QuorrelFrame::ResetCheckablePushButtons(QAction const* keep)
{
    for (auto id : {ActionId::ZoomVerticalInterval, ActionId::ZoomHorizontalInterval,
                    ActionId::DefineInterpretationZones, ActionId::ShiftPass, ActionId::StretchPass}) {
        if (auto* action = actions_->Get(id); action != keep) {
            action->setChecked(false);
        }
    }
}

void QuorrelFrame::ZoomVerticalIntervalToggled(bool checked)
{
    if (checked) {
        ResetCheckablePushButtons(actions_->Get(ActionId::ZoomVerticalInterval));
    }
    if (current_column_window_) {
        current_column_window_->ZoomVerticalIntervalToggled(checked);
    }
}

void QuorrelFrame::ZoomHorizontalIntervalToggled(bool checked)
{
    if (checked) {
        ResetCheckablePushButtons(actions_->Get(ActionId::ZoomHorizontalInterval));
    }
    if (current_column_window_) {
        current_column_window_->ZoomHorizontalIntervalToggled(checked);
    }
}

void QuorrelFrame::InterpretationZoneDefinitionToggled(bool checked)
{
    if (checked) {
        ResetCheckablePushButtons(actions_->Get(ActionId::DefineInterpretationZones));
    }
    if (current_column_window_) {
        current_column_window_->InterpretationZoneDefinitionToggled(checked);
    }
}

void QuorrelFrame::OnShiftToggled(bool checked)
{
    if (checked) {
        ResetCheckablePushButtons(actions_->Get(ActionId::ShiftPass));
    }
    if (current_column_window_) {
        current_column_window_->ShiftToggled(checked);
    }
}

void QuorrelFrame::OnStretchToggled(bool checked)
{
    if (checked) {
        ResetCheckablePushButtons(actions_->Get(ActionId::StretchPass));
    }
    if (current_column_window_ && !current_column_window_->StretchToggled(checked) && checked) {
        actions_->Get(ActionId::StretchPass)->setChecked(false);
    }
}

void QuorrelFrame::OnTrackingMode(bool checked)
{
    Quorrel::TRACKING_MODE = checked;
    if (current_column_window_) { // the tracker lies on top of what is rendered already
        current_column_window_->GetScrollAreaWrapper()->UpdateViewport();
    }
}

void QuorrelFrame::OnMfcMode(bool checked)
{
    Quorrel::MFC_MODE_SHARED_TRACKS = checked;
    RedrawCurrentColumnWindow();
}

void QuorrelFrame::OnMfcColorMap(bool checked)
{
    Quorrel::MFC_COLOR_MAP = checked;
    RedrawCurrentColumnWindow();
}

void QuorrelFrame::OnSetDisplayInterval()
{
    if (!current_column_window_) {
        return;
    }
    DisplayedIntervalDialog dialog(current_column_window_->GetOverrideAutomaticDisplayedInterval(),
                                   current_column_window_->GetTotalDisplayedInterval(), this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    current_column_window_->SetOverrideAutomaticDisplayedInterval(dialog.GetOverrideAutomaticInterval());
    if (dialog.GetOverrideAutomaticInterval()) {
        current_column_window_->SetTotalDisplayedInterval(dialog.GetTotalDisplayedInterval());
    }
}

void QuorrelFrame::OnZoomIn()
{
    if (current_column_window_) {
        current_column_window_->OnZoomIn();
    }
}

void QuorrelFrame::OnZoomOut()
{
    if (current_column_window_) {
        current_column_window_->OnZoomOut();
    }
}

void QuorrelFrame::OnZoomHome()
{
    if (current_column_window_) {
        current_column_window_->OnZoomHome();
    }
}

void QuorrelFrame::OnUndo()
{
    if (current_column_window_) {
        current_column_window_->Undo();
    }
}

void QuorrelFrame::OnRedo()
{
    if (current_column_window_) {
        current_column_window_->Redo();
    }
}

void QuorrelFrame::OnAdjustScalesToVisibleDepth()
{
    if (current_column_window_) {
        current_column_window_->AdjustScalesToVisibleDepth();
    }
}

void QuorrelFrame::OnHorizontalZoomEnd()
{
    actions_->Get(ActionId::ZoomHorizontalInterval)->setChecked(false);
}

void QuorrelFrame::OnSettings()
{
    bool const was_metric = SettingsSingleton::Instance().IsMetricDepth();
    SettingsDialog dialog(this);
    connect(&dialog, &SettingsDialog::UpdateColumnWindow_Signal, this,
            &QuorrelFrame::RedrawCurrentColumnWindow);
    dialog.exec();
    if (SettingsSingleton::Instance().IsMetricDepth() != was_metric) {
        UpdateAllDeviationDataViews();
    }
    InitializeSeparatorAction();
    InitializeDepthUnitAction();
    RedrawCurrentColumnWindow();
    emit SeparatorChange_Signal();
}

void QuorrelFrame::OnIsMetricDepthToggled(bool checked)
{
    SettingsSingleton::Instance().SetMetricDepth(checked);
    InitializeDepthUnitAction();
    UpdateAllDeviationDataViews();
    if (current_column_window_) {
        current_column_window_->ForceRedraw();
        emit current_column_window_->DepthUnitChanged_Signal();
    }
}

void QuorrelFrame::OnIsSeparatorPeriodToggled(bool checked)
{
    SettingsSingleton::Instance().SetSeparatorSelection(checked ? US : AlternativeInternational);
    InitializeSeparatorAction();
    RedrawCurrentColumnWindow();
    emit SeparatorChange_Signal();
}

void QuorrelFrame::OnUpdateStatusBar(float depth, QString const& text)
{
    if (!std::isfinite(depth)) {
        statusBar()->showMessage(QString());
        return;
    }
    auto const unit = SettingsSingleton::Instance().GetDepthUnit();
    QString path_part;
    if (auto const station = GetWellTrajectory(depth)) {
        path_part =
            "  ( " + Quorrel::FloatTypeToString(Quorrel::MetricsDepthToSettingsDepth(station->tvd), 1) +
            unit + " TVD, incl.: " + Quorrel::FloatTypeToString(station->GetInclination(), 2) + "deg, DLS: " +
            Quorrel::FloatTypeToString(Quorrel::ConvertDoglegSeverityToSettingsUnit(station->dls), 2) +
            (SettingsSingleton::Instance().IsMetricDepth() ? "deg/30m" : "deg/100ft") + " )";
    }
    statusBar()->showMessage(
        "Depth: " + Quorrel::FloatTypeToString(Quorrel::MetricsDepthToSettingsDepth(depth), 2) + unit +
        path_part + ". " + text);
}

void QuorrelFrame::OnClose()
{
    destroy(); // the native windows of the frame and its children
    QCoreApplication::exit(0);
}

void QuorrelFrame::closeEvent(QCloseEvent* event)
{
    QMainWindow::closeEvent(event);
    QCoreApplication::exit(0);
}

void QuorrelFrame::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    if (isMaximized()) {
        QTimer::singleShot(300, this, &QuorrelFrame::CoverScreenIfMaximized);
    }
}

void QuorrelFrame::CoverScreenIfMaximized()
{
    auto const available = screen()->availableGeometry();
    if (isMaximized() && (width() < 0.9 * available.width() || height() < 0.8 * available.height())) {
        covers_screen_ = true; // setGeometry ends the maximised state
        setGeometry(available);
    }
}

void QuorrelFrame::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    auto const* screen = QGuiApplication::screenAt(mapToGlobal(QPoint(0, 0)));
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen(); // the corner may lie off every screen
    }
    if (screen != nullptr) {
        Quorrel::DPI_X = screen->logicalDotsPerInchX();
        Quorrel::DPI_Y = screen->logicalDotsPerInchY();
        Quorrel::available_screen_size_pixels = screen->availableSize();
    }
}
