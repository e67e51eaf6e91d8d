// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/DisableToken.h"
#include "display/ColumnWindowMap.h"
#include "formats/las/LASFile.h"
#include "formats/project/ProjectFile.h"
#include "model/ProjectAccess.h"
#include "well/Zone.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>

class BusyOverlay;
class ColorScheme;
class ColumnWindow;
class FrameActions;
class LogPassComboBox;
class QComboBox;
class QHBoxLayout;
class RecentFiles;
class SurveyComboBox;
class VersionCheck;
class ViewFactory;
struct ColumnContext;
struct FrameState;

/// The one main window. Owns the model's wrapper and a column window per survey, of which only the current
/// one is shown; keeps the selectors, actions and title in step with the model. Reads and writes of the model
/// go through the forwarding functions of ProjectAccess; each write marks the project as modified.
///
/// Its slots stand in several sources by topic: QuorrelFrame.cpp (construction, tools, title),
/// QuorrelFrameSurveys.cpp, QuorrelFramePasses.cpp, QuorrelFrameImport.cpp, QuorrelFrameProject.cpp,
/// QuorrelFrameWell.cpp, QuorrelFrameWellDetails.cpp and QuorrelFrameUpdates.cpp.
class QuorrelFrame : public QMainWindow, public ProjectAccess
{
    Q_OBJECT
public:
    explicit QuorrelFrame(QWidget* parent = nullptr);
    ~QuorrelFrame() override;

    [[nodiscard]] KeyType GetCurrentSurveyKey() const;
    [[nodiscard]] QString GetCurrentLogIdentifierHash() const;
    [[nodiscard]] LogPassIdentifier GetCurrentLogPassIdentifier() const;
    /// Empty when no pass is selected.
    [[nodiscard]] std::weak_ptr<DepthLogPass const> GetCurrentDepthLogPass() const;
    /// Null for an unknown key.
    [[nodiscard]] QPointer<ColumnWindow> GetColumnWindow(int survey_key);
    [[nodiscard]] QPointer<ColumnWindow> GetCurrentColumnWindow() const { return current_column_window_; }
    [[nodiscard]] QAction* GetAction(QString const& text) const;

    /// Makes a survey with a column window of its own and selects it; returns its key.
    KeyType AddNewSurvey(QString const& name);
    void DeleteLogPass(LogPassIdentifier const& identifier);
    void DeleteStorageDataChannel(DataChannelIdentifier const& identifier);
    void RenameSurvey(KeyType key, QString const& name);
    /// Returns the name given, made unique; empty for an unknown survey or view.
    QString RenameUserDataView(KeyType key, QString const& view, QString const& name);

    /// After a change of the well's data: the tracks that show them are made anew in every column.
    void RedrawAllColumnWindows();
    /// The deviation tracks of all columns show true vertical depth in the depth unit of the settings.
    void UpdateAllDeviationDataViews();

    /// The required entries are there, otherwise "Undefined MNEM: " is shown; tells of a file resampled for
    /// STEP 0.
    [[nodiscard]] bool VerifyLASFile(LASFile const& file);

signals:
    void SeparatorChange_Signal();
    void LasFileFinishedLoading_Signal();
    /// A save or an open has ended, also with an error, after its message.
    void ProjectSaved_Signal(bool success);
    void ProjectLoaded_Signal(bool success);

public slots:
    void OnNewSurvey();
    void OnNewProject();
    void OnSaveProject();
    void OnLoadProject();
    /// Opens a project file in place of the present project.
    void LoadProject(QString const& path);
    /// Saves on a worker thread; ProjectSaved_Signal tells the end.
    void SaveProject(QString const& path);
    void OnProjectSaved(QString const& path, bool success, QString const& message);
    void OnQz4FileLoaded(QString const& path,
                         std::shared_ptr<project_file::ColumnWindowRecords> const& windows,
                         int current_survey_key, bool success, QString const& message);
    void OnScreensManager();
    void UpdateScreensCombobox();
    void OnScreensComboboxSelection(QString const& name);
    void OnImport();
    void OnLasFileLoaded(std::shared_ptr<LASFile> file, QString const& path, bool ok, QString const& error,
                         DisableToken token);
    void OnLogPassImported(LogPassIdentifier const& identifier, bool is_depth);
    void OnClose();

