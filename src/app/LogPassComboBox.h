// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>

class QComboBox;
class QToolBar;

/// The pass selector of the "Passes" tool bar: items show file names on the pass colour and carry log pass
/// hashes.
class LogPassComboBox : public QObject
{
    Q_OBJECT
public:
    explicit LogPassComboBox(QObject* parent = nullptr);
    ~LogPassComboBox() override;

    /// The tool bar becomes the owner of the combo box.
    void AddLogPassComboBoxToToolBar(QToolBar* tool_bar);

    void AddLogPass(QString const& hash, QString const& name, QColor const& color);
    /// Does nothing for an unknown hash.
    void SelectLogPass(QString const& hash);
    /// Neither wraps round; both do nothing with fewer than two items.
    void SelectPreviousPass();
    void SelectNextPass();
    [[nodiscard]] bool IsFirstLogPassSelected() const;
    [[nodiscard]] bool IsLastLogPassSelected() const;
    [[nodiscard]] bool IsEmpty() const;
    /// Empty when there is none.
    [[nodiscard]] QString GetCurrentLogIdentifierHash() const;
    void ClearLogPassComboBox();

signals:
    void OnLogPassComboBoxSelection_Signal();

private:
    QPointer<QComboBox> combo_box_;
};
