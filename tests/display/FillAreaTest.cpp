// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/FillArea.h"

#include "display/FillAreaSource.h"
#include "support/Pixels.h"

#include <random>

namespace {
using Points = std::vector<QPointF>;
constexpr int WIDTH = 100;
constexpr int HEIGHT = 120;

using enum FILL_AREA_METHODS;

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
        EXPECT_EQ(QSize(width, height), QSize(WIDTH, HEIGHT));
        auto const curve = curves.find(identifier.index);
        if (curve == curves.end()) {
            return false;
        }
        points = curve->second;
        return true;
    }
    [[nodiscard]] Interval GetCurveScale(DataChannelIdentifier const&) const override { return {0, 50}; }
};

FillAreaDefinition Fill(FILL_AREA_METHODS method, QColor const& color = Qt::red, float value = 0, int a = 0,
                        int b = 1)
{
    FillAreaDefinition definition;
    definition.curve_a = {1, QStringLiteral("hash"), a};
    definition.curve_b = {1, QStringLiteral("hash"), b};
    definition.method = method;
    definition.color = color;
    definition.value = value;
    return definition;
}

QImage Paint(std::map<int, Points> const& curves, std::vector<FillAreaDefinition> const& definitions)
{
    FakeView view;
    view.curves = curves;
    view.definitions = definitions;
    return pixels::Paint({WIDTH, HEIGHT}, Qt::black, [&](QPainter& painter) {
        QPen const pen(Qt::yellow, 3);
        painter.setPen(pen);
        FillArea(&view, painter, {0, 1});
        EXPECT_EQ(painter.pen(), pen);
        EXPECT_EQ(painter.brush(), QBrush());
    });
}

QImage Paint(Points const& a, Points const& b, FILL_AREA_METHODS method, float value = 0)
{
    return Paint({{0, a}, {1, b}}, {Fill(method, Qt::red, value)});
}

void Expect(QImage const& image, std::vector<QPoint> const& red, std::vector<QPoint> const& black)
{
    pixels::Expect(image, Qt::red, red);
    pixels::Expect(image, Qt::black, black);
}

bool IsEmpty(QImage const& image)
{
    return pixels::Count(image, Qt::black) == WIDTH * HEIGHT;
}
} // namespace

TEST(FillAreaTest, StraightCurvesSideBySide)
{
    Points const right{{60, 10}, {60, 90}};
    Points const left{{20, 10}, {20, 90}};
    QImage const image = Paint(right, left, A_RIGHT_OF_B);
    Expect(image, {{40, 50}, {22, 12}, {58, 88}}, {{18, 50}, {62, 50}, {40, 8}, {40, 92}});
    EXPECT_TRUE(IsEmpty(Paint(right, left, A_LEFT_OF_B)));
    EXPECT_EQ(Paint(left, right, A_LEFT_OF_B), image);
    EXPECT_EQ(Paint(right, left, BETWEEN_A_AND_B), image);
    EXPECT_EQ(Paint(left, right, BETWEEN_A_AND_B), image);
}

TEST(FillAreaTest, CurvesFillOnlyWhereBothAre)
{
    Points const right{{60, 0}, {60, 40}, {60, 80}};
    Points left;
    for (int y = 30; y <= 110; ++y) {
        left.emplace_back(20, y);
    }
    Expect(Paint(right, left, A_RIGHT_OF_B), {{40, 60}, {40, 32}}, {{40, 85}, {22, 5}});
    EXPECT_TRUE(IsEmpty(Paint({{60, 0}, {60, 30}}, {{20, 50}, {20, 90}}, BETWEEN_A_AND_B)));
}

