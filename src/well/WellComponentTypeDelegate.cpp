// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellComponentTypeDelegate.h"

#include "well/WellComponentType.h"

#include <QComboBox>

QWidget* WellComponentTypeDelegate::createEditor(QWidget* parent,
                                                 [[maybe_unused]] QStyleOptionViewItem const& option,
                                                 [[maybe_unused]] QModelIndex const& index) const
{
    auto* box = new QComboBox(parent);
    for (auto const& [type, name] : ComponentTypesMap) {
        box->addItem(name, static_cast<int>(type));
    }
    auto* self = const_cast<WellComponentTypeDelegate*>(this); // signals are not const
    connect(box, &QComboBox::activated, self, [self, box] {
        emit self->commitData(box);
        emit self->closeEditor(box);
    });
    return box;
}

void WellComponentTypeDelegate::setEditorData(QWidget* editor, QModelIndex const& index) const
{
    auto* box = static_cast<QComboBox*>(editor);
    box->setCurrentIndex(box->findData(index.data(Qt::EditRole)));
}

void WellComponentTypeDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                             QModelIndex const& index) const
{
    auto const chosen = static_cast<QComboBox*>(editor)->currentData();
    if (chosen.isValid() && chosen != index.data(Qt::EditRole)) {
        model->setData(index, chosen);
    }
}
