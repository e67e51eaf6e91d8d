// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellDetailsDialog.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"
#include "well/DepthMarkerTable.h"
#include "well/DirectionalSurveyTable.h"
#include "well/MainPipeStringTabWidget.h"
#include "well/MainZoneTabWidget.h"
#include "well/NameEdit.h"
#include "well/PipeTable.h"
#include "well/TablePage.h"
#include "well/TieInWidget.h"
#include "well/WellComponentTable.h"
#include "well/ZoneTable.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

// Making of the form; its slots stand in WellDetailsDialogSlots.cpp, reading and writing of the well data in
// WellDetailsDialogApply.cpp.

WellDetailsDialog::WellDetailsDialog(QWidget* parent, ProjectAccess& project)
    : FormDialog(parent),
      project_(project),
      tabs_(new QTabWidget),
      survey_table_(new DirectionalSurveyTable),
      tie_in_(new TieInWidget),
      perfo_table_(new ZoneTable),
      zone_tracks_(new MainZoneTabWidget),
      markers_a_table_(new DepthMarkerTable),
      markers_b_table_(new DepthMarkerTable),
      pipe_table_(new PipeTable),
      pipe_strings_(new MainPipeStringTabWidget),
      component_table_(new WellComponentTable),
      well_name_(new NameEdit)
{
    setWindowTitle(tr("Well Details"));
    tabs_->setObjectName("WellDetailsTabs");
    AddSurveyPage();
    AddZonePages();
    AddMarkerPages();
    AddPipePages();
    AddComponentPage();
    AddMiscPage();

    auto* unit = new QLabel(tr("Depths and lengths in %1, diameters in inches")
                                .arg(SettingsSingleton::Instance().GetDepthUnit()));
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply);
    connect(buttons, &QDialogButtonBox::accepted, this, &WellDetailsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &WellDetailsDialog::reject);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            &WellDetailsDialog::OnApply);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(unit);
    bottom->addStretch();
    bottom->addWidget(buttons);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs_);
    layout->addLayout(bottom);
    Quorrel::SetWindowSize(this, 0.6F, 0.7F);
    Refresh();
}

