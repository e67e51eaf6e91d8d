// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class DirectionalSurveyData;

/// Shows the calculated stations of a directional survey in the settings' units. Stores nothing.
class WellTrajectoryDialog : public QDialog
{
    Q_OBJECT
public:
    explicit WellTrajectoryDialog(DirectionalSurveyData const& survey, QWidget* parent = nullptr);
};
