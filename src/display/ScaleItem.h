// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseScaleItem.h"

#include <memory>

struct ScaleItemParameters;

/// The line of one curve: left and right value of its scale, mnemonic and unit, and the curve's pen.
class ScaleItem : public BaseScaleItem
{
    Q_OBJECT
public:
    ScaleItem(QWidget* parent, std::shared_ptr<ScaleItemParameters> parameters);

    void SetSelected(bool selected);
    [[nodiscard]] bool GetSelected() const;
    [[nodiscard]] std::shared_ptr<ScaleItemParameters> GetScaleItemParameters() const { return parameters_; }

    void DrawScaleItem(QPainter& painter, QColor const& background) const override;
    void DrawScaleItem_PDF(QPainter& painter, QColor const& color) const override;

signals:
    void Selected(ScaleItem* item);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    std::shared_ptr<ScaleItemParameters> parameters_; ///< never null
};
