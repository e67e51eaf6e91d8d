// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/SurveyNotesDialog.h"

#include "app/kit/ProjectText.h"
#include "app/kit/Quorrel.h"

#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>

SurveyNotesDialog::SurveyNotesDialog(QString const& survey_name, QString const& text, QWidget* parent)
    : QDialog(parent), edit_(new QPlainTextEdit(text, this))
{
    setWindowTitle(tr("Survey Notes") + " [" + survey_name + "]");
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &SurveyNotesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SurveyNotesDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(edit_);
    layout->addWidget(buttons);
    Quorrel::SetWindowSize(this, 0.4F, 0.5F);
}

QString SurveyNotesDialog::GetText() const
{
    return edit_->toPlainText();
}

void SurveyNotesDialog::accept()
{
    if (auto const message = Quorrel::CheckProjectText(tr("The notes are"), GetText()); !message.isEmpty()) {
        QMessageBox::information(this, windowTitle(), message);
        return;
    }
    QDialog::accept();
}
