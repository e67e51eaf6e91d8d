// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/ScreensManager.h"

#include "app/kit/ProjectText.h"
#include "app/kit/Quorrel.h"
#include "display/ColumnWindow.h"

#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

ScreensManager::ScreensManager(ColumnWindow& column, QWidget* parent)
    : QDialog(parent), column_(column), lw_screens_(new QListWidget(this)), pb_delete_(new QPushButton(this))
{
    setWindowTitle(tr("Screens Manager"));
    lw_screens_->setObjectName("lw_screens");
    auto* pb_save = new QPushButton(tr("Save Current Screen"), this);
    pb_save->setObjectName("pb_save");
    pb_delete_->setText(tr("Delete Selection"));
    pb_delete_->setObjectName("pb_delete");
    auto* pb_close = new QPushButton(tr("Close"), this);
    pb_close->setObjectName("pb_close");

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(pb_save);
    buttons->addWidget(pb_delete_);
    buttons->addStretch();
    buttons->addWidget(pb_close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("Screen Name"), this));
    layout->addWidget(lw_screens_);
    layout->addLayout(buttons);
    Quorrel::SetWindowSize(this, 0.3F, 0.4F);

    connect(pb_save, &QPushButton::clicked, this, &ScreensManager::OnSave);
    connect(pb_delete_, &QPushButton::clicked, this, &ScreensManager::OnDelete);
    connect(pb_close, &QPushButton::clicked, this, &ScreensManager::accept);
    connect(lw_screens_, &QListWidget::itemSelectionChanged, this,
            [this] { pb_delete_->setEnabled(!lw_screens_->selectedItems().isEmpty()); });
    UpdateScreensTable();
    pb_save->setFocus(); // a list with the focus looks as if its first row were selected
}

void ScreensManager::UpdateScreensTable()
{
    lw_screens_->clear();
    lw_screens_->addItems(column_.GetScreenNames());
    pb_delete_->setEnabled(false);
}

void ScreensManager::OnSave()
{
    auto const selected = lw_screens_->selectedItems();
    bool accepted = false;
    auto const name =
        QInputDialog::getText(this, tr("Name"), tr("Screen Name"), QLineEdit::Normal,
                              selected.isEmpty() ? tr("Screen Name") : selected.first()->text(), &accepted);
    if (!accepted || name.isEmpty()) {
        return;
    }
    if (auto const message = Quorrel::CheckProjectText(tr("The name is"), name); !message.isEmpty()) {
        QMessageBox::information(this, windowTitle(), message);
        return;
    }
    column_.SaveScreen(name);
    UpdateScreensTable();
    emit ScreenAdded_Signal();
}

void ScreensManager::OnDelete()
{
    for (auto const* item : lw_screens_->selectedItems()) {
        column_.DeleteScreen(item->text());
    }
    UpdateScreensTable();
    emit ScreenDeleted_Signal();
}
