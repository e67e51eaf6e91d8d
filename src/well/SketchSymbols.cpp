// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/SketchSymbols.h"

#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include <cmath>

namespace {
constexpr int MARGIN = 4;         ///< pixels around a symbol, for its outline
constexpr double LARGEST = 300;   ///< pixels; larger symbols are not kept
constexpr double FARTHEST = 4000; ///< pixels from the origin; beyond, drawings are cut relative to the window
constexpr qsizetype MOST_BYTES = 8'000'000;

/// Of a screen, and one pixel or a whole number of them wide and high.
bool HasWholePixels(QPainter const& painter)
{
    QTransform const transform = painter.combinedTransform();
    double const pixel = painter.device()->devicePixelRatioF();
    return painter.paintEngine()->type() == QPaintEngine::Raster && pixel == std::floor(pixel) &&
           transform.type() <= QTransform::TxScale && transform.m11() == pixel && transform.m22() == pixel &&
           transform.dx() == std::floor(transform.dx()) && transform.dy() == std::floor(transform.dy());
}

/// False for what is not finite, too.
bool IsSmallAndNear(QRectF const& extent)
{
    return extent.width() <= LARGEST && extent.height() <= LARGEST && std::abs(extent.left()) <= FARTHEST &&
           std::abs(extent.top()) <= FARTHEST;
}

void Prepare(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::NoBrush);
}
} // namespace

void SketchSymbols::Draw(QPainter& painter, Key const& key, QRectF const& extent, Drawing const& draw)
{
    if (IsSmallAndNear(extent) && HasWholePixels(painter)) {
        QRect const frame = extent.toAlignedRect().adjusted(-MARGIN, -MARGIN, MARGIN, MARGIN);
        if (frame.intersects(painter.window())) {
            painter.drawImage(frame.topLeft(), Find(key, frame, painter.device()->devicePixelRatioF(), draw));
        }
        return;
    }
    painter.save();
    Prepare(painter);
    draw(painter);
    painter.restore();
}

void SketchSymbols::Clear()
{
    images_.clear();
    bytes_ = 0;
}

QImage const& SketchSymbols::Find(Key const& key, QRect const& frame, double device_pixel_ratio,
                                  Drawing const& draw)
{
    auto const found = images_.find(key);
    if (found != images_.end() && found->second.devicePixelRatio() == device_pixel_ratio) {
        return found->second;
    }
    if (bytes_ > MOST_BYTES) {
        Clear();
    }
    QImage image(frame.size() * device_pixel_ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(device_pixel_ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(-frame.topLeft());
    Prepare(painter);
    draw(painter);
    painter.end();
    bytes_ += image.sizeInBytes();
    return images_.insert_or_assign(key, image).first->second;
}
