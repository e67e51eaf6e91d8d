// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

/// The name of a view in its header, and the handle by which the view is dragged along the column or out of
/// it.
class ScaleLabel final : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

signals:
    void MoveViewWidget_Signal(QPointF const& global);
    void MoveButtonReleased_Signal(int global_y);

protected:
    /// Shortens a name that does not fit; the tool tip has it whole.
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};
