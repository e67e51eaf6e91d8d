// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ColumnWindow.h"

#include "app/kit/SettingsSingleton.h"
#include "display/AutomaticDataView.h"
#include "display/CombinedDataViewWidget.h"
#include "display/ScrollAreaWrapper.h"
#include "display/UserDataView.h"
#include "model/DepthLogPass.h"
#include "model/TimeLog.h"
#include "model/ViewObjectNames.h"

#include <QRegularExpression>

#include <algorithm>

namespace {
QString NameWithoutPostFix(QString const& name)
{
    return name.chopped(ColumnWindow::CheckForTimeLogPostFix(name).size());
}
} // namespace

// The logs of the survey and the views that show their channels.

void ColumnWindow::AddImportedDepthLog(std::weak_ptr<DepthLogPass const> const& pass)
{
    std::shared_ptr<DepthLogPass const> const log = pass.lock();
    if (!log) {
        return;
    }
    UpdateAutomaticDataViews(log.get());
    DisplayFirstCVWs();
}

void ColumnWindow::OnTimeLogAdded(std::weak_ptr<TimeLog const> const& log)
{
    UpdateAutomaticDataViews(log);
    DisplayFirstCVWs();
}

void ColumnWindow::PrepareForFirstData()
{
    QList<BaseDataView*> const views = FindAllDataViews();
    bool const has_data_views = std::any_of(views.begin(), views.end(), [](BaseDataView const* view) {
        return view->objectName() != view_object_names::DEVIATION;
    });
    if (!has_data_views) {
        override_automatic_interval_ = false;
        OnVisibleWidgetDataChanged();
    }
}

void ColumnWindow::UpdateAutomaticDataViews(DepthLogPass const* pass)
{
    PrepareForFirstData();
    QHash<QString, AutomaticDataView*> views = AutomaticDataViewsByName();
    // By channel, not by name: several curves of one pass may have the same mnemonic.
    for (auto const& channel : pass->GetDataChannels()) {
        QString const& name = channel->GetCurveInfo().mnemonic;
        AutomaticDataView*& view = views[name];
        if (view) {
            AddDepthDataChannelToDataView(view, channel);
        } else {
            view = CreateAutomaticDataView_AddDepthDataByMnem(name, pass);
        }
    }
}

AutomaticDataView* ColumnWindow::CreateAutomaticDataView_AddDepthDataByMnem(QString const& name,
                                                                            DepthLogPass const* pass)
{
    auto* view = qobject_cast<AutomaticDataView*>(CreateDataView(name, true)->GetBaseDataView());
    AddDepthDataChannelToDataView(view, pass->GetDataChannel(pass->FindDataChannelByMnem(name)));
    return view;
}

void ColumnWindow::UpdateAutomaticDataViews(std::weak_ptr<TimeLog const> const& time_log)
{
    std::shared_ptr<TimeLog const> const log = time_log.lock();
    if (!log) {
        return;
    }
    PrepareForFirstData();
    QHash<QString, AutomaticDataView*> views = AutomaticDataViewsByName();
    for (auto const& channel : log->GetDataChannels()) {
        QString const& name = channel->GetCurveInfo().mnemonic;
        QString const view_name = NameWithoutPostFix(name);
        AutomaticDataView*& view = views[view_name];
        if (view) {
            AddTimeLogDataChannelToDataView(view, channel);
        } else {
            view = CreateAutomaticDataView_AddTimeDataByMnem(view_name, name, log.get());
        }
    }
}

void ColumnWindow::AddRestoredDepthLog(std::weak_ptr<DepthLogPass const> const& pass)
{
    if (std::shared_ptr<DepthLogPass const> const log = pass.lock()) {
        QHash<QString, AutomaticDataView*> const views = AutomaticDataViewsByName();
        for (auto const& channel : log->GetDataChannels()) {
            if (AutomaticDataView* view = views.value(channel->GetCurveInfo().mnemonic)) {
                AddDepthDataChannelToDataView(view, channel);
            }
        }
    }
}

void ColumnWindow::AddRestoredTimeLog(std::weak_ptr<TimeLog const> const& time_log)
{
    if (std::shared_ptr<TimeLog const> const log = time_log.lock()) {
        QHash<QString, AutomaticDataView*> const views = AutomaticDataViewsByName();
        for (auto const& channel : log->GetDataChannels()) {
            if (AutomaticDataView* view = views.value(NameWithoutPostFix(channel->GetCurveInfo().mnemonic))) {
                AddTimeLogDataChannelToDataView(view, channel);
            }
        }
    }
}

AutomaticDataView* ColumnWindow::CreateAutomaticDataView_AddTimeDataByMnem(QString const& view_name,
                                                                           QString const& mnemonic,
                                                                           TimeLog const* log)
{
    auto* view = qobject_cast<AutomaticDataView*>(CreateDataView(view_name, true)->GetBaseDataView());
    AddTimeLogDataChannelToDataView(view, log->GetDataChannel(log->FindDataChannelByMnem(mnemonic)));
    return view;
}

QHash<QString, AutomaticDataView*> ColumnWindow::AutomaticDataViewsByName() const
{
    QHash<QString, AutomaticDataView*> views;
    for (AutomaticDataView* view : FindAllAutomaticDataViews()) {
        views.insert(view->GetName(), view);
    }
    return views;
}

QString ColumnWindow::CheckForTimeLogPostFix(QString const& name)
{
    static QRegularExpression const postfix("_SL$");
    return postfix.match(name).captured();
}

void ColumnWindow::AddDepthDataChannelToDataView(QString const& view,
                                                 std::weak_ptr<BaseDepthDataChannel const> const& channel)
{
    if (BaseDataView* data_view = FindDataViewForChannels(view)) {
        AddDepthDataChannelToDataView(data_view, channel);
    }
}

