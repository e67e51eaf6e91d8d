// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

// icon_sheet [picture.png]: paints every icon of the bundle at 16, 24, 32 and 48 pixels, the light
// forms on a light background and the forms of the dark theme on a dark one.

#include "resources/Resources.h"

#include <QDirIterator>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {
constexpr int SIZES[] = {16, 24, 32, 48};
constexpr int CELL_WIDTH = 400;
constexpr int CELL_HEIGHT = 60;
constexpr int COLUMNS = 4;

int PaintSizes(QPainter& painter, QString const& file, int x, int y)
{
    QSvgRenderer renderer(file);
    for (int const size : SIZES) {
        renderer.render(&painter, QRectF(x, y + (CELL_HEIGHT - size) / 2, size, size));
        x += size + 8;
    }
    return x;
}

void PaintCell(QPainter& painter, QString const& icon, QPoint corner)
{
    QRect const cell(corner, QSize(CELL_WIDTH, CELL_HEIGHT));
    QRect const dark_half = cell.adjusted(CELL_WIDTH / 2 - 20, 0, -40, 0);
    painter.fillRect(cell, QColor(0xf3f4f5));
    painter.fillRect(dark_half, QColor(0x23, 0x26, 0x29));
    int const cut = static_cast<int>(icon.lastIndexOf('/')) + 1;
    QString const dark = icon.left(cut) + "DarkTheme/" + icon.mid(cut);
    PaintSizes(painter, icon, cell.left() + 6, cell.top());
    PaintSizes(painter, QFile::exists(dark) ? dark : icon, dark_half.left() + 6, cell.top());
}
} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    qInitResources_Quorrel();

    QStringList icons;
    for (QDirIterator it(":/Icons", {"*.svg"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        QString const file = it.next();
        if (!file.contains("/DarkTheme/"))
            icons << file;
    }
    icons.sort();

    int const rows = static_cast<int>((icons.size() + COLUMNS - 1) / COLUMNS);
    QImage sheet(COLUMNS * CELL_WIDTH, rows * CELL_HEIGHT, QImage::Format_RGB32);
    sheet.fill(QColor(0xf3f4f5));
    QPainter painter(&sheet);
    for (int i = 0; i < icons.size(); ++i)
        PaintCell(painter, icons[i], QPoint(i % COLUMNS * CELL_WIDTH, i / COLUMNS * CELL_HEIGHT));
    painter.end();

    QString const picture = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString("icons.png");
    if (!sheet.save(picture)) {
        std::fprintf(stderr, "Cannot write %s\n", qPrintable(picture));
        return 1;
    }
    std::printf("%d icons in %s\n", static_cast<int>(icons.size()), qPrintable(picture));
    return 0;
}
