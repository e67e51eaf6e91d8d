// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/SettingsSingleton.h"

#include <QApplication>
#include <QSettings>

#include <cstdlib>
#include <cstring>
#include <iostream>

/// A process with settings whose application object is gone before they are written.
/// Arguments: "run" reads the settings, "change" changes all of them, "crash" changes them and aborts,
/// "reset" clears them. Each prints what the test compares.
namespace {
void Change()
{
    SettingsSingleton& settings = SettingsSingleton::Instance();
    settings.SetMetricDepth(true);
    settings.SetMathEquation("A*2.5");
    settings.SetLasPath("/las");
    settings.SetQz4Path("/qz4");
    settings.SetDlisPath("/dlis");
    settings.SetSurveyImportPath(QStringLiteral("/survey/Brønn 7"));
    settings.SetSeparatorSelection(AlternativeInternational);
    settings.SetRecentFiles({"/b.qz4", "/a, with comma.qz4"});
    settings.SetFrameGeometry(QByteArray("\x00\xff\x01", 3));
    settings.SetAutomaticCheckForUpdates(false);
    settings.SetIsMaximized(false);
    settings.SetMfcMnems({"ARM", "RADI["});
    settings.SetDisplayMfcWindows(true);
    settings.SetBackgroundColor(QColor(1, 2, 3, 200));
    settings.SetSplitterHandleColor("#a1b2c3");
    settings.SetOverrideDefaultSplitterHandleColor(true);
    settings.SetWellDetailsJsonImportDataPath("/json");
    settings.SetDlisChannelSelection({{"frame/1 key", {"GR", "CCL"}}, {"empty", {}}});
}
} // namespace

int main(int argc, char** argv)
{
    char const* const action = argc > 1 ? argv[1] : "run";
    QApplication const application(argc, argv);
    QCoreApplication::setOrganizationName("MyCorp");
    QLocale::setDefault(QLocale(QLocale::Danish, QLocale::Denmark)); // stands for the system's locale

    SettingsSingleton& settings = SettingsSingleton::Instance();
    if (std::strcmp(action, "reset") == 0) {
        settings.ClearAllSettings();
        std::cout << "keys " << QSettings().allKeys().size() << '\n';
    }
    if (std::strcmp(action, "change") == 0 || std::strcmp(action, "crash") == 0) {
        Change();
    }
    if (std::strcmp(action, "crash") == 0) {
        std::_Exit(3);
    }
    std::cout << "locale " << QLocale().name().toStdString() << ' '
              << settings.GetLocale().name().toStdString() << "\nseparators "
              << QString(settings.GetDecimalSeparator()).toStdString()
              << QString(settings.GetThousandsSeparator()).toStdString() << "\nequation "
              << settings.GetMathEquation().toStdString() << "\ncolor "
              << settings.GetBackgroundColor().name(QColor::HexArgb).toStdString() << "\ngeometry "
              << settings.GetFrameGeometry().toHex().toStdString() << "\nrecent "
              << settings.GetRecentFiles().join('|').toStdString() << "\nselection "
              << settings.GetDlisChannelSelection().value("frame/1 key").join('|').toStdString() << '\n';
    return 0;
}
