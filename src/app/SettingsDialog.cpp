// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/SettingsDialog.h"

#include "app/ColorPicker.h"
#include "app/MfcSettingsWidget.h"
#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {
constexpr float WIDTH_FRACTION = 0.3F;
constexpr float HEIGHT_FRACTION = 0.4F;

struct SeparatorChoice
{
    Separator_Selection selection;
    char const* object_name;
    char const* text;
    char const* sample;
};

constexpr SeparatorChoice SEPARATOR_CHOICES[] = {
    {US, "separator_us", "US", "1,234,567.89"},
    {International, "separator_international", "International", "1.234.567,89"},
    {AlternativeInternational, "separator_alternative_international", "Alternative International",
     "1 234 567,89"},
};

/// A stored colour may lack the "#".
QColor ColorFromName(QString const& name)
{
    QColor const color(name);
    return color.isValid() ? color : QColor(QLatin1Char('#') + name);
}

/// A page whose content keeps to the top.
QWidget* MakePage(std::initializer_list<QWidget*> groups)
{
    auto* const page = new QWidget;
    auto* const layout = new QVBoxLayout(page);
    for (QWidget* const group : groups) {
        layout->addWidget(group);
    }
    layout->addStretch(1);
    return page;
}
} // namespace

SettingsDialog::SettingsDialog(QWidget* parent)
    : QDialog(parent),
      tabs_(new QTabWidget),
      separators_(new QButtonGroup(this)),
      depth_unit_(new QComboBox),
      background_color_(new ColorPicker),
      splitter_handle_color_(new ColorPicker),
      override_splitter_handle_color_(new QCheckBox(tr("Override Default Color"))),
      check_for_updates_(new QCheckBox(tr("Check for updates on start-up"))),
      mfc_settings_(new MfcSettingsWidget)
{
    setObjectName(QStringLiteral("SettingsDialog"));
    setWindowTitle(tr("Application Settings"));

    tabs_->addTab(CreateSeparatorsTab(), tr("Separators"));
    tabs_->addTab(CreateUnitsTab(), tr("Units"));
    tabs_->addTab(CreateMiscTab(), tr("Misc"));
    tabs_->addTab(mfc_settings_, tr("MF Cal."));

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &SettingsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(tabs_, 1);
    layout->addWidget(buttons);

    InitializeDialog();
    Quorrel::SetWindowSize(this, WIDTH_FRACTION, HEIGHT_FRACTION);
}

QWidget* SettingsDialog::CreateSeparatorsTab()
{
    auto* const group = new QGroupBox(tr("Number Format"));
    auto* const grid = new QGridLayout(group);
    int row = 0;
    for (SeparatorChoice const& choice : SEPARATOR_CHOICES) {
        auto* const button = new QRadioButton(tr(choice.text));
        button->setObjectName(QLatin1String(choice.object_name));
        separators_->addButton(button, choice.selection);
        auto* const sample = new QLabel(QLatin1String(choice.sample));
        sample->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(button, row, 0);
        grid->addWidget(sample, row, 1);
        ++row;
    }
    grid->setHorizontalSpacing(40);
    grid->setColumnStretch(2, 1);
    return MakePage({group});
}

QWidget* SettingsDialog::CreateUnitsTab()
{
    depth_unit_->setObjectName(QStringLiteral("depth_unit"));
    depth_unit_->addItems({QStringLiteral("ft"), QStringLiteral("m")});
    auto* const group = new QGroupBox(tr("Units"));
    auto* const form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(tr("Depth Unit"), depth_unit_);
    return MakePage({group});
}

QWidget* SettingsDialog::CreateMiscTab()
{
    background_color_->setObjectName(QStringLiteral("background_color"));
    splitter_handle_color_->setObjectName(QStringLiteral("splitter_handle_color"));
    override_splitter_handle_color_->setObjectName(QStringLiteral("override_splitter_handle_color"));
    check_for_updates_->setObjectName(QStringLiteral("check_for_updates"));

    auto* const background = new QGroupBox(tr("View-Widget Background Color"));
    (new QVBoxLayout(background))->addWidget(background_color_);

    auto* const splitter = new QGroupBox(tr("Splitter Handle Color (applys after restart)"));
    auto* const splitter_layout = new QHBoxLayout(splitter);
    splitter_layout->addWidget(splitter_handle_color_);
    splitter_layout->addSpacing(20);
    splitter_layout->addWidget(override_splitter_handle_color_);
    splitter_layout->addStretch(1);

    auto* const updates = new QGroupBox(tr("Updates"));
    (new QVBoxLayout(updates))->addWidget(check_for_updates_);
    return MakePage({background, splitter, updates});
}

void SettingsDialog::InitializeDialog()
{
    SettingsSingleton const& settings = SettingsSingleton::Instance();
    if (QAbstractButton* const button = separators_->button(settings.GetSeparatorSelection())) {
        button->setChecked(true);
    }
    depth_unit_->setCurrentText(settings.GetDepthUnit());
    background_color_->SetColor(settings.GetBackgroundColor());
    splitter_handle_color_->SetColor(ColorFromName(settings.GetSplitterHandleColor()));
    override_splitter_handle_color_->setChecked(settings.GetOverrideDefaultSplitterHandleColor());
    check_for_updates_->setChecked(settings.GetAutomaticCheckForUpdates());
    mfc_settings_->InitializeWidget();
}

void SettingsDialog::accept()
{
    SettingsSingleton& settings = SettingsSingleton::Instance();
    // No button is down while an unknown selection is in force and the user has not chosen another.
    if (int const selection = separators_->checkedId(); selection >= 0) {
        settings.SetSeparatorSelection(static_cast<Separator_Selection>(selection));
    }
    settings.SetMetricDepth(depth_unit_->currentText().toLower() == QLatin1String("m"));
    settings.SetMfcMnems(mfc_settings_->GetMfcMnems());
    settings.SetDisplayMfcWindows(mfc_settings_->GetDisplayMfcWindows());
    settings.SetAutomaticCheckForUpdates(check_for_updates_->isChecked());
    settings.SetBackgroundColor(background_color_->GetColor());
    settings.SetSplitterHandleColor(splitter_handle_color_->GetColor().name());
    settings.SetOverrideDefaultSplitterHandleColor(override_splitter_handle_color_->isChecked());
    emit UpdateColumnWindow_Signal();
    QDialog::accept();
}
