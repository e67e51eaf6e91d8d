// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/MfcSettingsWidget.h"

#include "app/kit/SettingsSingleton.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

MfcSettingsWidget::MfcSettingsWidget(QWidget* parent)
    : QWidget(parent),
      display_windows_(new QCheckBox(tr("Automatically display MFC Windows (3D + Cross-Section)"))),
      mnems_(new QListWidget),
      new_mnem_(new QLineEdit)
{
    display_windows_->setObjectName(QStringLiteral("display_mfc_windows"));
    mnems_->setObjectName(QStringLiteral("mfc_mnems"));
    mnems_->setSortingEnabled(true);
    new_mnem_->setObjectName(QStringLiteral("new_mnem"));
    new_mnem_->setPlaceholderText(tr("New mnemonic"));

    auto const button = [this](QString const& text, QString const& name, void (MfcSettingsWidget::*slot)()) {
        auto* const result = new QPushButton(text);
        result->setObjectName(name);
        result->setAutoDefault(false);
        connect(result, &QPushButton::clicked, this, slot);
        return result;
    };
    auto* const delete_button =
        button(tr("Delete"), QStringLiteral("delete_mnem"), &MfcSettingsWidget::OnDelete);
    auto* const reset_button =
        button(tr("Reset"), QStringLiteral("reset_mnems"), &MfcSettingsWidget::OnReset);
    auto* const insert_button =
        button(tr("Insert"), QStringLiteral("insert_mnem"), &MfcSettingsWidget::OnInsert);
    connect(new_mnem_, &QLineEdit::returnPressed, this, &MfcSettingsWidget::OnInsert);

    auto* const group = new QGroupBox(
        tr("MFC Radius Mnems (will generate MFC View after adding log-file) - Case Insensitive"));
    auto* const grid = new QGridLayout(group);
    grid->addWidget(mnems_, 0, 0, 3, 1);
    grid->addWidget(delete_button, 0, 1);
    grid->addWidget(reset_button, 1, 1);
    grid->addWidget(new_mnem_, 3, 0);
    grid->addWidget(insert_button, 3, 1);
    grid->setRowStretch(2, 1);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(display_windows_);
    layout->addWidget(group, 1);
    InitializeWidget();
}

void MfcSettingsWidget::InitializeWidget()
{
    SettingsSingleton const& settings = SettingsSingleton::Instance();
    display_windows_->setChecked(settings.GetDisplayMfcWindows());
    mnems_->clear();
    mnems_->addItems(settings.GetMfcMnems());
}

QStringList MfcSettingsWidget::GetMfcMnems() const
{
    QStringList result;
    for (int row = 0; row < mnems_->count(); ++row) {
        result.append(mnems_->item(row)->text());
    }
    return result;
}

bool MfcSettingsWidget::GetDisplayMfcWindows() const
{
    return display_windows_->isChecked();
}

void MfcSettingsWidget::OnInsert()
{
    QString const mnem = new_mnem_->text().trimmed();
    new_mnem_->clear();
    if (!mnem.isEmpty() && !GetMfcMnems().contains(mnem)) {
        mnems_->addItem(mnem);
    }
}

void MfcSettingsWidget::OnDelete()
{
    delete mnems_->takeItem(mnems_->currentRow());
}

void MfcSettingsWidget::OnReset()
{
    mnems_->clear();
    mnems_->addItems(SettingsSingleton::GetDefaultMfcMnems());
}

void MfcSettingsWidget::keyPressEvent(QKeyEvent* event)
{
    // The line edit lets Return pass on, where it would press the dialog's default button.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && new_mnem_->hasFocus()) {
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}
