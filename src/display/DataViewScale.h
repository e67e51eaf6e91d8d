// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseScaleView.h"

/// The header of a data view: one item per scale, of which one is selected for the mouse tools.
class DataViewScale final : public BaseScaleView
{
    Q_OBJECT
public:
    explicit DataViewScale(QWidget* parent = nullptr);

    void SetScale(std::vector<std::shared_ptr<ScaleItemParameters>> scales) override;
    void OnSelected(ScaleItem* item) override;
};
