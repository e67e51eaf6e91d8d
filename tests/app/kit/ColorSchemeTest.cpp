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

    for (auto const& [palette, is_dark, count] :
         {std::tuple(dark, true, 1), std::tuple(QPalette(QColor(20, 20, 60)), true, 1), // no change of scheme
          std::tuple(light, false, 2)}) {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents();
        EXPECT_EQ(ColorScheme::IsDark(), is_dark);
        EXPECT_EQ(changes, count);
    }
}
