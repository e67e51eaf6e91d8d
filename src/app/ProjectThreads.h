// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "formats/project/ProjectFile.h"

#include <QString>
#include <QThread>

#include <memory>

/// Saves a project on a thread of its own, while an overlay keeps the user from changing it. Runs once.
class ProjectSavingThread final : public QThread
{
    Q_OBJECT
public:
    /// The container outlives the thread and stays unchanged meanwhile.
    ProjectSavingThread(QObject* parent, QString path, DataContainer const& container,
                        project_file::ColumnWindowRecords windows, int current_survey_key);

signals:
    void resultReady(QString const& path, bool success, QString const& message);

protected:
    void run() override;

private:
    QString path_;
    DataContainer const& container_;
    project_file::ColumnWindowRecords windows_;
    int current_survey_key_;
};

/// Reads a project into the container on a thread of its own; touches no widget. Runs once.
class ProjectLoadingThread final : public QThread
{
    Q_OBJECT
public:
    /// The container outlives the thread, is empty and belongs to it alone meanwhile.
    ProjectLoadingThread(QObject* parent, QString path, DataContainer& container);

signals:
    void resultReady(QString const& path, std::shared_ptr<project_file::ColumnWindowRecords> windows,
                     int current_survey_key, bool success, QString const& message);

protected:
    void run() override;

private:
    QString path_;
    DataContainer& container_;
};
