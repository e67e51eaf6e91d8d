// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ClippedDrawing.h"

#include "support/Pixels.h"

#include <chrono>

namespace {
constexpr int SIZE = 100;
using Points = std::vector<QPointF>;

QImage Paint(std::function<void(QPainter&)> const& draw, QPen const& pen = QPen(Qt::red, 1))
{
    return pixels::Paint({SIZE, SIZE}, Qt::black, [&](QPainter& painter) {
        painter.setPen(pen);
        painter.setBrush(Qt::blue);
        draw(painter);
    });
}

QImage Polyline(Points const& points, QPen const& pen = QPen(Qt::red, 1))
{
    return Paint(
        [&](QPainter& painter) { Quorrel::DrawPolylineClipped(painter, points.data(), points.size()); }, pen);
}

QImage PlainPolyline(Points const& points, QPen const& pen = QPen(Qt::red, 1))
{
    return Paint(
        [&](QPainter& painter) { painter.drawPolyline(points.data(), static_cast<int>(points.size())); },
        pen);
}

QImage Polygon(Points const& points)
{
    return Paint(
        [&](QPainter& painter) { Quorrel::DrawPolygonClipped(painter, points.data(), points.size()); });
}
} // namespace

TEST(ClippedDrawingTest, PointsNearTheWindowAreDrawnAsTheyAre)
{
    Points const points{{3, 4}, {-50, 20}, {150, 60}, {40, 99}};
    EXPECT_EQ(Polyline(points), PlainPolyline(points));
    EXPECT_NE(Polyline(points), Polyline({}));
}

TEST(ClippedDrawingTest, LinesThatRunFarOutsideKeepTheirPixels)
{
    // And the same lines, cut off by hand.
    std::vector<std::pair<Points, Points>> const cases{
        {{{50, 0}, {50 - 1e12, 1e12}}, {{50, 0}, {-50, 100}}},
        {{{-1e15 + 20, -1e15 + 20}, {1e15, 1e15}}, {{-80, -80}, {180, 180}}},
        {{{10, 10}, {1e30, 10}, {1e30, 30}, {10, 30}}, {{10, 10}, {300, 10}, {300, 30}, {10, 30}}},
        {{{30, -1e30}, {30, 1e30}}, {{30, -100}, {30, 200}}},
        {{{1e30, 50}, {-1e30, 50}}, {{200, 50}, {-100, 50}}},
    };
    for (int width : {1, 5}) {
        QPen const pen(Qt::red, width);
        for (auto const& [far, near] : cases) {
            EXPECT_EQ(Polyline(far, pen), PlainPolyline(near, pen)) << far.back().x();
        }
    }
}

TEST(ClippedDrawingTest, PointsThatAreNoNumbersAreLeftOut)
{
    Points const holes{{0, 0}, {NAN, 5}, {INFINITY, 7}, {-INFINITY, 7}, {40, 40}, {50, INFINITY}};
    EXPECT_EQ(Polyline(holes), PlainPolyline({{0, 0}, {40, 40}}));
    EXPECT_EQ(Polyline({{NAN, NAN}, {INFINITY, 1}}), Polyline({}));
    EXPECT_EQ(Polygon({{INFINITY, 1}}), Polygon({}));
}

TEST(ClippedDrawingTest, PolygonsThatRunFarOutsideKeepTheirFill)
{
    EXPECT_EQ(Polygon({{20, 20}, {1e30, 20}, {1e30, 60}, {20, 60}}),
              Polygon({{20, 20}, {900, 20}, {900, 60}, {20, 60}}));
    // The window lies inside the polygon.
    pixels::Expect(Polygon({{-1e20, -1e20}, {1e20, -1e20}, {1e20, 1e20}, {-1e20, 1e20}}), Qt::blue,
                   {{50, 50}});
    // A triangle whose sides cross the window far from its corners: y < x + 10 and y > -x + 60.
    QImage const image = Polygon({{25, 35}, {25 + 1e10, 35 + 1e10}, {25 + 1e10, 35 - 1e10}});
    pixels::Expect(image, Qt::blue, {{60, 35}, {60, 60}});
    pixels::Expect(image, Qt::black, {{60, 85}, {20, 35}});
}

TEST(ClippedDrawingTest, ManyFarStrokesEndInTime)
{
    Points points;
    for (int i = 0; i < 2000; ++i) {
        points.emplace_back(i % 2 == 0 ? 1e30 : -1e30, i / 2);
    }
    for (Qt::PenStyle const style : {Qt::SolidLine, Qt::DashLine, Qt::DotLine}) {
        for (int const width : {1, 4}) {
            auto const start = std::chrono::steady_clock::now();
            Polyline(points, QPen(Qt::red, width, style));
            std::chrono::duration<double> const seconds = std::chrono::steady_clock::now() - start;
            EXPECT_LT(seconds.count(), 2.0) << style << " " << width;
        }
    }
}
