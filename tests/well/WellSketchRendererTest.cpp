// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellSketchRenderer.h"

#include "support/NumberFormats.h"
#include "support/Pixels.h"
#include "well/SketchWell.h"

using sketch_well::Sketch;
using sketch_well::Strings;
using testing::ElementsAre;
using testing::IsEmpty;
using Type = WellComponentType;

namespace {
/// The colours of the sketches, by letter.
std::map<QRgb, QChar> const LETTERS{
    {qRgb(0, 0, 0), '.'},       {qRgb(255, 255, 255), 'W'}, {qRgb(128, 128, 128), 'S'}, // steel
    {qRgb(0, 0, 255), 'B'},     {qRgb(255, 0, 0), 'R'},     {qRgb(0, 255, 0), 'G'},
    {qRgb(255, 255, 0), 'Y'},   {qRgb(250, 200, 0), 'F'}, // formation
    {qRgb(1, 200, 2), 'C'},                               // component
    {qRgb(255, 255, 165), 'P'},                           // perforation charge
    {qRgb(160, 160, 164), 'c'},                           // cement
    {qRgb(50, 50, 0), 'b'}, // bore of a tubing: 255, 255, 0 at alpha 50 over black
};

/// `pixels` are words like "130,20W": column, row and the letter of the colour that is to be there.
void ExpectPixels(Sketch const& sketch, QString const& pixels)
{
    QStringList seen = pixels.split(' ');
    for (QString& word : seen) {
        QStringList const place = word.chopped(1).split(',');
        auto const found = LETTERS.find(sketch.At(place.value(0).toInt(), place.value(1).toInt()));
        word.back() = found != LETTERS.end() ? found->second : QChar('?');
    }
    EXPECT_EQ(seen.join(' '), pixels);
}

class WellSketchRendererTest : public testing::Test
{
    NumberFormatScope scope_;
};

WellComponent Item(double top, double bottom, Type type)
{
    return {Interval(top, bottom), "item", type};
}

std::vector<QRect> BoxesOf(WellComponent const& item)
{
    return Sketch(Strings(), {item}).Boxes("item");
}

std::vector<Type> EveryType()
{
    std::vector<Type> types;
    for (int type = static_cast<int>(Type::HUD); type <= static_cast<int>(Type::TubingPunch); ++type) {
        types.push_back(static_cast<Type>(type));
    }
    return types;
}

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

    ExpectPixels(sketch,
                 // Across the conductor's left wall: outline, steel, outline. Its mirror image on the right.
                 "29,300. 30,300W 31,300S 38,300S 39,300W 40,300. 219,300. 220,300W 229,300W 230,300. "
                 // Only a tubing has a coloured bore.
                 "130,300b 130,680. 130,900. "
                 // The wider joint begins with a shoulder; the foot of the tubing is closed across its whole
                 // width, that of a casing only across its walls.
                 "107,400W 107,402S 130,650W 106,650W 130,651. 82,800W 90,801. 130,800.");
}

TEST_F(WellSketchRendererTest, HangersAndShoes)
{
    ExpectPixels(Sketch(Strings(), {}),
                 // The casing hangs in the conductor between 40 and 80, the liner in the casing between 85
                 // and 95: 20 rows each, with an outline 3 wide.
                 "60,10B 200,10B 60,25. 90,710B 170,710B 86,710W "
                 // It reaches out of the casing: a shoe below, no second hanger. Shoes are
                 // int(0.05 * 1001) = 50 rows high, pointing outwards at the foot.
                 "90,998W 87,960. 75,798W 185,798W 75,755.");
    // A shoe lies against the wall, not on the height of a wider last joint: 260 px for 1.3 * 13 in put the
    // walls at 53 and 30.
    ExpectPixels(Sketch({{"Casing", 800, false, {{10, 9, 40, 799, ""}, {13, 9, 40, 1, ""}}}}, {}),
                 "40,795W 51,795W 40,745.");
    // A string that ends inside the one around it hangs at both ends and has no shoe.
    std::vector<PipeString> strings = Strings();
    strings[2] = PipeString("Liner", 790, false, {{7, 6, 29, 90, "liner"}});
    ExpectPixels(Sketch(strings, {}), "90,710B 90,780B 90,765.");
}

