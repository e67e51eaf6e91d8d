// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/ActionTable.h"

#include <QAction>
#include <QMap>

class QMenu;
class QToolBar;
struct FrameState;

/// The main frame's actions, made from the action table. Owned, like the actions, by the parent given.
class FrameActions : public QObject
{
    Q_OBJECT
public:
    explicit FrameActions(QObject* parent);

    [[nodiscard]] QAction* Get(ActionId id) const { return actions_.value(id); }

    /// Adds the actions of a menu or a tool bar, in table order.
    void AddToMenu(MenuId id, QMenu* menu) const;
    void AddToToolBar(ToolBarId id, QToolBar* tool_bar) const;

    /// Turns each action on or off as the table says for this state.
    void UpdateAvailability(FrameState const& state);

    /// Takes the icons for the desktop's colour scheme; the unit and separator actions show the present
    /// setting.
    void SetActionIcons();

    /// The file of an icon: the dark form where the scheme is dark and there is one, otherwise the light
    /// form.
    [[nodiscard]] static QString GetIconPath(QString const& file, bool dark);

private:
    QMap<ActionId, QAction*> actions_;
};
