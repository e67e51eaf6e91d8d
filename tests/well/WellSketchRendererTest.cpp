// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellSketchRenderer.h"

#include "app/kit/SettingsSingleton.h"
#include "well/SketchWell.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using sketch_well::Sketch;
using sketch_well::Strings;
using testing::ElementsAre;
using testing::IsEmpty;
using Type = WellComponentType;

namespace {
QRgb const BLACK = qRgb(0, 0, 0);
QRgb const WHITE = qRgb(255, 255, 255);
QRgb const STEEL = qRgb(128, 128, 128);
QRgb const BLUE = qRgb(0, 0, 255);
QRgb const RED = qRgb(255, 0, 0);
QRgb const COMPONENT = qRgb(1, 200, 2);
QRgb const ROCK = qRgb(250, 200, 0);
QRgb const YELLOW = qRgb(255, 255, 0);

class WellSketchRendererTest : public testing::Test
{
protected:
    void SetUp() override
    {
        SettingsSingleton::Instance().SetMetricDepth(true);
        SettingsSingleton::Instance().SetSeparatorSelection(US);
    }
    void TearDown() override { SettingsSingleton::Instance().SetMetricDepth(false); }
};

WellComponent Item(double top, double bottom, Type type)
{
    return {Interval(top, bottom), "item", type};
}

std::vector<QRect> BoxesOf(WellComponent const& item)
{
    return Sketch(Strings(), {item}).Boxes("item");
}

Type const EVERY_TYPE[] = {Type::HUD,
                           Type::Plug,
                           Type::Fish,
                           Type::Restriction,
                           Type::SafetyValve,
                           Type::SidePocketMandrel,
                           Type::PermanentDownholeGauge,
                           Type::Sleeve,
                           Type::Nipple,
                           Type::ProductionPacker,
                           Type::Leak,
                           Type::Formation,
                           Type::Cut,
                           Type::AnnularSafetyValvePacker,
                           Type::Perforation,
                           Type::OpenholePacker,
                           Type::Straddle,
                           Type::CementPlug,
                           Type::TubingPunch};

/// Whether a polygon has exactly these corners, in this order.
testing::Matcher<PolygonBoundingBox const&> Corners(QPolygonF const& corners)
{
    return testing::Field("area", &PolygonBoundingBox::area, corners);
}
} // namespace

TEST_F(WellSketchRendererTest, WallsStandInProportion)
{
    Sketch const sketch(Strings(), {});
    EXPECT_THAT(sketch.Boxes("conductor"), ElementsAre(QRect(30, 0, 10, 600), QRect(220, 0, 10, 600)));
    EXPECT_THAT(sketch.Boxes("casing"), ElementsAre(QRect(80, 0, 5, 800), QRect(175, 0, 5, 800)));
    EXPECT_THAT(sketch.Boxes("liner"), ElementsAre(QRect(95, 700, 5, 300), QRect(160, 700, 5, 300)));
    EXPECT_THAT(sketch.Boxes("joint A"), ElementsAre(QRect(110, 0, 5, 400), QRect(145, 0, 5, 400)));
    EXPECT_THAT(sketch.Boxes("joint B"), ElementsAre(QRect(105, 400, 10, 250), QRect(145, 400, 10, 250)));

    // Across the conductor's left wall: outline, steel, outline.
    EXPECT_EQ(sketch.At(29, 300), BLACK);
    EXPECT_EQ(sketch.At(30, 300), WHITE);
    EXPECT_EQ(sketch.At(31, 300), STEEL);
    EXPECT_EQ(sketch.At(38, 300), STEEL);
    EXPECT_EQ(sketch.At(39, 300), WHITE);
    EXPECT_EQ(sketch.At(40, 300), BLACK);
    // Its mirror image on the right.
    EXPECT_EQ(sketch.At(219, 300), BLACK);
    EXPECT_EQ(sketch.At(220, 300), WHITE);
    EXPECT_EQ(sketch.At(229, 300), WHITE);
    EXPECT_EQ(sketch.At(230, 300), BLACK);

    // Only a tubing has a coloured bore: 255, 255, 0 at alpha 50 over black.
    EXPECT_EQ(sketch.At(130, 300), qRgb(50, 50, 0));
    EXPECT_EQ(sketch.At(130, 680), BLACK);
    EXPECT_EQ(sketch.At(130, 900), BLACK);

    // The wider joint begins with a shoulder; the foot of the tubing is closed across its whole width.
    EXPECT_EQ(sketch.At(107, 400), WHITE);
    EXPECT_EQ(sketch.At(107, 402), STEEL);
    EXPECT_EQ(sketch.At(130, 650), WHITE);
    EXPECT_EQ(sketch.At(106, 650), WHITE);
    EXPECT_EQ(sketch.At(130, 651), BLACK);
    // That of a casing only across its walls.
    EXPECT_EQ(sketch.At(82, 800), WHITE);
    EXPECT_EQ(sketch.At(90, 801), BLACK);
    EXPECT_EQ(sketch.At(130, 800), BLACK);
}

