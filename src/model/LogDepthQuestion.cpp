// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/LogDepthQuestion.h"

#include <utility>

namespace {
LogDepthQuestion::Function& InstalledQuestion()
{
    static LogDepthQuestion::Function question;
    return question;
}
} // namespace

void LogDepthQuestion::Install(Function question)
{
    InstalledQuestion() = std::move(question);
}

double LogDepthQuestion::Ask(QString const& title, QString const& label)
{
    return InstalledQuestion() ? InstalledQuestion()(title, label).value_or(0) : 0;
}
