// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class ChannelsScaleWidget;
class QDialogButtonBox;
class ScaleEditTarget;

/// Edits the scale ends of a view's curves; nothing reaches the view before Apply or Ok.
class BaseScaleDialog final : public QDialog
{
    Q_OBJECT
public:
    /// `target` outlives the dialog.
    BaseScaleDialog(QWidget* parent, ScaleEditTarget* target);

    void OnApply();
    void OnAccept();
    /// Enables Ok and Apply.
    void OnInputChanged(bool valid);

private:
    ScaleEditTarget* target_;
    ChannelsScaleWidget* widget_;
    QDialogButtonBox* buttons_;
};
