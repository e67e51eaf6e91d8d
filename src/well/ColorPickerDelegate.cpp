// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ColorPickerDelegate.h"

#include "app/ColorPicker.h"

#include <QPainter>

void ColorPickerDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option,
                                QModelIndex const& index) const
{
    constexpr int margin = 3;
    int const width = option.rect.height() * 2;
    QRect const swatch = QRect(option.rect.topLeft(), QSize(width, option.rect.height()))
                             .adjusted(margin, margin, -margin, -margin - 1);
    // The base class draws ground, selection and text to the right of the swatch.
    QStyledItemDelegate::paint(painter, option, index);
    painter->save();
    painter->setPen(QColor(128, 128, 128));
    painter->setBrush(index.data(Qt::EditRole).value<QColor>());
    painter->drawRect(swatch);
    painter->restore();
}

QWidget* ColorPickerDelegate::createEditor(QWidget* parent,
                                           [[maybe_unused]] QStyleOptionViewItem const& option,
                                           [[maybe_unused]] QModelIndex const& index) const
{
    auto* picker = new ColorPicker(parent);
    picker->setAutoFillBackground(true);
    auto* self = const_cast<ColorPickerDelegate*>(this); // signals are not const
    connect(picker, &ColorPicker::ColorChanged_Signal, self, [self, picker] {
        emit self->commitData(picker);
        emit self->closeEditor(picker);
    });
    return picker;
}

void ColorPickerDelegate::setEditorData(QWidget* editor, QModelIndex const& index) const
{
    static_cast<ColorPicker*>(editor)->SetColor(index.data(Qt::EditRole).value<QColor>());
}

void ColorPickerDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                       QModelIndex const& index) const
{
    auto const color = static_cast<ColorPicker*>(editor)->GetColor();
    if (color != index.data(Qt::EditRole).value<QColor>()) {
        model->setData(index, color);
    }
}
