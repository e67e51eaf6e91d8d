// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/ScalarTypes.h"

#include <QObject>
#include <QPointer>

class QComboBox;
class QToolBar;

/// The survey selector of the "Survey" tool bar: a combo box whose items show survey names and carry survey
/// keys.
class SurveyComboBox : public QObject
{
    Q_OBJECT
public:
    explicit SurveyComboBox(QObject* parent = nullptr);
    ~SurveyComboBox() override;

    /// The tool bar becomes the owner of the combo box.
    void AddSurveyComboBoxToToolBar(QToolBar* tool_bar);

    void AddSurvey(QString const& name, KeyType key);
    void DeleteSurvey(KeyType key);
    void RenameSurvey(KeyType key, QString const& name);
    /// Selects nothing for a key that is not there.
    void SetCurrentSurvey(KeyType key);
    /// -1 when there is none.
    [[nodiscard]] KeyType GetCurrentSurveyKey() const;
    [[nodiscard]] KeyType GetSurveyKey(int index) const;
    /// -1 when the key is not there.
    [[nodiscard]] int FindIndex(KeyType key) const;
    void ClearSurveyComboBox();

signals:
    void SurveyComboBoxSelection_Signal(int index);

private:
    QPointer<QComboBox> combo_box_;
};