TEST(FillAreaTest, CrossingCurvesPartAtTheCrossing)
{
    // They cross at (50, 50); sampled unevenly, so that the walk has to interpolate.
    Points const falling{{10, 10}, {30, 30}, {90, 90}};
    for (Points const& rising : {Points{{90, 10}, {10, 90}}, Points{{90, 10}, {60, 40}, {20, 80}}}) {
        // Right up to the crossing, and no further.
        Expect(Paint(falling, rising, A_RIGHT_OF_B), {{50, 70}, {60, 70}, {50, 53}}, {{50, 30}, {50, 47}});
        Expect(Paint(falling, rising, A_LEFT_OF_B), {{50, 30}}, {{50, 70}});
        Expect(Paint(falling, rising, BETWEEN_A_AND_B), {{50, 30}, {50, 70}},
               {{26, 30}, {74, 30}, {26, 70}, {74, 70}, {46, 50}, {54, 50}});
    }
}

TEST(FillAreaTest, BandsOfMinimumAndMaximumFillOnlyWhereTheyPart)
{
    // Rows of two points each: A from 60 to 80; B from 20 to 40 in the upper part, from 50 to 70 in the
    // lower.
    Points a;
    Points b;
    for (int y = 10; y <= 90; ++y) {
        a.insert(a.end(), {QPointF(60, y), QPointF(80, y)});
        b.insert(b.end(), {QPointF(y < 50 ? 20 : 50, y), QPointF(y < 50 ? 40 : 70, y)});
    }
    QImage const image = Paint(a, b, BETWEEN_A_AND_B);
    Expect(image, {{50, 30}, {42, 30}, {58, 30}}, {{37, 30}, {63, 30}}); // B's maximum to A's minimum
    EXPECT_EQ(pixels::Count(image, Qt::black, QRect(0, 60, WIDTH, 1)), WIDTH);
}

TEST(FillAreaTest, RandomBandsAreFilledRowByRow)
{
    std::mt19937 random(19);
    for (int round = 0; round < 20; ++round) {
        Points a;
        Points b;
        std::vector<int> a_least;
        std::vector<int> b_greatest;
        for (int y = 0; y < HEIGHT; ++y) {
            a_least.push_back(5 + static_cast<int>(random() % 80));
            b_greatest.push_back(5 + static_cast<int>(random() % 80));
            a.emplace_back(a_least.back(), y);
            a.emplace_back(a.back().x() + random() % 5, y);
            b.emplace_back(b_greatest.back(), y);
            b.emplace_back(b.back().x() - random() % 5, y);
        }
        QImage const image = Paint(a, b, A_RIGHT_OF_B);
        for (int y = 1; y < HEIGHT - 1; ++y) {
            auto const row = static_cast<std::size_t>(y);
            if (int const gap = a_least[row] - b_greatest[row] + 1; gap > 1) {
                ASSERT_EQ(pixels::Count(image, Qt::red, QRect(b_greatest[row], y, gap, 1)), gap) << y;
            }
            // Empty where neither this row nor its neighbours have a gap between the curves.
            bool is_apart = false;
            for (std::size_t near = row - 1; near <= row + 1; ++near) {
                is_apart = is_apart || b_greatest[near] < a_least[near];
            }
            if (!is_apart) {
                ASSERT_EQ(pixels::Count(image, Qt::black, QRect(0, y, WIDTH, 1)), WIDTH) << y;
            }
        }
    }
}

TEST(FillAreaTest, AgainstAValue)
{
    // The value 25 of 0 to 50 stands at column 50; the curve crosses it at row 50.
    Points const curve{{10, 10}, {90, 90}};
    Expect(Paint(curve, {}, A_RIGHT_OF_VALUE, 25), {{60, 75}}, {{40, 25}});
    Expect(Paint(curve, {}, A_LEFT_OF_VALUE, 25), {{40, 25}}, {{60, 75}});
    Expect(Paint(curve, {}, BETWEEN_A_AND_VALUE, 25), {{40, 25}, {60, 75}},
           {{60, 25}, {40, 75}, {15, 25}, {85, 75}, {40, 5}, {60, 95}});

    // Outside the scale it fills to the edge.
    Points const steady{{30, 10}, {30, 90}};
    for (float const value : {60.0F, 1e6F, 1e30F, std::numeric_limits<float>::max()}) {
        Expect(Paint(steady, {}, A_LEFT_OF_VALUE, value), {{99, 50}, {32, 12}}, {{28, 50}});
        EXPECT_TRUE(IsEmpty(Paint(steady, {}, A_RIGHT_OF_VALUE, value))) << value;
    }
    Expect(Paint(steady, {}, A_RIGHT_OF_VALUE, -1e30F), {{0, 50}}, {});
    EXPECT_TRUE(IsEmpty(Paint(steady, {}, BETWEEN_A_AND_VALUE, std::numeric_limits<float>::quiet_NaN())));
}

