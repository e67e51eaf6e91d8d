// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/ProjectThreads.h"

#include <exception>
#include <ios>
#include <new>

ProjectSavingThread::ProjectSavingThread(QObject* parent, QString path, DataContainer const& container,
                                         project_file::ColumnWindowRecords windows, int current_survey_key)
    : QThread(parent),
      path_(std::move(path)),
      container_(container),
      windows_(std::move(windows)),
      current_survey_key_(current_survey_key)
{
}

void ProjectSavingThread::run()
{
    try {
        project_file::Save(path_, container_, windows_, current_survey_key_);
        emit resultReady(path_, true, QString());
    } catch (std::exception const& exception) {
        auto const message =
            "Exception cought while saving " + path_ + ": " + QString::fromLocal8Bit(exception.what());
        qCritical("%s", qPrintable(message));
        emit resultReady(path_, false, message);
    }
}

ProjectLoadingThread::ProjectLoadingThread(QObject* parent, QString path, DataContainer& container)
    : QThread(parent), path_(std::move(path)), container_(container)
{
}

void ProjectLoadingThread::run()
{
    QString message;
    try {
        auto project = project_file::Load(path_, container_);
        emit resultReady(path_, project.windows, project.current_survey_key, true, QString());
        return;
    } catch (std::ios_base::failure const& failure) {
        message =
            QString(
                "Exception cought while restoring %1.<BR>This could be caused by a corrupted Quorrel file."
                "<BR>(Msg: %2 - Error Code: %3)")
                .arg(path_, QString::fromLocal8Bit(failure.what()), QString::number(failure.code().value()));
    } catch (std::exception const& exception) {
        message =
            "Exception cought while restoring " + path_ + ": " + QString::fromLocal8Bit(exception.what());
    }
    qCritical("%s", qPrintable(message));
    emit resultReady(path_, nullptr, -1, false, message);
}
