// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

/// Edits cells as text. Its line edits take texts beyond what a project file holds, so that a text too long
/// is refused with a message and not cut short in silence. The mark of a wrong cell shows in a selected row
/// too.
class TextDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    static constexpr int MAXIMUM_LENGTH = 1000000;

    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& option,
                                        QModelIndex const& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const override;
};