TEST(FillAreaTest, TheFirstDefinitionEndsOnTopAndAPatternLeavesHoles)
{
    std::map<int, Points> const curves{{0, {{90, 0}, {90, 110}}}, {1, {{10, 0}, {10, 110}}}};
    auto red = Fill(A_RIGHT_OF_B);
    auto const green = Fill(BETWEEN_A_AND_B, Qt::green);
    pixels::Expect(Paint(curves, {red, green}), Qt::red, {{40, 40}});
    pixels::Expect(Paint(curves, {green, red}), Qt::green, {{40, 40}});

    red.pattern = Qt::DiagCrossPattern;
    int const count = pixels::Count(Paint(curves, {red}), Qt::red, QRect(15, 10, 70, 90));
    EXPECT_GT(count, 90 * 70 / 10);
    EXPECT_LT(count, 90 * 70 * 6 / 10);
}

TEST(FillAreaTest, CurvesThatAreNotThere)
{
    std::map<int, Points> const curves{{0, {{60, 0}, {60, 90}}}, {1, {{20, 0}, {20, 90}}}, {2, {}}};
    auto const shown = Fill(BETWEEN_A_AND_B);
    auto const gone = Fill(BETWEEN_A_AND_B, Qt::blue, 0, 0, 77);
    auto const out_of_view = Fill(BETWEEN_A_AND_B, Qt::blue, 0, 0, 2);
    auto const value_out_of_view = Fill(BETWEEN_A_AND_VALUE, Qt::blue, 0, 2);
    EXPECT_TRUE(IsEmpty(Paint(curves, {shown, out_of_view}))) << "a curve without points ends the pass";
    for (auto const& definitions :
         {std::vector{shown, gone}, std::vector{out_of_view, shown}, std::vector{shown, value_out_of_view}}) {
        Expect(Paint(curves, definitions), {{40, 40}}, {});
    }
}

TEST(FillAreaTest, HugeAndMissingNumbers)
{
    Points const left{{20, 10}, {20, 100}};
    // Rows without a bin are passed over.
    Expect(Paint({{60, 10}, {INFINITY, 40}, {-INFINITY, 40}, {INFINITY, 41}, {-INFINITY, 41}, {60, 100}},
                 left, A_RIGHT_OF_B),
           {{40, 40}}, {{70, 40}});
    Expect(Paint({{1e30, 10}, {1e30, 100}}, {{-1e30, 10}, {-1e30, 100}}, A_RIGHT_OF_B), {{0, 50}, {99, 50}},
           {{50, 5}});
    EXPECT_TRUE(IsEmpty(Paint({{std::nan(""), 3}}, left, BETWEEN_A_AND_B)));
    Paint({{60, 10}}, {{20, 10}}, BETWEEN_A_AND_B);                               // single points
    Paint({{60, 50}, {61, 10}, {62, 90}}, {{20, 70}, {20, 20}}, BETWEEN_A_AND_B); // upwards
}

TEST(FillAreaTest, OtherNumbersAreNoMethods)
{
    EXPECT_THROW((void)Quorrel::FillAreaMethodText(static_cast<FILL_AREA_METHODS>(6)), std::invalid_argument);
    EXPECT_THROW((void)Quorrel::FillAreaMethodIconPath(static_cast<FILL_AREA_METHODS>(-1)),
                 std::invalid_argument);
}
