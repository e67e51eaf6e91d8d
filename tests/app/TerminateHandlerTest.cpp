// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include <QProcess>
#include <QString>

#include <gtest/gtest.h>

#include <stdexcept>
#include <typeinfo>

namespace {
/// Standard output of a process that ended by the handler.
QString OutputOf(QString const& how)
{
    QProcess process;
    process.start(QStringLiteral(QUORREL_TERMINATE_PROGRAM), {how});
    EXPECT_TRUE(process.waitForFinished(60000)) << process.errorString().toStdString();
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit) << how.toStdString();
    return QString::fromLocal8Bit(process.readAllStandardOutput());
}
} // namespace

TEST(TerminateHandler, ReportsWhatEndedTheProcess)
{
    EXPECT_EQ(OutputOf("none"), "Unhandled exception. Set break-point in main to debug\n");
    EXPECT_EQ(OutputOf("standard"),
              QStringLiteral("in std::set_terminate(): Caught unhandled exception: '%1   what(): boom'\n")
                  .arg(typeid(std::runtime_error).name()));
    EXPECT_EQ(OutputOf("thread"), OutputOf("standard"));
    EXPECT_EQ(OutputOf("other"), "");
}
