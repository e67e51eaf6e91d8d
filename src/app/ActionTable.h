// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QList>

#include <span>

struct FrameState;

/// Every action of the main frame.
enum class ActionId
{
    ConvertDlis,
    DlisBrowser,
    NewSurvey,
    OpenProject,
    NewProject,
    AddLasFile,
    SaveProject,
    GeneratePdf,
    Exit,
    SetDisplayInterval,
    ZoomIn,
    ZoomOut,
    Undo,
    Redo,
    ResetZooms,
    ZoomVerticalInterval,
    ZoomHorizontalInterval,
    AdjustScales,
    WellDetails,
    ImportWellDetails,
    CalculateWellVolumes,
    DataBrowser,
    DataViewSelector,
    EditSurveyNotes,
    GeneratePipeWall,
    About,
    AboutQt,
    Homepage,
    CheckForUpdates,
    PreviousPass,
    NextPass,
    HidePass,
    HighlightPass,
    StretchPass,
    ShiftPass,
    Settings,
    MfcMode,
    MfcColorMap,
    Toggle3dWindow,
    ToggleCrossSection,
    TrackingMode,
    DefineInterpretationZones,
    SpinnerCalibration,
    InterpretationTable,
    InterpretationParameters,
    ToggleDepthUnit,
    ToggleSeparator,
    ShowVerticalSection,
    Show3dTrajectory,
    ScreensManager,
};

enum class MenuId
{
    File,
    Edit,
    View,
    Help
};

enum class ToolBarId
{
    None,
    File,
    Zoom,
    Screens,
    Settings,
    Well,
    Survey,
    Passes,
    Caliper,
    Interpretation
};

/// When an action can be used.
enum class Availability
{
    Always,
    Survey,       ///< a survey is shown
    Pass,         ///< the shown survey has a log pass
    PreviousPass, ///< ... and the selected pass is not the first
    NextPass,     ///< ... and it is not the last
    UndoAvailable,
    RedoAvailable,
    InterpretationZones, ///< the shown survey has interpretation zones
    CaliperView,         ///< the shown column has a caliper view
    NotYet,              ///< announced in its menu, but the program cannot do it yet
};

struct ActionDefinition
{
    ActionId id;
    char const* text;
    char const* icon;         ///< file under ":/Icons/", without folder of the colour scheme
    QList<QKeySequence> keys; ///< the first is shown; a standard key has all those of the platform
    bool checkable;
    char const* status_tip; ///< empty for none
    MenuId menu;
    ToolBarId tool_bar;
    Availability availability;
    bool separator_before; ///< in its menu
};

/// The one table from which the actions, menus and tool bars are made, in menu and tool bar order.
[[nodiscard]] std::span<ActionDefinition const> ActionTable();

[[nodiscard]] bool IsAvailable(Availability availability, FrameState const& state);
