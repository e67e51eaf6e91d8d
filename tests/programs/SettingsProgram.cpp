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
    auto const print = [](char const* name, QString const& text) {
        std::cout << name << ' ' << text.toStdString() << '\n';
    };
    print("locale", QLocale().name() + ' ' + settings.GetLocale().name());
    print("separators", QString(settings.GetDecimalSeparator()) + settings.GetThousandsSeparator());
    print("equation", settings.GetMathEquation());
    print("color", settings.GetBackgroundColor().name(QColor::HexArgb));
    print("geometry", settings.GetFrameGeometry().toHex());
    print("recent", settings.GetRecentFiles().join('|'));
    print("selection", settings.GetDlisChannelSelection().value("frame/1 key").join('|'));
    return 0;
}
