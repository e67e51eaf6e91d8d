// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/SettingsSingleton.h"
#include "resources/Resources.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>
#include <exception>

/// main() of a program that takes pictures of the main window: without a display, with settings of its own.
/// `take` gets the two arguments, what to show and the folder for the pictures, and may throw.
template <typename Take>
int RunPictureProgram(int argc, char** argv, char const* usage, Take const& take)
{
    if (argc != 3) {
        std::fprintf(stderr, "Usage: %s\n", usage);
        return 2;
    }
    // Static, so that it outlives the settings, which are written after main() has returned.
    static QTemporaryDir const store;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, store.path());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInitResources_Quorrel();
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("MyCorp");
    auto& settings = SettingsSingleton::Instance();
    settings.SetAutomaticCheckForUpdates(false);
    settings.SetIsMaximized(false);
    try {
        QDir().mkpath(argv[2]);
        take(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    } catch (std::exception const& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
