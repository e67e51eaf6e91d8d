// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseCombinedViewWidget.h"

class ZoneView;
struct ColumnContext;

/// The pair of the zone view.
class ZoneCombinedViewWidget final : public BaseCombinedViewWidget
{
    Q_OBJECT
public:
    /// `context` holds pointers to values that outlive the widget.
    ZoneCombinedViewWidget(QString const& name, ColumnContext const& context, QWidget* parent = nullptr);

    [[nodiscard]] BaseViewWidget const* GetBaseViewWidget() const override;
    [[nodiscard]] BaseViewWidget* GetBaseViewWidget() override;
    [[nodiscard]] ZoneView* GetZoneView() const { return view_; }
    void RenderScales(QPainter& painter, int height, QColor const& color) override;
    void RenderDataview(QPainter& painter, Interval const& interval, double dpi, double axis_factor,
                        double major_start, double major_step) override;
    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// `depth` in metres.
    void ZoneClicked_Signal(Interval const& depth, QString const& text);

private:
    ZoneView* view_;
};
