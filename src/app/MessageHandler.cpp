// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/MessageHandler.h"

#include <QString>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {
std::shared_ptr<QTextStream> log_stream;

void Print(char const* kind, QByteArray const& message, QMessageLogContext const& context)
{
    auto const text = [](char const* value) { return value != nullptr ? value : ""; };
    std::fprintf(stderr, "%s: %s (%s:%u, %s)\n", kind, message.constData(), text(context.file),
                 static_cast<unsigned>(context.line), text(context.function));
}
} // namespace

void SetLogStream(std::shared_ptr<QTextStream> stream)
{
    log_stream = std::move(stream);
}

void myMessageOutput(QtMsgType type, QMessageLogContext const& context, QString const& message)
{
    QByteArray const local = message.toLocal8Bit();
    switch (type) {
    case QtDebugMsg:
        if (log_stream) {
            *log_stream << local.constData()
                        << Qt::endl; // flushed, for what comes before a crash matters most
        }
        break;
    case QtWarningMsg:
        Print("Warning", local, context);
        break;
    case QtCriticalMsg:
        Print("Critical", local, context);
        break;
    case QtFatalMsg:
        Print("Fatal", local, context);
        std::abort();
    case QtInfoMsg:
        Print("Info", local, context);
        break;
    }
}
