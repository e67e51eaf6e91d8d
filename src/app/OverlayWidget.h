// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

/// A child that covers its parent, keeps its size and stays on top of its siblings, also when it is given
/// another parent. Mouse input that it does not use does not reach what it covers.
class OverlayWidget : public QWidget
{
    Q_OBJECT
public:
    explicit OverlayWidget(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void NewParent();
};
