// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/ColorScheme.h"

#include <QApplication>
#include <QPalette>

TEST(ColorScheme, FollowsTheApplicationPalette)
{
    QPalette const light(Qt::white);
    QPalette const dark(QColor(40, 40, 40));
    QApplication::setPalette(light);
    QCoreApplication::processEvents();

    ColorScheme scheme;
    int changes = 0;
    QObject::connect(&scheme, &ColorScheme::Changed_Signal, [&changes] { ++changes; });
    EXPECT_FALSE(ColorScheme::IsDark());

    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    EXPECT_TRUE(ColorScheme::IsDark());
    EXPECT_EQ(changes, 1);

    QApplication::setPalette(QPalette(QColor(20, 20, 60))); // another dark palette is no change of scheme
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 1);

    QApplication::setPalette(light);
    QCoreApplication::processEvents();
    EXPECT_FALSE(ColorScheme::IsDark());
    EXPECT_EQ(changes, 2);
}
