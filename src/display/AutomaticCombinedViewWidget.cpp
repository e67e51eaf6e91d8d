// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/AutomaticCombinedViewWidget.h"

#include "display/AutomaticDataView.h"
#include "display/DataViewScale.h"

AutomaticCombinedViewWidget::AutomaticCombinedViewWidget(QString const& name, ColumnContext const& context,
                                                         ColumnSlots const* column, QWidget* parent)
    : IntermediateCombinedViewWidget(parent), view_(new AutomaticDataView(this, name, context))
{
    InitializeIntermediateCVW(column, view_, new DataViewScale(this));
}

BaseDataView const* AutomaticCombinedViewWidget::GetBaseDataView() const
{
    return view_;
}

BaseDataView* AutomaticCombinedViewWidget::GetBaseDataView()
{
    return view_;
}
