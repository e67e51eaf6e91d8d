// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/QuorrelMain.h"

#include "app/BuildDate.h"
#include "app/MessageHandler.h"
#include "app/QuorrelFrame.h"
#include "app/TerminateHandler.h"
#include "app/kit/DlisDebug.h"
#include "app/kit/SettingsSingleton.h"
#include "resources/Resources.h"

#include <QApplication>
#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QFile>
#include <QMessageBox>
#include <QTextStream>

#include <exception>
#include <memory>

namespace {
/// Sends debug messages to `file`. The stream keeps the file alive, for it is released by a static
/// destructor.
bool InstallMessageHandler(std::shared_ptr<QFile> const& file)
{
    file->setFileName(QStringLiteral("file.log"));
    if (!file->open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        return false;
    }
    SetLogStream({new QTextStream(file.get()), [file](QTextStream* stream) { delete stream; }});
    qInstallMessageHandler(myMessageOutput);
    return true;
}
} // namespace

int qMain(int argc, char** argv)
{
    qInitResources_Quorrel();

    auto const log_file = std::make_shared<QFile>();
    bool log_failed = false;
    if constexpr (dlis_debug) {
        log_failed = !InstallMessageHandler(log_file);
    }

    std::set_terminate(TerminateHandler);

    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("MyCorp"));
    QCoreApplication::setOrganizationDomain(BuildDate::GetSiteName());
    if (log_failed) { // a box needs the application object
        QMessageBox::warning(nullptr, QStringLiteral("Warning"),
                             QStringLiteral("Unable to install Message Handler for dlis debug"),
                             QMessageBox::Ok);
    }

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Test helper"));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("qz4_file"), QStringLiteral("QZ4 file to load"));
    QCommandLineOption const reset({QStringLiteral("r"), QStringLiteral("reset")},
                                   QStringLiteral("Reset settings"));
    parser.addOption(reset);
    parser.process(application);

    if (parser.isSet(reset)) {
        SettingsSingleton::Instance().ClearAllSettings();
    }

    QuorrelFrame frame;
    QStringList const positional = parser.positionalArguments();
    if (!positional.isEmpty()) {
        frame.LoadProject(positional.first());
    }
    frame.show();
    return QApplication::exec();
}
