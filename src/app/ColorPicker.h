// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QToolButton>

/// A button that shows a colour as a swatch with its name and lets the user choose another.
class ColorPicker : public QToolButton
{
    Q_OBJECT
public:
    explicit ColorPicker(QWidget* parent = nullptr);
    explicit ColorPicker(QColor const& color, QWidget* parent = nullptr);

    [[nodiscard]] QColor GetColor() const { return color_; }
    void SetColor(QColor const& color);

signals:
    /// The user chose another colour.
    void ColorChanged_Signal(QColor const& color);

private:
    void OnClicked();

    QColor color_;
};
