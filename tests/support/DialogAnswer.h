// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTimer>

/// Answers the modal dialogs that an action opens, in their order, while the action runs. Dialogs beyond the
/// answers given are rejected, so that no test hangs; all of them are remembered.
class DialogAnswer
{
public:
    using Answer = std::function<void(QDialog*)>;

    explicit DialogAnswer(std::vector<Answer> answers = {}) : answers_(std::move(answers))
    {
        QObject::connect(&timer_, &QTimer::timeout, [this] { AnswerActive(); });
        timer_.start(1);
    }

    /// Titles of the dialogs seen.
    [[nodiscard]] QStringList const& GetTitles() const { return titles_; }
    /// Texts of the message boxes seen.
    [[nodiscard]] QStringList const& GetMessages() const { return messages_; }

    [[nodiscard]] static Answer Accept()
    {
        return [](QDialog* dialog) { dialog->accept(); };
    }
    /// Presses this button of a message box.
    [[nodiscard]] static Answer Press(QMessageBox::StandardButton button)
    {
        return [button](QDialog* dialog) {
            auto* const box = qobject_cast<QMessageBox*>(dialog);
            ASSERT_NE(box, nullptr);
            box->button(button)->click();
        };
    }

private:
    void AnswerActive()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) {
            return;
        }
        titles_ << dialog->windowTitle();
        if (auto const* box = qobject_cast<QMessageBox*>(dialog)) {
            messages_ << box->text();
        }
        auto const index = static_cast<std::size_t>(titles_.size() - 1);
        if (index < answers_.size() && answers_[index]) {
            answers_[index](dialog);
        } else {
            dialog->reject();
        }
    }

    std::vector<Answer> answers_;
    QTimer timer_;
    QStringList titles_;
    QStringList messages_;
};
