// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "display/BaseChart.h"

#include <QPointF>

/// A line through points.
class XYChart final : public BaseChart
{
    Q_OBJECT
public:
    /// As many points as the shorter of both vectors has; the line breaks at values that are not numbers.
    XYChart(Values x, Values y, QWidget* parent = nullptr);

protected:
    void DrawData(QPainter& painter) override;
    /// Two points make a line.
    [[nodiscard]] bool HasData() const override { return CountPoints() >= 2; }

private:
    [[nodiscard]] std::size_t CountPoints() const;
};
