// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseCombinedViewWidget.h"
#include "display/ScaleEditTarget.h"

class BaseDataView;
class QMenu;
class QPoint;

/// A pair whose view is a data view.
class CombinedDataViewWidget : public BaseCombinedViewWidget, public ScaleEditTarget
{
    Q_OBJECT
public:
    using BaseCombinedViewWidget::BaseCombinedViewWidget;

    [[nodiscard]] virtual BaseDataView const* GetBaseDataView() const = 0;
    [[nodiscard]] virtual BaseDataView* GetBaseDataView() = 0;

    [[nodiscard]] BaseViewWidget const* GetBaseViewWidget() const override;
    [[nodiscard]] BaseViewWidget* GetBaseViewWidget() override;
    [[nodiscard]] std::optional<Interval> GetDepthInterval_metric() const override;
    void RenderScales(QPainter& painter, int height, QColor const& color) override;
    void RenderDataview(QPainter& painter, Interval const& interval, double dpi, double axis_factor,
                        double major_start, double major_step) override;
    [[nodiscard]] QSize sizeHint() const override;

    [[nodiscard]] std::vector<std::shared_ptr<ScaleItemParameters>> GetScales() const override;
    void SetScales(std::vector<std::shared_ptr<ScaleItemParameters>> scales) override;
    [[nodiscard]] std::vector<Interval> GetMinMaxInInterval(float top, float bottom) const override;
    [[nodiscard]] std::vector<Interval> GetMinMaxInVisibleInterval() const override;

    /// Opens the scale dialog and waits for it.
    virtual void OnShowScaleMenu();
    void ResetScalesToVisibleDepth_Clicked();
    /// Shows the context menu at the cursor; `position` is that of the request.
    void ShowContextMenu(QPoint const& position);

signals:
    /// Around several undo entries of one gesture.
    void UndoBatchStarted_Signal();
    void UndoBatchCompleted_Signal();

protected:
    /// Fills the context menu of view and header.
    virtual void FillContextMenu(QMenu& menu);
    void AddMarkersMenu(QMenu& menu);
    /// Connects the context menu of view and header to ShowContextMenu.
    void EnableContextMenus();
};
