// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseViewWidget.h"
#include "display/ColumnContext.h"
#include "display/DepthCurveVector.h"
#include "display/TimeCurveVector.h"
#include "model/BaseDepthDataChannel.h"
#include "model/DataChannelIdentifier.h"
#include "model/ScaleItemParameters.h"
#include "model/TimeLogDataChannel.h"

#include <QColor>
#include <QList>
#include <QPen>
#include <QPointF>

#include <limits>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

struct BASE_DATAVIEW_STRUCT;
struct DepthMarker;

/// Shows channels against the shared depth scale: holds the curves with their scales and the mouse tools
/// (horizontal zoom, shift and stretch drag, tracker, measuring arrow). The channels belong to their logs and
/// may vanish at any time; a curve whose channel is gone draws nothing.
class BaseDataView : public BaseViewWidget
{
    Q_OBJECT
public:
    /// `context` holds pointers to values that outlive the view.
    BaseDataView(QWidget* parent, QString const& name, ColumnContext const& context);
    ~BaseDataView() override;

    /// "No Selected Curve", or the value under the column x on the selected curve's scale.
    [[nodiscard]] StatusMessage GetStatusMessage(int x, int y) const override;

    /// Draws the view over the painter's window. `on_screen` tells the screen, with its overlays and light
    /// markers, from print.
    virtual void RenderToPainter(QPainter& painter, Interval const& interval, double dpi, bool on_screen) = 0;
    /// Adds a curve for the channel, with the default scale of its values; a channel already shown is left as
    /// it is.
    virtual void AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const> channel, QPen const& pen);
    virtual void SetScales(DataChannelIdentifier const& identifier, Interval const& scale);
    /// Each curve's scale becomes the default scale of its values.
    virtual void ResetHorizontalScale();
    /// The same with undo entries, and the header follows.
    virtual void ResetHorizontalScale_Clicked();
    [[nodiscard]] virtual std::vector<std::shared_ptr<ScaleItemParameters>> GetScales() const;
    /// Takes the scales of the records by their index; each change gives an undo entry.
    virtual void SetScales(std::vector<std::shared_ptr<ScaleItemParameters>> scales);
    /// Extent of the values between two depths (metres), one Interval per scale.
    [[nodiscard]] virtual std::vector<Interval> GetMinMaxInInterval(double top, double bottom) const;
    virtual void ResetScalesToVisibleDepth();
    virtual void ResetScalesToVisibleDepth_Clicked();
    [[nodiscard]] virtual QPen GetPen(DepthCurve const& curve) const;
    [[nodiscard]] virtual Interval GetScale(BaseCurve const& curve) const;
    virtual void SetScales(BaseCurve& curve, Interval const& scale);
    /// Makes the values under columns x1 and x2 the ends of the scale, with an undo entry.
    virtual void HorizontalZoom(int x1, int x2);
    /// Shows the present scales and the name in the header.
    virtual void UpdateScales();
    /// Marks the tracked curve's value at the cursor depth and returns that curve; null when nothing is
    /// tracked.
    virtual DepthCurve const* RenderCurveTracker(QPainter& painter);
    /// Draws `count` of the render points, beginning with `first`, as one polyline in the painter's pen.
    virtual void DrawCurve(QPainter& painter, int count, int first);
    [[nodiscard]] virtual std::shared_ptr<ScaleItemParameters> GetSelectedScaleCurveInfo() const;

    void SetShowMarkersA(bool show);
    [[nodiscard]] bool GetShowMarkersA() const { return show_markers_a_; }
    void SetShowMarkersB(bool show);
    [[nodiscard]] bool GetShowMarkersB() const { return show_markers_b_; }
    void SetShowBaseline(bool show);
    [[nodiscard]] bool GetShowBaseline() const { return show_baseline_; }

    /// With the next colour of the cycle red, green, cyan, magenta, yellow, white.
    void AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const> channel);
    /// On the scale of the view's first curve, which all its curves then have; a view without curves takes
    /// the default scale of the channel's values.
    virtual void AssignTimeDataChannel(std::weak_ptr<TimeLogDataChannel const> channel);
    void RemoveDepthDataChannel(DataChannelIdentifier const& identifier);
    /// Removes each curve that depends on the channel (or on its pattern); true while the view still has
    /// curves.
    bool DeleteDependencies(DataChannelIdentifier const& identifier);
    [[nodiscard]] std::optional<Interval> GetDepthInterval_metric() const;
    [[nodiscard]] std::vector<Interval> GetMinMaxInVisibleInterval() const;
    void SetSelectedScaleCurveInfo(std::shared_ptr<ScaleItemParameters> selected);

    [[nodiscard]] DepthCurveVector const& GetDepthCurves() const { return depth_curves_; }
    [[nodiscard]] TimeCurveVector const& GetTimeCurves() const { return time_curves_; }
    [[nodiscard]] bool IsEmpty() const { return depth_curves_.empty() && time_curves_.empty(); }

    /// Depth and value grid for print; `major_start` and `major_step` in the settings' depth unit.
    void GenerateGridLines(QPainter& painter, Interval const& interval, double major_start,
                           double major_step) const;
    /// Widens the extent of some values to round ends; an extent without length becomes floor(v - 0.1),
    /// ceil(v + 0.1).
    [[nodiscard]] static Interval CalculateDefaultHorizontalScale(Interval const& values);
    [[nodiscard]] static float ConvertCurveValueToX(float value, Interval const& scale, int width);
    /// On the view as wide as it is now.
    [[nodiscard]] float ConvertXtoCurveValue(float x, Interval const& scale) const;

    /// Turns the curve into points in the view's scratch buffer, for the view's scale of it, and returns
    /// their number.
    int RenderCurve(DepthCurve const& curve, int width, int height, Interval const& interval);

    /// Name, markers and baseline, to and from the record of a project file.
    [[nodiscard]] BASE_DATAVIEW_STRUCT WriteState_BaseDataView() const;
    void RestoreState_BaseDataView(BASE_DATAVIEW_STRUCT const& record);

