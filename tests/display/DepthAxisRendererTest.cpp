// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthAxisRenderer.h"

#include "display/CurveSupport.h"
#include "support/RecordingPaintDevice.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

using curve_support::DepthUnit;

namespace {
/// Rows of the lines that go from x1 to x2.
std::multiset<int> RowsOfLines(RecordingPaintDevice const& device, int x1, int x2)
{
    std::multiset<int> rows;
    for (QLineF const& line : device.GetLines()) {
        if (line.x1() == x1 && line.x2() == x2 && line.y1() == line.y2()) {
            rows.insert(static_cast<int>(line.y1()));
        }
    }
    return rows;
}

QStringList Labels(RecordingPaintDevice const& device)
{
    QStringList labels;
    for (auto const& text : device.GetTexts()) {
        labels.push_back(text.text);
    }
    return labels;
}
} // namespace

TEST(DepthAxisRendererTest, StepNearTheDepthOfAnInch)
{
    DepthUnit const metres(true);
    struct Case
    {
        double metres_per_inch;
        double step;
    };
    // 128 rows at 128 dots per inch: the interval is what one inch spans.
    Case const cases[] = {{1, 1},      {1.5, 1},      {1.51, 2},    {3.5, 2},      {3.51, 5},
                          {7.5, 5},    {7.51, 10},    {9.9, 10},    {10, 10},      {16, 20},
                          {74, 50},    {76, 100},     {400, 500},   {0.2, 0.2},    {0.5, 0.5},
                          {0.09, 0.1}, {0.012, 0.01}, {0.04, 0.05}, {12345, 10000}};
    for (Case const& c : cases) {
        auto const scale = DepthAxisRenderer::CalculateAxisScale(128, {0, c.metres_per_inch}, 128, 1);
        EXPECT_NEAR(scale.step, c.step, 1e-9 * c.step) << c.metres_per_inch;
    }
    // Fractions of a dot do not count, and k inches count as one.
    EXPECT_DOUBLE_EQ(DepthAxisRenderer::CalculateAxisScale(100.9, {0, 1.5}, 100, 1).step, 1);
    EXPECT_DOUBLE_EQ(DepthAxisRenderer::CalculateAxisScale(100, {0, 1.5}, 100, 2).step, 2);
}

TEST(DepthAxisRendererTest, StartsAtTheFirstRoundDepth)
{
    {
        DepthUnit const metres(true);
        EXPECT_DOUBLE_EQ(DepthAxisRenderer::CalculateAxisScale(100, {101.2, 103.2}, 100, 1).start, 102);
        EXPECT_DOUBLE_EQ(DepthAxisRenderer::CalculateAxisScale(100, {102, 104}, 100, 1).start, 102);
        EXPECT_DOUBLE_EQ(DepthAxisRenderer::CalculateAxisScale(100, {-3.5, -1.5}, 100, 1).start, -2);
    }
    DepthUnit const feet(false);
    // 328.084 ft over four inches are 82 ft per inch; the top at 3280.84 ft.
    auto const scale = DepthAxisRenderer::CalculateAxisScale(100, {1000, 1100}, 400, 1);
    EXPECT_DOUBLE_EQ(scale.step, 100);
    EXPECT_DOUBLE_EQ(scale.start, 3300);
}

TEST(DepthAxisRendererTest, NoRulerWithoutRoomOrResolution)
{
    double const nan = std::nan("");
    EXPECT_EQ(DepthAxisRenderer::CalculateAxisScale(0, {0, 10}, 100, 1).step, 0);
    EXPECT_EQ(DepthAxisRenderer::CalculateAxisScale(96, {0, 10}, 0, 1).step, 0);
    EXPECT_EQ(DepthAxisRenderer::CalculateAxisScale(96, {10, 10}, 100, 1).step, 0);
    EXPECT_EQ(DepthAxisRenderer::CalculateAxisScale(96, {10, 5}, 100, 1).step, 0);
    EXPECT_EQ(DepthAxisRenderer::CalculateAxisScale(96, {0, nan}, 100, 1).step, 0);
    EXPECT_EQ(DepthAxisRenderer::CalculateAxisScale(96, Interval(), 100, 1).step, 0);
}

