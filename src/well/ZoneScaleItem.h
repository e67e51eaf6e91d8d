// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseScaleItem.h"

#include <QStringList>

#include <functional>

/// The line of the zone view's header: the heading of each column over its column.
class ZoneScaleItem final : public BaseScaleItem
{
    Q_OBJECT
public:
    using Headings = std::function<QStringList()>;

    /// `headings` is asked at each drawing.
    ZoneScaleItem(QWidget* parent, Headings headings);

    void DrawScaleItem(QPainter& painter, QColor const& background) const override;
    void DrawScaleItem_PDF(QPainter& painter, QColor const& color) const override;

protected:
    /// Shows the full heading of the column under the mouse.
    bool event(QEvent* event) override;

private:
    void Draw(QPainter& painter, QSize const& size) const;

    Headings headings_;
};
