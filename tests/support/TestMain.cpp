// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

/// Every test program has an application object and a settings store of its own, away from the user's.
int main(int argc, char** argv)
{
    // Static, so that it outlives the settings, which are written after main() has returned.
    static QTemporaryDir const store;
    for (auto const format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, store.path() + QStringLiteral("/user"));
        QSettings::setPath(format, QSettings::SystemScope, store.path() + QStringLiteral("/system"));
    }
    ::testing::InitGoogleTest(&argc, argv);
    QApplication const application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("MyCorp"));
    return RUN_ALL_TESTS();
}
