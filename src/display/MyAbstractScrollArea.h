// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractScrollArea>

/// The scroll area of a column. It keeps the vertical bar and hands its events on; what scrolling means is
/// decided by the column.
class MyAbstractScrollArea final : public QAbstractScrollArea
{
    Q_OBJECT
public:
    explicit MyAbstractScrollArea(QWidget* parent = nullptr);

signals:
    void OnShowEvent_Signal();
    /// The wheel turned while Control was held. The event is only alive during the call.
    void OnScrollZoomEvent_Signal(QWheelEvent* event);
    void OnscrollContentsBy_Signal(int dx, int dy);

protected:
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    /// Moves nothing by itself.
    void scrollContentsBy(int dx, int dy) override;
};
