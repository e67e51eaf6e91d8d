// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/IntermediateCombinedViewWidget.h"

class AutomaticDataView;
struct ColumnContext;

/// The pair of a view that the program made for one mnemonic.
class AutomaticCombinedViewWidget final : public IntermediateCombinedViewWidget
{
    Q_OBJECT
public:
    /// `context` holds pointers to values that outlive the widget; `column` may be null.
    AutomaticCombinedViewWidget(QString const& name, ColumnContext const& context, ColumnSlots const* column,
                                QWidget* parent = nullptr);

    [[nodiscard]] BaseDataView const* GetBaseDataView() const override;
    [[nodiscard]] BaseDataView* GetBaseDataView() override;
    [[nodiscard]] AutomaticDataView const* GetAutomaticDataView() const { return view_; }
    [[nodiscard]] AutomaticDataView* GetAutomaticDataView() { return view_; }

private:
    AutomaticDataView* view_;
};
