// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/CombinedDataViewWidget.h"

class DataViewScale;
class IntermediateDataView;

/// A pair whose view draws depth and time curves.
class IntermediateCombinedViewWidget : public CombinedDataViewWidget
{
    Q_OBJECT
public:
    using CombinedDataViewWidget::CombinedDataViewWidget;

protected:
    /// Size policies, stacking, wiring between header, view and column, context menus. `column` may be null.
    void InitializeIntermediateCVW(ColumnSlots const* column, IntermediateDataView* view,
                                   DataViewScale* scale);
};
