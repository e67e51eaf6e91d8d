// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

#include <array>

class QAction;
class QMenu;

/// The ten entries of the recent files menu, kept in step with the list in the settings (newest first).
class RecentFiles : public QObject
{
    Q_OBJECT
public:
    static constexpr int MAX_FILES = 10;

    explicit RecentFiles(QObject* parent = nullptr);

    /// Makes the actions as children of `owner`; forgets files that are gone.
    void CreateRecentFileActionList(QObject* owner);
    void AddActionsToMenu(QMenu* menu) const;
    /// Puts `path` at the front.
    void AdjustForFileChange(QString const& path);
    /// Removes the files that are gone from the list.
    void CullFileList();
    void UpdateRecentFileActionList();

public slots:
    /// For the actions: tells which of them was triggered.
    void OnLoadRecent();

signals:
    /// The user chose this file.
    void LoadRecent_Signal(QString const& path);

private:
    std::array<QAction*, MAX_FILES> actions_{};
};
