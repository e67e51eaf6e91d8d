// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DisplayedIntervalDialog.h"

#include "app/kit/Quorrel.h"
#include "app/kit/SettingsSingleton.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
QString DepthText(double depth)
{
    return Quorrel::FloatTypeToString(Quorrel::MetricsDepthToSettingsDepth(static_cast<float>(depth)), 2);
}

/// The edit with the depth unit behind it.
QLayout* WithUnit(QLineEdit* edit)
{
    auto* row = new QHBoxLayout;
    row->addWidget(edit);
    row->addWidget(new QLabel("[" + SettingsSingleton::Instance().GetDepthUnit() + "]"));
    return row;
}

double DepthOf(QLineEdit const* edit)
{
    return static_cast<double>(Quorrel::SettingsDepthToMetricDepth(Quorrel::StringToFloatType(edit->text())));
}
} // namespace

DisplayedIntervalDialog::DisplayedIntervalDialog(bool override_interval, Interval total, QWidget* parent)
    : QDialog(parent),
      override_(new QCheckBox("Override Auto Interval", this)),
      interval_group_(new QGroupBox("Interval", this)),
      top_(new QLineEdit(interval_group_)),
      bottom_(new QLineEdit(interval_group_))
{
    setWindowTitle("Display Interval");
    override_->setObjectName("cb_override");
    top_->setObjectName("le_top");
    bottom_->setObjectName("le_bottom");

    auto* form = new QFormLayout(interval_group_);
    form->addRow("Top", WithUnit(top_));
    form->addRow("Bottom", WithUnit(bottom_));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(top_, &QLineEdit::textChanged, this, &DisplayedIntervalDialog::UpdateOkButton);
    connect(bottom_, &QLineEdit::textChanged, this, &DisplayedIntervalDialog::UpdateOkButton);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(override_);
    layout->addWidget(interval_group_);
    layout->addWidget(buttons);

    top_->setText(DepthText(total.lower));
    bottom_->setText(DepthText(total.upper));
    connect(override_, &QCheckBox::stateChanged, this, &DisplayedIntervalDialog::OnCheckBoxChanged);
    override_->setChecked(override_interval);
    OnCheckBoxChanged(override_->checkState());
    Quorrel::SetWindowSize(this, 0.2F, 0.2F);
}

void DisplayedIntervalDialog::OnCheckBoxChanged(int state)
{
    interval_group_->setEnabled(state != Qt::Unchecked);
    UpdateOkButton();
}

void DisplayedIntervalDialog::UpdateOkButton()
{
    bool top_is_number = false;
    bool bottom_is_number = false;
    float const top = Quorrel::StringToFloatType(top_->text(), &top_is_number);
    float const bottom = Quorrel::StringToFloatType(bottom_->text(), &bottom_is_number);
    ok_->setEnabled(!override_->isChecked() || (top_is_number && bottom_is_number && top < bottom));
}

bool DisplayedIntervalDialog::GetOverrideAutomaticInterval() const
{
    return override_->isChecked();
}

Interval DisplayedIntervalDialog::GetTotalDisplayedInterval() const
{
    return {DepthOf(top_), DepthOf(bottom_)};
}
