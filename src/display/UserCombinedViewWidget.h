// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/IntermediateCombinedViewWidget.h"

class UserDataView;
struct ColumnContext;

/// The pair of a view that the user composes.
class UserCombinedViewWidget final : public IntermediateCombinedViewWidget
{
    Q_OBJECT
public:
    /// `context` holds pointers to values that outlive the widget; `column` may be null.
    UserCombinedViewWidget(QString const& name, ColumnContext const& context, ColumnSlots const* column,
                           QWidget* parent = nullptr);

    [[nodiscard]] BaseDataView const* GetBaseDataView() const override;
    [[nodiscard]] BaseDataView* GetBaseDataView() override;
    [[nodiscard]] UserDataView const* GetUserDataView() const { return view_; }
    [[nodiscard]] UserDataView* GetUserDataView() { return view_; }

signals:
    void ShowUserDataViewProperties_Signal(QString const& view);

protected:
    void FillContextMenu(QMenu& menu) override;

private:
    UserDataView* view_;
};
