// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/TextDelegate.h"

#include "display/InputStyle.h"
#include "well/TextLimit.h"

#include <QLineEdit>

#include <utility>

TextDelegate::TextDelegate(QObject* parent, Committed committed)
    : QStyledItemDelegate(parent), committed_(std::move(committed))
{
}

QWidget* TextDelegate::createEditor(QWidget* parent, QStyleOptionViewItem const& option,
                                    QModelIndex const& index) const
{
    QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* edit = qobject_cast<QLineEdit*>(editor)) {
        new TextLimit(edit);
    }
    return editor;
}

void TextDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, QModelIndex const& index) const
{
    QStyledItemDelegate::setModelData(editor, model, index);
    if (committed_) {
        committed_(index);
    }
}

void TextDelegate::initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->backgroundBrush.color() == Quorrel::INVALID_INPUT_COLOR) {
        option->state &= ~QStyle::State_Selected;
    }
}
