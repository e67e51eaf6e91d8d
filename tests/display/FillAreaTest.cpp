// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/FillArea.h"

#include "display/FillAreaSource.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <random>
#include <stdexcept>

namespace {
using Points = std::vector<QPointF>;
constexpr int WIDTH = 100;
constexpr int HEIGHT = 120;

/// A view whose curves are given as polylines, and whose scale is 0 to 50 over the width.
class FakeView : public FillAreaSource
{
public:
    std::vector<FillAreaDefinition> definitions;
    std::map<int, Points> curves; ///< by channel index

    [[nodiscard]] std::vector<FillAreaDefinition> const& GetFillAreaDefinitions() const override
    {
        return definitions;
    }
    bool RenderCurvePoints(DataChannelIdentifier const& identifier, int width, int height, Interval const&,
                           Points& points) override
    {
        EXPECT_EQ(width, WIDTH);
        EXPECT_EQ(height, HEIGHT);
        auto const curve = curves.find(identifier.index);
        if (curve == curves.end()) {
            return false;
        }
        points = curve->second;
        return true;
    }
    [[nodiscard]] Interval GetCurveScale(DataChannelIdentifier const&) const override { return {0, 50}; }
};

DataChannelIdentifier Channel(int index)
{
    return {1, QStringLiteral("hash"), index};
}

FillAreaDefinition Fill(FILL_AREA_METHODS method, QColor const& color = Qt::red, float value = 0)
{
    FillAreaDefinition definition;
    definition.curve_a = Channel(0);
    definition.curve_b = Channel(1);
    definition.method = method;
    definition.color = color;
    definition.value = value;
    return definition;
}

QImage Paint(FakeView& view)
{
    QImage image(WIDTH, HEIGHT, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    FillArea(&view, painter, {0, 1});
    return image;
}

QImage Paint(Points const& a, Points const& b, FILL_AREA_METHODS method, float value = 0)
{
    FakeView view;
    view.curves = {{0, a}, {1, b}};
    view.definitions = {Fill(method, Qt::red, value)};
    return Paint(view);
}

bool IsRed(QImage const& image, int x, int y)
{
    return image.pixelColor(x, y) == QColor(Qt::red);
}
bool IsBlack(QImage const& image, int x, int y)
{
    return image.pixelColor(x, y) == QColor(Qt::black);
}
bool IsEmpty(QImage const& image)
{
    QImage black = image;
    black.fill(Qt::black);
    return image == black;
}

constexpr auto A_RIGHT_OF_B = FILL_AREA_METHODS::A_RIGHT_OF_B;
constexpr auto A_LEFT_OF_B = FILL_AREA_METHODS::A_LEFT_OF_B;
constexpr auto BETWEEN = FILL_AREA_METHODS::BETWEEN_A_AND_B;
constexpr auto A_RIGHT_OF_VALUE = FILL_AREA_METHODS::A_RIGHT_OF_VALUE;
constexpr auto A_LEFT_OF_VALUE = FILL_AREA_METHODS::A_LEFT_OF_VALUE;
constexpr auto BETWEEN_VALUE = FILL_AREA_METHODS::BETWEEN_A_AND_VALUE;
} // namespace

TEST(FillAreaTest, StraightCurvesSideBySide)
{
    Points const right{{60, 10}, {60, 90}};
    Points const left{{20, 10}, {20, 90}};
    QImage const image = Paint(right, left, A_RIGHT_OF_B);
    EXPECT_TRUE(IsRed(image, 40, 50));
    EXPECT_TRUE(IsRed(image, 22, 12));
    EXPECT_TRUE(IsRed(image, 58, 88));
    EXPECT_TRUE(IsBlack(image, 18, 50));
    EXPECT_TRUE(IsBlack(image, 62, 50));
    EXPECT_TRUE(IsBlack(image, 40, 8));
    EXPECT_TRUE(IsBlack(image, 40, 92));
    EXPECT_TRUE(IsEmpty(Paint(right, left, A_LEFT_OF_B)));
    EXPECT_EQ(Paint(left, right, A_LEFT_OF_B), image);
    EXPECT_EQ(Paint(right, left, BETWEEN), image);
    EXPECT_EQ(Paint(left, right, BETWEEN), image);
}

TEST(FillAreaTest, CrossingCurvesPartAtTheCrossing)
{
    // They cross at (50, 50); sampled unevenly, so that the walk has to interpolate.
    Points const falling{{10, 10}, {30, 30}, {90, 90}};
    for (Points const& rising : {Points{{90, 10}, {10, 90}}, Points{{90, 10}, {60, 40}, {20, 80}}}) {
        QImage const right = Paint(falling, rising, A_RIGHT_OF_B);
        QImage const left = Paint(falling, rising, A_LEFT_OF_B);
        QImage const both = Paint(falling, rising, BETWEEN);
        EXPECT_TRUE(IsRed(right, 50, 70));
        EXPECT_TRUE(IsRed(right, 60, 70));
        EXPECT_TRUE(IsBlack(right, 50, 30));
        EXPECT_TRUE(IsRed(left, 50, 30));
        EXPECT_TRUE(IsBlack(left, 50, 70));
        EXPECT_TRUE(IsRed(both, 50, 30));
        EXPECT_TRUE(IsRed(both, 50, 70));
        for (int const y : {30, 70}) {
            EXPECT_TRUE(IsBlack(both, 26, y));
            EXPECT_TRUE(IsBlack(both, 74, y));
        }
        // Right up to the crossing, and no further.
        EXPECT_TRUE(IsRed(right, 50, 53));
        EXPECT_TRUE(IsBlack(right, 50, 47));
        EXPECT_TRUE(IsBlack(both, 46, 50));
        EXPECT_TRUE(IsBlack(both, 54, 50));
    }
}

TEST(FillAreaTest, BandsOfMinimumAndMaximumFillOnlyWhereTheyPart)
{
    // Rows of two points each: A from 60 to 80; B from 20 to 40 in the upper part, from 50 to 70 in the
    // lower.
    Points a;
    Points b;
    for (int y = 10; y <= 90; ++y) {
        a.emplace_back(60, y);
        a.emplace_back(80, y);
        b.emplace_back(y < 50 ? 20 : 50, y);
        b.emplace_back(y < 50 ? 40 : 70, y);
    }
    QImage const image = Paint(a, b, BETWEEN);
    EXPECT_TRUE(IsRed(image, 50, 30)); // between B's maximum and A's minimum
    EXPECT_TRUE(IsRed(image, 42, 30));
    EXPECT_TRUE(IsRed(image, 58, 30));
    EXPECT_TRUE(IsBlack(image, 37, 30));
    EXPECT_TRUE(IsBlack(image, 63, 30));
    for (int x = 0; x < WIDTH; ++x) {
        EXPECT_TRUE(IsBlack(image, x, 60)) << x;
    }
}

TEST(FillAreaTest, RandomBandsAreFilledRowByRow)
{
    std::mt19937 random(19);
    for (int round = 0; round < 20; ++round) {
        Points a;
        Points b;
        std::vector<int> a_least(HEIGHT);
        std::vector<int> b_greatest(HEIGHT);
        for (int y = 0; y < HEIGHT; ++y) {
            a_least[static_cast<std::size_t>(y)] = 5 + static_cast<int>(random() % 80);
            b_greatest[static_cast<std::size_t>(y)] = 5 + static_cast<int>(random() % 80);
            a.emplace_back(a_least[static_cast<std::size_t>(y)], y);
            a.emplace_back(a.back().x() + random() % 5, y);
            b.emplace_back(b_greatest[static_cast<std::size_t>(y)], y);
            b.emplace_back(b.back().x() - random() % 5, y);
        }
        QImage const image = Paint(a, b, A_RIGHT_OF_B);
        for (int y = 1; y < HEIGHT - 1; ++y) {
            int const from = b_greatest[static_cast<std::size_t>(y)];
            int const to = a_least[static_cast<std::size_t>(y)];
            for (int x = from; x <= to && from < to; ++x) {
                ASSERT_TRUE(IsRed(image, x, y)) << x << " " << y;
            }
            // Empty where neither this row nor its neighbours have a gap between the curves.
            bool is_apart = false;
            for (int near = y - 1; near <= y + 1; ++near) {
                is_apart = is_apart || b_greatest[static_cast<std::size_t>(near)] <
                                           a_least[static_cast<std::size_t>(near)];
            }
            for (int x = 0; x < WIDTH && !is_apart; ++x) {
                ASSERT_TRUE(IsBlack(image, x, y)) << x << " " << y;
            }
        }
    }
}

TEST(FillAreaTest, AgainstAValue)
{
    // The value 25 of 0 to 50 stands at column 50; the curve crosses it at row 50.
    Points const curve{{10, 10}, {90, 90}};
    QImage const right = Paint(curve, {}, A_RIGHT_OF_VALUE, 25);
    QImage const left = Paint(curve, {}, A_LEFT_OF_VALUE, 25);
    QImage const both = Paint(curve, {}, BETWEEN_VALUE, 25);
    EXPECT_TRUE(IsRed(right, 60, 75));
    EXPECT_TRUE(IsBlack(right, 40, 25));
    EXPECT_TRUE(IsRed(left, 40, 25));
    EXPECT_TRUE(IsBlack(left, 60, 75));
    for (int const y : {25, 75}) {
        EXPECT_TRUE(IsRed(both, y < 50 ? 40 : 60, y));
        EXPECT_TRUE(IsBlack(both, y < 50 ? 60 : 40, y));
        EXPECT_TRUE(IsBlack(both, y < 50 ? 15 : 85, y));
    }
    EXPECT_TRUE(IsBlack(both, 40, 5));
    EXPECT_TRUE(IsBlack(both, 60, 95));
}

TEST(FillAreaTest, AValueOutsideTheScaleFillsToTheEdge)
{
    Points const curve{{30, 10}, {30, 90}};
    for (float const value : {60.0F, 1e6F, 1e30F, std::numeric_limits<float>::max()}) {
        QImage const image = Paint(curve, {}, A_LEFT_OF_VALUE, value);
        EXPECT_TRUE(IsRed(image, 99, 50)) << value;
        EXPECT_TRUE(IsRed(image, 32, 12)) << value;
        EXPECT_TRUE(IsBlack(image, 28, 50)) << value;
        EXPECT_TRUE(IsEmpty(Paint(curve, {}, A_RIGHT_OF_VALUE, value))) << value;
    }
    EXPECT_TRUE(IsRed(Paint(curve, {}, A_RIGHT_OF_VALUE, -1e30F), 0, 50));
    EXPECT_TRUE(IsEmpty(Paint(curve, {}, BETWEEN_VALUE, std::numeric_limits<float>::quiet_NaN())));
}

TEST(FillAreaTest, CurvesFillOnlyWhereBothAre)
{
    Points const right{{60, 0}, {60, 40}, {60, 80}};
    Points left;
    for (int y = 30; y <= 110; ++y) {
        left.emplace_back(20, y);
    }
    for (auto const method : {A_RIGHT_OF_B, BETWEEN}) {
        QImage const image = Paint(right, left, method);
        EXPECT_TRUE(IsRed(image, 40, 60));
        EXPECT_TRUE(IsRed(image, 40, 32));
        EXPECT_TRUE(IsBlack(image, 40, 85));
        EXPECT_TRUE(IsBlack(image, 22, 5));
    }
    EXPECT_TRUE(IsEmpty(Paint({{60, 0}, {60, 30}}, {{20, 50}, {20, 90}}, BETWEEN)));
}

TEST(FillAreaTest, TheFirstDefinitionEndsOnTop)
{
    FakeView view;
    view.curves = {{0, {{60, 0}, {60, 90}}}, {1, {{20, 0}, {20, 90}}}};
    view.definitions = {Fill(A_RIGHT_OF_B, Qt::red), Fill(BETWEEN, Qt::green)};
    EXPECT_EQ(Paint(view).pixelColor(40, 40), QColor(Qt::red));
    std::swap(view.definitions[0], view.definitions[1]);
    EXPECT_EQ(Paint(view).pixelColor(40, 40), QColor(Qt::green));
}

TEST(FillAreaTest, APatternLeavesHoles)
{
    FakeView view;
    view.curves = {{0, {{90, 0}, {90, 110}}}, {1, {{10, 0}, {10, 110}}}};
    view.definitions = {Fill(BETWEEN)};
    view.definitions[0].pattern = Qt::DiagCrossPattern;
    QImage const image = Paint(view);
    int red = 0;
    for (int y = 10; y < 100; ++y) {
        for (int x = 15; x < 85; ++x) {
            red += IsRed(image, x, y) ? 1 : 0;
        }
    }
    EXPECT_GT(red, 90 * 70 / 10);
    EXPECT_LT(red, 90 * 70 * 6 / 10);
}

TEST(FillAreaTest, CurvesThatAreNotThere)
{
    FakeView view;
    view.curves = {{0, {{60, 0}, {60, 90}}}, {1, {{20, 0}, {20, 90}}}, {2, {}}};
    FillAreaDefinition gone = Fill(BETWEEN, Qt::blue);
    gone.curve_b = Channel(77);
    FillAreaDefinition out_of_view = Fill(BETWEEN, Qt::blue);
    out_of_view.curve_b = Channel(2);

    view.definitions = {Fill(BETWEEN), gone};
    EXPECT_TRUE(IsRed(Paint(view), 40, 40)) << "a deleted channel concerns its own fill only";
    view.definitions = {Fill(BETWEEN), out_of_view};
    EXPECT_TRUE(IsEmpty(Paint(view))) << "a curve without points ends the pass";
    view.definitions = {out_of_view, Fill(BETWEEN)};
    EXPECT_TRUE(IsRed(Paint(view), 40, 40));
    out_of_view.curve_a = Channel(2);
    out_of_view.method = BETWEEN_VALUE;
    view.definitions = {Fill(BETWEEN), out_of_view};
    EXPECT_TRUE(IsRed(Paint(view), 40, 40));
}

TEST(FillAreaTest, HugeAndMissingNumbers)
{
    double const inf = std::numeric_limits<double>::infinity();
    Points const left{{20, 10}, {20, 100}};
    // Rows without a bin are passed over.
    QImage const gap =
        Paint({{60, 10}, {inf, 40}, {-inf, 40}, {inf, 41}, {-inf, 41}, {60, 100}}, left, A_RIGHT_OF_B);
    EXPECT_TRUE(IsRed(gap, 40, 40));
    EXPECT_TRUE(IsBlack(gap, 70, 40));
    QImage const wide = Paint({{1e30, 10}, {1e30, 100}}, {{-1e30, 10}, {-1e30, 100}}, A_RIGHT_OF_B);
    EXPECT_TRUE(IsRed(wide, 0, 50));
    EXPECT_TRUE(IsRed(wide, 99, 50));
    EXPECT_TRUE(IsBlack(wide, 50, 5));
    EXPECT_TRUE(IsEmpty(Paint({{std::nan(""), 3}}, left, BETWEEN)));
    Paint({{60, 10}}, {{20, 10}}, BETWEEN);                               // single points
    Paint({{60, 50}, {61, 10}, {62, 90}}, {{20, 70}, {20, 20}}, BETWEEN); // upwards
}

TEST(FillAreaTest, LeavesThePainterAsItWas)
{
    FakeView view;
    view.curves = {{0, {{60, 0}, {60, 90}}}, {1, {{20, 0}, {20, 90}}}};
    view.definitions = {Fill(BETWEEN)};
    QImage image(WIDTH, HEIGHT, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    QPen const pen(Qt::yellow, 3);
    painter.setPen(pen);
    FillArea(&view, painter, {0, 1});
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(painter.brush(), QBrush());
}

TEST(FillAreaTest, MethodTexts)
{
    EXPECT_EQ(Quorrel::FillAreaMethodText(BETWEEN_VALUE), QStringLiteral("Between A and value"));
    EXPECT_EQ(Quorrel::FillAreaMethodIconPath(A_LEFT_OF_B),
              QStringLiteral(":/Icons/AreaFill/A_left_of_B.svg"));
    EXPECT_THROW((void)Quorrel::FillAreaMethodText(static_cast<FILL_AREA_METHODS>(6)), std::invalid_argument);
    EXPECT_THROW((void)Quorrel::FillAreaMethodIconPath(static_cast<FILL_AREA_METHODS>(-1)),
                 std::invalid_argument);
}
