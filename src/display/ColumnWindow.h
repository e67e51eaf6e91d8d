// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/UndoRedo.h"
#include "app/UndoTarget.h"
#include "app/kit/DisableToken.h"
#include "app/kit/Interval.h"
#include "display/BaseViewWidgetParameters.h"
#include "display/ColumnContext.h"
#include "display/ColumnSlots.h"
#include "display/ScreensMap.h"
#include "model/DataChannelIdentifier.h"
#include "model/FillAreaDefinition.h"
#include "well/Zone.h"

#include <QHash>
#include <QList>
#include <QPen>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class AutomaticDataView;
class BaseCombinedViewWidget;
class BaseDataView;
class BaseDepthDataChannel;
class BaseViewWidget;
class CombinedDataViewWidget;
class QHBoxLayout;
class QWheelEvent;
class QWidget;
class ScrollAreaWrapper;
class TimeLog;
class TimeLogDataChannel;
class UserDataView;
class ViewFactory;
struct COLUMN_WINDOW_Struct;
struct VIEW_WIDGET_BASE_STRUCT;

/// The display of one survey: its views side by side, the depth range they all show, the shared cursor, the
/// mouse modes and the undo list. Zoom and scroll are decided here and never by a single view. All depths in
/// metres. Main thread only. A view counts as visible when it is not hidden itself, whether or not the column
/// is on screen.
class ColumnWindow final : public ColumnSlots, public UndoTarget
{
    Q_OBJECT
public:
    /// Asks for the stretch anchor, in the settings' unit; an empty answer is a cancelled question.
    using AskAnchor = std::function<std::optional<double>(double present)>;

    /// @param context brings the pointers to the well data; the column fills in its own parameters and pass
    /// handle.
    /// @param factory makes the zone, deviation and sketch views; null for none. Outlives the column.
    ColumnWindow(int survey_id, ColumnContext const& context, ViewFactory const* factory,
                 QObject* parent = nullptr);
    ~ColumnWindow() override;

    [[nodiscard]] int GetSurveyId() const { return survey_id_; }
    [[nodiscard]] BaseViewWidgetParameters const& GetParameters() const { return params_; }
    [[nodiscard]] ColumnContext const& GetContext() const { return context_; }
    [[nodiscard]] ScrollAreaWrapper* GetScrollAreaWrapper() const { return scroll_area_.get(); }

    /// The pass of the pass selector: the one that trackers follow and that whole-pass corrections address.
    void SetCurrentDepthLogPass(std::weak_ptr<DepthLogPass const> const& pass);

    /// \name View creation. New views are hidden; null when the factory does not make that view.
    /// @{
    BaseCombinedViewWidget* CreateDepthView(QString const& name);
    CombinedDataViewWidget* CreateDataView(QString const& name, bool automatic);
    CombinedDataViewWidget* CreateDataView_Public(QString const& name, bool automatic);
    BaseCombinedViewWidget* CreateDeviationView(QString const& name);
    BaseCombinedViewWidget* CreateZoneView(QString const& name);
    BaseCombinedViewWidget* CreateWellSketchView(QString const& name);
    /// @}

    /// \name Lookup. Lists are in splitter order; a single lookup of an unknown name gives null.
    /// @{
    [[nodiscard]] QList<BaseViewWidget*> FindViewWidgets(QString const& object_name);
    [[nodiscard]] QList<BaseViewWidget const*> FindViewWidgets(QString const& object_name) const;
    [[nodiscard]] QList<BaseDataView*> FindAllDataViews() const;
    [[nodiscard]] UserDataView* FindUserDataView(QString const& name);
    [[nodiscard]] UserDataView const* FindUserDataView(QString const& name) const;
    [[nodiscard]] BaseCombinedViewWidget* FindCombinedViewWidget(QString const& name) const;
    [[nodiscard]] QList<BaseCombinedViewWidget*> FindAllCombinedViewWidgets() const;
    [[nodiscard]] QList<BaseCombinedViewWidget*> FindAllVisibleCombinedViewWidgets() const;
    [[nodiscard]] QList<AutomaticDataView*> FindAllAutomaticDataViews() const;
    [[nodiscard]] QList<UserDataView*> FindAllUserDataViewWidgets() const;
    [[nodiscard]] QList<BaseViewWidget*> FindAllImageDataViewWidgets() const;
    [[nodiscard]] bool ContainsMfcDataViews() const;
    /// The caliper mnemonics of the settings for which the pass holds finger channels in inches.
    [[nodiscard]] QStringList ContainsMFCData(DepthLogPass const* pass) const;
    /// `base`, or else base + "_#" + n in the settings' locale: the first name that no view has.
    [[nodiscard]] QString GenerateUniqueViewWidgetName(QString const& base) const;
    /// @}