void ColumnWindow::AddDepthDataChannelToDataView(BaseDataView* view,
                                                 std::weak_ptr<BaseDepthDataChannel const> const& channel)
{
    view->AssignDepthDataChannel(channel);
    OnChannelAdded(view);
}

void ColumnWindow::AddTimeLogDataChannelToDataView(QString const& view,
                                                   std::weak_ptr<TimeLogDataChannel const> const& channel)
{
    if (BaseDataView* data_view = FindDataViewForChannels(view)) {
        AddTimeLogDataChannelToDataView(data_view, channel);
    }
}

void ColumnWindow::AddTimeLogDataChannelToDataView(BaseDataView* view,
                                                   std::weak_ptr<TimeLogDataChannel const> const& channel)
{
    view->AssignTimeDataChannel(channel);
    OnChannelAdded(view);
}

BaseDataView* ColumnWindow::FindDataViewForChannels(QString const& name)
{
    if (UserDataView* view = FindUserDataView(name)) {
        return view;
    }
    return AutomaticDataViewsByName().value(name);
}

void ColumnWindow::OnChannelAdded(BaseDataView const* view)
{
    if (view->parentWidget()->isHidden()) {
        return;
    }
    OnScaleHeightChanged();
    if (!override_automatic_interval_) {
        OnVisibleWidgetDataChanged();
    }
}

void ColumnWindow::DeleteDependencies(DataChannelIdentifier const& identifier)
{
    ChangeVisibility([&] {
        for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
            auto* view = qobject_cast<BaseDataView*>(pair->GetBaseViewWidget());
            if (!view || view->IsEmpty()) {
                continue;
            }
            bool const has_data = view->DeleteDependencies(identifier);
            if (!has_data && view->objectName() == AutomaticDataView::OBJECT_NAME_) {
                RemovePair(pair);
            }
        }
    });
}

QStringList ColumnWindow::ContainsMFCData(DepthLogPass const* pass) const
{
    QStringList found;
    for (QString const& mnemonic : SettingsSingleton::Instance().GetMfcMnems()) {
        QString stem = mnemonic;
        stem.replace("[", "\\[");
        QRegularExpression const pattern(stem + "([0-9])", QRegularExpression::CaseInsensitiveOption);
        auto const& channels = pass->GetDataChannels();
        bool const matches = std::any_of(channels.begin(), channels.end(), [&](auto const& channel) {
            HeaderRow const& row = channel->GetCurveInfo();
            bool const in_inches = row.unit.compare("in", Qt::CaseInsensitive) == 0 ||
                                   row.unit.compare("inches", Qt::CaseInsensitive) == 0;
            return in_inches && pattern.match(row.mnemonic).hasMatch();
        });
        if (matches) {
            found.append(mnemonic);
        }
    }
    return found;
}

// User views.

void ColumnWindow::SetUserDataViewPen(QString const& view, DataChannelIdentifier const& identifier,
                                      QPen const& pen)
{
    if (UserDataView* user_view = FindUserDataView(view)) {
        user_view->SetPen(identifier, pen);
    }
}

QPen ColumnWindow::GetUserDataViewPen(QString const& view, DataChannelIdentifier const& identifier) const
{
    UserDataView const* user_view = FindUserDataView(view);
    return user_view ? user_view->GetPenFromDci(identifier) : QPen();
}

void ColumnWindow::SetUserDataViewScaleInterval(QString const& view, DataChannelIdentifier const& identifier,
                                                Interval const& scale)
{
    if (UserDataView* user_view = FindUserDataView(view)) {
        user_view->SetScaleInterval(identifier, scale);
    }
}

std::vector<FillAreaDefinition> ColumnWindow::GetAreaFillDefinitions(QString const& view) const
{
    UserDataView const* user_view = FindUserDataView(view);
    return user_view ? user_view->GetFillAreaDefinitions() : std::vector<FillAreaDefinition>();
}

void ColumnWindow::SetAreaFillDefinitions(QString const& view,
                                          std::vector<FillAreaDefinition> const& definitions)
{
    if (UserDataView* user_view = FindUserDataView(view)) {
        user_view->SetFillAreaDefinitions(definitions);
    }
}

void ColumnWindow::RemoveDataFromUserDataView(QString const& view, DataChannelIdentifier const& identifier)
{
    if (UserDataView* user_view = FindUserDataView(view)) {
        user_view->RemoveDepthDataChannel(identifier);
        OnVisibleWidgetsChanged();
    }
}

void ColumnWindow::DeleteCustomDataView(QString const& view)
{
    for (BaseCombinedViewWidget* pair : FindAllCombinedViewWidgets()) {
        QString const kind = pair->GetBaseViewWidgetObjectName();
        bool const is_custom = kind == UserDataView::OBJECT_NAME_ || kind == view_object_names::IMAGE;
        if (is_custom && pair->GetBaseViewWidgetName() == view) {
            RemovePair(pair);
            OnVisibleWidgetsChanged();
            return;
        }
    }
}

QString ColumnWindow::RenameUserDataView(QString const& view, QString const& new_name)
{
    UserDataView* user_view = FindUserDataView(view);
    if (!user_view) {
        return {};
    }
    if (new_name != view) {
        user_view->SetName(GenerateUniqueViewWidgetName(new_name));
    }
    return user_view->GetName();
}

void ColumnWindow::UpdateScalesForAllUserDataViews()
{
    for (UserDataView* view : FindAllUserDataViewWidgets()) {
        view->UpdateScales();
    }
}
