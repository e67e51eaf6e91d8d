// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/TableCommands.h"

#include <QTableView>

class BaseTableModel;

/// A table of well data on a model of its own, which it takes over.
class BaseModelTable : public QTableView, public TableCommands
{
    Q_OBJECT
public:
    explicit BaseModelTable(BaseTableModel* model, QWidget* parent = nullptr);

    void CopyData() const override;
    void DeleteSelectedRows() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Selects the row and brings it to sight.
    void ShowRow(int row);

private:
    BaseTableModel* model_;
};
