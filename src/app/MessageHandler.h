// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <memory>

class QString;
class QTextStream;

/// Debug messages go to the log stream, all others to standard error; a fatal one aborts.
/// For qInstallMessageHandler.
void myMessageOutput(QtMsgType type, QMessageLogContext const& context, QString const& message);

/// The stream for debug messages. Without one they are dropped.
void SetLogStream(std::shared_ptr<QTextStream> stream);
