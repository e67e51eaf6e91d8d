// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/Interval.h"

#include <QString>

#include <optional>

class DirectionalSurveyData;

/// What a hit area of the sketch tells. The status text is made when it is asked for: a sketch has thousands
/// of areas, of which the mouse finds one.
struct SketchItemText
{
    /// The diameters of a pipe component, inches, and its weight as entered.
    struct PipeSizes
    {
        QString prefix;
        float od = 0;
        float id = 0;
        float weight = 0;
    };

    Interval depth; ///< metres
    QString description;
    std::optional<PipeSizes> pipe;

    /// The description, for a pipe with its sizes, and the depth interval.
    [[nodiscard]] QString GetStatusText(DirectionalSurveyData const& survey) const;
};
