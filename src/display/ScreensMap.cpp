// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ScreensMap.h"

void ScreensMap::AddScreen(QString const& name, std::shared_ptr<Screen const> screen)
{
    screens_[name] = std::move(screen);
    emit ScreenAdded_Signal();
}

void ScreensMap::DeleteScreen(QString const& name)
{
    if (screens_.erase(name) == 0) {
        return;
    }
    if (current_screen_name_ == name) {
        current_screen_name_.clear();
    }
    emit ScreenDeleted_Signal();
}

std::shared_ptr<ScreensMap::Screen const> ScreensMap::GetScreen(QString const& name) const
{
    auto const found = screens_.find(name);
    return found == screens_.end() ? nullptr : found->second;
}

QStringList ScreensMap::GetScreenNames() const
{
    QStringList names;
    for (auto const& [name, screen] : screens_) {
        names << name;
    }
    return names;
}

std::map<QString, ScreensMap::Screen> ScreensMap::WriteState_ScreensMap() const
{
    std::map<QString, Screen> screens;
    for (auto const& [name, screen] : screens_) {
        screens.emplace(name, *screen);
    }
    return screens;
}

void ScreensMap::RestoreState_SceensMap(std::map<QString, Screen> const& screens)
{
    screens_.clear();
    for (auto const& [name, screen] : screens) {
        screens_.emplace(name, std::make_shared<Screen>(screen));
    }
}