TEST_F(WellSketchRendererTest, ComponentsHaveTheirAreas)
{
    using enum WellComponentType;
    std::tuple<std::vector<Type>, double, std::vector<QRect>> const cases[] = {
        // In the upper tubing joint: bore of 30 px from 115 on, outside diameter 40 from 110 on.
        {{Plug, Fish, Restriction, SafetyValve, Nipple, Straddle}, 200, {{115, 200, 30, 20}}},
        {{Cut}, 200, {{110, 200, 40, 20}}},
        // Half an inch wider than the pipe: 107.5 to 152.5.
        {{Sleeve}, 200, {{108, 200, 45, 20}}},
        // Seven bubbles of 1.5 to 6 px from row 210 up to 187.8, between 115.45 and 127.6.
        {{Leak}, 200, {{115, 188, 13, 22}}},
        // Beside the tubing, a tenth of an inch of screen wide.
        {{SidePocketMandrel}, 300, {{100, 300, 10, 20}}},
        {{PermanentDownholeGauge}, 300, {{150, 300, 10, 20}}},
        // Where the tubing gets wider, as wide as the step.
        {{SidePocketMandrel}, 400, {{105, 400, 5, 20}}},
        // Between the lower joint and the casing.
        {{ProductionPacker, AnnularSafetyValvePacker}, 500, {{85, 500, 20, 20}, {155, 500, 20, 20}}},
        {{OpenholePacker}, 850, {{75, 850, 20, 20}, {165, 850, 20, 20}}},
        // Through the outermost wall: the liner's of 5 px beyond its outside radius of 35.
        {{Perforation}, 850, {{90, 850, 10, 20}, {160, 850, 10, 20}}},
        // The casing's wall of 5 px beyond its radius of 50.
        {{Perforation}, 730, {{75, 730, 25, 20}, {160, 730, 25, 20}}},
        // A punch goes a tenth of the tubing's wall beyond it: 109.5 and 150.5.
        {{TubingPunch}, 200, {{110, 200, 5, 20}, {145, 200, 6, 20}}},
    };
    for (auto const& [types, top, areas] : cases) {
        for (Type const type : types) {
            EXPECT_EQ(BoxesOf(Item(top, top + 20, type)), areas) << static_cast<int>(type);
        }
    }
    // A short one keeps a least height; 0.12 in single precision times 100 is just below 12.
    EXPECT_THAT(BoxesOf(Item(200, 201, Plug)), ElementsAre(QRect(115, 200, 30, 11)));
    // As wide as the casing leaves room for: 5 px beside a tubing of 8 in.
    std::vector<PipeString> strings = Strings();
    strings[3] = PipeString("Tubing", 650, true, {{8, 7, 0, 650, ""}});
    EXPECT_THAT(Sketch(strings, {Item(300, 320, SidePocketMandrel)}).Boxes("item"),
                ElementsAre(QRect(85, 300, 5, 20)));
    // Without tubing, a tenth of the casing's wall: 79.5 and 180.5.
    strings.erase(strings.begin() + 2, strings.end());
    EXPECT_THAT(Sketch(strings, {Item(200, 220, TubingPunch)}).Boxes("item"),
                ElementsAre(QRect(80, 200, 5, 20), QRect(175, 200, 6, 20)));
}

TEST_F(WellSketchRendererTest, SymbolsHaveTheirShapes)
{
    std::pair<WellComponent, QString> const cases[] = {
        // 45 rows take int(45 / 20) = 2 charges of 10 rows, 35 apart: 850..860 and 885..895.
        {Item(850, 895, Type::Perforation), "96,855P 96,890P 93,872."},
        // 39 rows take one of the whole height.
        {Item(850, 889, Type::Perforation), "94,869P"},
        {Item(200, 230, Type::Plug), "130,203C 116,215C 130,215R"},
        // From the left wall 0.3, from the right 0.15 of the bore of 30 px.
        {Item(200, 240, Type::Restriction), "121,220C 125,220b 142,220C 139,220b"},
        {Item(200, 240, Type::SafetyValve), "130,205C 130,220R 116,202b"},
        // The tail, a third of the height, is 0.7 of half the window wide: 84.5 to 175.5, with a notch.
        {Item(200, 260, Type::Fish), "90,201G 169,201G 82,201S 130,202b 130,240G 100,240."},
        // Bars from 119.5 to 122.5 and 137.5 to 140.5, over the middle 0.7 of the height.
        {Item(200, 300, Type::Straddle), "121,250C 139,250C 130,250b 121,210b"},
        // 3 px of bore are the nipple's, but for the notch at half height.
        {Item(200, 230, Type::Nipple), "117,203C 117,215b 142,203C"},
        {Item(500, 540, Type::ProductionPacker), "95,505R 165,505R 95,520W"},
        // The gauge's line ends at (4 + 0.8 * (9 - 4)) / 2 = 4 inches, column 170.
        {Item(300, 320, Type::PermanentDownholeGauge), "168,310G 172,310. 155,307C"},
        {Item(200, 202, Type::Cut), "111,205C 148,205C"},
    };
    for (auto const& [item, pixels] : cases) {
        ExpectPixels(Sketch(Strings(), {item}), pixels);
    }
}