    /// \name User views. An unknown view name skips the work.
    /// @{
    void SetUserDataViewPen(QString const& view, DataChannelIdentifier const& identifier, QPen const& pen);
    [[nodiscard]] QPen GetUserDataViewPen(QString const& view, DataChannelIdentifier const& identifier) const;
    void SetUserDataViewScaleInterval(QString const& view, DataChannelIdentifier const& identifier,
                                      Interval const& scale);
    [[nodiscard]] std::vector<FillAreaDefinition> GetAreaFillDefinitions(QString const& view) const;
    void SetAreaFillDefinitions(QString const& view, std::vector<FillAreaDefinition> const& definitions);
    void RemoveDataFromUserDataView(QString const& view, DataChannelIdentifier const& identifier);
    /// Removes a user view (or later an image view) for good.
    void DeleteCustomDataView(QString const& view);
    /// @return the name given, made unique; empty for an unknown view
    QString RenameUserDataView(QString const& view, QString const& new_name);
    void UpdateScalesForAllUserDataViews();
    /// @}

    /// \name Logs
    /// @{
    /// Gives the pass's channels to its automatic views and shows some when no data view is visible yet.
    void AddImportedDepthLog(std::weak_ptr<DepthLogPass const> const& pass);
    void OnTimeLogAdded(std::weak_ptr<TimeLog const> const& log);
    /// Gives the channels of a log from a project to the automatic views that were restored for them; makes
    /// none.
    void AddRestoredDepthLog(std::weak_ptr<DepthLogPass const> const& pass);
    void AddRestoredTimeLog(std::weak_ptr<TimeLog const> const& log);
    void UpdateAutomaticDataViews(DepthLogPass const* pass);
    void UpdateAutomaticDataViews(std::weak_ptr<TimeLog const> const& log);
    /// For the user view of that name, or else the automatic one.
    void AddDepthDataChannelToDataView(QString const& view,
                                       std::weak_ptr<BaseDepthDataChannel const> const& channel);
    void AddDepthDataChannelToDataView(BaseDataView* view,
                                       std::weak_ptr<BaseDepthDataChannel const> const& channel);
    void AddTimeLogDataChannelToDataView(QString const& view,
                                         std::weak_ptr<TimeLogDataChannel const> const& channel);
    void AddTimeLogDataChannelToDataView(BaseDataView* view,
                                         std::weak_ptr<TimeLogDataChannel const> const& channel);
    /// Views let go of all that depends on the channel, pass or survey; an automatic view left empty is
    /// deleted.
    void DeleteDependencies(DataChannelIdentifier const& identifier);
    /// "_SL" when the name ends in it, otherwise empty.
    [[nodiscard]] static QString CheckForTimeLogPostFix(QString const& name);
    /// @}

    /// \name Vertical model
    /// @{
    [[nodiscard]] Interval GetViewDepth() const { return params_.GetViewDepthMetric(); }
    /// What undo and redo use: redraws but leaves the scroll bar.
    void SetVisibleDepthInterval(Interval const& view) override;
    [[nodiscard]] Interval GetTotalDisplayedInterval() const
    {
        return params_.GetTotalDisplayedDepthInterval();
    }
    void SetTotalDisplayedInterval(Interval const& total);
    [[nodiscard]] bool GetOverrideAutomaticDisplayedInterval() const { return override_automatic_interval_; }
    void SetOverrideAutomaticDisplayedInterval(bool override_interval);
    /// Union of the visible views' data, 1 m longer at each end; empty without data.
    [[nodiscard]] std::optional<Interval> GetTotalVisibleDepthInterval() const;
    /// Zooms about the centre; more than 1 zooms in.
    void ApplyZoom(float factor);
    /// Zooms so that `depth` stays on its pixel row.
    void ZoomWithDepthStationary(float depth, float factor);
    void UpdateScrollBar();
    /// Marks the visible views for a full repaint, never the hidden ones.
    void RedrawAllViewWidgets();
    /// RedrawAllViewWidgets and the headers too.
    void ForceRedraw();
    /// @}

