// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/JsonImporterDialog.h"

#include "app/kit/Quorrel.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

JsonImporterDialog::JsonImporterDialog(QWidget* parent, bool hasInclination, bool hasPerforations,
                                       bool hasStrings, bool hasComponents)
    : QDialog(parent),
      note_(new QLabel),
      inclination_(new QCheckBox(tr("Inclination"))),
      perforations_(new QCheckBox(tr("Perforations"))),
      strings_(new QCheckBox(tr("Casing/Tubing Strings"))),
      components_(new QCheckBox(tr("Well Components"))),
      replace_(new QRadioButton(tr("Replace existing data")))
{
    setWindowTitle(tr("Import JSON Well Details"));
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    note_->hide();

    auto* available = new QGroupBox(tr("Available JSON Data"));
    auto* available_layout = new QVBoxLayout(available);
    for (auto const& [box, has_data] :
         {std::pair(inclination_, hasInclination), std::pair(perforations_, hasPerforations),
          std::pair(strings_, hasStrings), std::pair(components_, hasComponents)}) {
        box->setEnabled(has_data);
        box->setChecked(has_data);
        available_layout->addWidget(box);
    }

    auto* mode = new QGroupBox(tr("Import Mode"));
    auto* mode_layout = new QVBoxLayout(mode);
    auto* add = new QRadioButton(tr("Add to existing data"));
    add->setChecked(true);
    mode_layout->addWidget(add);
    mode_layout->addWidget(replace_);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(note_);
    layout->addWidget(available);
    layout->addWidget(mode);
    layout->addWidget(buttons);
    setMinimumWidth(320);
    Quorrel::SetWindowSize(this, 0.2F, 0.3F);
}

bool JsonImporterDialog::InclinationChecked() const
{
    return inclination_->isChecked();
}

bool JsonImporterDialog::PerfChecked() const
{
    return perforations_->isChecked();
}

bool JsonImporterDialog::PipeStringChecked() const
{
    return strings_->isChecked();
}

bool JsonImporterDialog::WellComponentsChecked() const
{
    return components_->isChecked();
}

bool JsonImporterDialog::ReplaceDataMode() const
{
    return replace_->isChecked();
}

void JsonImporterDialog::SetNote(QString const& text)
{
    note_->setText(text);
    note_->setVisible(!text.isEmpty());
    // The note may take many lines.
    resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
}
