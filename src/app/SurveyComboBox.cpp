// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/SurveyComboBox.h"

#include <QComboBox>
#include <QIcon>
#include <QToolBar>

SurveyComboBox::SurveyComboBox(QObject* parent) : QObject(parent), combo_box_(new QComboBox)
{
    combo_box_->setObjectName("SurveyComboBox");
    combo_box_->setToolTip(tr("Current survey"));
    combo_box_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    combo_box_->setMinimumContentsLength(16);
    connect(combo_box_, &QComboBox::currentIndexChanged, this,
            &SurveyComboBox::SurveyComboBoxSelection_Signal);
}

SurveyComboBox::~SurveyComboBox()
{
    if (combo_box_ && combo_box_->parent() == nullptr) {
        delete combo_box_;
    }
}

void SurveyComboBox::AddSurveyComboBoxToToolBar(QToolBar* tool_bar)
{
    tool_bar->addWidget(combo_box_);
}

void SurveyComboBox::AddSurvey(QString const& name, KeyType key)
{
    combo_box_->addItem(QIcon(":/Icons/DataBrowser/Survey.svg"), name, key);
}

void SurveyComboBox::DeleteSurvey(KeyType key)
{
    if (int const index = FindIndex(key); index >= 0) {
        combo_box_->removeItem(index);
    }
}

void SurveyComboBox::RenameSurvey(KeyType key, QString const& name)
{
    if (int const index = FindIndex(key); index >= 0) {
        combo_box_->setItemText(index, name);
    }
}

void SurveyComboBox::SetCurrentSurvey(KeyType key)
{
    combo_box_->setCurrentIndex(FindIndex(key));
}

KeyType SurveyComboBox::GetCurrentSurveyKey() const
{
    return combo_box_ ? GetSurveyKey(combo_box_->currentIndex()) : -1;
}

KeyType SurveyComboBox::GetSurveyKey(int index) const
{
    auto const data = combo_box_->itemData(index);
    return data.isValid() ? data.toInt() : -1;
}

int SurveyComboBox::FindIndex(KeyType key) const
{
    return combo_box_->findData(key);
}

void SurveyComboBox::ClearSurveyComboBox()
{
    combo_box_->clear();
}