TEST_F(WellSketchRendererTest, SymbolsKeptLookLikeNewOnes)
{
    QList<WellComponent> items;
    for (int i = 0; i < 114; ++i) {
        items.append(Item(8.7 * i, 8.7 * i + 4 * (i % 5), EveryType()[static_cast<std::size_t>(i % 19)]));
    }
    auto const draw = [](Sketch& sketch, Interval const& view, double dpi, int pixel, bool is_print) {
        QImage image(sketch.image.size() * pixel, sketch.image.format());
        image.setDevicePixelRatio(pixel);
        image.fill(Qt::blue);
        QPainter painter(&image);
        painter.setWindow(0, 0, sketch_well::WIDTH, sketch_well::HEIGHT);
        painter.setViewport(0, 0, sketch_well::WIDTH, sketch_well::HEIGHT);
        sketch.renderer.RenderToPainter(painter, view, dpi, dpi,
                                        is_print ? WellSketchRenderer::PrintScheme() : sketch_well::Scheme());
        return image;
    };
    Sketch kept(Strings(), items);
    QImage last;
    for (auto const& [view, dpi, pixel, is_print] :
         std::vector<std::tuple<Interval, double, int, bool>>{{{0, 1000}, 100, 1, false},
                                                              {{-37.3, 962.7}, 100, 1, false},
                                                              {{-37.3, 962.7}, 100, 1, true},
                                                              {{-37.3, 962.7}, 150, 1, true},
                                                              {{-37.3, 962.7}, 150, 2, true},
                                                              {{350, 700}, 150, 2, true},
                                                              {{350, 700}, 100, 1, false}}) {
        Sketch fresh(Strings(), items, Interval()); // has drawn nothing yet
        QImage const image = draw(kept, view, dpi, pixel, is_print);
        EXPECT_TRUE(image == draw(fresh, view, dpi, pixel, is_print)) << view.lower << " " << dpi;
        EXPECT_FALSE(image == last);
        last = image;
    }
}

TEST_F(WellSketchRendererTest, AreasFollowTheWalls)
{
    // A cement plug fills the liner's bore, fill reaches down to the end of the path.
    Sketch const plug(Strings(), {Item(850, 870, Type::CementPlug)});
    EXPECT_THAT(plug.polygons, ElementsAre(Corners({{{100, 850}, {100, 870}, {160, 870}, {160, 850}}})));
    ExpectPixels(plug, "130,860c 130,871.");
    Sketch const fill(Strings(), {Item(950, 950, Type::HUD)});
    EXPECT_THAT(fill.polygons, ElementsAre(Corners({{{100, 950}, {100, 1000}, {160, 1000}, {160, 950}}})));
    ExpectPixels(fill, "130,999Y 130,949. 98,970S");

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
    // Down to the foot of the joint in which it begins and ends.
    EXPECT_THAT(beside.polygons, ElementsAre(Corners({{{5, 100}, {5, 600}, {10, 600}, {10, 100}}}),
                                             Corners({{{255, 100}, {255, 600}, {250, 600}, {250, 100}}})));
    ExpectPixels(beside, "4,150. 5,150F 9,150F 10,150. 250,150. 251,150F 255,150F 256,150.");
    // In a later joint it ends where it ends.
    Sketch const joints({{"Casing", 1000, false, {{20, 18, 90, 150, ""}, {20, 18, 90, 850, ""}}}},
                        {Item(100, 200, Type::Formation)});
    EXPECT_EQ(joints.polygons.at(0).area.boundingRect(), QRectF(5, 100, 5, 100));

    // Past two shoes, and over the whole width below the deepest; two metres per row.
    ExpectPixels(Sketch(Strings(), {Item(550, 1100, Type::Formation)}, Interval(0, 2000)),
                 "12,285. "                   // 570 m, beside the conductor
                 "58,350F 62,350. "           // casing: radius 50, gap from 60 on
                 "73,450F 77,450. "           // liner: radius 35, gap from 75 on
                 "130,525F 254,525F 256,525." // open hole
    );

    // The gap keeps the resolution of the first formation drawn.
    Sketch const other(Strings(), {Item(100, 200, Type::Formation)}, sketch_well::VIEW, 300);
    EXPECT_EQ(other.polygons.at(0).area.boundingRect(), QRectF(5, 100, 5, 500));
}

