// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class ColumnWindow;
class QListWidget;
class QPushButton;

/// Stores the present arrangement of a column under a name, and deletes stored ones.
class ScreensManager final : public QDialog
{
    Q_OBJECT
public:
    explicit ScreensManager(ColumnWindow& column, QWidget* parent = nullptr);

signals:
    void ScreenAdded_Signal();
    void ScreenDeleted_Signal();

private:
    void OnSave();
    void OnDelete();
    void UpdateScreensTable();

    ColumnWindow& column_;
    QListWidget* lw_screens_;
    QPushButton* pb_delete_;
};
