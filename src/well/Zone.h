// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <QColor>
#include <QString>

class QPainter;

/// A named depth interval (metres) with a colour.
class Zone
{
public:
    /// The colour of a zone for which none was given.
    static constexpr QColor DEFAULT_COLOR = QColor(255, 170, 0);

    Zone() = default;
    Zone(Interval const& depth, QString const& description, QColor const& color)
        : depth_(depth), description_(description), color_(color)
    {
    }

    [[nodiscard]] Interval const& GetDepth() const { return depth_; }
    [[nodiscard]] QString const& GetDescription() const { return description_; }
    [[nodiscard]] QColor const& GetColor() const { return color_; }

    /// Fills the rectangle, cut to the window and at least one row high, and writes the description upwards
    /// into it when it fits, in the difference to what is below, so that it can be read on any colour. Device
    /// pixels.
    void PaintMe(QPainter* painter, int x, int y, int width, int height, QColor const& color) const;

    [[nodiscard]] bool operator<(Zone const& other) const { return depth_ < other.depth_; }
    [[nodiscard]] bool operator==(Zone const&) const = default;

private:
    Interval depth_;
    QString description_;
    QColor color_ = DEFAULT_COLOR;
};
