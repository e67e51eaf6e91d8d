// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>

/// Looking at what was painted.
namespace pixels {
/// What `draw` paints on a ground of one colour.
inline QImage Paint(QSize const& size, QColor const& ground, std::function<void(QPainter&)> const& draw)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    draw(painter);
    return image;
}

/// Pixels of exactly this colour, in the whole image or in a part of it.
inline int Count(QImage const& image, QColor const& color, QRect const& part = {})
{
    QRect const area = part.isNull() ? image.rect() : part.intersected(image.rect());
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

inline int CountInColumn(QImage const& image, int x, QColor const& color)
{
    return Count(image, color, QRect(x, 0, 1, image.height()));
}

/// Each of the places has this colour.
inline void Expect(QImage const& image, QColor const& color, std::vector<QPoint> const& places)
{
    for (QPoint const& place : places) {
        EXPECT_EQ(image.pixelColor(place).name(), color.name()) << "at " << place.x() << ", " << place.y();
    }
}
} // namespace pixels