signals:
    void ShiftStarted_Signal();
    void ShiftCompleted_Signal();
    void DepthStretchStarted_Signal();
    void DepthStretchCompleted_Signal();
    void HorizontalZoomEnd_Signal();
    /// `identifier` is null for the whole log pass and lives for the duration of the call; metres.
    void ApplyShift_Signal(DataChannelIdentifier const* identifier, float delta);
    void ApplyStretch_Signal(DataChannelIdentifier const* identifier, float from, float to, float anchor);
    /// An identifier with key -1 and no hash means the view as a whole.
    void PushUndoObject_Signal(QString const& view, DataChannelIdentifier const& identifier,
                               Interval const& before, Interval const& after);

protected:
    static constexpr int NO_DRAG = std::numeric_limits<int>::max();

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] bool DrawsMoreThanCrossHair() const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

    void MouseReleaseHorizontalZoom(int x);
    /// What a shift or stretch drag addresses.
    enum class DragTarget
    {
        None,
        WholePass,
        SelectedCurve
    };
    [[nodiscard]] virtual DragTarget GetDragTarget() const { return DragTarget::WholePass; }
    void ContinueDrag(int y);
    void EndDrag();

    /// The depth curve the selected scale item names; null without one.
    [[nodiscard]] DepthCurve const* GetSelectedCurve() const;
    /// The curve at a record's index, time curves after depth curves; null beyond the last.
    [[nodiscard]] BaseCurve* GetCurveAt(int index);
    [[nodiscard]] BaseCurve const* GetCurveAt(int index) const;
    [[nodiscard]] DataChannelIdentifier GetIdentifierAt(int index) const;
    /// The depth of the cursor row; nothing without a cursor.
    [[nodiscard]] std::optional<double> GetCursorDepth() const;

    void RenderBaseline(QPainter& painter, int width) const;
    void RenderDepthMarkers(QPainter& painter, QList<DepthMarker> const& markers, Interval const& interval,
                            QColor const& color) const;
    /// Marks the value of `curve` at `depth` (metres) on the cursor row; true when it drew.
    bool RenderCurveTracker_common(QPainter& painter, double depth, DepthCurve const& curve,
                                   QString const& prefix, float x_offset);
    void RenderMeasurements(QPainter& painter, DepthCurve const* tracked) const;

    ColumnContext context_;
    DepthCurveVector depth_curves_;
    TimeCurveVector time_curves_;
    std::shared_ptr<ScaleItemParameters> selected_scale_;
    bool show_markers_a_ = false;
    bool show_markers_b_ = false;
    bool show_baseline_ = true;
    int drag_y_ = NO_DRAG;
    bool is_stretch_drag_ = false;
    std::vector<QPointF> render_points_;
    bool tracker_label_side_ = false; ///< false: label at the right edge, true: at the left edge
};
