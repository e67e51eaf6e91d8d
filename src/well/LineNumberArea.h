// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <functional>

/// The strip beside a PlainTextViewer's text, painted by the viewer.
class LineNumberArea : public QWidget
{
    Q_OBJECT
public:
    LineNumberArea(QWidget* viewer, std::function<void(QPaintEvent*)> paint);

protected:
    void paintEvent(QPaintEvent* event) override { paint_(event); }

private:
    std::function<void(QPaintEvent*)> paint_;
};
