// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/TextLimit.h"

#include "app/kit/ProjectText.h"

#include <QLineEdit>
#include <QMessageBox>

#include <utility>

namespace {
/// A line edit cuts off what is beyond its own limit, which is far beyond the one told of here.
constexpr int MAXIMUM_LENGTH = 1000000;
} // namespace

TextLimit::TextLimit(QLineEdit* edit) : QValidator(edit), edit_(edit)
{
    edit->setMaxLength(MAXIMUM_LENGTH);
    edit->setValidator(this);
    // Later: the edit is in the midst of its own change now.
    connect(edit, &QLineEdit::inputRejected, this, &TextLimit::ShowRefusal, Qt::QueuedConnection);
}

QValidator::State TextLimit::validate(QString& text, [[maybe_unused]] int& position) const
{
    if (Quorrel::FitsProjectFile(text)) {
        return Acceptable;
    }
    refusal_ = Quorrel::CheckProjectText(tr("The text is"), text);
    return Invalid;
}

void TextLimit::ShowRefusal()
{
    if (refusal_.isEmpty()) {
        return;
    }
    QWidget* window = edit_->window();
    QMessageBox box(QMessageBox::Warning, window->windowTitle(), std::exchange(refusal_, {}), QMessageBox::Ok,
                    window);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}
