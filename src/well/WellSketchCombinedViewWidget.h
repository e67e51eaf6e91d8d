// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseCombinedViewWidget.h"

class WellSketchView;
struct ColumnContext;

/// The pair of the well sketch; its header is the name alone.
class WellSketchCombinedViewWidget final : public BaseCombinedViewWidget
{
    Q_OBJECT
public:
    /// `context` holds pointers to values that outlive the widget.
    WellSketchCombinedViewWidget(QString const& name, ColumnContext const& context,
                                 QWidget* parent = nullptr);

    [[nodiscard]] BaseViewWidget const* GetBaseViewWidget() const override;
    [[nodiscard]] BaseViewWidget* GetBaseViewWidget() override;
    [[nodiscard]] WellSketchView* GetWellSketchView() const { return view_; }
    [[nodiscard]] std::optional<Interval> GetDepthInterval_metric() const override;
    void RenderScales(QPainter& painter, int height, QColor const& color) override;
    /// In the print scheme.
    void RenderDataview(QPainter& painter, Interval const& interval, double dpi, double axis_factor,
                        double major_start, double major_step) override;
    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// `depth` in metres.
    void WellComponentClicked_Signal(Interval const& depth, QString const& description);

private:
    WellSketchView* view_;
};
