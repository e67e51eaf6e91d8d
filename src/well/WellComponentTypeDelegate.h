// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

/// Edits a component's type with a combo box of the names of ComponentTypesMap.
class WellComponentTypeDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& option,
                                        QModelIndex const& index) const override;
    void setEditorData(QWidget* editor, QModelIndex const& index) const override;
    /// Leaves a type that has no name alone until another is chosen.
    void setModelData(QWidget* editor, QAbstractItemModel* model, QModelIndex const& index) const override;
};
