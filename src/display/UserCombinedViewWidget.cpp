// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/UserCombinedViewWidget.h"

#include "display/DataViewScale.h"
#include "display/UserDataView.h"

#include <QMenu>

UserCombinedViewWidget::UserCombinedViewWidget(QString const& name, ColumnContext const& context,
                                               ColumnSlots const* column, QWidget* parent)
    : IntermediateCombinedViewWidget(parent), view_(new UserDataView(this, name, context))
{
    InitializeIntermediateCVW(column, view_, new DataViewScale(this));
    connect(view_, &UserDataView::DataChannelDroppedOnUserDataView_Signal, this,
            &BaseCombinedViewWidget::DataChannelDroppedOnUserDataView_Signal);
}

BaseDataView const* UserCombinedViewWidget::GetBaseDataView() const
{
    return view_;
}

BaseDataView* UserCombinedViewWidget::GetBaseDataView()
{
    return view_;
}

void UserCombinedViewWidget::FillContextMenu(QMenu& menu)
{
    IntermediateCombinedViewWidget::FillContextMenu(menu);
    QAction* const properties = menu.addAction(
        tr("Properties"), this, [this] { emit ShowUserDataViewProperties_Signal(view_->GetName()); });
    properties->setEnabled(false); // until there is a dialog that answers
}
