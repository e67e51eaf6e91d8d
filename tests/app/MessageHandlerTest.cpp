// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/MessageHandler.h"

#include <QTextStream>

namespace {
QMessageLogContext const context("file.cpp", 42, "void f()", "default");

std::string StandardErrorOf(QtMsgType type, QMessageLogContext const& message_context, QString const& message)
{
    ::testing::internal::CaptureStderr();
    myMessageOutput(type, message_context, message);
    return ::testing::internal::GetCapturedStderr();
}
} // namespace

TEST(MessageHandler, DebugMessagesGoToTheLogAlone)
{
    QString log;
    SetLogStream(std::make_shared<QTextStream>(&log));
    EXPECT_EQ(StandardErrorOf(QtDebugMsg, context, "first"), "");
    EXPECT_EQ(StandardErrorOf(QtDebugMsg, context, ""), "");
    EXPECT_EQ(StandardErrorOf(QtWarningMsg, context, "not logged"),
              "Warning: not logged (file.cpp:42, void f())\n");
    EXPECT_EQ(log, "first\n\n");
    SetLogStream(nullptr);
    EXPECT_EQ(StandardErrorOf(QtDebugMsg, context, "dropped"), "");
    EXPECT_EQ(log, "first\n\n");
}

TEST(MessageHandler, OtherMessagesGoToStandardError)
{
    EXPECT_EQ(StandardErrorOf(QtCriticalMsg, context, "bad %s"),
              "Critical: bad %s (file.cpp:42, void f())\n");
    EXPECT_EQ(StandardErrorOf(QtInfoMsg, context, ""), "Info:  (file.cpp:42, void f())\n");
    EXPECT_EQ(StandardErrorOf(QtInfoMsg, QMessageLogContext(), "bare"), "Info: bare (:0, )\n");
    EXPECT_EQ(StandardErrorOf(static_cast<QtMsgType>(99), context, "unknown"), "");
}

TEST(MessageHandlerDeathTest, AFatalMessageAborts)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(myMessageOutput(QtFatalMsg, context, "gone"), ::testing::KilledBySignal(SIGABRT),
                "Fatal: gone \\(file.cpp:42, void f\\(\\)\\)");
}
