// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include "well/DirectionalSurveyItem.h"
#include "well/FormDialog.h"

#include <vector>

class NameEdit;
class PlainTextViewer;
class QGroupBox;
class QRadioButton;
class QSpinBox;

/// Reads a plain text deviation file: shows it, while the user names the separator and the columns.
class SurveyImporter : public FormDialog
{
    Q_OBJECT
public:
    explicit SurveyImporter(QWidget* parent = nullptr);

    [[nodiscard]] QString GetFileName() const;
    /// The first data line; lines and columns count from 1.
    [[nodiscard]] int GetHeadingsRowNumber() const;
    /// A regular expression.
    /// @throws std::invalid_argument when no radio button is selected
    [[nodiscard]] QString GetSeparator() const;
    [[nodiscard]] int GetMdColumnNumber() const;
    [[nodiscard]] int GetInclColumnNumber() const;
    [[nodiscard]] int GetAziColumnNumber() const;

    /// Reads the file. What goes wrong is shown, and the survey is empty.
    [[nodiscard]] std::vector<DirectionalSurveyItem> GetSurvey();
    /// What the accepted dialog has read.
    [[nodiscard]] std::vector<DirectionalSurveyItem> const& GetImportedSurvey() const { return survey_; }

    /// Shows the named file, a very long one and very long lines only in part.
    void LoadTextFile();

public slots:
    void BrowseClicked();
    /// Closes when stations were read.
    void accept() override;

private:
    [[nodiscard]] QGroupBox* MakeSeparatorGroup();
    [[nodiscard]] QGroupBox* MakeColumnGroup();
    void ShowError(QString const& text);

    NameEdit* path_;
    QRadioButton* whitespace_;
    QRadioButton* space_;
    QRadioButton* tab_;
    QRadioButton* comma_;
    QSpinBox* first_line_;
    QSpinBox* md_column_;
    QSpinBox* incl_column_;
    QSpinBox* azi_column_;
    PlainTextViewer* viewer_;
    std::vector<DirectionalSurveyItem> survey_;
};
