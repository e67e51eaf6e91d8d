// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/BaseModelTable.h"

#include "well/BaseTableModel.h"
#include "well/TextDelegate.h"

#include <QKeyEvent>

BaseModelTable::BaseModelTable(BaseTableModel* model, QWidget* parent) : QTableView(parent), model_(model)
{
    model_->setParent(this);
    setModel(model_);
    SetUpView(*this);
    setItemDelegate(new TextDelegate(this));
}

void BaseModelTable::CopyData() const
{
    CopyRows(*this, [this](int row) { return JoinColumns(model_->GetRowTexts(row)); });
}

void BaseModelTable::DeleteSelectedRows()
{
    model_->RemoveRows(GetSelectedRows(*this));
}

void BaseModelTable::keyPressEvent(QKeyEvent* event)
{
    if (!HandleKey(*event)) {
        QTableView::keyPressEvent(event);
    }
}

void BaseModelTable::ShowRow(int row)
{
    setCurrentIndex(model_->index(row, 0));
}
