// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ComponentInfoOverlay.h"

#include "well/WellComponentInfo.h"

#include <QGridLayout>
#include <QPainter>

namespace {
QColor const veil(100, 100, 100, 128);
QColor const text_color(200, 200, 255);
constexpr int TEXT_POINTS = 48;
} // namespace

ComponentInfoOverlay::ComponentInfoOverlay(QWidget* parent, Interval const& md, Interval const& tvd,
                                           QString const& description)
    : OverlayWidget(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    auto* layout = new QGridLayout(this);
    layout->addWidget(new WellComponentInfo(this, md, tvd, description), 0, 0, Qt::AlignCenter);
}

void ComponentInfoOverlay::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), veil);
    painter.setPen(text_color);
    painter.setFont(QFont(QStringLiteral("arial,helvetica"), TEXT_POINTS));
    painter.drawText(rect(), Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("Component!"));
}

void ComponentInfoOverlay::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    close();
}
