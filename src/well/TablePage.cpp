// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/TablePage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

TablePage::TablePage(QWidget* table, QString const& paste_format, QWidget* above, QWidget* parent)
    : QWidget(parent), buttons_(new QHBoxLayout)
{
    auto* layout = new QVBoxLayout(this);
    if (above != nullptr) {
        layout->addWidget(above);
    }
    layout->addWidget(table, 1);
    auto* hint = new QLabel(tr("Paste Format:") + " " + paste_format);
    hint->setObjectName("PasteFormat");
    hint->setTextFormat(Qt::PlainText);
    hint->setWordWrap(true);
    hint->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(hint);
    layout->addLayout(buttons_);
    buttons_->addStretch();
}

QPushButton* TablePage::AddButton(QString const& text, QString const& object_name)
{
    auto* button = new QPushButton(text);
    button->setObjectName(object_name);
    buttons_->insertWidget(buttons_->count() - 1, button);
    return button;
}
