// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

/// Shows the depth unit of the settings in square brackets; follows a change at its next paint.
class DepthUnitLabel final : public QLabel
{
    Q_OBJECT
public:
    explicit DepthUnitLabel(QWidget* parent = nullptr);

    [[nodiscard]] static QString UnitText();

protected:
    void paintEvent(QPaintEvent* event) override;
};
