// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QColor;

/// One line of a scale header.
class BaseScaleItem : public QWidget
{
    Q_OBJECT
public:
    explicit BaseScaleItem(QWidget* parent = nullptr);

    /// Draws the item at the widget's size.
    virtual void DrawScaleItem(QPainter& painter, QColor const& background) const = 0;
    /// Draws the item over the painter's window, texts in `color`, without a ground.
    virtual void DrawScaleItem_PDF(QPainter& painter, QColor const& color) const = 0;

protected:
    void paintEvent(QPaintEvent* event) override;
};