void WellDetailsDialog::AddSurveyPage()
{
    survey_table_->setObjectName("SurveyTable");
    auto* page = new TablePage(survey_table_, GeneratePasteFormatString("FTFTF"), tie_in_);
    connect(page->AddButton(tr("Add"), "AddSurvey"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnAddSurvey);
    connect(page->AddButton(tr("Delete"), "DeleteSurvey"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnDeleteSurvey);
    connect(page->AddButton(tr("Import..."), "ImportSurvey"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnImportSurvey);
    connect(page->AddButton(tr("Recalculate..."), "RecalculateSurvey"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnRecalculateSurvey);
    tabs_->addTab(page, tr("Survey"));
}

void WellDetailsDialog::AddZonePages()
{
    QString const format = GeneratePasteFormatString("FTFTDTC");
    perfo_table_->setObjectName("PerfoTable");
    auto* perfos = new TablePage(perfo_table_, format);
    connect(perfos->AddButton(tr("Add"), "AddPerfo"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnAddPerfo);
    connect(perfos->AddButton(tr("Delete"), "DeletePerfo"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnDeletePerfo);
    tabs_->addTab(perfos, tr("Perfos"));

    zone_tracks_->setObjectName("ZoneTracks");
    auto* zones = new TablePage(zone_tracks_, format);
    connect(zones->AddButton(tr("Add"), "AddZone"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnAddZone);
    connect(zones->AddButton(tr("Delete"), "DeleteZone"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnDeleteZone);
    connect(zones->AddButton(tr("Add Zone Track"), "AddZoneTrack"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnAddZoneTrack);
    connect(zones->AddButton(tr("Delete Zone Track"), "DeleteZoneTrack"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnDeleteZoneTrack);
    tabs_->addTab(zones, tr("Zones"));
}

void WellDetailsDialog::AddMarkerPages()
{
    QString const format = GeneratePasteFormatString("FTD");
    markers_a_table_->setObjectName("MarkersATable");
    auto* a = new TablePage(markers_a_table_, format);
    connect(a->AddButton(tr("Add"), "AddMarkerA"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnAddMarkerA);
    connect(a->AddButton(tr("Delete"), "DeleteMarkerA"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnDeleteMarkerA);
    tabs_->addTab(a, tr("Markers A"));

    markers_b_table_->setObjectName("MarkersBTable");
    auto* b = new TablePage(markers_b_table_, format);
    connect(b->AddButton(tr("Add"), "AddMarkerB"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnAddMarkerB);
    connect(b->AddButton(tr("Delete"), "DeleteMarkerB"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnDeleteMarkerB);
    tabs_->addTab(b, tr("Markers B"));
}

void WellDetailsDialog::AddPipePages()
{
    auto* note =
        new QLabel(tr("NOTE: ENTRIES IN THIS TABLE WILL AUTOMATICALLY BE CONVERTED TO PIPESTRINGS UPON "
                      "CLICKING \"OK\""));
    note->setWordWrap(true);
    pipe_table_->setObjectName("PipeTable");
    auto* pipes =
        new TablePage(pipe_table_, GeneratePasteFormatString("FTFTfTfTfTS<\"yes\"/\"no\">TD"), note);
    connect(pipes->AddButton(tr("Add"), "AddPipe"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnAddPipe);
    connect(pipes->AddButton(tr("Delete"), "DeletePipe"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnDeletePipe);
    tabs_->addTab(pipes, tr("Pipes"));

    pipe_strings_->setObjectName("PipeStrings");
    auto* strings = new TablePage(pipe_strings_, GeneratePasteFormatString("fTfTfTfTD"));
    connect(strings->AddButton(tr("Add"), "AddPipeComponent"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnAddPipeComponent);
    connect(strings->AddButton(tr("Delete"), "DeletePipeComponent"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnDeletePipeComponent);
    connect(strings->AddButton(tr("Add Pipe String"), "AddPipeString"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnAddPipeString);
    connect(strings->AddButton(tr("Delete Pipe String"), "DeletePipeString"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnDeletePipeString);
    tabs_->addTab(strings, tr("Pipe Strings"));
}

void WellDetailsDialog::AddComponentPage()
{
    component_table_->setObjectName("ComponentTable");
    auto* page = new TablePage(component_table_, GeneratePasteFormatString("FTFTITD"));
    connect(page->AddButton(tr("Add"), "AddComponent"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnAddComponent);
    connect(page->AddButton(tr("Delete"), "DeleteComponent"), &QPushButton::clicked, this,
            &WellDetailsDialog::OnDeleteComponent);
    tabs_->addTab(page, tr("Components"));
}

void WellDetailsDialog::AddMiscPage()
{
    well_name_->setObjectName("WellName");
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    form->addRow(tr("Well Name"), well_name_);
    tabs_->addTab(page, tr("Misc"));
}

QString WellDetailsDialog::GeneratePasteFormatString(QString const& format)
{
    QString result;
    for (qsizetype i = 0; i < format.size(); ++i) {
        switch (format[i].unicode()) {
        case 'F':
            result += Quorrel::FloatTypeToString(12345.67F, 2, false);
            break;
        case 'f':
            result += Quorrel::FloatTypeToString(4.5F, 3, false);
            break;
        case 'T':
            result += " <TAB> ";
            break;
        case 'D':
            result += "Description";
            break;
        case 'I':
            result += "12";
            break;
        case 'C':
            result += " <Hex-Color, eg. #ffffff> ";
            break;
        case 'S': {
            auto const end = format.indexOf('>', i);
            if (end < 0 || i + 1 >= format.size() || format[i + 1] != '<') {
                result += "ERROR";
                break;
            }
            result += format.mid(i + 1, end - i);
            i = end;
            break;
        }
        default:
            result += "ERROR";
        }
    }
    return result;
}
