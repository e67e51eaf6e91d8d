// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/NameEdit.h"

#include "app/kit/ProjectText.h"
#include "well/TextDelegate.h"

#include <stdexcept>

NameEdit::NameEdit(QString const& text, QWidget* parent) : QLineEdit(parent)
{
    setMaxLength(TextDelegate::MAXIMUM_LENGTH);
    setText(text);
}

QString NameEdit::GetCheckedText(QLineEdit const& edit, QString const& subject)
{
    if (auto const message = Quorrel::CheckProjectText(subject, edit.text()); !message.isEmpty()) {
        throw std::invalid_argument(message.toStdString());
    }
    return edit.text();
}
