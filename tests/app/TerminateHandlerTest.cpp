// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "support/Programs.h"

#include <typeinfo>

namespace {
/// Standard output of a process that ended by the handler.
QString OutputOf(QString const& how)
{
    return RunProgram(QUORREL_TERMINATE_PROGRAM, {how}, {}, QProcess::CrashExit).output;
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
