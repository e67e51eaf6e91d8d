// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/SurveyImporter.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "well/DeviationText.h"
#include "well/NameEdit.h"
#include "well/PlainTextViewer.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTextStream>
#include <QVBoxLayout>

#include <stdexcept>

namespace {
/// So many characters of a file are shown, and of a line; laying out longer ones takes seconds.
constexpr qint64 SHOWN_CHARACTERS = 2 * 1024 * 1024;
constexpr int SHOWN_LINE_CHARACTERS = 2000;

QSpinBox* MakeSpinBox(int value, int maximum, QString const& object_name)
{
    auto* box = new QSpinBox;
    box->setRange(1, maximum);
    box->setValue(value);
    box->setObjectName(object_name);
    return box;
}
} // namespace

SurveyImporter::SurveyImporter(QWidget* parent)
    : FormDialog(parent),
      path_(new NameEdit),
      whitespace_(new QRadioButton(tr("Whitespace"))),
      space_(new QRadioButton(tr("Space"))),
      tab_(new QRadioButton(tr("Tab"))),
      comma_(new QRadioButton(tr("Comma"))),
      first_line_(MakeSpinBox(1, 1000000, "FirstLine")),
      md_column_(MakeSpinBox(1, 1000, "MdColumn")),
      incl_column_(MakeSpinBox(2, 1000, "InclColumn")),
      azi_column_(MakeSpinBox(3, 1000, "AziColumn")),
      viewer_(new PlainTextViewer)
{
    setWindowTitle(DeviationText::TITLE);
    path_->setObjectName("DeviationFile");
    auto* browse = new QPushButton(tr("Browse..."));
    auto* file_row = new QHBoxLayout;
    file_row->addWidget(new QLabel(tr("File:")));
    file_row->addWidget(path_);
    file_row->addWidget(browse);

    auto* groups = new QHBoxLayout;
    groups->addWidget(MakeSeparatorGroup());
    groups->addWidget(MakeColumnGroup());
    groups->addStretch();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(tr("Import"), QDialogButtonBox::AcceptRole)->setObjectName("Import");
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(file_row);
    layout->addLayout(groups);
    layout->addWidget(viewer_, 1);
    layout->addWidget(buttons);

    connect(browse, &QPushButton::clicked, this, &SurveyImporter::BrowseClicked);
    connect(path_, &QLineEdit::editingFinished, this, &SurveyImporter::LoadTextFile);
    connect(buttons, &QDialogButtonBox::accepted, this, &SurveyImporter::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SurveyImporter::reject);
    Quorrel::SetWindowSize(this, 0.45F, 0.6F);
}

QGroupBox* SurveyImporter::MakeSeparatorGroup()
{
    auto* group = new QGroupBox(tr("Separator"));
    auto* layout = new QVBoxLayout(group);
    for (auto* button : {whitespace_, space_, tab_, comma_}) {
        layout->addWidget(button);
    }
    whitespace_->setChecked(true);
    return group;
}

QGroupBox* SurveyImporter::MakeColumnGroup()
{
    auto* group = new QGroupBox(tr("Data"));
    auto* form = new QFormLayout(group);
    form->addRow(tr("First data line:"), first_line_);
    form->addRow(tr("MD column [%1]:").arg(SettingsSingleton::Instance().GetDepthUnit()), md_column_);
    form->addRow(tr("Inclination column:"), incl_column_);
    form->addRow(tr("Azimuth column:"), azi_column_);
    return group;
}

QString SurveyImporter::GetFileName() const
{
    return path_->text();
}

int SurveyImporter::GetHeadingsRowNumber() const
{
    return first_line_->value();
}

QString SurveyImporter::GetSeparator() const
{
    if (whitespace_->isChecked()) {
        return DeviationText::WHITESPACE_SEPARATOR;
    }
    if (space_->isChecked()) {
        return DeviationText::BLANK_SEPARATOR;
    }
    if (tab_->isChecked()) {
        return DeviationText::TAB_SEPARATOR;
    }
    if (comma_->isChecked()) {
        return DeviationText::COMMA_SEPARATOR;
    }
    throw std::invalid_argument("No separator selected");
}

int SurveyImporter::GetMdColumnNumber() const
{
    return md_column_->value();
}

int SurveyImporter::GetInclColumnNumber() const
{
    return incl_column_->value();
}

int SurveyImporter::GetAziColumnNumber() const
{
    return azi_column_->value();
}

void SurveyImporter::ShowError(QString const& text)
{
    QMessageBox box(QMessageBox::Warning, DeviationText::TITLE, text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

std::vector<DirectionalSurveyItem> SurveyImporter::GetSurvey()
{
    try {
        auto const result =
            DeviationText::ReadFile(GetFileName(), {.separator = GetSeparator(),
                                                    .first_data_line = GetHeadingsRowNumber(),
                                                    .md_column = GetMdColumnNumber(),
                                                    .inclination_column = GetInclColumnNumber(),
                                                    .azimuth_column = GetAziColumnNumber()});
        if (!result.error.isEmpty()) {
            ShowError(result.error);
            return {};
        }
        if (result.stations.empty()) {
            ShowError(tr("The file has no line %1.").arg(GetHeadingsRowNumber()));
        }
        return result.stations;
    } catch (std::exception const& error) {
        ShowError(QString::fromUtf8(error.what()));
        return {};
    }
}

void SurveyImporter::LoadTextFile()
{
    viewer_->clear();
    if (GetFileName().isEmpty()) {
        return;
    }
    QFile file(GetFileName());
    // A device or a pipe might never end.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) {
        viewer_->setPlaceholderText(tr("Unable to open file: ") + GetFileName());
        return;
    }
    QTextStream stream(&file);
    QString text = stream.read(SHOWN_CHARACTERS);
    static QRegularExpression const long_line(QStringLiteral("([^\n]{%1})[^\n]+").arg(SHOWN_LINE_CHARACTERS));
    text.replace(long_line, "\\1...");
    if (!stream.atEnd()) {
        text += tr("\n(The file is longer than shown here.)");
    }
    viewer_->setPlainText(text);
}

void SurveyImporter::BrowseClicked()
{
    auto& settings = SettingsSingleton::Instance();
    auto const path =
        QFileDialog::getOpenFileName(this, tr("Open Deviation File"), settings.GetSurveyImportPath(),
                                     tr("Text Files (*.txt);; All (*.*)"));
    if (path.isEmpty()) {
        return;
    }
    settings.SetSurveyImportPath(QFileInfo(path).absolutePath());
    path_->setText(path);
    LoadTextFile();
}

void SurveyImporter::accept()
{
    survey_ = GetSurvey();
    if (!survey_.empty()) {
        QDialog::accept();
    }
}
