// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/CombinedDataViewWidget.h"

class DeviationDataView;
struct ColumnContext;

/// The pair of the deviation track.
class DeviationCombinedViewWidget final : public CombinedDataViewWidget
{
    Q_OBJECT
public:
    /// `context` holds pointers to values that outlive the widget.
    DeviationCombinedViewWidget(QString const& name, ColumnContext const& context, QWidget* parent = nullptr);

    [[nodiscard]] BaseDataView const* GetBaseDataView() const override;
    [[nodiscard]] BaseDataView* GetBaseDataView() override;
    [[nodiscard]] DeviationDataView* GetDeviationDataView() const { return view_; }

private:
    DeviationDataView* view_;
};
