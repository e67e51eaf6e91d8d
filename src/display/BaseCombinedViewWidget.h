// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/DataChannelIdentifier.h"

#include <QString>
#include <QWidget>

#include <optional>

class BaseScaleView;
class BaseViewWidget;
class ColumnSlots;
class QColor;
class QPainter;
class QPointF;
class QVBoxLayout;

/// A scale header and the view below it: one item of a column's splitter. Owns both as Qt children. Starts
/// hidden.
class BaseCombinedViewWidget : public QWidget
{
    Q_OBJECT
public:
    inline static QString const OBJECT_NAME_ = QStringLiteral("COMBINED_VIEW_WIDGET_OBJECT_NAME");

    explicit BaseCombinedViewWidget(QWidget* parent = nullptr);
    ~BaseCombinedViewWidget() override;

    [[nodiscard]] virtual BaseViewWidget const* GetBaseViewWidget() const = 0;
    [[nodiscard]] virtual BaseViewWidget* GetBaseViewWidget() = 0;
    /// The depths the view has data for, metres; none for views without data of their own.
    [[nodiscard]] virtual std::optional<Interval> GetDepthInterval_metric() const { return std::nullopt; }
    /// Draws the header into the painter's window, its name and one line of `height` units per item.
    virtual void RenderScales(QPainter& painter, int height, QColor const& color) = 0;
    /// Draws the view into the painter's window for print. `interval` in metres; `axis_factor` is the factor
    /// k of the depth ruler's scale; the major depths start at `major_start` and follow every `major_step`,
    /// both in the settings' depth unit.
    virtual void RenderDataview(QPainter& painter, Interval const& interval, double dpi, double axis_factor,
                                double major_start, double major_step) = 0;

    [[nodiscard]] BaseScaleView* GetBaseScaleView() const { return scale_view_; }
    [[nodiscard]] QString GetBaseViewWidgetName() const;
    /// Renames the view and its header.
    void SetBaseViewWidgetName(QString const& name);
    [[nodiscard]] QString GetBaseViewWidgetObjectName() const;

    void RemoveCursor();
    void MoveCursor(int y);
    void VerticalSelectionBegin(int y);
    void VerticalSelectionEnd();
    /// The view renders anew at its next paint, and the header draws its texts again.
    void ForceRedraw();

    /// Passes a drag of the header on, with this widget as the one moved.
    void OnMoveViewWidget(QPointF const& global);
    /// Hides this widget when the button was released above or below it.
    void MoveButtonReleased(int global_y);

    /// Wires header and view to each other and to the column; once, after construction.
    void ConnectSignalsSlots(ColumnSlots const* column, BaseViewWidget* view);

signals:
    void HorizontalZoomEnd_Signal();
    void ShiftStarted_Signal();
    void DataChannelDroppedOnUserDataView_Signal(QString const& view,
                                                 DataChannelIdentifier const& identifier);
    /// `identifier` is null for the whole log pass and lives for the duration of the call; metres.
    void ApplyShift_Signal(DataChannelIdentifier const* identifier, float delta);
    void ApplyStretch_Signal(DataChannelIdentifier const* identifier, float from, float to, float anchor);
    void MoveViewWidget_Signal(QWidget* moved, QPointF const& global);

protected:
    /// Stacks header over view; the caller has given both their size policies.
    void SetPair(BaseScaleView* scale_view, BaseViewWidget* view);

private:
    QVBoxLayout* layout_;
    BaseScaleView* scale_view_ = nullptr;
};
