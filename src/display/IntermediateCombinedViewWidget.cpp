// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/IntermediateCombinedViewWidget.h"

#include "display/ColumnSlots.h"
#include "display/DataViewScale.h"
#include "display/IntermediateDataView.h"

void IntermediateCombinedViewWidget::InitializeIntermediateCVW(ColumnSlots const* column,
                                                               IntermediateDataView* view,
                                                               DataViewScale* scale)
{
    QSizePolicy pair_policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    pair_policy.setHorizontalStretch(1);
    setSizePolicy(pair_policy);
    QSizePolicy view_policy = pair_policy;
    view_policy.setVerticalStretch(1);
    view->setSizePolicy(view_policy);
    QSizePolicy scale_policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    scale_policy.setHorizontalStretch(1);
    scale->setSizePolicy(scale_policy);

    SetPair(scale, view);
    ConnectSignalsSlots(column, view);
    EnableContextMenus();
    connect(scale, &BaseScaleView::SetSelectedCurveInfo_Signal, view,
            &BaseDataView::SetSelectedScaleCurveInfo);
    connect(view, &BaseDataView::HorizontalZoomEnd_Signal, this,
            &BaseCombinedViewWidget::HorizontalZoomEnd_Signal);
    connect(view, &BaseDataView::ApplyShift_Signal, this, &BaseCombinedViewWidget::ApplyShift_Signal);
    connect(view, &BaseDataView::ShiftStarted_Signal, this, &BaseCombinedViewWidget::ShiftStarted_Signal);
    connect(view, &BaseDataView::ApplyStretch_Signal, this, &BaseCombinedViewWidget::ApplyStretch_Signal);
    if (column == nullptr) {
        return;
    }
    connect(view, &BaseDataView::PushUndoObject_Signal, column, &ColumnSlots::PushUndo);
    connect(view, &BaseDataView::ShiftCompleted_Signal, column, &ColumnSlots::OnShiftCompleted);
    connect(view, &BaseDataView::DepthStretchCompleted_Signal, column, &ColumnSlots::OnDepthStretchCompleted);
    connect(view, &BaseDataView::DepthStretchStarted_Signal, column, &ColumnSlots::OnDepthStretchStarted);
    connect(this, &CombinedDataViewWidget::UndoBatchStarted_Signal, column, &ColumnSlots::OnUndoBatchStarted);
    connect(this, &CombinedDataViewWidget::UndoBatchCompleted_Signal, column,
            &ColumnSlots::OnUndoBatchCompleted);
}
