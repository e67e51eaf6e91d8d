// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Survey.h"

#include <map>
#include <memory>

/// The surveys of a project, by key.
class SurveyMap
{
public:
    /// Empty for an unknown key: the one look-up that does not throw.
    [[nodiscard]] std::weak_ptr<Survey> at(int const& key);
    [[nodiscard]] std::weak_ptr<Survey const> at(int const& key) const;

    /// Adds under the next key, which it returns: the greatest plus 1, or 0 for the first.
    KeyType AddSurvey(QString const& name);
    /// Adds under a stored key and returns the name actually used. A survey that has the key already stays.
    QString AddSurvey(int key, QString const& name);
    void DeleteSurvey(int key);
    void ClearSurveyMap();
    /// Returns the name actually used; empty for an unknown key.
    QString RenameSurvey(int key, QString const& name);

    /// `name`, or with "_#1", "_#2" ... behind it, whatever no survey is called yet.
    [[nodiscard]] QString GenerateUniqueSurveyName(QString const& name) const;
    [[nodiscard]] QList<QString> GetAllSurveyNames() const;
    /// Ascending.
    [[nodiscard]] QList<KeyType> GetAllSurveyKeys() const;

private:
    std::map<KeyType, std::shared_ptr<Survey>> surveys_;
};
