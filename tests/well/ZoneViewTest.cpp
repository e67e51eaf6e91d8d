// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/ZoneView.h"

#include "display/BaseScaleView.h"
#include "display/ViewBench.h"
#include "well/WellViewFactory.h"
#include "well/ZoneCombinedViewWidget.h"

#include <QTest>

namespace {
/// Three columns of 100 px with margins of 6 (0.02 of 300), 1000 to 1100 m over 201 rows: two rows a metre.
class ZoneViewTest : public view_bench::BenchTest
{
protected:
    ZoneViewTest()
    {
        perforations = {Zone({1010, 1020}, "", Qt::red)};
        ZoneTrack track("Geology");
        track.SetZones({Zone({1080, 1050}, "Sand", Qt::green), Zone({900, 1000.5}, "", Qt::blue)});
        tracks = {track};
        interpretation = {Zone({1000, 1100}, "Z1", Qt::red), Zone({1040, 1041}, "Z2", Qt::blue)};
        bench.context.perforation_zones = &perforations;
        bench.context.zone_tracks = &tracks;
        bench.context.interpretation_zones = &interpretation;
        pair = std::make_unique<ZoneCombinedViewWidget>("Zones", bench.context);
        view = pair->GetZoneView();
        view->setFixedSize(300, 201);
        pair->show();
    }
    void SetUp() override
    {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(pair.get()));
        image = view->grab().toImage();
    }

    QList<Zone> perforations;
    QList<ZoneTrack> tracks;
    QList<Zone> interpretation;
    std::unique_ptr<ZoneCombinedViewWidget> pair;
    ZoneView* view = nullptr;
    QImage image;
};
} // namespace

TEST_F(ZoneViewTest, ColumnsStandSideBySide)
{
    EXPECT_EQ(view->GetHeadings(), QStringList({"Perforation", "Geology", "Interpretation"}));
    auto const& boxes = view->GetBoundingBoxes();
    ASSERT_EQ(boxes.size(), 3U);
    EXPECT_EQ(boxes[0].at(0).area, QRect(6, 20, 88, 20));
    EXPECT_EQ(boxes[1].at(0).area, QRect(106, 100, 88, 60)); // ends in reverse order
    EXPECT_EQ(boxes[1].at(1).area, QRect(106, 0, 88, 1));    // begins above the window
    EXPECT_EQ(boxes[2].at(0).area, QRect(206, 0, 88, 200));

    pixels::Expect(image, Qt::black, {{5, 30}, {94, 30}, {50, 19}, {50, 40}, {150, 1}});
    pixels::Expect(image, Qt::red, {{6, 30}, {93, 30}});
    pixels::Expect(image, Qt::green, {{110, 110}});
    pixels::Expect(image, Qt::blue, {{150, 0}, {210, 81}});
}

TEST_F(ZoneViewTest, StatusTextNamesColumnAndDepths)
{
    EXPECT_FLOAT_EQ(view->GetStatusMessage(50, 30).depth, 1015);
    auto const text = [this](int x, int y) { return view->GetStatusMessage(x, y).text; };
    EXPECT_EQ(text(50, 30), "[Perforation] -      MD[1,010 - 1,020]m");
    EXPECT_EQ(text(150, 120), "[Geology] - Sand     MD[1,050 - 1,080]m");
    EXPECT_EQ(text(250, 80), "[Interpretation] - Z2     MD[1,040 - 1,041]m");
    EXPECT_EQ(QStringList({text(50, 60), text(-1, 30), text(300, 30)}), QStringList(3, "No zone"));
}

TEST_F(ZoneViewTest, AClickReportsTheZone)
{
    std::vector<std::pair<Interval, QString>> clicks;
    QObject receiver;
    WellViewFactory().ConnectComponentClicks(
        pair.get(), &receiver,
        [&](Interval const& md, QString const& text) { clicks.emplace_back(md, text); });
    QTest::mouseClick(view, Qt::LeftButton, {}, {150, 120});
    QTest::mouseClick(view, Qt::LeftButton, {}, {50, 60});
    QTest::mouseClick(view, Qt::RightButton, {}, {150, 120});
    // A drag that begins beside the zones and ends on one is no click.
    QTest::mousePress(view, Qt::LeftButton, {}, {50, 60});
    QTest::mouseRelease(view, Qt::LeftButton, {}, {150, 120});
    bench.parameters.SetInterpretationZonesDefinitionChecked(true);
    QTest::mouseClick(view, Qt::LeftButton, {}, {150, 120});
    std::vector<std::pair<Interval, QString>> const expected{{{1050, 1080}, "[Geology] - Sand"}};
    EXPECT_EQ(clicks, expected);
}

TEST_F(ZoneViewTest, TheZoneUnderTheMouseIsFramed)
{
    int const renders = view->GetRenderCount();
    view_bench::Drag(view, {50, 30});
    EXPECT_EQ(view->grab().toImage().pixelColor(7, 25), QColor(127, 255, 165));
    view_bench::Drag(view, {50, 60});
    EXPECT_EQ(view->grab().toImage().pixelColor(7, 25), Qt::red);
    EXPECT_EQ(view->GetRenderCount(), renders);
}

TEST_F(ZoneViewTest, FaultyDepthsAreSurvived)
{
    interpretation = {Zone({NAN, 1050}, "a", Qt::red), Zone({1050, NAN}, "b", Qt::red),
                      Zone({-INFINITY, INFINITY}, "c", Qt::blue), Zone({-1e300, 1e300}, "d", Qt::green)};
    view->ForceRedraw();
    EXPECT_EQ(view->grab().toImage().pixelColor(210, 10), Qt::green);
    for (Interval const& interval : {Interval(NAN, NAN), Interval(5, 5), Interval(), Interval(1100, 1000)}) {
        pixels::Paint({300, 201}, Qt::white,
                      [&](QPainter& painter) { view->RenderToPainter(painter, interval, 300); });
        EXPECT_TRUE(view->GetBoundingBoxes().empty());
    }
    // Narrower than its margins.
    pixels::Paint({2, 201}, Qt::white, [&](QPainter& painter) {
        view->RenderToPainter(painter, {1000, 1100}, 2);
    });
    EXPECT_EQ(view->FindZoneColumn(1), -1);
}

TEST_F(ZoneViewTest, NoZonesNoColumn)
{
    EXPECT_EQ(pair->GetBaseScaleView()->GetName(), "Zones");
    EXPECT_EQ(pair->GetBaseScaleView()->sizeHint().height(), 40) << "as high as its headings";
    perforations.clear();
    tracks.clear();
    interpretation.clear();
    view->ForceRedraw();
    view->grab();
    EXPECT_TRUE(view->GetBoundingBoxes().empty());
    EXPECT_EQ(view->GetStatusMessage(150, 120).text, "No zone");
}