TEST_F(WellSketchRendererTest, CementFillsTheAnnulusInEitherOrderOfItsEnds)
{
    std::vector<PipeString> strings = Strings();
    strings[1].SetOuterCementData(500, 300, "cement");
    Sketch const sketch(strings, {});
    EXPECT_THAT(sketch.polygons, ElementsAre(Corners({{{40, 300}, {40, 500}, {80, 500}, {80, 300}}}),
                                             Corners({{{220, 300}, {220, 500}, {180, 500}, {180, 300}}})));
    EXPECT_GT(pixels::Count(sketch.image, Qt::gray, {60, 300, 2, 200}), 90);
    EXPECT_EQ(pixels::Count(sketch.image, Qt::gray, {81, 0, 98, 1000}), 0);

    // Without a pipe around it, as wide as the formations leave free: 20 px beside the conductor.
    strings = Strings();
    strings[0].SetOuterCementData(100, 200, "cement");
    EXPECT_THAT(Sketch(strings, {}).polygons.at(0), Corners({{{10, 100}, {10, 200}, {30, 200}, {30, 100}}}));
}

TEST_F(WellSketchRendererTest, StatusTexts)
{
    Sketch const sketch(Strings(), {Item(200, 220, Type::Plug)});
    std::map<QString, QString> status;
    for (WellComponentBoundingBox const& box : sketch.boxes) {
        status[box.text.description] = box.text.GetStatusText(sketch.survey);
    }
    EXPECT_EQ(status["joint A"], "[Tubing] - joint A  OD: 4.000in,  ID: 3.000in (1.500in radius),  12.00ppf, "
                                 "Wall Thickness: 0.500in     MD[0 - 400]m");
    EXPECT_EQ(status["casing"], " casing  OD: 10.000in,  ID: 9.000in (4.500in radius),  40.00ppf, "
                                "Wall Thickness: 0.500in     MD[0 - 800]m");
    EXPECT_EQ(status["item"], "item     MD[200 - 220]m");
    // Texts that look like places of the format are only texts.
    EXPECT_EQ(sketch.renderer.GenerateBoundingBoxDescription("100%1", Interval(1, 2)),
              "100%1     MD[1 - 2]m");
}

TEST_F(WellSketchRendererTest, WhatHasNoPlaceIsLeftOut)
{
    Sketch const empty(Strings(), {});
    for (Type const type : EveryType()) {
        for (Interval const& depth : {Interval(NAN, 200), Interval(200, NAN), Interval(-INFINITY, INFINITY),
                                      Interval(200, INFINITY), Interval()}) {
            Sketch const sketch(Strings(), {{depth, "item", type}});
            EXPECT_EQ(sketch.image, empty.image) << static_cast<int>(type);
            EXPECT_THAT(sketch.Boxes("item"), IsEmpty());
        }
        Sketch const no_pipes({}, {Item(200, 220, type)});
        EXPECT_THAT(no_pipes.boxes, IsEmpty());
        EXPECT_THAT(no_pipes.polygons, IsEmpty());
        ExpectPixels(no_pipes, "130,210.");
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
    float const null = PipeComponent::NULL_DIAMETER;
    std::vector<std::vector<PipeString>> const wells{
        {{"no sizes", 500, false, {{null, null, 0, 500, ""}}}},
        {{"no length", NAN, false, {{10, 9, 0, NAN, ""}}}, {"casing", 500, false, {{10, 9, 0, 500, ""}}}},
        {{"NaN", 500, false, {{NAN, NAN, 0, 500, ""}}}},
        {{"inside out", 500, true, {{4, 9, 0, 500, ""}}}, {"casing", 500, false, {{10, 12, 0, 500, ""}}}},
        {{"upwards", 500, false, {{10, 9, 0, -500, ""}, {9, 8, 0, 100, ""}}}},
        {{"nothing", 500, false, {}}},
    };
    QList<WellComponent> items;
    for (Type const type : EveryType()) {
        items.append(Item(100, 200, type));
    }
    for (auto const& well : wells) {
        for (Interval const& view :
             {sketch_well::VIEW, Interval(1000, 0), Interval(5, 5), Interval(), Interval(NAN, NAN),
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
