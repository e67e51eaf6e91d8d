// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/DeviationCombinedViewWidget.h"

#include "display/DataViewScale.h"
#include "well/DeviationDataView.h"

DeviationCombinedViewWidget::DeviationCombinedViewWidget(QString const& name, ColumnContext const& context,
                                                         QWidget* parent)
    : CombinedDataViewWidget(parent), view_(new DeviationDataView(this, name, context))
{
    QSizePolicy pair_policy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    pair_policy.setHorizontalStretch(1);
    setSizePolicy(pair_policy);
    QSizePolicy view_policy = pair_policy;
    view_policy.setVerticalStretch(1);
    view_->setSizePolicy(view_policy);
    auto* scale = new DataViewScale(this);
    QSizePolicy scale_policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    scale_policy.setHorizontalStretch(1);
    scale->setSizePolicy(scale_policy);

    SetPair(scale, view_);
    EnableContextMenus();
    connect(scale, &BaseScaleView::SetSelectedCurveInfo_Signal, view_,
            &BaseDataView::SetSelectedScaleCurveInfo);
    connect(view_, &BaseDataView::HorizontalZoomEnd_Signal, this,
            &BaseCombinedViewWidget::HorizontalZoomEnd_Signal);
    connect(view_, &BaseDataView::ApplyShift_Signal, this, &BaseCombinedViewWidget::ApplyShift_Signal);
    connect(view_, &BaseDataView::ShiftStarted_Signal, this, &BaseCombinedViewWidget::ShiftStarted_Signal);
    connect(view_, &BaseDataView::ApplyStretch_Signal, this, &BaseCombinedViewWidget::ApplyStretch_Signal);
    // The view has its channels already; the header has not heard of them.
    scale->SetScale(view_->GetScales());
}

BaseDataView const* DeviationCombinedViewWidget::GetBaseDataView() const
{
    return view_;
}

BaseDataView* DeviationCombinedViewWidget::GetBaseDataView()
{
    return view_;
}