TEST_F(WellSketchRendererTest, HangersAndShoes)
{
    // A casing inside the conductor at its top, and the liner inside the casing: 20 rows each.
    Sketch const sketch(Strings(), {});
    EXPECT_EQ(sketch.At(60, 10), BLUE);  // between 40 and 80
    EXPECT_EQ(sketch.At(200, 10), BLUE); // between 180 and 220
    EXPECT_EQ(sketch.At(60, 25), BLACK);
    EXPECT_EQ(sketch.At(90, 710), BLUE); // between 85 and 95
    EXPECT_EQ(sketch.At(170, 710), BLUE);
    EXPECT_EQ(sketch.At(86, 710), WHITE); // its outline, 3 wide
    // It reaches out of the casing: a shoe below, no second hanger. Shoes are int(0.05 * 1001) = 50 rows
    // high, pointing outwards at the foot.
    EXPECT_EQ(sketch.At(90, 998), WHITE);
    EXPECT_EQ(sketch.At(87, 960), BLACK);
    EXPECT_EQ(sketch.At(75, 798), WHITE);
    EXPECT_EQ(sketch.At(185, 798), WHITE);
    EXPECT_EQ(sketch.At(75, 755), BLACK);

    // A string that ends inside the one around it hangs at both ends and has no shoe.
    std::vector<PipeString> strings = Strings();
    strings[2] = PipeString("Liner", 790, false, {{7, 6, 29, 90, "liner"}});
    Sketch const inside(strings, {});
    EXPECT_EQ(inside.At(90, 710), BLUE);
    EXPECT_EQ(inside.At(90, 780), BLUE);
    EXPECT_EQ(inside.At(90, 765), BLACK);
}

TEST_F(WellSketchRendererTest, ComponentsHaveTheirAreas)
{
    // In the upper tubing joint: bore of 30 px from 115 on, outside diameter 40 from 110 on.
    for (Type const type :
         {Type::Plug, Type::Fish, Type::Restriction, Type::SafetyValve, Type::Nipple, Type::Straddle}) {
        EXPECT_THAT(BoxesOf(Item(200, 220, type)), ElementsAre(QRect(115, 200, 30, 20)))
            << static_cast<int>(type);
    }
    EXPECT_THAT(BoxesOf(Item(200, 220, Type::Cut)), ElementsAre(QRect(110, 200, 40, 20)));
    // Half an inch wider than the pipe: 107.5 to 152.5.
    EXPECT_THAT(BoxesOf(Item(200, 220, Type::Sleeve)), ElementsAre(QRect(108, 200, 45, 20)));
    // Seven bubbles of 1.5 to 6 px from row 210 up to 187.8, between 115.45 and 127.6.
    EXPECT_THAT(BoxesOf(Item(200, 220, Type::Leak)), ElementsAre(QRect(115, 188, 13, 22)));
    // Beside the tubing, a tenth of an inch of screen wide.
    EXPECT_THAT(BoxesOf(Item(300, 320, Type::SidePocketMandrel)), ElementsAre(QRect(100, 300, 10, 20)));
    EXPECT_THAT(BoxesOf(Item(300, 320, Type::PermanentDownholeGauge)), ElementsAre(QRect(150, 300, 10, 20)));
    // Where the tubing gets wider, as wide as the step.
    EXPECT_THAT(BoxesOf(Item(400, 420, Type::SidePocketMandrel)), ElementsAre(QRect(105, 400, 5, 20)));
    // Between the lower joint and the casing.
    for (Type const type : {Type::ProductionPacker, Type::AnnularSafetyValvePacker}) {
        EXPECT_THAT(BoxesOf(Item(500, 520, type)),
                    ElementsAre(QRect(85, 500, 20, 20), QRect(155, 500, 20, 20)));
    }
    EXPECT_THAT(BoxesOf(Item(850, 870, Type::OpenholePacker)),
                ElementsAre(QRect(75, 850, 20, 20), QRect(165, 850, 20, 20)));
}

