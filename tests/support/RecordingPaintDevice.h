// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QLineF>
#include <QPaintEngine>

/// A surface that keeps what is drawn on it instead of painting: lines and texts, in device coordinates.
/// Texts can thus be checked without a font's pixels.
class RecordingPaintDevice : public QImage
{
public:
    struct Text
    {
        QString text;
        QPointF position; ///< left end of the base line
    };

    RecordingPaintDevice(int width, int height) : QImage(width, height, Format_RGB32) {}

    [[nodiscard]] std::vector<QLineF> const& GetLines() const { return engine_.lines; }
    [[nodiscard]] std::vector<Text> const& GetTexts() const { return engine_.texts; }

    [[nodiscard]] QPaintEngine* paintEngine() const override { return &engine_; }

private:
    class Engine : public QPaintEngine
    {
    public:
        Engine() : QPaintEngine(AllFeatures) {}
        bool begin(QPaintDevice*) override { return true; }
        bool end() override { return true; }
        void updateState(QPaintEngineState const&) override {}
        [[nodiscard]] Type type() const override { return User; }
        void drawPixmap(QRectF const&, QPixmap const&, QRectF const&) override {}
        void drawPolygon(QPointF const*, int, PolygonDrawMode) override {}
        void drawRects(QRectF const*, int) override {}
        void drawLines(QLineF const* drawn, int count) override
        {
            lines.insert(lines.end(), drawn, drawn + count);
        }
        void drawTextItem(QPointF const& position, QTextItem const& item) override
        {
            texts.push_back({item.text(), position});
        }

        std::vector<QLineF> lines;
        std::vector<Text> texts;
    };

    mutable Engine engine_;
};