    void OnSetDisplayInterval();
    void OnZoomIn();
    void OnZoomOut();
    void OnZoomHome();
    void OnUndo();
    void OnRedo();
    void OnAdjustScalesToVisibleDepth();
    void ZoomVerticalIntervalToggled(bool checked);
    void ZoomHorizontalIntervalToggled(bool checked);
    void InterpretationZoneDefinitionToggled(bool checked);
    void OnShiftToggled(bool checked);
    void OnStretchToggled(bool checked);
    void OnTrackingMode(bool checked);
    void OnMfcMode(bool checked);
    void OnMfcColorMap(bool checked);

    void OnPreviousPass();
    void OnNextPass();
    void OnHidePassToggled(bool on);
    void OnHighLightPassToggled(bool on);
    void OnPassComboboxSelection();

    void OnSurveyComboBoxSelection(int index);
    void OnSurveyDeleted(KeyType key);
    void OnEditSurveyText();

    void OnWellDetails();
    void OnImportWellDetails();

    void OnSettings();
    void OnIsMetricDepthToggled(bool checked);
    void OnIsSeparatorPeriodToggled(bool checked);

    void OnApplyShift(DataChannelIdentifier const& identifier, float shift);
    void OnApplyStretch(DataChannelIdentifier const& identifier, float start_drag_depth, float drag_depth,
                        float anchor_depth);
    void OnSelectionEnd(Zone const& zone);
    void OnHorizontalZoomEnd();
    void OnUpdateAllDepthIntervals();
    void OnDataChannelDroppedOnUserDataView(QString const& view, DataChannelIdentifier const& identifier);
    void UpdateUndoRedoStatus(bool undo_available, bool redo_available);
    void OnUpdateStatusBar(float depth, QString const& text);
    void OnDataContainerWrite();

    void OnShowVerticalSection();
    void OnAbout();
    void OnWebpage();
    void OnCheckForNewVersion_MenuAction();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void CreateActions();
    void CreateMenus();
    void CreateToolBars();
    void InitialWindowResize();
    /// Covers the screen where the desktop does not maximise windows (no window manager).
    void CoverScreenIfMaximized();
    void SetQuorrelTitle(bool modified);
    void SetActionIcons();
    void InitializeSeparatorAction();
    void InitializeDepthUnitAction();
    void ResetCheckablePushButtons(QAction const* keep);
    void RedrawCurrentColumnWindow();

    void ClearAll();
    /// Veils the frame and takes its keys while a worker has the model.
    void SetBusy(bool busy);
    void AdjustForFileChange(QString const& path);
    void RestoreGuiAfterDatacontainerLoad();
    void CreateColumnWindow(KeyType key);
    void SetupNewSurvey(KeyType key, QString const& name);
    [[nodiscard]] ColumnContext MakeColumnContext(KeyType key) const;

    /// Sets the pass combo box from the model, keeping the selected pass where it is still there.
    void UpdatePassComboBox();
    void UpdatePassToolbar();
    /// The storage channel, or the log pass, whose depths a correction is for is still there.
    [[nodiscard]] bool HasDepth(DataChannelIdentifier const& identifier) const;
    void SetCurrentPassProperties(bool LogPassProperties::*flag, bool on);
    void UpdateMfcMenuBar();
    [[nodiscard]] FrameState GetState() const;
    /// Turns actions and tool bars on and off for the present state.
    void UpdateAvailability();

    [[nodiscard]] VersionCheck* MakeVersionCheck();

    FrameActions* actions_ = nullptr;
    ColorScheme* color_scheme_ = nullptr;
    QToolBar* file_tool_bar_ = nullptr;
    QToolBar* zoom_tool_bar_ = nullptr;
    QToolBar* screens_tool_bar_ = nullptr;
    QToolBar* settings_tool_bar_ = nullptr;
    QToolBar* well_tool_bar_ = nullptr;
    QToolBar* survey_tool_bar_ = nullptr;
    QToolBar* passes_tool_bar_ = nullptr;
    QToolBar* caliper_tool_bar_ = nullptr;
    QToolBar* interpretation_tool_bar_ = nullptr;
    QPointer<QComboBox> screens_combo_box_;
    QPointer<SurveyComboBox> survey_combo_box_;
    QPointer<LogPassComboBox> log_pass_combo_box_;
    QHBoxLayout* central_layout_ = nullptr;
    QPointer<ColumnWindow> current_column_window_;
    QString project_file_name_;
    QPointer<BusyOverlay> busy_overlay_;
    bool covers_screen_ = false; ///< stands for maximised where nothing maximises windows
    bool undo_available_ = false;
    bool redo_available_ = false;
    std::unique_ptr<RecentFiles> recent_files_;
    std::unique_ptr<ViewFactory const> view_factory_;
    ColumnWindowMap column_windows_;
};
