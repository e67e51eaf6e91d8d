// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

#include <map>
#include <memory>
#include <utility>
#include <vector>

/// The stored screens of a column: named arrangements of its views, each a list of view names and widths in
/// splitter order.
class ScreensMap : public QObject
{
    Q_OBJECT
public:
    using Screen = std::vector<std::pair<QString, int>>;

    using QObject::QObject;

    /// Replaces a screen of that name.
    void AddScreen(QString const& name, std::shared_ptr<Screen const> screen);
    void DeleteScreen(QString const& name);
    /// Null for an unknown name.
    [[nodiscard]] std::shared_ptr<Screen const> GetScreen(QString const& name) const;
    /// Ascending.
    [[nodiscard]] QStringList GetScreenNames() const;
    void SetCurrentScreenName(QString const& name) { current_screen_name_ = name; }
    [[nodiscard]] QString const& GetCurrentScreenName() const { return current_screen_name_; }

    /// All screens, to and from the record of a project file.
    [[nodiscard]] std::map<QString, Screen> WriteState_ScreensMap() const;
    void RestoreState_SceensMap(std::map<QString, Screen> const& screens);

signals:
    void ScreenAdded_Signal();
    void ScreenDeleted_Signal();

private:
    std::map<QString, std::shared_ptr<Screen const>> screens_;
    QString current_screen_name_;
};
