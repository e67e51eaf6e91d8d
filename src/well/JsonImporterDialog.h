// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QRadioButton;

/// Asks which data of a well details file to take, and whether they replace or join what is there.
class JsonImporterDialog : public QDialog
{
    Q_OBJECT
public:
    JsonImporterDialog(QWidget* parent, bool hasInclination, bool hasPerforations, bool hasStrings,
                       bool hasComponents);

    [[nodiscard]] bool InclinationChecked() const;
    [[nodiscard]] bool PerfChecked() const;
    [[nodiscard]] bool PipeStringChecked() const;
    [[nodiscard]] bool WellComponentsChecked() const;
    [[nodiscard]] bool ReplaceDataMode() const;

    /// Shown above the choices: why a file offers nothing.
    void SetNote(QString const& text);

private:
    QLabel* note_;
    QCheckBox* inclination_;
    QCheckBox* perforations_;
    QCheckBox* strings_;
    QCheckBox* components_;
    QRadioButton* replace_;
};
