// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseModelTable.h"
#include "well/PipeComponent.h"

#include <vector>

class PipeComponentModel;

/// Edits the components of a pipe string, from the top down.
class PipeComponentTable : public BaseModelTable
{
    Q_OBJECT
public:
    explicit PipeComponentTable(QWidget* parent = nullptr);

    /// Replaces all rows.
    void InitializeTable(std::vector<PipeComponent> const& components);
    void AddRow(PipeComponent const& component);
    /// A component of no length and unknown diameters.
    void AddRow();
    /// Metres; the calculated depths follow.
    void SetSetDepth(double set_depth);
    /// @throws std::invalid_argument naming the first wrong cell
    [[nodiscard]] std::vector<PipeComponent> GetPipeComponents() const;

    void ParsePasteAction() override;

private:
    explicit PipeComponentTable(PipeComponentModel* model, QWidget* parent);

    PipeComponentModel* model_;
};
