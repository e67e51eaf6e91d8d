// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QWidget>

class QCheckBox;
class QLineEdit;
class QListWidget;

/// The form for the settings of multi-finger calipers. Starts with the present settings and changes none
/// itself.
class MfcSettingsWidget : public QWidget
{
    Q_OBJECT
public:
    explicit MfcSettingsWidget(QWidget* parent = nullptr);

    /// Shows the present settings.
    void InitializeWidget();
    [[nodiscard]] QStringList GetMfcMnems() const;
    [[nodiscard]] bool GetDisplayMfcWindows() const;

public slots:
    void OnInsert();
    void OnDelete();
    void OnReset();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QCheckBox* display_windows_;
    QListWidget* mnems_;
    QLineEdit* new_mnem_;
};