TEST(DepthAxisRendererTest, TicksAndLabels)
{
    DepthUnit const metres(true);
    constexpr int width = 120;
    RecordingPaintDevice device(width, 401);
    {
        QPainter painter(&device);
        // 10 rows per metre; 96 rows are 9.6 m, so the step is 10 m and a minor tick is 1 m.
        DepthAxisRenderer().RenderToPainter(painter, {995, 1035}, 96, 1.0, Qt::lightGray, true);
    }
    EXPECT_EQ(RowsOfLines(device, 0, width), (std::multiset<int>{50, 150, 250, 350}));
    EXPECT_EQ(RowsOfLines(device, 0, 20), (std::multiset<int>{0, 100, 200, 300, 400}));
    EXPECT_EQ(RowsOfLines(device, width - 20, width), RowsOfLines(device, 0, 20));
    auto const minor = RowsOfLines(device, 0, 5);
    EXPECT_EQ(RowsOfLines(device, width - 5, width), minor);
    for (int row = 0; row <= 400; row += 10) {
        EXPECT_EQ(minor.count(row), 1U) << row;
    }
    EXPECT_EQ(Labels(device), (QStringList{QStringLiteral("1,000"), QStringLiteral("1,010"),
                                           QStringLiteral("1,020"), QStringLiteral("1,030")}));
    // Labels stand on their tick, in the middle.
    for (std::size_t i = 0; i < device.GetTexts().size(); ++i) {
        QPointF const position = device.GetTexts()[i].position;
        double const tick = 50 + 100 * static_cast<double>(i);
        EXPECT_LT(position.y(), tick);
        EXPECT_GT(position.y(), tick - 20);
        EXPECT_GT(position.x(), 20);
        EXPECT_LT(position.x(), width / 2.0);
    }
}

TEST(DepthAxisRendererTest, FractionsOfAMetreShowOneDecimal)
{
    DepthUnit const metres(true);
    auto const labels = [](Interval const& interval) {
        RecordingPaintDevice device(80, 201);
        QPainter painter(&device);
        DepthAxisRenderer().RenderToPainter(painter, interval, 100, 1.0, Qt::lightGray, false);
        painter.end();
        return Labels(device);
    };
    EXPECT_EQ(labels({10, 11}),
              (QStringList{QStringLiteral("10.0"), QStringLiteral("10.5"), QStringLiteral("11.0")}));
    EXPECT_EQ(labels({10, 12}),
              (QStringList{QStringLiteral("10"), QStringLiteral("11"), QStringLiteral("12")}));
}

TEST(DepthAxisRendererTest, LongLabelsFitIntoANarrowRuler)
{
    DepthUnit const metres(true);
    for (Interval const& interval : {Interval(14000, 15000), Interval(9990, 10010), Interval(-2000, -1000)}) {
        RecordingPaintDevice device(38, 600);
        QPainter painter(&device);
        DepthAxisRenderer().RenderToPainter(painter, interval, 96, 1.0, Qt::lightGray, true);
        painter.end();
        ASSERT_FALSE(device.GetTexts().empty());
        for (auto const& text : device.GetTexts()) {
            // Centred, so that it ends as far from the right edge as it begins from the left one.
            EXPECT_GE(text.position.x(), 0) << text.text.toStdString();
        }
    }
}

TEST(DepthAxisRendererTest, OddIntervalsAndSizesEnd)
{
    DepthUnit const metres(true);
    double const inf = std::numeric_limits<double>::infinity();
    for (QSize const size : {QSize(1, 1), QSize(38, 3), QSize(3, 500), QSize(60, 2000)}) {
        for (Interval const& interval :
             {Interval(0, 5000), Interval(5, 5), Interval(7, 3), Interval(0, inf), Interval(std::nan(""), 3),
              Interval(1e30, 1.0001e30), Interval(-1e300, 1e300), Interval(5000, 5000.0001),
              Interval(-20, 20)}) {
            for (double const dpi : {0.0, 1.0, 96.0, 1200.0}) {
                QImage image(size, QImage::Format_ARGB32_Premultiplied);
                image.fill(Qt::white);
                QPainter painter(&image);
                QPen const pen = painter.pen();
                DepthAxisRenderer().RenderToPainter(painter, interval, dpi, 1.0, Qt::lightGray, true);
                EXPECT_EQ(painter.pen(), pen);
                painter.end();
                if (!interval.IsValid()) {
                    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
                }
            }
        }
    }
}
