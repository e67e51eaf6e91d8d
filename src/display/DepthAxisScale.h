// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseScaleView.h"

class DepthUnitLabel;

/// The header of the depth ruler: its name and the depth unit.
class DepthAxisScale final : public BaseScaleView
{
    Q_OBJECT
public:
    explicit DepthAxisScale(QWidget* parent = nullptr);

    void SetScale(std::vector<std::shared_ptr<ScaleItemParameters>> scales) override;
    void OnSelected(ScaleItem* item) override;
    void RenderScalesToPainter(QPainter& painter, int height, QColor const& color) override;

signals:
    /// The depth unit of the settings has changed; the unit is drawn again.
    void DepthUnitChanged_Signal();

private:
    DepthUnitLabel* unit_label_;
};
