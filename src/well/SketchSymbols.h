// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPoint>
#include <QRectF>

#include <functional>
#include <map>
#include <vector>

class QPainter;

/// Draws symbols smoothly, and those that stand on whole pixels of a screen only once: equal ones elsewhere
/// are copies of the first. On paper, on a scaled painter and where a symbol is large each is drawn for
/// itself.
class SketchSymbols
{
public:
    /// Everything that makes the symbol look as it does, without where it stands.
    using Key = std::vector<double>;
    /// With a painter in the coordinates of the caller's, antialiased, without pen and brush.
    using Drawing = std::function<void(QPainter&)>;

    /// `extent` holds the symbol but for half a pen of its outline. Leaves the painter as it was.
    void Draw(QPainter& painter, Key const& key, QRectF const& extent, Drawing const& draw);
    /// For when more changes than the keys tell, such as the colours.
    void Clear();

private:
    [[nodiscard]] QImage const& Find(Key const& key, QRect const& frame, double device_pixel_ratio,
                                     Drawing const& draw);

    std::map<Key, QImage> images_;
    qsizetype bytes_ = 0; ///< of all images
};
