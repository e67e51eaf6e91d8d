// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <QDialog>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

/// Asks for the depth range that a column's scroll bar spans.
class DisplayedIntervalDialog final : public QDialog
{
    Q_OBJECT
public:
    /// @param total in metres; shown in the settings' depth unit
    DisplayedIntervalDialog(bool override_interval, Interval total, QWidget* parent = nullptr);

    [[nodiscard]] bool GetOverrideAutomaticInterval() const;
    /// The two edits as they stand, in metres; text that is no number counts as 0.
    [[nodiscard]] Interval GetTotalDisplayedInterval() const;

public slots:
    void OnCheckBoxChanged(int state);

private:
    /// An interval that is used must be two numbers, the top above the bottom.
    void UpdateOkButton();

    QCheckBox* override_ = nullptr;
    QGroupBox* interval_group_ = nullptr;
    QLineEdit* top_ = nullptr;
    QLineEdit* bottom_ = nullptr;
    QPushButton* ok_ = nullptr;
};
