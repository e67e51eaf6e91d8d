// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/Zone.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

void Zone::PaintMe(QPainter* painter, int x, int y, int width, int height, QColor const& color) const
{
    int const top = std::max(y, 0);
    qint64 const bottom = std::min<qint64>(static_cast<qint64>(y) + height, painter->window().height());
    int const h = static_cast<int>(std::max<qint64>(bottom - top, 1));
    painter->fillRect(x, top, width, h, QBrush(color, Qt::SolidPattern));

    QRect const bounds = painter->fontMetrics().tightBoundingRect(description_);
    if (bounds.width() >= h) {
        return;
    }
    painter->save();
    painter->setCompositionMode(QPainter::CompositionMode_Difference);
    painter->setPen(Qt::white);
    painter->translate(x + width / 2.0, top + h / 2.0);
    painter->rotate(-90);
    painter->drawText(QRectF(-h / 2.0, -width / 2.0, h, width), Qt::AlignCenter | Qt::TextDontClip,
                      description_);
    painter->restore();
}
