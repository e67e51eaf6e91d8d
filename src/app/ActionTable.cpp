// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/ActionTable.h"

#include "app/FrameState.h"

#include <array>

std::span<ActionDefinition const> ActionTable()
{
    using Id = ActionId;
    using Menu = MenuId;
    using Bar = ToolBarId;
    using On = Availability;
    static QList<QKeySequence> const no_key;
    // clang-format off
    static std::array const table{
        // id, text, icon, keys, checkable, status tip, menu, tool bar, available, separator before
        ActionDefinition{Id::NewProject, "New Project", "New Project.svg", no_key, false, "", Menu::File, Bar::File, On::Always, false},
        ActionDefinition{Id::OpenProject, "&Open Project", "Open Project.svg", no_key, false, "", Menu::File, Bar::File, On::Always, false},
        ActionDefinition{Id::SaveProject, "&Save Project", "Save Project.svg", {QKeySequence(Qt::CTRL | Qt::Key_S)}, false, "", Menu::File, Bar::File, On::Always, true},
        ActionDefinition{Id::NewSurvey, "&New Survey", "New Survey.svg", QKeySequence::keyBindings(QKeySequence::New), false, "New Survey", Menu::File, Bar::File, On::Always, true},
        ActionDefinition{Id::AddLasFile, "Add LAS File to Survey", "Add LAS File.svg", no_key, false, "", Menu::File, Bar::Survey, On::Survey, false},
        ActionDefinition{Id::ConvertDlis, "&Convert DLIS to LAS", "Convert DLIS.svg", no_key, false, "", Menu::File, Bar::File, On::NotYet, false},
        ActionDefinition{Id::DlisBrowser, "&DLIS Browser", "DLIS Browser.svg", no_key, false, "", Menu::File, Bar::File, On::NotYet, false},
        ActionDefinition{Id::GeneratePdf, "&Generate PDF file", "Generate PDF.svg", no_key, false, "", Menu::File, Bar::File, On::NotYet, true},
        ActionDefinition{Id::Exit, "E&xit", "Exit.svg", no_key, false, "", Menu::File, Bar::None, On::Always, true},

        ActionDefinition{Id::Undo, "Undo View Change", "Undo.svg", QKeySequence::keyBindings(QKeySequence::Undo), false, "", Menu::Edit, Bar::Zoom, On::UndoAvailable, false},
        ActionDefinition{Id::Redo, "Redo View Change", "Redo.svg", QKeySequence::keyBindings(QKeySequence::Redo), false, "", Menu::Edit, Bar::Zoom, On::RedoAvailable, false},
        ActionDefinition{Id::WellDetails, "Well Details Window", "Well Details.svg", no_key, false, "", Menu::Edit, Bar::Well, On::Always, true},
        ActionDefinition{Id::ImportWellDetails, "Import Well Details From JSON", "Import Well Details.svg", no_key, false, "", Menu::Edit, Bar::Well, On::Always, false},
        ActionDefinition{Id::CalculateWellVolumes, "Calculate Well Volumes", "Calculate Well Volumes.svg", no_key, false, "", Menu::Edit, Bar::Well, On::NotYet, false},
        ActionDefinition{Id::EditSurveyNotes, "&Edit Survey Notes", "Edit Survey Notes.svg", no_key, false, "", Menu::Edit, Bar::Survey, On::Survey, true},
        ActionDefinition{Id::GeneratePipeWall, "Generate Pipe Wall Dataview with MFC data from current log-pass", "Generate Pipe Wall.svg", no_key, false, "Generate casing/tubing wall User-Dataview based on Pipe-data and MFC data in current log-pass", Menu::Edit, Bar::Caliper, On::NotYet, false},
        ActionDefinition{Id::PreviousPass, "&Previous Pass", "Pass Toolbar/Previous Pass.svg", no_key, false, "", Menu::Edit, Bar::Passes, On::PreviousPass, true},
        ActionDefinition{Id::NextPass, "&Next Pass", "Pass Toolbar/Next Pass.svg", no_key, false, "", Menu::Edit, Bar::Passes, On::NextPass, false},
        ActionDefinition{Id::HidePass, "&Hide Pass", "Pass Toolbar/Hide Pass.svg", no_key, true, "", Menu::Edit, Bar::Passes, On::Pass, false},
        ActionDefinition{Id::HighlightPass, "&Highlight Pass", "Pass Toolbar/Highlight pass.svg", no_key, true, "", Menu::Edit, Bar::Passes, On::Pass, false},
        ActionDefinition{Id::StretchPass, "&Stretch Pass", "Pass Toolbar/Stretch.svg", no_key, true, "", Menu::Edit, Bar::Passes, On::Pass, false},
        ActionDefinition{Id::ShiftPass, "&Shift Pass [S]", "Pass Toolbar/Shift.svg", {QKeySequence(Qt::Key_S)}, true, "", Menu::Edit, Bar::Passes, On::Pass, false},
        ActionDefinition{Id::DefineInterpretationZones, "&Define Interpretation Zones [I]", "Define Interpretation Zones.svg", {QKeySequence(Qt::Key_I)}, true, "", Menu::Edit, Bar::Interpretation, On::Survey, true},
        ActionDefinition{Id::SpinnerCalibration, "&Spinner Calibration", "Spinner Calibration.svg", no_key, false, "", Menu::Edit, Bar::Interpretation, On::NotYet, false},
        ActionDefinition{Id::InterpretationTable, "&Edit Interpreation Zones", "Edit Interpretation Zones.svg", no_key, false, "", Menu::Edit, Bar::Interpretation, On::NotYet, false},
        ActionDefinition{Id::InterpretationParameters, "&Edit Interpreation Parameters", "Edit Interpretation Parameters.svg", no_key, false, "", Menu::Edit, Bar::Interpretation, On::NotYet, false},
        ActionDefinition{Id::Settings, "&Settings", "Settings.svg", no_key, false, "", Menu::Edit, Bar::Settings, On::Always, true},

        ActionDefinition{Id::ZoomIn, "Zoom In", "Zoom In.svg", no_key, false, "", Menu::View, Bar::Zoom, On::Survey, false},
        ActionDefinition{Id::ZoomOut, "Zoom Out", "Zoom Out.svg", no_key, false, "", Menu::View, Bar::Zoom, On::Survey, false},
        ActionDefinition{Id::ResetZooms, "Reset Zooms", "Reset Zooms.svg", no_key, false, "", Menu::View, Bar::Zoom, On::Survey, false},
        ActionDefinition{Id::ZoomVerticalInterval, "Zoom to Vertical Interval", "Zoom Vertical Interval.svg", no_key, true, "", Menu::View, Bar::Zoom, On::Survey, false},
        ActionDefinition{Id::ZoomHorizontalInterval, "Zoom to Horizontal Interval [Z]", "Zoom Horizontal Interval.svg", {QKeySequence(Qt::Key_Z)}, true, "", Menu::View, Bar::Zoom, On::Survey, false},
        ActionDefinition{Id::AdjustScales, "Adjust Scales To Visible Depth", "Adjust Scales.svg", no_key, false, "", Menu::View, Bar::Zoom, On::Survey, false},
        ActionDefinition{Id::SetDisplayInterval, "Set Display Interval", "Set Display Interval.svg", no_key, false, "", Menu::View, Bar::Survey, On::Survey, false},
        ActionDefinition{Id::TrackingMode, "&Tracking Mode [T]", "Tracking Mode.svg", {QKeySequence(Qt::Key_T)}, true, "", Menu::View, Bar::Settings, On::Always, true},
        ActionDefinition{Id::ToggleDepthUnit, "&Toggle Depth Unit", "Depth_Imperial.svg", no_key, true, "", Menu::View, Bar::Settings, On::Always, false},
        ActionDefinition{Id::ToggleSeparator, "&Toggle Separator", "Separator_Period.svg", no_key, true, "", Menu::View, Bar::Settings, On::Always, false},
        ActionDefinition{Id::DataBrowser, "&DataBrowser", "DataBrowser.svg", no_key, false, "", Menu::View, Bar::Survey, On::NotYet, true},
        ActionDefinition{Id::DataViewSelector, "Change Visible Dataviews", "Change Visible Dataviews.svg", no_key, false, "Open DataView Selector", Menu::View, Bar::Survey, On::NotYet, false},
        ActionDefinition{Id::ScreensManager, "&Screens Manager", "Screens Manager.svg", no_key, false, "", Menu::View, Bar::Screens, On::Survey, false},
        ActionDefinition{Id::ShowVerticalSection, "&Show Vertical Section", "Show Vertical Section.svg", no_key, false, "", Menu::View, Bar::Well, On::Always, true},
        ActionDefinition{Id::Show3dTrajectory, "&Show 3D Well Trajectory", "Show 3D Well Trajectory.svg", no_key, false, "", Menu::View, Bar::Well, On::NotYet, false},
        ActionDefinition{Id::MfcMode, "&MFC Mode [M]", "MFC Mode.svg", {QKeySequence(Qt::Key_M)}, true, "", Menu::View, Bar::Caliper, On::CaliperView, true},
        ActionDefinition{Id::MfcColorMap, "&MFC Color Map [C]", "MFC Color Map.svg", {QKeySequence(Qt::Key_C)}, true, "", Menu::View, Bar::Caliper, On::CaliperView, false},
        ActionDefinition{Id::Toggle3dWindow, "&Toggle MFC 3D Window", "MFC 3D Window.svg", no_key, false, "", Menu::View, Bar::Caliper, On::NotYet, false},
        ActionDefinition{Id::ToggleCrossSection, "&Toggle MFC Cross Section Window", "MFC Cross Section.svg", no_key, false, "", Menu::View, Bar::Caliper, On::NotYet, false},

        ActionDefinition{Id::About, "&About", "About.svg", no_key, false, "Show the application's About box", Menu::Help, Bar::None, On::Always, false},
        ActionDefinition{Id::AboutQt, "About &Qt", "About Qt.svg", no_key, false, "Show the Qt library's About box", Menu::Help, Bar::None, On::Always, false},
        ActionDefinition{Id::Homepage, "Homepage", "Homepage.svg", no_key, false, "Go to project homepage", Menu::Help, Bar::None, On::Always, true},
        ActionDefinition{Id::CheckForUpdates, "Check for &updates", "Check for Updates.svg", no_key, false, "", Menu::Help, Bar::None, On::Always, false},
    };
    // clang-format on
    return table;
}

bool IsAvailable(Availability availability, FrameState const& state)
{
    switch (availability) {
    case Availability::Always:
        return true;
    case Availability::Survey:
        return state.has_survey;
    case Availability::Pass:
        return state.has_survey && state.has_pass;
    case Availability::PreviousPass:
        return state.has_survey && state.has_pass && !state.is_first_pass;
    case Availability::NextPass:
        return state.has_survey && state.has_pass && !state.is_last_pass;
    case Availability::UndoAvailable:
        return state.has_survey && state.undo_available;
    case Availability::RedoAvailable:
        return state.has_survey && state.redo_available;
    case Availability::InterpretationZones:
        return state.has_survey && state.has_interpretation_zones;
    case Availability::CaliperView:
        return state.has_survey && state.has_caliper_view;
    case Availability::NotYet:
        return false;
    }
    return false;
}
