// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DepthAxisRenderer.h"

#include "ViewBench.h"
#include "support/RecordingPaintDevice.h"
#include "support/Texts.h"

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

void Draw(QPaintDevice& device, Interval const& interval, double dpi = 96, bool bold = true)
{
    QPainter painter(&device);
    QPen const pen = painter.pen();
    DepthAxisRenderer().RenderToPainter(painter, interval, dpi, 1.0, Qt::lightGray, bold);
    EXPECT_EQ(painter.pen(), pen);
}

QStringList Labels(RecordingPaintDevice const& device)
{
    return Texts(device.GetTexts(), &RecordingPaintDevice::Text::text);
}

using DepthAxisRendererTest = view_bench::BenchTest;
} // namespace

TEST_F(DepthAxisRendererTest, StepNearTheDepthOfAnInch)
{
    // 128 rows at 128 dots per inch: the interval is what one inch spans.
    double const cases[][2] = {{1, 1},    {1.5, 1},   {1.51, 2},   {3.5, 2},      {3.51, 5},
                               {7.5, 5},  {7.51, 10}, {9.9, 10},   {16, 20},      {74, 50},
                               {76, 100}, {0.2, 0.2}, {0.09, 0.1}, {0.012, 0.01}, {12345, 10000}};
    for (auto const& [metres_per_inch, step] : cases) {
        auto const scale = DepthAxisRenderer::CalculateAxisScale(128, {0, metres_per_inch}, 128, 1);
        EXPECT_NEAR(scale.step, step, 1e-9 * step) << metres_per_inch;
    }
    // Fractions of a dot do not count, and k inches count as one.
    EXPECT_DOUBLE_EQ(DepthAxisRenderer::CalculateAxisScale(100.9, {0, 1.5}, 100, 1).step, 1);
    EXPECT_DOUBLE_EQ(DepthAxisRenderer::CalculateAxisScale(100, {0, 1.5}, 100, 2).step, 2);
}

TEST_F(DepthAxisRendererTest, StartsAtTheFirstRoundDepth)
{
    for (auto const& [top, start] :
         {std::pair(101.2, 102.0), std::pair(102.0, 102.0), std::pair(-3.5, -2.0)}) {
        EXPECT_DOUBLE_EQ(DepthAxisRenderer::CalculateAxisScale(100, {top, top + 2}, 100, 1).start, start);
    }
    SettingsSingleton::Instance().SetMetricDepth(false);
    // 328.084 ft over four inches are 82 ft per inch; the top at 3280.84 ft.
    auto const scale = DepthAxisRenderer::CalculateAxisScale(100, {1000, 1100}, 400, 1);
    EXPECT_DOUBLE_EQ(scale.step, 100);
    EXPECT_DOUBLE_EQ(scale.start, 3300);
}

TEST_F(DepthAxisRendererTest, NoRulerWithoutRoomOrResolution)
{
    auto const step = [](int height, Interval const& interval, double dpi) {
        return DepthAxisRenderer::CalculateAxisScale(height, interval, dpi, 1).step;
    };
    EXPECT_EQ(step(0, {0, 10}, 100), 0);
    EXPECT_EQ(step(96, {0, 10}, 0), 0);
    for (Interval const& interval :
         {Interval(10, 10), Interval(10, 5), Interval(0, std::nan("")), Interval()}) {
        EXPECT_EQ(step(96, interval, 100), 0) << interval.upper;
    }
}

TEST_F(DepthAxisRendererTest, TicksAndLabels)
{
    constexpr int width = 120;
    RecordingPaintDevice device(width, 401);
    Draw(device, {995, 1035}); // 10 rows per metre; 96 rows are 9.6 m, so the step is 10 m, a minor tick 1 m
    EXPECT_EQ(RowsOfLines(device, 0, width), (std::multiset<int>{50, 150, 250, 350}));
    EXPECT_EQ(RowsOfLines(device, 0, 20), (std::multiset<int>{0, 100, 200, 300, 400}));
    EXPECT_EQ(RowsOfLines(device, width - 20, width), RowsOfLines(device, 0, 20));
    auto const minor = RowsOfLines(device, 0, 5);
    EXPECT_EQ(RowsOfLines(device, width - 5, width), minor);
    for (int row = 0; row <= 400; row += 10) {
        EXPECT_EQ(minor.count(row), 1U) << row;
    }
    EXPECT_EQ(Labels(device), (QStringList{"1,000", "1,010", "1,020", "1,030"}));
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

TEST_F(DepthAxisRendererTest, FractionsOfAMetreShowOneDecimal)
{
    auto const labels = [](Interval const& interval) {
        RecordingPaintDevice device(80, 201);
        Draw(device, interval, 100, false);
        return Labels(device);
    };
    EXPECT_EQ(labels({10, 11}), (QStringList{"10.0", "10.5", "11.0"}));
    EXPECT_EQ(labels({10, 12}), (QStringList{"10", "11", "12"}));
}

TEST_F(DepthAxisRendererTest, LongLabelsFitIntoANarrowRuler)
{
    for (Interval const& interval : {Interval(14000, 15000), Interval(9990, 10010), Interval(-2000, -1000)}) {
        RecordingPaintDevice device(38, 600);
        Draw(device, interval);
        ASSERT_FALSE(device.GetTexts().empty());
        for (auto const& text : device.GetTexts()) {
            // Centred, so that it ends as far from the right edge as it begins from the left one.
            EXPECT_GE(text.position.x(), 0) << text.text.toStdString();
        }
    }
}

TEST_F(DepthAxisRendererTest, OddIntervalsAndSizesEnd)
{
    for (QSize const size : {QSize(1, 1), QSize(38, 3), QSize(3, 500), QSize(60, 2000)}) {
        for (Interval const& interval :
             {Interval(0, 5000), Interval(5, 5), Interval(7, 3), Interval(0, INFINITY),
              Interval(std::nan(""), 3), Interval(1e30, 1.0001e30), Interval(-1e300, 1e300),
              Interval(5000, 5000.0001), Interval(-20, 20)}) {
            for (double const dpi : {0.0, 1.0, 96.0, 1200.0}) {
                QImage image(size, QImage::Format_ARGB32_Premultiplied);
                image.fill(Qt::white);
                Draw(image, interval, dpi);
                if (!interval.IsValid()) {
                    EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
                }
            }
        }
    }
}
