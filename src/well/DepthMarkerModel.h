// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/BaseTableModel.h"
#include "well/DepthMarker.h"

/// Depth markers as rows: "Depth", "Text".
class DepthMarkerModel : public BaseTableModel
{
    Q_OBJECT
public:
    explicit DepthMarkerModel(QObject* parent = nullptr);

    void AppendMarkers(QList<DepthMarker> const& markers);
    /// @throws std::invalid_argument naming the first wrong cell
    [[nodiscard]] QList<DepthMarker> GetMarkers() const;
};
