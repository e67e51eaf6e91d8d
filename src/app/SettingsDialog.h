// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QString>

class ColorPicker;
class MfcSettingsWidget;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QTabWidget;

/// Edits the settings; nothing changes before OK.
class SettingsDialog : public QDialog
{
    Q_OBJECT
public:
    /// Text for a blank thousands separator.
    inline static QString const SPACE_SEPARATOR_DISPLAY = QStringLiteral("(space)");

    explicit SettingsDialog(QWidget* parent = nullptr);

public slots:
    void accept() override;

signals:
    /// The settings have changed and the dialog is about to close.
    void UpdateColumnWindow_Signal();

private:
    void InitializeDialog();
    [[nodiscard]] QWidget* CreateSeparatorsTab();
    [[nodiscard]] QWidget* CreateUnitsTab();
    [[nodiscard]] QWidget* CreateMiscTab();

    QTabWidget* tabs_;
    QButtonGroup* separators_;
    QComboBox* depth_unit_;
    ColorPicker* background_color_;
    ColorPicker* splitter_handle_color_;
    QCheckBox* override_splitter_handle_color_;
    QCheckBox* check_for_updates_;
    MfcSettingsWidget* mfc_settings_;
};
