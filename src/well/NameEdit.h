// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

/// A line edit for a name or description. It takes texts beyond what a project file holds, so that one too
/// long is refused with a message and not cut short in silence.
class NameEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit NameEdit(QString const& text = {}, QWidget* parent = nullptr);

    /// @throws std::invalid_argument, beginning with `subject`, for a text too long for a project file
    [[nodiscard]] static QString GetCheckedText(QLineEdit const& edit, QString const& subject);
};
