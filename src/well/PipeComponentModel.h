// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseTableModel.h"
#include "well/PipeComponent.h"

/// The components of a pipe string as rows from the top down: "OD", "ID", "Weight", "Length", "Description",
/// and calculated from the set depth upwards "Top Depth" and "Btm Depth".
class PipeComponentModel : public BaseTableModel
{
    Q_OBJECT
public:
    static constexpr int DESCRIPTION_COLUMN = 4;

    explicit PipeComponentModel(QObject* parent = nullptr);

    /// Metres.
    void SetSetDepth(double set_depth);
    void AppendComponents(std::vector<PipeComponent> const& components);
    /// @throws std::invalid_argument naming the first wrong cell
    [[nodiscard]] std::vector<PipeComponent> GetPipeComponents() const;

protected:
    void Calculate(std::vector<Row>& rows) const override;

private:
    double set_depth_ = 0;
};