TEST_F(WellSketchRendererTest, PerforationsReachThroughTheOutermostWall)
{
    // Liner alone: its wall of 5 px beyond its outside radius of 35.
    EXPECT_THAT(BoxesOf(Item(850, 870, Type::Perforation)),
                ElementsAre(QRect(90, 850, 10, 20), QRect(160, 850, 10, 20)));
    // Liner in casing: the casing's wall of 5 px beyond its radius of 50.
    EXPECT_THAT(BoxesOf(Item(730, 750, Type::Perforation)),
                ElementsAre(QRect(75, 730, 25, 20), QRect(160, 730, 25, 20)));
    // A punch goes a tenth of the tubing's wall beyond it: 109.5 and 150.5.
    EXPECT_THAT(BoxesOf(Item(200, 220, Type::TubingPunch)),
                ElementsAre(QRect(110, 200, 5, 20), QRect(145, 200, 6, 20)));
    // Without tubing, of the casing's: 79.5 and 180.5.
    std::vector<PipeString> strings = Strings();
    strings.erase(strings.begin() + 2, strings.end());
    EXPECT_THAT(Sketch(strings, {Item(200, 220, Type::TubingPunch)}).Boxes("item"),
                ElementsAre(QRect(80, 200, 5, 20), QRect(175, 200, 6, 20)));

    // 45 rows take int(45 / 20) = 2 charges of 10 rows, 35 apart: 850..860 and 885..895.
    Sketch const two(Strings(), {Item(850, 895, Type::Perforation)});
    EXPECT_EQ(two.At(96, 855), qRgb(255, 255, 165));
    EXPECT_EQ(two.At(96, 890), qRgb(255, 255, 165));
    EXPECT_EQ(two.At(93, 872), BLACK);
    // 39 rows take one of the whole height.
    EXPECT_EQ(Sketch(Strings(), {Item(850, 889, Type::Perforation)}).At(94, 869), qRgb(255, 255, 165));
}

TEST_F(WellSketchRendererTest, SymbolsHaveTheirColours)
{
    Sketch const plug(Strings(), {Item(200, 230, Type::Plug)});
    EXPECT_EQ(plug.At(130, 203), COMPONENT);
    EXPECT_EQ(plug.At(116, 215), COMPONENT);
    EXPECT_EQ(plug.At(130, 215), RED);

    // From the left wall 0.3, from the right 0.15 of the bore of 30 px.
    Sketch const restriction(Strings(), {Item(200, 240, Type::Restriction)});
    EXPECT_EQ(restriction.At(121, 220), COMPONENT);
    EXPECT_NE(restriction.At(125, 220), COMPONENT);
    EXPECT_EQ(restriction.At(142, 220), COMPONENT);
    EXPECT_NE(restriction.At(139, 220), COMPONENT);

    Sketch const valve(Strings(), {Item(200, 240, Type::SafetyValve)});
    EXPECT_EQ(valve.At(130, 205), COMPONENT);
    EXPECT_EQ(valve.At(130, 220), RED);
    EXPECT_EQ(valve.At(116, 202), qRgb(50, 50, 0));

    // The tail, a third of the height, spreads 0.7 of half the window: 91 px to each side.
    Sketch const fish(Strings(), {Item(200, 260, Type::Fish)});
    EXPECT_EQ(fish.At(44, 200), qRgb(0, 255, 0));
    EXPECT_EQ(fish.At(36, 200), STEEL);
    EXPECT_EQ(fish.At(130, 240), qRgb(0, 255, 0));
    EXPECT_EQ(fish.At(44, 240), BLACK);

    // Bars from 119.5 to 122.5 and 137.5 to 140.5, over the middle 0.7 of the height.
    Sketch const straddle(Strings(), {Item(200, 300, Type::Straddle)});
    EXPECT_EQ(straddle.At(121, 250), COMPONENT);
    EXPECT_EQ(straddle.At(139, 250), COMPONENT);
    EXPECT_NE(straddle.At(130, 250), COMPONENT);
    EXPECT_NE(straddle.At(121, 210), COMPONENT);

    // 3 px of bore are the nipple's, but for the notch at half height.
    Sketch const nipple(Strings(), {Item(200, 230, Type::Nipple)});
    EXPECT_EQ(nipple.At(117, 203), COMPONENT);
    EXPECT_NE(nipple.At(117, 215), COMPONENT);
    EXPECT_EQ(nipple.At(142, 203), COMPONENT);

    Sketch const packer(Strings(), {Item(500, 540, Type::ProductionPacker)});
    EXPECT_EQ(packer.At(95, 505), RED);
    EXPECT_EQ(packer.At(165, 505), RED);
    EXPECT_EQ(packer.At(95, 520), WHITE);

    // The gauge's line ends at (4 + 0.8 * (9 - 4)) / 2 = 4 inches, column 170; without casing at 2.5.
    Sketch const gauge(Strings(), {Item(300, 320, Type::PermanentDownholeGauge)});
    EXPECT_EQ(gauge.At(168, 310), qRgb(0, 255, 0));
    EXPECT_NE(gauge.At(172, 310), qRgb(0, 255, 0));
    EXPECT_EQ(gauge.At(155, 303 + 4), COMPONENT);

    Sketch const cut(Strings(), {Item(200, 202, Type::Cut)});
    EXPECT_EQ(cut.At(111, 205), COMPONENT);
    EXPECT_EQ(cut.At(148, 205), COMPONENT);
}

