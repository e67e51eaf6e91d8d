// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"
#include "model/DataChannelIdentifier.h"

#include <QObject>
#include <QString>

class QPointF;
class QWidget;

/// What the views of a column ask of it. ColumnWindow implements it; the views connect to it without knowing
/// the column itself.
class ColumnSlots : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

public slots:
    virtual void MoveCursors(int y, float depth, QString const& text) = 0;
    virtual void RemoveCursors() = 0;
    virtual void OnVerticalSelectionBegin(int y) = 0;
    virtual void OnVerticalSelectionEnd(int y1, int y2) = 0;
    virtual void OnScaleHeightChanged() = 0;
    virtual void OnVisibleHeightChanged(int height) = 0;
    virtual void OnVisibleWidgetsChanged() = 0;
    virtual void OnMoveViewWidget(QWidget* moved, QPointF const& global) = 0;
    virtual void PushUndo(QString const& view, DataChannelIdentifier const& identifier,
                          Interval const& before, Interval const& after) = 0;
    virtual void OnShiftCompleted() = 0;
    virtual void OnDepthStretchStarted() = 0;
    virtual void OnDepthStretchCompleted() = 0;
    /// The undo entries pushed between these two count as one step.
    virtual void OnUndoBatchStarted() {}
    virtual void OnUndoBatchCompleted() {}
};
