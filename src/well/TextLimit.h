// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QValidator>

class QLineEdit;

/// Keeps a line edit to what a project file holds: a longer text is refused whole as it is typed or pasted,
/// with a message, and what stood there stays. The edit owns it.
class TextLimit : public QValidator
{
    Q_OBJECT
public:
    explicit TextLimit(QLineEdit* edit);

    [[nodiscard]] State validate(QString& text, int& position) const override;

private:
    void ShowRefusal();

    QLineEdit* edit_;
    mutable QString refusal_; ///< why the last text was refused, until it is shown
};
