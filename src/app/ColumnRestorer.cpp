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
    automatic_views_.clear();
    warnings_.clear();
    for (index_ = 0; index_ < static_cast<int>(record.views.size()); ++index_) {
        auto const known = order_.size();
        auto const& view = record.views[static_cast<std::size_t>(index_)];
        view->CreateViewWidget(*this);
        if (order_.size() > known) {
            order_.last()->setVisible(view->is_visible);
        }
    }
    RestoreAutomaticDataViews();
    auto* area = column_.GetScrollAreaWrapper();
    for (qsizetype i = 0; i < order_.size(); ++i) {
        area->InsertSplitterWidget(static_cast<int>(i), order_[i]);
    }
    column_.RestoreState_ColumnWindow(record);
    return warnings_;
}

BaseCombinedViewWidget* ColumnRestorer::TakeOwnView(VIEW_WIDGET_STRUCT const& record)
{
    for (auto* pair : column_.FindAllCombinedViewWidgets()) {
        if (pair->GetBaseViewWidgetObjectName() == record.object_name && !order_.contains(pair)) {
            if (!record.name.isEmpty()) {
                pair->SetBaseViewWidgetName(record.name);
            }
            order_.append(pair);
            return pair;
        }
    }
    return nullptr;
}

void ColumnRestorer::AddHeadChannel(AutomaticDataView& view, INTERMEDIATE_DATAVIEW_STRUCT const& record)
{
    if (record.scales.empty()) {
        return;
    }
    auto const key = column_.GetSurveyId();
    for (auto const& hash : project_.GetDepthLogIdentifierHashes(key)) {
        auto const pass = project_.GetDepthLogPass(LogPassIdentifier(key, hash));
        int const index = pass->FindDataChannelByMnem(record.name);
        if (index >= 0 && pass->GetDataChannel(index)->GetCurveInfo() == record.scales.front()->header) {
            column_.AddDepthDataChannelToDataView(&view, pass->GetDataChannel(index));
            return;
        }
    }
}

void ColumnRestorer::RestoreAutomaticDataViews()
{
    auto const key = column_.GetSurveyId();
    for (auto const& [view, record] : automatic_views_) {
        AddHeadChannel(*view, *record);
    }
    for (auto const& hash : project_.GetDepthLogIdentifierHashes(key)) {
        column_.AddRestoredDepthLog(project_.GetDepthLogPass(LogPassIdentifier(key, hash)));
    }
    for (auto const& hash : project_.GetTimeLogIdentifierHashes(key)) {
        column_.AddRestoredTimeLog(project_.GetTimeLog(LogPassIdentifier(key, hash)));
    }
    for (auto const& [view, record] : automatic_views_) {
        try {
            view->RestoreState_IntermediateDataView(*record);
            view->UpdateScales();
        } catch (std::exception const&) {
            warnings_ << DataViewWarning(record->name);
        }
    }
}

void ColumnRestorer::CreateAndRestoreAutomaticDataView(INTERMEDIATE_DATAVIEW_STRUCT const& record)
{
    auto* pair = column_.CreateDataView_Public(record.name, true);
    order_.append(pair);
    automatic_views_.emplace_back(qobject_cast<AutomaticDataView*>(pair->GetBaseDataView()), &record);
}

void ColumnRestorer::CreateAndRestoreUserDataView(USER_DATAVIEW_STRUCT const& record)
{
    try {
        auto* pair = column_.CreateDataView_Public(record.name, false);
        order_.append(pair);
        auto* view = qobject_cast<UserDataView*>(pair->GetBaseDataView());
        for (DataChannelIdentifier const& identifier : record.curves) {
            try {
                if (auto const channel = project_.GetDepthDataChannel(identifier)) {
                    view->AssignDepthDataChannel(channel);
                }
            } catch (std::exception const&) {
                continue; // the channel is gone
            }
        }
        view->RestoreState_UserDataView(record);
        view->UpdateScales();
    } catch (std::exception const&) {
        warnings_ << DataViewWarning(record.name);
    }
}

void ColumnRestorer::CreateAndRestoreDeviationDataView(BASE_DATAVIEW_STRUCT const& record)
{
    if (auto* pair = TakeOwnView(record)) {
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
    if (TakeOwnView(record) == nullptr) {
        warnings_ << ViewWidgetWarning(record.name);
        column_.CarryView(std::make_shared<VIEW_WIDGET_STRUCT>(record), index_);
    }
}
