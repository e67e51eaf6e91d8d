// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/ColumnRestorer.h"

#include "display/AutomaticDataView.h"
#include "display/BaseCombinedViewWidget.h"
#include "display/ColumnWindow.h"
#include "display/CombinedDataViewWidget.h"
#include "display/ScrollAreaWrapper.h"
#include "display/UserDataView.h"
#include "model/DepthLogPass.h"
#include "model/ProjectAccess.h"
#include "model/TimeLog.h"

#include <exception>

namespace {
QString DataViewWarning(QString const& name)
{
    return "Unable to restore DataView named: " + name +
           ". Program will most likely not be able to continue. If this is an MFC dataview ensure that the "
           "Mnem exist "
           "in the MFC-Settings. Also, try to upgrade Quorrel to the newest version";
}

QString ViewWidgetWarning(QString const& name)
{
    return "Unable to restore ViewWidget named: " + name +
           ". Program will most likely not be able to continue.";
}
} // namespace

QStringList ColumnRestorer::RestoreColumnWindow(COLUMN_WINDOW_Struct const& record)
{
    column_.SetOverrideAutomaticDisplayedInterval(true); // no recalculation while views come and go
    order_.clear();
    warnings_.clear();
    for (index_ = 0; index_ < static_cast<int>(record.views.size()); ++index_) {
        auto const known = order_.size();
        auto const& view = record.views[static_cast<std::size_t>(index_)];
        view->CreateViewWidget(*this);
        if (order_.size() > known) {
            order_.last()->setVisible(view->is_visible);
        }
    }
    auto* area = column_.GetScrollAreaWrapper();
    for (qsizetype i = 0; i < order_.size(); ++i) {
        area->InsertSplitterWidget(static_cast<int>(i), order_[i]);
    }
    column_.RestoreState_ColumnWindow(record);
    return warnings_;
}

BaseCombinedViewWidget* ColumnRestorer::FindView(QString const& object_name, QString const& name) const
{
    for (auto* pair : column_.FindAllCombinedViewWidgets()) {
        if (pair->GetBaseViewWidgetObjectName() == object_name && !order_.contains(pair) &&
            (name.isEmpty() || pair->GetBaseViewWidgetName() == name)) {
            return pair;
        }
    }
    return nullptr;
}

void ColumnRestorer::AddChannelsByMnemonic(QString const& name)
{
    auto const key = column_.GetSurveyId();
    for (auto const& hash : project_.GetDepthLogIdentifierHashes(key)) {
        auto const pass = project_.GetDepthLogPass(LogPassIdentifier(key, hash));
        if (int const index = pass->FindDataChannelByMnem(name); index >= 0) {
            column_.AddDepthDataChannelToDataView(name, pass->GetDataChannel(index));
        }
    }
    for (auto const& hash : project_.GetTimeLogIdentifierHashes(key)) {
        auto const log = project_.GetTimeLog(LogPassIdentifier(key, hash));
        for (auto const& mnemonic : log->GetDataChannelNames()) {
            auto const postfix = ColumnWindow::CheckForTimeLogPostFix(mnemonic);
            if (mnemonic.chopped(postfix.size()) == name) {
                column_.AddTimeLogDataChannelToDataView(
                    name, log->GetDataChannel(log->FindDataChannelByMnem(mnemonic)));
            }
        }
    }
}

void ColumnRestorer::CreateAndRestoreAutomaticDataView(INTERMEDIATE_DATAVIEW_STRUCT const& record)
{
    try {
        auto* pair = column_.CreateDataView_Public(record.name, true);
        order_.append(pair);
        AddChannelsByMnemonic(record.name);
        auto* view = qobject_cast<AutomaticDataView*>(pair->GetBaseDataView());
        view->RestoreState_IntermediateDataView(record);
        view->UpdateScales();
    } catch (std::exception const&) {
        warnings_ << DataViewWarning(record.name);
    }
}

void ColumnRestorer::CreateAndRestoreUserDataView(USER_DATAVIEW_STRUCT const& record)
{
    try {
        auto* pair = column_.CreateDataView_Public(record.name, false);
        order_.append(pair);
        auto* view = qobject_cast<UserDataView*>(pair->GetBaseDataView());
        USER_DATAVIEW_STRUCT present = record;
        std::vector<int> new_index(record.curves.size(), -1); // channels that are gone leave no gap
        for (std::size_t i = 0; i < record.curves.size(); ++i) {
            std::shared_ptr<BaseDepthDataChannel const> channel;
            try {
                channel = project_.GetDepthDataChannel(record.curves[i]);
            } catch (std::exception const&) {
                continue;
            }
            if (channel) {
                new_index[i] = static_cast<int>(view->GetDepthCurves().size());
                view->AssignDepthDataChannel(channel);
            }
        }
        present.scales.clear();
        for (auto const& scale : record.scales) {
            auto const old_index = static_cast<std::size_t>(scale->index);
            if (old_index < new_index.size() && new_index[old_index] >= 0) {
                auto copy = std::make_shared<ScaleItemParameters>(*scale);
                copy->index = new_index[old_index];
                present.scales.push_back(std::move(copy));
            }
        }
        view->RestoreState_UserDataView(present);
        view->UpdateScales();
    } catch (std::exception const&) {
        warnings_ << DataViewWarning(record.name);
    }
}

void ColumnRestorer::CreateAndRestoreDeviationDataView(BASE_DATAVIEW_STRUCT const& record)
{
    if (auto* pair = FindView(record.object_name, QString())) {
        order_.append(pair);
        if (auto* data = qobject_cast<CombinedDataViewWidget*>(pair)) {
            data->GetBaseDataView()->RestoreState_BaseDataView(record);
        }
    } else {
        warnings_ << DataViewWarning(record.name);
    }
}

// Images and caliper views wait in the column, unchanged, for a build that can show them.

void ColumnRestorer::CreateAndRestoreImageDataView(IMAGE_DATAVIEW_STRUCT const& record)
{
    column_.CarryView(std::make_shared<IMAGE_DATAVIEW_STRUCT>(record), index_);
}

void ColumnRestorer::CreateAndRestoreMfcDataView(MFC_DATAVIEW_STRUCT const& record)
{
    column_.CarryView(std::make_shared<MFC_DATAVIEW_STRUCT>(record), index_);
}

void ColumnRestorer::CreateAndRestoreViewWidget(VIEW_WIDGET_STRUCT const& record)
{
    if (auto* pair = FindView(record.object_name, QString())) {
        order_.append(pair);
    } else {
        warnings_ << ViewWidgetWarning(record.name);
        column_.CarryView(std::make_shared<VIEW_WIDGET_STRUCT>(record), index_);
    }
}
