// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/TextDelegate.h"

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
