// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/FormDialog.h"

#include <QPushButton>

void FormDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    // A button box has just made its first button the default one.
    for (auto* button : findChildren<QPushButton*>()) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }
}
