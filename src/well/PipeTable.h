// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseTable.h"
#include "well/Pipe.h"

#include <QList>

/// Edits the flat pipe table: "From", "To", "OD", "ID", "Weight", "Tubing" (a check box), "Description".
class PipeTable : public BaseTable
{
    Q_OBJECT
public:
    explicit PipeTable(QWidget* parent = nullptr);

    using BaseTable::AddRow;
    void AddRow(Pipe const& pipe);
    /// By ascending OD, each interval in ascending order. Marks wrong cells.
    /// @throws std::invalid_argument with the messages of all wrong cells, NoTableItemError for a missing one
    [[nodiscard]] QList<Pipe> GetPipes_OD_Sorted();

    void ParsePasteAction() override;

protected:
    [[nodiscard]] QString GetRowText(int row) const override;

private:
    void Append(std::vector<Pipe> const& pipes);
};
