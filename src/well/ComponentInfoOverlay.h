// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/OverlayWidget.h"
#include "app/kit/Interval.h"

#include <QString>

/// Covers the column with the information on a clicked well component, until the next click. Deletes itself.
class ComponentInfoOverlay final : public OverlayWidget
{
    Q_OBJECT
public:
    /// Depths in metres.
    ComponentInfoOverlay(QWidget* parent, Interval const& md, Interval const& tvd,
                         QString const& description);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};
