// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLineEdit;

/// The form for typing the depth correction of a log pass or channel. Text that is no finite number counts
/// as the value the form was made with.
class DepthShiftStretch : public QWidget
{
    Q_OBJECT
public:
    /// `shift` in metres, shown in the unit of the settings.
    DepthShiftStretch(float shift, float stretch, QWidget* parent = nullptr);

    [[nodiscard]] float GetDepthShift_metric() const;
    [[nodiscard]] float GetDepthStretchFactor() const;

public slots:
    /// Shows shift 0 and stretch 1.
    void OnReset();

private:
    void Display(float shift, float stretch);

    float shift_;
    float stretch_;
    QLineEdit* shift_edit_;
    QLineEdit* stretch_edit_;
};
