// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

/// A dialog of many fields, in which Enter ends the edit of one of them and presses no button that has not
/// the focus.
class FormDialog : public QDialog
{
    Q_OBJECT
public:
    using QDialog::QDialog;

protected:
    void showEvent(QShowEvent* event) override;
};
