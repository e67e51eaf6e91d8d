// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseCombinedViewWidget.h"

class DepthAxis;
class DepthAxisScale;
struct ColumnContext;

/// The pair of the depth ruler.
class DepthAxisCombinedViewWidget final : public BaseCombinedViewWidget
{
    Q_OBJECT
public:
    /// `context` holds pointers to values that outlive the widget; `column` may be null.
    DepthAxisCombinedViewWidget(QString const& name, ColumnContext const& context, ColumnSlots const* column,
                                QWidget* parent = nullptr);

    [[nodiscard]] BaseViewWidget const* GetBaseViewWidget() const override;
    [[nodiscard]] BaseViewWidget* GetBaseViewWidget() override;
    [[nodiscard]] DepthAxisScale* GetDepthAxisScale() const { return scale_; }
    void RenderScales(QPainter& painter, int height, QColor const& color) override;
    void RenderDataview(QPainter& painter, Interval const& interval, double dpi, double axis_factor,
                        double major_start, double major_step) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    DepthAxisScale* scale_;
    DepthAxis* view_;
};
