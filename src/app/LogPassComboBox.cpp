// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/LogPassComboBox.h"

#include <QComboBox>
#include <QPixmap>
#include <QToolBar>

LogPassComboBox::LogPassComboBox(QObject* parent) : QObject(parent), combo_box_(new QComboBox)
{
    combo_box_->setObjectName("LogPassComboBox");
    combo_box_->setToolTip(tr("Current log pass"));
    combo_box_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    combo_box_->setMinimumContentsLength(20);
    connect(combo_box_, &QComboBox::currentIndexChanged, this,
            &LogPassComboBox::OnLogPassComboBoxSelection_Signal);
}

LogPassComboBox::~LogPassComboBox()
{
    if (combo_box_ && combo_box_->parent() == nullptr) {
        delete combo_box_;
    }
}

void LogPassComboBox::AddLogPassComboBoxToToolBar(QToolBar* tool_bar)
{
    tool_bar->addWidget(combo_box_);
}

void LogPassComboBox::AddLogPass(QString const& hash, QString const& name, QColor const& color)
{
    QPixmap pixmap(20, 20);
    pixmap.fill(color);
    combo_box_->addItem(QIcon(pixmap), name, hash);
    int const index = combo_box_->count() - 1;
    combo_box_->setItemData(index, QColor(Qt::black), Qt::ForegroundRole);
    combo_box_->setItemData(index, color, Qt::BackgroundRole);
}

void LogPassComboBox::SelectLogPass(QString const& hash)
{
    if (int const index = combo_box_->findData(hash); index >= 0) {
        combo_box_->setCurrentIndex(index);
    }
}

void LogPassComboBox::SelectPreviousPass()
{
    if (combo_box_->count() > 1 && !IsFirstLogPassSelected()) {
        combo_box_->setCurrentIndex(combo_box_->currentIndex() - 1);
    }
}

void LogPassComboBox::SelectNextPass()
{
    if (combo_box_->count() > 1 && !IsLastLogPassSelected()) {
        combo_box_->setCurrentIndex(combo_box_->currentIndex() + 1);
    }
}

bool LogPassComboBox::IsFirstLogPassSelected() const
{
    return combo_box_->currentIndex() <= 0;
}

bool LogPassComboBox::IsLastLogPassSelected() const
{
    return combo_box_->currentIndex() == combo_box_->count() - 1;
}

bool LogPassComboBox::IsEmpty() const
{
    return combo_box_->count() == 0;
}

QString LogPassComboBox::GetCurrentLogIdentifierHash() const
{
    return combo_box_ ? combo_box_->currentData().toString() : QString();
}

void LogPassComboBox::ClearLogPassComboBox()
{
    combo_box_->clear();
}