    /// \name Visibility and order
    /// @{
    /// Shows exactly these views, in this order.
    void UpdateVisibleViewWidgets(QList<QString> const& names);
    void SortViewWidgets(QList<QString> const& names);
    /// A size of 0 hides the view, any other shows it.
    void SetSplitterSizes(QList<int> const& sizes);
    void DisplayDefaultViews();
    void DisplayFirstCVWs();
    void show();
    void hide();
    void AddAddScrollAreaToLayout(QHBoxLayout* layout);
    /// @}

    /// \name Undo
    /// @{
    void Undo();
    void Redo();
    [[nodiscard]] bool UndoAvailable() const;
    [[nodiscard]] bool RedoAvailable() const;
    /// Holds recording off while any copy lives.
    [[nodiscard]] DisableToken GetUndoDisableToken() const;
    /// Emits UpdateUndoRedoStatus_Signal with the present state.
    void UpdateUndoRedoStatus();
    void SetDataViewScale(QString const& view, DataChannelIdentifier const& identifier,
                          Interval const& scale) override;
    void EmitApplyShift(DataChannelIdentifier const& identifier, float delta) override;
    void EmitApplyStretch(DataChannelIdentifier const& identifier, float start, float drag,
                          float anchor) override;
    void RefreshDataViews() override;
    /// @}

    /// \name Stored screens. An unknown name changes nothing.
    /// @{
    /// Names, order and widths of the views under `name`, in place of a screen of that name.
    void SaveScreen(QString const& name);
    /// Shows the screen's views that still exist, in its order and widths, and hides all others.
    void RestoreScreen(QString const& name);
    void DeleteScreen(QString const& name);
    [[nodiscard]] QStringList GetScreenNames() const;
    [[nodiscard]] ScreensMap& GetScreens() { return screens_; }
    /// @}

    /// \name State for the project file
    /// @{
    [[nodiscard]] COLUMN_WINDOW_Struct WriteState_ColumnWindow() const;
    /// Widths, screens and depths; the views are there already, in their order.
    void RestoreState_ColumnWindow(COLUMN_WINDOW_Struct const& record);
    /// Keeps the record of a view that cannot be built, to be written again at this place.
    void CarryView(std::shared_ptr<VIEW_WIDGET_BASE_STRUCT> record, int index);
    /// @}

    /// Replaces the question for the stretch anchor.
    void SetAskAnchor(AskAnchor ask) { ask_anchor_ = std::move(ask); }

public slots:
    void OnZoomIn();
    void OnZoomOut();
    /// The total interval and default horizontal scales, as one step of undo.
    void OnZoomHome();
    void AdjustScalesToVisibleDepth();

    void ZoomVerticalIntervalToggled(bool checked);
    void ZoomHorizontalIntervalToggled(bool checked);
    void InterpretationZoneDefinitionToggled(bool checked);
    void ShiftToggled(bool checked);
    /// Turning on asks for the anchor first. @return whether the question was accepted; false when turning
    /// off
    bool StretchToggled(bool checked);

    /// A view's data changed.
    void OnVisibleWidgetDataChanged();
    void OnWellComponentClicked(Interval const& md, QString const& text);

