// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/TextDelegate.h"

#include "display/InputStyle.h"

#include <QLineEdit>

QWidget* TextDelegate::createEditor(QWidget* parent, QStyleOptionViewItem const& option,
                                    QModelIndex const& index) const
{
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* edit = qobject_cast<QLineEdit*>(editor)) {
        edit->setMaxLength(MAXIMUM_LENGTH);
    }
    return editor;
}

void TextDelegate::initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->backgroundBrush.color() == Quorrel::INVALID_INPUT_COLOR) {
        option->state &= ~QStyle::State_Selected;
    }
}
