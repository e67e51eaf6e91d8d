// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/PlainTextViewer.h"

#include "well/LineNumberArea.h"

#include <QFontDatabase>
#include <QPainter>
#include <QTextBlock>

#include <algorithm>

namespace {
constexpr int MARGIN = 4;
}

PlainTextViewer::PlainTextViewer(QWidget* parent)
    : QPlainTextEdit(parent),
      line_number_area_(
          new LineNumberArea(this, [this](QPaintEvent* event) { lineNumberAreaPaintEvent(event); }))
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(this, &QPlainTextEdit::blockCountChanged, this, &PlainTextViewer::updateLineNumberAreaWidth);
    connect(this, &QPlainTextEdit::updateRequest, this, &PlainTextViewer::updateLineNumberArea);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &PlainTextViewer::highlightCurrentLine);
    updateLineNumberAreaWidth();
    highlightCurrentLine();
}

int PlainTextViewer::lineNumberAreaWidth() const
{
    auto const digits = std::max<qsizetype>(QString::number(blockCount()).size(), 3);
    return 2 * MARGIN + fontMetrics().horizontalAdvance('9') * static_cast<int>(digits);
}

void PlainTextViewer::updateLineNumberAreaWidth()
{
    setViewportMargins(lineNumberAreaWidth(), 0, 0, 0);
}

void PlainTextViewer::updateLineNumberArea(QRect const& rect, int dy)
{
    if (dy != 0) {
        line_number_area_->scroll(0, dy);
    } else {
        line_number_area_->update(0, rect.y(), line_number_area_->width(), rect.height());
    }
}

void PlainTextViewer::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    auto const area = contentsRect();
    line_number_area_->setGeometry(area.left(), area.top(), lineNumberAreaWidth(), area.height());
}

void PlainTextViewer::highlightCurrentLine()
{
    QTextEdit::ExtraSelection line;
    line.format.setBackground(palette().color(QPalette::AlternateBase));
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    line.cursor = textCursor();
    line.cursor.clearSelection();
    setExtraSelections({line});
}

void PlainTextViewer::lineNumberAreaPaintEvent(QPaintEvent* event)
{
    QPainter painter(line_number_area_);
    painter.fillRect(event->rect(), palette().color(QPalette::Window));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(font());
    int const width = line_number_area_->width() - MARGIN;
    auto block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    while (block.isValid() && top <= event->rect().bottom()) {
        qreal const height = blockBoundingRect(block).height();
        painter.drawText(QRectF(0, top, width, fontMetrics().height()), Qt::AlignRight,
                         QString::number(block.blockNumber() + 1));
        top += height;
        block = block.next();
    }
}
