// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/RecentFiles.h"

#include "app/kit/SettingsSingleton.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>

RecentFiles::RecentFiles(QObject* parent) : QObject(parent) {}

void RecentFiles::CreateRecentFileActionList(QObject* owner)
{
    for (QAction*& action : actions_) {
        action = new QAction(owner);
        action->setVisible(false);
        connect(action, &QAction::triggered, this, &RecentFiles::OnLoadRecent);
    }
    CullFileList();
    UpdateRecentFileActionList();
}

void RecentFiles::OnLoadRecent()
{
    if (auto const* action = qobject_cast<QAction*>(sender())) {
        emit LoadRecent_Signal(action->data().toString());
    }
}

void RecentFiles::AddActionsToMenu(QMenu* menu) const
{
    menu->setToolTipsVisible(true);
    for (QAction* const action : actions_) {
        menu->addAction(action);
    }
}

void RecentFiles::CullFileList()
{
    QStringList files = SettingsSingleton::Instance().GetRecentFiles();
    for (qsizetype i = files.size() - 1; i >= 0; --i) {
        if (!QFileInfo::exists(files[i])) {
            files.removeAt(i);
        }
    }
    SettingsSingleton::Instance().SetRecentFiles(files);
}

void RecentFiles::UpdateRecentFileActionList()
{
    QStringList const files = SettingsSingleton::Instance().GetRecentFiles();
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        QAction* const action = actions_[i];
        auto const index = static_cast<qsizetype>(i);
        if (action == nullptr) {
            continue;
        }
        if (index < files.size()) {
            QString const& path = files[index];
            // A lone "&" would underline the letter after it.
            action->setText(QFileInfo(path).fileName().replace(QLatin1Char('&'), QLatin1String("&&")));
            action->setData(path);
            action->setToolTip(path);
        }
        action->setVisible(index < files.size());
    }
}

void RecentFiles::AdjustForFileChange(QString const& path)
{
    QStringList files = SettingsSingleton::Instance().GetRecentFiles();
    files.removeAll(path);
    files.prepend(path);
    while (files.size() > MAX_FILES) {
        files.removeLast();
    }
    SettingsSingleton::Instance().SetRecentFiles(files);
    UpdateRecentFileActionList();
}
