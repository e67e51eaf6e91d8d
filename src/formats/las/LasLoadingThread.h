// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/DisableToken.h"
#include "formats/las/LASFile.h"

#include <QMetaType>
#include <QString>
#include <QThread>

#include <memory>

Q_DECLARE_METATYPE(std::shared_ptr<LASFile>)

/// Loads one LAS file, once, on its own thread and answers with exactly one resultReady. It touches nothing
/// shared; the token it carries holds undo recording off until the result has been received.
class LasLoadingThread : public QThread
{
    Q_OBJECT

public:
    LasLoadingThread(QObject* parent, QString const& path, DisableToken token);

signals:
    /// On success the file and an empty message; otherwise no file and the text to show, with <BR> line
    /// breaks.
    void resultReady(std::shared_ptr<LASFile> file, QString const& path, bool success, QString const& message,
                     DisableToken token);

protected:
    void run() override;

private:
    QString path_;
    DisableToken token_;
};
