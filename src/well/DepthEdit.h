// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

#include <optional>

/// A line edit for a depth in the settings' unit. A depth that was put in and not edited since comes out
/// exactly as it was. Wrong input is marked.
class DepthEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit DepthEdit(QWidget* parent = nullptr);

    /// Metres; no value empties the field.
    void SetDepth_metric(std::optional<double> depth);
    /// Metres; no value for an empty field.
    /// @throws std::invalid_argument for a text that is no number
    [[nodiscard]] std::optional<double> GetDepth_metric() const;
    /// @throws std::invalid_argument also for an empty field
    [[nodiscard]] double GetRequiredDepth_metric() const;

private:
    /// Nothing when the text is no number.
    [[nodiscard]] std::optional<double> Read() const;

    QString shown_text_;
    std::optional<double> depth_;
};
