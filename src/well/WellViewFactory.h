// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/ViewFactory.h"

/// Makes the views of the well: zones, deviation and sketch.
class WellViewFactory final : public ViewFactory
{
public:
    [[nodiscard]] BaseCombinedViewWidget* CreateZoneView(QString const& name,
                                                         ColumnContext const& context) const override;
    [[nodiscard]] BaseCombinedViewWidget* CreateDeviationView(QString const& name,
                                                              ColumnContext const& context) const override;
    [[nodiscard]] BaseCombinedViewWidget* CreateWellSketchView(QString const& name,
                                                               ColumnContext const& context) const override;
    void ConnectComponentClicks(BaseCombinedViewWidget* view, QObject* receiver,
                                ComponentClicked const& clicked) const override;
    [[nodiscard]] QWidget* CreateComponentInfoOverlay(QWidget* parent, Interval const& md,
                                                      Interval const& tvd,
                                                      QString const& text) const override;
};