TEST_F(WellSketchRendererTest, AreasFollowTheWalls)
{
    // A cement plug fills the liner's bore, fill reaches down to the end of the path.
    Sketch const plug(Strings(), {Item(850, 870, Type::CementPlug)});
    EXPECT_THAT(plug.polygons, ElementsAre(Corners({{{100, 850}, {100, 870}, {160, 870}, {160, 850}}})));
    EXPECT_EQ(plug.At(130, 860), QColor(Qt::gray).rgb());
    EXPECT_EQ(plug.At(130, 871), BLACK);
    Sketch const fill(Strings(), {Item(950, 950, Type::HUD)});
    EXPECT_THAT(fill.polygons, ElementsAre(Corners({{{100, 950}, {100, 1000}, {160, 1000}, {160, 950}}})));
    EXPECT_EQ(fill.At(130, 999), YELLOW);
    EXPECT_EQ(fill.At(130, 949), BLACK);
    EXPECT_EQ(fill.At(98, 970), STEEL);

    // A plug that is longer than the tubing below it follows the path out into casing and liner.
    Sketch const path(Strings(), {Item(640, 720, Type::CementPlug)});
    ASSERT_EQ(path.polygons.size(), 1U);
    EXPECT_TRUE(path.polygons[0].area.containsPoint({116, 645}, Qt::OddEvenFill)); // tubing
    EXPECT_TRUE(path.polygons[0].area.containsPoint({86, 690}, Qt::OddEvenFill));  // casing
    EXPECT_FALSE(path.polygons[0].area.containsPoint({86, 710}, Qt::OddEvenFill)); // liner
    EXPECT_TRUE(path.polygons[0].area.containsPoint({101, 710}, Qt::OddEvenFill));

    // The start -1 means none, also where a pipe reaches up to there.
    Sketch const none({{"Casing", 1000, false, {{10, 9, 40, 1010, "casing"}}}}, {Item(-1, 5, Type::HUD)});
    EXPECT_THAT(none.polygons, IsEmpty());
}

