// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

#include <functional>

/// Edits cells as text that a project file holds. The mark of a wrong cell shows in a selected row too.
class TextDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using Committed = std::function<void(QModelIndex const& index)>;

    /// `committed` is called after an editor gave its text to a cell.
    explicit TextDelegate(QObject* parent = nullptr, Committed committed = {});

    [[nodiscard]] QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& option,
                                        QModelIndex const& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, QModelIndex const& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, QModelIndex const& index) const override;

private:
    Committed committed_;
};
