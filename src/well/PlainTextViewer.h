// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPlainTextEdit>

/// Shows a plain text with its line numbers, the current line set off.
class PlainTextViewer : public QPlainTextEdit
{
    Q_OBJECT
public:
    explicit PlainTextViewer(QWidget* parent = nullptr);

    void lineNumberAreaPaintEvent(QPaintEvent* event);
    /// Pixels.
    [[nodiscard]] int lineNumberAreaWidth() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateLineNumberAreaWidth();
    void updateLineNumberArea(QRect const& rect, int dy);
    void highlightCurrentLine();

    QWidget* line_number_area_;
};