TEST_F(WellSketchRendererTest, FormationsLeaveAGapToTheOutermostPipe)
{
    // Beside the conductor (radius 100) a gap of 20: from 5 to 10, and from 251 on 5 more.
    Sketch const beside(Strings(), {Item(100, 200, Type::Formation)});
    EXPECT_THAT(beside.polygons, ElementsAre(Corners({{{5, 100}, {5, 200}, {10, 200}, {10, 100}}}),
                                             Corners({{{255, 100}, {255, 200}, {250, 200}, {250, 100}}})));
    EXPECT_EQ(beside.At(4, 150), BLACK);
    EXPECT_EQ(beside.At(5, 150), ROCK);
    EXPECT_EQ(beside.At(9, 150), ROCK);
    EXPECT_EQ(beside.At(10, 150), BLACK);
    EXPECT_EQ(beside.At(250, 150), BLACK);
    EXPECT_EQ(beside.At(251, 150), ROCK);
    EXPECT_EQ(beside.At(255, 150), ROCK);
    EXPECT_EQ(beside.At(256, 150), BLACK);
    // Not beyond its own end, though the conductor goes on.
    EXPECT_EQ(beside.At(7, 202), BLACK);

    // Past two shoes, and over the whole width below the deepest.
    Sketch const deep(Strings(), {Item(550, 1100, Type::Formation)}, Interval(0, 2000));
    int const in_conductor = 285; // 570 m
    int const in_casing = 350;    // 700 m: radius 50, gap from 60 to 200
    int const in_liner = 450;     // 900 m: radius 35, gap from 75 to 185
    int const open_hole = 525;    // 1050 m
    EXPECT_EQ(deep.At(12, in_conductor), BLACK);
    EXPECT_EQ(deep.At(58, in_casing), ROCK);
    EXPECT_EQ(deep.At(62, in_casing), BLACK);
    EXPECT_EQ(deep.At(73, in_liner), ROCK);
    EXPECT_EQ(deep.At(77, in_liner), BLACK);
    EXPECT_EQ(deep.At(130, open_hole), ROCK);
    EXPECT_EQ(deep.At(254, open_hole), ROCK);
    EXPECT_EQ(deep.At(256, open_hole), BLACK);

    // The gap keeps the resolution of the first formation drawn.
    Sketch const other(Strings(), {Item(100, 200, Type::Formation)}, sketch_well::VIEW, 300);
    EXPECT_EQ(other.polygons.at(0).area.boundingRect(), QRectF(5, 100, 5, 100));
}

TEST_F(WellSketchRendererTest, CementFillsTheAnnulusInEitherOrderOfItsEnds)
{
    std::vector<PipeString> strings = Strings();
    strings[1].SetOuterCementData(500, 300, "cement");
    Sketch const sketch(strings, {});
    EXPECT_THAT(sketch.polygons, ElementsAre(Corners({{{40, 300}, {40, 500}, {80, 500}, {80, 300}}}),
                                             Corners({{{220, 300}, {220, 500}, {180, 500}, {180, 300}}})));
    auto const cement_rows = [&](int x) {
        int rows = 0;
        for (int y = 0; y < sketch_well::HEIGHT; ++y) {
            rows +=
                sketch.At(x, y) == QColor(Qt::gray).rgb() || sketch.At(x + 1, y) == QColor(Qt::gray).rgb();
        }
        return rows;
    };
    EXPECT_GT(cement_rows(60), 90);
    EXPECT_GT(cement_rows(200), 90);
    EXPECT_EQ(cement_rows(90), 0);

    // Without a pipe around it, as wide as the formations leave free: 20 px beside the conductor.
    strings = Strings();
    strings[0].SetOuterCementData(100, 200, "cement");
    EXPECT_THAT(Sketch(strings, {}).polygons.at(0), Corners({{{10, 100}, {10, 200}, {30, 200}, {30, 100}}}));
}

TEST_F(WellSketchRendererTest, ShortComponentsKeepALeastHeight)
{
    // 0.12 in single precision times 100 is just below 12.
    EXPECT_THAT(BoxesOf(Item(200, 201, Type::Plug)), ElementsAre(QRect(115, 200, 30, 11)));
    EXPECT_THAT(BoxesOf(Item(200, 212, Type::Plug)), ElementsAre(QRect(115, 200, 30, 12)));
}

TEST_F(WellSketchRendererTest, StatusTexts)
{
    Sketch const sketch(Strings(), {Item(200, 220, Type::Plug)});
    auto const status = [&](QString const& description) {
        for (WellComponentBoundingBox const& box : sketch.boxes) {
            if (box.text.description == description) {
                return box.text.GetStatusText(sketch.survey);
            }
        }
        return QString();
    };
    EXPECT_EQ(status("joint A"), "[Tubing] - joint A  OD: 4.000in,  ID: 3.000in (1.500in radius),  12.00ppf, "
                                 "Wall Thickness: 0.500in     MD[0 - 400]m");
    EXPECT_EQ(status("casing"), " casing  OD: 10.000in,  ID: 9.000in (4.500in radius),  40.00ppf, "
                                "Wall Thickness: 0.500in     MD[0 - 800]m");
    EXPECT_EQ(status("item"), "item     MD[200 - 220]m");
    // Texts that look like places of the format are only texts.
    EXPECT_EQ(sketch.renderer.GenerateBoundingBoxDescription("100%1", Interval(1, 2)),
              "100%1     MD[1 - 2]m");
}

