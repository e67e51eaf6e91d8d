// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/kit/ProjectText.h"

#include <QDialog>

class QPlainTextEdit;

/// Edits the free notes of a survey. Refuses a text too long for the project file (65,536 bytes of UTF-8 or
/// more).
class SurveyNotesDialog final : public QDialog
{
    Q_OBJECT
public:
    /// Greatest length a project file can hold, in bytes of UTF-8.
    static constexpr qsizetype MAX_BYTES = Quorrel::MAX_PROJECT_TEXT_BYTES;

    SurveyNotesDialog(QString const& survey_name, QString const& text, QWidget* parent = nullptr);

    [[nodiscard]] QString GetText() const;

public slots:
    void accept() override;

private:
    QPlainTextEdit* edit_;
};
