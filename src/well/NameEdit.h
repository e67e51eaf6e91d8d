// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

/// A line edit for a name or description; the user enters no text that a project file does not hold.
class NameEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit NameEdit(QString const& text = {}, QWidget* parent = nullptr);
};
