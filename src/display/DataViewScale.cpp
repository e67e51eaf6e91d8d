// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DataViewScale.h"

#include "display/ScaleItem.h"
#include "model/ScaleItemParameters.h"

#include <QVBoxLayout>

DataViewScale::DataViewScale(QWidget* parent) : BaseScaleView(parent)
{
    setContextMenuPolicy(Qt::CustomContextMenu);
}

void DataViewScale::SetScale(std::vector<std::shared_ptr<ScaleItemParameters>> scales)
{
    while (QLayoutItem* const old = GetItemsLayout()->takeAt(0)) {
        delete old->widget();
        delete old;
    }
    ScaleItem* first = nullptr;
    bool has_selection = false;
    for (auto const& parameters : scales) {
        auto* item = new ScaleItem(GetItemsArea(), parameters);
        GetItemsLayout()->addWidget(item);
        connect(item, &ScaleItem::Selected, this, &DataViewScale::OnSelected);
        first = first != nullptr ? first : item;
        has_selection = has_selection || item->GetSelected();
    }
    int const items_height = LINE_HEIGHT * GetScaleCount();
    if (items_height != GetItemsArea()->height()) {
        GetItemsArea()->setMinimumHeight(items_height);
        updateGeometry();
        if (isVisible()) {
            emit AdjustHeight_Signal();
        }
    }
    if (!has_selection && first != nullptr) {
        first->SetSelected(true);
        emit SetSelectedCurveInfo_Signal(first->GetScaleItemParameters());
    }
}

void DataViewScale::OnSelected(ScaleItem* item)
{
    for (int i = 0; i < GetItemsLayout()->count(); ++i) {
        if (auto* other = qobject_cast<ScaleItem*>(GetItemsLayout()->itemAt(i)->widget())) {
            other->SetSelected(false);
        }
    }
    if (item != nullptr) {
        item->SetSelected(true);
        emit SetSelectedCurveInfo_Signal(item->GetScaleItemParameters());
    }
}