    void MoveCursors(int y, float depth, QString const& text) override;
    void RemoveCursors() override;
    void OnVerticalSelectionBegin(int y) override;
    void OnVerticalSelectionEnd(int y1, int y2) override;
    void OnScaleHeightChanged() override;
    void OnVisibleHeightChanged(int height) override;
    void OnVisibleWidgetsChanged() override;
    void OnMoveViewWidget(QWidget* moved, QPointF const& global) override;
    void PushUndo(QString const& view, DataChannelIdentifier const& identifier, Interval const& before,
                  Interval const& after) override;
    void OnShiftStart();
    void OnShift(DataChannelIdentifier const* identifier, float delta);
    void OnShiftCompleted() override;
    void OnDepthStretchStarted() override;
    void OnStretch(DataChannelIdentifier const* identifier, float start, float drag, float anchor);
    void OnDepthStretchCompleted() override;
    void OnUndoBatchStarted() override;
    void OnUndoBatchCompleted() override;

signals:
    void UpdateAllDepthIntervals_Signal();
    void HorizontalZoomEnd_Signal();
    void DepthStretchCompleted_Signal();
    void DepthShiftCompleted_Signal();
    void UpdateDeviationDataView_Signal();
    void DepthUnitChanged_Signal();
    void Toggle3dWindowVisible_Signal();
    void ToggleCrossSectionWindowVisible_Signal();
    void SeparatorChange_Signal();
    /// NaN and empty text when the mouse left the views.
    void UpdateStatusBar_Signal(float depth, QString const& text);
    void SelectionEnd_Signal(Zone const& zone);
    void UpdateUndoRedoStatus_Signal(bool undo_available, bool redo_available);
    void DataChannelDroppedOnUserDataView_Signal(QString const& view,
                                                 DataChannelIdentifier const& identifier);
    void ApplyShift_Signal(DataChannelIdentifier const& identifier, float delta);
    void ApplyStretch_Signal(DataChannelIdentifier const& identifier, float start, float drag, float anchor);
    void ShowUserDataViewProperties_Signal(QString const& view);

private slots:
    void OnScrollAreaShowEvent();
    void OnScrollZoomEvent(QWheelEvent* event);
    void OnscrollContentsBy(int dx, int dy);

private:
    void ConnectScrollArea();
    void ZoomByButton(float factor);
    [[nodiscard]] std::optional<DataChannelIdentifier>
    ResolveIdentifier(DataChannelIdentifier const* identifier) const;
    [[nodiscard]] double ConvertYValueToDepth_metric(int y) const;
    AutomaticDataView* CreateAutomaticDataView_AddDepthDataByMnem(QString const& name,
                                                                  DepthLogPass const* pass);
    AutomaticDataView* CreateAutomaticDataView_AddTimeDataByMnem(QString const& view_name,
                                                                 QString const& mnemonic, TimeLog const* log);
    [[nodiscard]] QHash<QString, AutomaticDataView*> AutomaticDataViewsByName() const;
    [[nodiscard]] BaseDataView* FindDataViewForChannels(QString const& name);
    void ConnectComponentClicks(BaseCombinedViewWidget* pair);
    void PrepareForFirstData();
    void OnChannelAdded(BaseDataView const* view);
    void RemovePair(BaseCombinedViewWidget* pair);
    /// Gives the visible views the width they ask for, and all others an equal share of what is left.
    void ShareWidth();
    /// Runs `change` and evaluates what the views that it shows and hides report once, at its end.
    void ChangeVisibility(std::function<void()> const& change);
    [[nodiscard]] QWidget* DialogParent() const;

    [[nodiscard]] std::shared_ptr<VIEW_WIDGET_BASE_STRUCT>
    WriteDataViewState(BaseCombinedViewWidget const& pair) const;
    /// Name of each view and whether it is hidden, in splitter order.
    [[nodiscard]] QList<std::pair<QString, bool>> CurrentLayout() const;
    /// The widths of the project file, as long as nobody changed the layout since; a window of another size
    /// shows them in proportion.
    [[nodiscard]] std::optional<QList<int>> UnchangedRestoredSizes() const;
    void ApplyRestoredSizes();
    /// What the project tells, or else what follows from the data.
    void RestoreDepthIntervals(COLUMN_WINDOW_Struct const& record);

    struct CarriedView
    {
        std::shared_ptr<VIEW_WIDGET_BASE_STRUCT> record;
        int index;
        std::optional<int> splitter_size; ///< none where the project does not tell
    };
    struct RestoredLayout
    {
        QList<int> sizes;
        QList<std::pair<QString, bool>> layout;
    };

    std::shared_ptr<ScrollAreaWrapper> scroll_area_;
    ColumnContext context_;
    ScreensMap screens_;
    int cursor_y_ = -1;
    BaseViewWidgetParameters params_;
    int survey_id_;
    CurrentDepthLogPass depth_log_pass_;
    static constexpr float zoom_factor_ = 2.0F;
    UndoRedo undo_redo_;
    bool override_automatic_interval_ = false;

    ViewFactory const* factory_;
    bool is_changing_visibility_ = false;
    AskAnchor ask_anchor_;
    std::vector<CarriedView> carried_views_;
    std::optional<RestoredLayout> restored_layout_;
};
