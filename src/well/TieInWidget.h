// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/DirectionalSurveyTieInData.h"

#include <QGroupBox>

class DepthEdit;

/// Edits the tie-in of the directional survey in the settings' unit.
class TieInWidget : public QGroupBox
{
    Q_OBJECT
public:
    explicit TieInWidget(QWidget* parent = nullptr);

    void SetTieIn(DirectionalSurveyTieInData const& tie_in);
    /// An empty field is 0.
    /// @throws std::invalid_argument for a text that is no number
    [[nodiscard]] DirectionalSurveyTieInData GetTieIn() const;

private:
    DepthEdit* tvd_;
    DepthEdit* ns_;
    DepthEdit* ew_;
};
