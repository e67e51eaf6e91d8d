// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QWidget>

class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

/// A page of the well details: what may stand above its table, the table, the hint on what can be pasted and
/// a row of buttons.
class TablePage : public QWidget
{
    Q_OBJECT
public:
    TablePage(QWidget* table, QString const& paste_format, QWidget* above = nullptr,
              QWidget* parent = nullptr);

    QPushButton* AddButton(QString const& text, QString const& object_name);

private:
    QHBoxLayout* buttons_;
};