TEST_F(WellSketchRendererTest, WhatHasNoPlaceIsLeftOut)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const infinity = std::numeric_limits<double>::infinity();
    Sketch const empty(Strings(), {});
    for (Type const type : EVERY_TYPE) {
        for (Interval const& depth : {Interval(nan, 200), Interval(200, nan), Interval(-infinity, infinity),
                                      Interval(200, infinity), Interval()}) {
            Sketch const sketch(Strings(), {{depth, "item", type}});
            EXPECT_EQ(sketch.image, empty.image) << static_cast<int>(type);
            EXPECT_THAT(sketch.Boxes("item"), IsEmpty());
        }
        Sketch const no_pipes({}, {Item(200, 220, type)});
        EXPECT_THAT(no_pipes.boxes, IsEmpty());
        EXPECT_THAT(no_pipes.polygons, IsEmpty());
        EXPECT_EQ(no_pipes.At(130, 210), BLACK);
        // Far outside, and reversed, there is nothing to crash on.
        Sketch const outside(Strings(),
                             {Item(2000, 2100, type), Item(-500, -400, type), Item(1e300, 2e300, type)});
        EXPECT_THAT(outside.Boxes("item"), IsEmpty());
        if (type != Type::Formation) {
            EXPECT_THAT(outside.polygons, IsEmpty());
        }
    }
    // Reversed ends are the same place.
    EXPECT_THAT(BoxesOf(Item(220, 200, Type::Plug)), ElementsAre(QRect(115, 200, 30, 20)));
    EXPECT_THAT(Sketch(Strings(), {Item(870, 850, Type::CementPlug)}).polygons,
                ElementsAre(Corners({{{100, 850}, {100, 870}, {160, 870}, {160, 850}}})));

    // A packer needs a tubing and a casing around it; a plug stands in what there is.
    std::vector<PipeString> strings = Strings();
    strings.pop_back();
    EXPECT_THAT(Sketch(strings, {Item(500, 520, Type::ProductionPacker)}).Boxes("item"), IsEmpty());
    EXPECT_THAT(Sketch(strings, {Item(500, 520, Type::Plug)}).Boxes("item"),
                ElementsAre(QRect(85, 500, 90, 20)));
    EXPECT_THAT(Sketch({Strings()[3]}, {Item(500, 520, Type::ProductionPacker)}).Boxes("item"), IsEmpty());
}

TEST_F(WellSketchRendererTest, FaultyPipesAndViewsAreSurvived)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    float const nan_inch = std::numeric_limits<float>::quiet_NaN();
    float const null = PipeComponent::NULL_DIAMETER;
    std::vector<std::vector<PipeString>> const wells{
        {{"no sizes", 500, false, {{null, null, 0, 500, ""}}}},
        {{"no length", nan, false, {{10, 9, 0, nan, ""}}}, {"casing", 500, false, {{10, 9, 0, 500, ""}}}},
        {{"NaN", 500, false, {{nan_inch, nan_inch, 0, 500, ""}}}},
        {{"inside out", 500, true, {{4, 9, 0, 500, ""}}}, {"casing", 500, false, {{10, 12, 0, 500, ""}}}},
        {{"upwards", 500, false, {{10, 9, 0, -500, ""}, {9, 8, 0, 100, ""}}}},
        {{"nothing", 500, false, {}}},
    };
    QList<WellComponent> items;
    for (Type const type : EVERY_TYPE) {
        items.append(Item(100, 200, type));
    }
    for (auto const& well : wells) {
        for (Interval const& view :
             {sketch_well::VIEW, Interval(1000, 0), Interval(5, 5), Interval(), Interval(nan, nan),
              Interval(150, 150 + 1e-9), Interval(-1e300, 1e300)}) {
            Sketch const sketch(well, items, view);
            EXPECT_LE(sketch.boxes.size(), 200U);
        }
    }
    // A perforation of a billion charges, of which the window shows some.
    Sketch const zoomed({{"casing", 1e9, false, {{10, 9, 0, 1e9, ""}}}}, {Item(0, 1e9, Type::Perforation)},
                        Interval(1000, 1001));
    EXPECT_EQ(zoomed.boxes.size(), 4U);
}
