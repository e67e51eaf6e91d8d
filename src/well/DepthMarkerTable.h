// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseModelTable.h"
#include "well/DepthMarker.h"

class DepthMarkerModel;

/// Edits a list of depth markers.
class DepthMarkerTable : public BaseModelTable
{
    Q_OBJECT
public:
    explicit DepthMarkerTable(QWidget* parent = nullptr);

    /// Replaces all rows.
    void InitializeTable(QList<DepthMarker> const& markers);
    void AddRow(DepthMarker const& marker = {});
    /// @throws std::invalid_argument naming the first wrong cell
    [[nodiscard]] QList<DepthMarker> GetMarkers() const;

    /// Asks for each line without a depth whether to go on; otherwise nothing is pasted.
    void ParsePasteAction() override;

private:
    explicit DepthMarkerTable(DepthMarkerModel* model, QWidget* parent);
    [[nodiscard]] bool AskForErrors(PasteReport const& report);

    DepthMarkerModel* model_;
};
