// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/SketchItemText.h"

#include "app/kit/Quorrel.h"
#include "well/DirectionalSurveyData.h"

namespace {
QString Inches(float value)
{
    return Quorrel::FloatTypeToString(value, 3);
}
} // namespace

QString SketchItemText::GetStatusText(DirectionalSurveyData const& survey) const
{
    QString text = description;
    if (pipe) {
        text = QStringLiteral("%7 %1  OD: %2in,  ID: %3in (%4in radius),  %5ppf, Wall Thickness: %6in")
                   .arg(description, Inches(pipe->od), Inches(pipe->id), Inches(pipe->id * 0.5F),
                        Quorrel::FloatTypeToString(pipe->weight, 2), Inches((pipe->od - pipe->id) * 0.5F),
                        pipe->prefix);
    }
    return text + survey.GenerateIntervalDepthString(depth);
}
