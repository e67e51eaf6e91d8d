// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "model/SurveyMap.h"

#include "model/UniqueNames.h"

std::weak_ptr<Survey> SurveyMap::at(int const& key)
{
    auto const survey = surveys_.find(key);
    return survey == surveys_.end() ? std::weak_ptr<Survey>() : survey->second;
}

std::weak_ptr<Survey const> SurveyMap::at(int const& key) const
{
    auto const survey = surveys_.find(key);
    return survey == surveys_.end() ? std::weak_ptr<Survey const>() : survey->second;
}

KeyType SurveyMap::AddSurvey(QString const& name)
{
    KeyType const key = Quorrel::NextKey(surveys_);
    AddSurvey(key, name);
    return key;
}

QString SurveyMap::AddSurvey(int key, QString const& name)
{
    if (auto const present = surveys_.find(key); present != surveys_.end()) {
        return present->second->GetName();
    }
    QString const unique_name = GenerateUniqueSurveyName(name);
    surveys_.emplace(key, std::make_shared<Survey>(key, unique_name));
    return unique_name;
}

void SurveyMap::DeleteSurvey(int key)
{
    surveys_.erase(key);
}

void SurveyMap::ClearSurveyMap()
{
    surveys_.clear();
}

QString SurveyMap::RenameSurvey(int key, QString const& name)
{
    auto const survey = surveys_.find(key);
    if (survey == surveys_.end()) {
        return {};
    }
    survey->second->SetName(GenerateUniqueSurveyName(name));
    return survey->second->GetName();
}

QString SurveyMap::GenerateUniqueSurveyName(QString const& name) const
{
    QSet<QString> names;
    for (auto const& [key, survey] : surveys_) {
        names.insert(survey->GetName());
    }
    return Quorrel::GenerateUniqueName(name, names);
}

QList<QString> SurveyMap::GetAllSurveyNames() const
{
    QList<QString> names;
    for (auto const& [key, survey] : surveys_) {
        names.append(survey->GetName());
    }
    return names;
}

QList<KeyType> SurveyMap::GetAllSurveyKeys() const
{
    QList<KeyType> keys;
    for (auto const& [key, survey] : surveys_) {
        keys.append(key);
    }
    return keys;
}
