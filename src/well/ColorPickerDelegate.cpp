// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ColorPickerDelegate.h"

#include "app/ColorPicker.h"

#include <QPainter>

void ColorPickerDelegate::initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    QSize const size(2 * option->fontMetrics.height(), option->fontMetrics.height());
    QPixmap swatch(size);
    swatch.fill(index.data(Qt::EditRole).value<QColor>());
    QPainter painter(&swatch);
    painter.setPen(QColor(128, 128, 128));
    painter.drawRect(QRect(QPoint(0, 0), size - QSize(1, 1)));
    painter.end();
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = size;
    option->icon = QIcon(swatch);
    option->icon.addPixmap(swatch, QIcon::Selected); // not tinted
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

void ColorPickerDelegate::updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                                               [[maybe_unused]] QModelIndex const& index) const
{
    editor->setGeometry(option.rect);
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
