// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>

struct ProgramOutcome
{
    int exit_code;
    QString output;
};

/// Runs a program to its end, on no screen, with `home` for its settings and working folder.
inline ProgramOutcome RunProgram(char const* program, QStringList const& arguments, QString const& home = {},
                                 QProcess::ExitStatus end = QProcess::NormalExit)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", home);
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(120000)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), end) << process.readAllStandardError().toStdString();
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput())};
}
