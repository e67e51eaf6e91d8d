// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/OverlayWidget.h"

#include "app/BusyOverlay.h"

#include "support/WaitFor.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {
class InputCounter : public QWidget
{
public:
    int count = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++count; }
    void wheelEvent(QWheelEvent*) override { ++count; }
};

QImage Grab(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32);
    image.fill(Qt::white);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}
} // namespace

TEST(OverlayWidget, CoversItsParentAndNoOtherAndStaysOnTop)
{
    QWidget first;
    QWidget second;
    first.resize(300, 200);
    second.resize(50, 60);
    OverlayWidget overlay(&first);
    new QWidget(&first); // a later sibling
    EXPECT_EQ(first.children().last(), &overlay);
    EXPECT_EQ(overlay.geometry(), QRect(0, 0, 300, 200));
    first.resize(120, 90);
    first.show();
    EXPECT_EQ(overlay.geometry(), QRect(QPoint(0, 0), first.size()));

    overlay.setParent(&second);
    EXPECT_EQ(overlay.size(), QSize(50, 60));
    first.resize(310, 210);
    EXPECT_EQ(overlay.size(), QSize(50, 60));
    second.show();
    second.resize(70, 80);
    EXPECT_EQ(overlay.size(), second.size());
}

TEST(OverlayWidget, KeepsMouseInputFromWhatItCovers)
{
    InputCounter parent;
    parent.resize(100, 100);
    OverlayWidget overlay(&parent);
    parent.show();
    QPointF const position(50, 50);
    QMouseEvent press(QEvent::MouseButtonPress, position, overlay.mapToGlobal(position), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&overlay, &press);
    QWheelEvent wheel(position, overlay.mapToGlobal(position), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&overlay, &wheel);
    EXPECT_EQ(parent.count, 0);
}

TEST(BusyOverlay, VeilsItsParentAndTurns)
{
    QWidget parent;
    parent.resize(300, 200);
    parent.show();
    BusyOverlay overlay(&parent, 1, 0.1);
    EXPECT_TRUE(overlay.isVisible());
    int const before = overlay.GetAngle();
    EXPECT_TRUE(WaitFor([&] { return overlay.GetAngle() != before; }));
    EXPECT_EQ(overlay.GetAngle() % 45, 0);
    // A tenth of black over white, away from the indicator; the indicator's panel in the middle.
    QImage const image = Grab(parent);
    EXPECT_NEAR(image.pixelColor(5, 5).red(), 230, 2);
    EXPECT_LT(image.pixelColor(150, 100).red(), 120);
    // The angle begins anew after eight steps.
    int greatest = 0;
    EXPECT_TRUE(WaitFor([&] {
        greatest = std::max(greatest, overlay.GetAngle());
        return greatest >= 270 && overlay.GetAngle() < 45 * 4;
    }));
    EXPECT_LT(greatest, 360);
}
