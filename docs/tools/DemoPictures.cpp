// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// demo_pictures <project> <docs/images>: opens the demo project and takes a picture of each of its surveys.
// Runs without a display.

#include "app/QuorrelFrame.h"
#include "app/SurveyComboBox.h"
#include "app/kit/SettingsSingleton.h"
#include "resources/Resources.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>

namespace {
void Settle()
{
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

bool Load(QuorrelFrame& frame, QString const& project)
{
    QEventLoop loop;
    bool is_loaded = false;
    QObject::connect(&frame, &QuorrelFrame::ProjectLoaded_Signal, &loop, [&](bool success) {
        is_loaded = success;
        loop.quit();
    });
    frame.LoadProject(project);
    loop.exec();
    return is_loaded;
}

bool Take(QString const& project, QString const& images)
{
    QuorrelFrame frame;
    frame.setWindowState(Qt::WindowNoState);
    frame.resize(1600, 980);
    frame.show();
    Settle();
    if (!Load(frame, project))
        return false;
    auto* const surveys = frame.findChild<SurveyComboBox*>();
    int index = 0;
    for (char const* const name : {"open-hole", "production", "caliper"}) {
        surveys->SetCurrentSurvey(surveys->GetSurveyKey(index));
        frame.OnSurveyComboBoxSelection(index++);
        Settle();
        QString const file = QString("%1/demo-%2.png").arg(images, name);
        if (!frame.grab().save(file))
            return false;
        std::printf("%s\n", qPrintable(file));
    }
    return true;
}
} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "Usage: demo_pictures <project> <docs/images>\n");
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
    QDir().mkpath(argv[2]);
    return Take(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2])) ? 0 : 1;
}
