// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/FrameActions.h"

#include "app/FrameState.h"
#include "app/kit/ColorScheme.h"
#include "app/kit/SettingsSingleton.h"

#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QToolBar>

namespace {
QString IconFile(ActionDefinition const& definition)
{
    auto const& settings = SettingsSingleton::Instance();
    if (definition.id == ActionId::ToggleDepthUnit) {
        return settings.IsMetricDepth() ? QStringLiteral("Depth_Metric.svg")
                                        : QStringLiteral("Depth_Imperial.svg");
    }
    if (definition.id == ActionId::ToggleSeparator) {
        return settings.GetDecimalSeparator() == '.' ? QStringLiteral("Separator_Period.svg")
                                                     : QStringLiteral("Separator_Comma.svg");
    }
    return QString::fromLatin1(definition.icon);
}
} // namespace

FrameActions::FrameActions(QObject* parent) : QObject(parent)
{
    for (auto const& definition : ActionTable()) {
        auto* action = new QAction(tr(definition.text), parent);
        action->setShortcuts(definition.keys);
        action->setCheckable(definition.checkable);
        auto const plain_text = tr(definition.text).remove('&');
        if (*definition.status_tip != '\0') { // others would only hide the depth read-out
            action->setStatusTip(tr(definition.status_tip));
        }
        action->setToolTip(plain_text);
        action->setObjectName(plain_text);
        actions_.insert(definition.id, action);
    }
    SetActionIcons();
}

void FrameActions::AddToMenu(MenuId id, QMenu* menu) const
{
    for (auto const& definition : ActionTable()) {
        if (definition.menu == id) {
            if (definition.separator_before) {
                menu->addSeparator();
            }
            menu->addAction(Get(definition.id));
        }
    }
}

void FrameActions::AddToToolBar(ToolBarId id, QToolBar* tool_bar) const
{
    for (auto const& definition : ActionTable()) {
        if (definition.tool_bar == id) {
            tool_bar->addAction(Get(definition.id));
        }
    }
}

void FrameActions::UpdateAvailability(FrameState const& state)
{
    for (auto const& definition : ActionTable()) {
        Get(definition.id)->setEnabled(IsAvailable(definition.availability, state));
    }
}

void FrameActions::SetActionIcons()
{
    bool const dark = ColorScheme::IsDark();
    for (auto const& definition : ActionTable()) {
        Get(definition.id)->setIcon(QIcon(GetIconPath(IconFile(definition), dark)));
    }
}

QString FrameActions::GetIconPath(QString const& file, bool dark)
{
    if (dark) {
        QFileInfo const info(file);
        auto const folder = info.path() == QLatin1String(".") ? QString() : info.path() + '/';
        auto const dark_form = QStringLiteral(":/Icons/") + folder + "DarkTheme/" + info.fileName();
        if (QFile::exists(dark_form)) {
            return dark_form;
        }
    }
    return QStringLiteral(":/Icons/") + file;
}
