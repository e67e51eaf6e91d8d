// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/NameEdit.h"

#include "well/TextLimit.h"

NameEdit::NameEdit(QString const& text, QWidget* parent) : QLineEdit(parent)
{
    new TextLimit(this);
    setText(text);
}
