// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "well/WellSketchView.h"

#include "display/ViewBench.h"
#include "support/Texts.h"
#include "well/ComponentInfoOverlay.h"
#include "well/SketchWell.h"
#include "well/WellComponentInfo.h"
#include "well/WellSketchCombinedViewWidget.h"
#include "well/WellViewFactory.h"
#include "well/ZoneTrack.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

namespace {
using Type = WellComponentType;

/// A sketch of the well of SketchWell.h on screen, one metre per row.
class WellSketchViewTest : public view_bench::BenchTest
{
protected:
    WellSketchViewTest()
    {
        strings = sketch_well::Data(sketch_well::Strings());
        bench.parameters.SetTotalDisplayedDepthInterval(sketch_well::VIEW);
        bench.parameters.SetViewDepthMetric(sketch_well::VIEW);
        Quorrel::DPI_X = Quorrel::DPI_Y = sketch_well::DPI;
        bench.context.pipe_strings = &strings;
        bench.context.components = &components;
        bench.context.zone_tracks = &tracks;
        bench.context.perforation_zones = &zones;
        bench.context.interpretation_zones = &zones;
    }

    void Show()
    {
        pair = std::make_unique<WellSketchCombinedViewWidget>("Well Sketch", bench.context);
        view = pair->GetWellSketchView();
        view->setFixedSize(sketch_well::WIDTH, sketch_well::HEIGHT);
        pair->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(pair.get()));
        view->grab();
    }
    void MoveMouse(int x, int y) const { view_bench::Drag(view, {x, y}); }
    [[nodiscard]] QString Status(int x, int y) const
    {
        MoveMouse(x, y);
        return view->GetStatusMessage(x, y).text;
    }

    PipeStringData strings;
    QList<WellComponent> components;
    QList<ZoneTrack> tracks;
    QList<Zone> zones;
    std::unique_ptr<WellSketchCombinedViewWidget> pair;
    WellSketchView* view = nullptr;
};
} // namespace

TEST_F(WellSketchViewTest, FindsWhatWasDrawnLast)
{
    components = {{{200, 220}, "plug", Type::Plug},
                  {{210, 230}, "valve", Type::SafetyValve},
                  {{190, 300}, "cement", Type::CementPlug},
                  {{200, 250}, "more cement", Type::CementPlug}};
    Show();
    EXPECT_EQ(Status(70, 150), "Well Sketch");
    std::pair<int, QString> const rows[] = {
        {195, "cement     MD[190 - 300]m"},      {205, "plug     MD[200 - 220]m"},
        {215, "valve     MD[210 - 230]m"},       {225, "valve     MD[210 - 230]m"},
        {240, "more cement     MD[200 - 250]m"}, {290, "cement     MD[190 - 300]m"}};
    for (auto const& [y, text] : rows) {
        EXPECT_EQ(Status(130, y), text);
    }
    EXPECT_FLOAT_EQ(view->GetStatusMessage(130, 290).depth, 290);

    // Outside the view nothing is under the mouse.
    MoveMouse(130, 205);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(view, &leave);
    EXPECT_EQ(view->GetStatusMessage(130, 205).text, "Well Sketch");

    // Nor is it while a vertical selection is on.
    bench.parameters.SetVerticalZoomChecked(true);
    EXPECT_EQ(Status(130, 205), "Well Sketch");

    EXPECT_EQ(pair->GetDepthInterval_metric(), Interval(0, 1000));
    strings = {};
    EXPECT_EQ(pair->GetDepthInterval_metric(), std::nullopt);
}

TEST_F(WellSketchViewTest, AnItemUnderTheMouseStandsOut)
{
    components = {{{200, 220}, "plug", Type::Plug}};
    Show();
    int const renders = view->GetRenderCount();
    MoveMouse(130, 210);
    QImage const image = view->grab().toImage();
    QColor const frame(127, 255, 165);
    pixels::Expect(image, frame, {{115, 203}, {112, 203}}); // 7 wide
    EXPECT_NE(image.pixelColor(106, 203), frame);
    EXPECT_EQ(view->GetRenderCount(), renders); // only drawn over the cached picture

    // A rendering with fewer items leaves nothing behind to point at.
    components.clear();
    view->ForceRedraw();
    EXPECT_NE(view->grab().toImage().pixelColor(115, 203), frame);
    EXPECT_FALSE(view->GetStatusMessage(130, 210).text.contains("plug"));
}

TEST_F(WellSketchViewTest, AClickReportsTheItem)
{
    components = {{{220, 200}, "plug", Type::Plug}, {{850, 870}, "cement", Type::CementPlug}};
    Show();
    WellViewFactory const factory;
    std::vector<std::pair<Interval, QString>> clicks;
    QObject receiver;
    factory.ConnectComponentClicks(pair.get(), &receiver, [&](Interval const& md, QString const& text) {
        clicks.emplace_back(md, text);
    });
    for (QPoint const& point : {QPoint(130, 210), QPoint(130, 860), QPoint(70, 150)}) {
        MoveMouse(point.x(), point.y());
        QTest::mouseClick(view, Qt::LeftButton, {}, point);
    }
    std::vector<std::pair<Interval, QString>> const expected{{{200, 220}, "plug"}, {{850, 870}, "cement"}};
    EXPECT_EQ(clicks, expected);
}

TEST_F(WellSketchViewTest, PrintHasItsOwnColoursAndLeavesTheScreenAlone)
{
    Show();
    QImage const page =
        pixels::Paint({2 * sketch_well::WIDTH, sketch_well::HEIGHT}, Qt::white, [&](QPainter& painter) {
            pair->RenderDataview(painter, sketch_well::VIEW, 600, 1, 0, 100);
        });
    pixels::Expect(page, Qt::black, {{60, 300}}); // outline of the conductor, now at 20 px per inch
    pixels::Expect(page, Qt::darkGray, {{65, 300}});
    // Hit areas are the screen's again after its next paint.
    view->grab();
    EXPECT_TRUE(Status(32, 300).startsWith(" conductor"));
}

TEST_F(WellSketchViewTest, TheOverlayShowsDepthsInTheSettingsUnitUntilAClick)
{
    SettingsSingleton::Instance().SetMetricDepth(false);
    QWidget parent;
    parent.resize(800, 600);
    parent.show();
    WellViewFactory const factory;
    QPointer<QWidget> const overlay =
        factory.CreateComponentInfoOverlay(&parent, Interval(100, 200), Interval(0, 150), "valve");
    overlay->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&parent));
    EXPECT_EQ(overlay->size(), parent.size());
    auto const edits = overlay->findChildren<QLineEdit*>();
    EXPECT_TRUE(std::all_of(edits.begin(), edits.end(), std::mem_fn(&QLineEdit::isReadOnly)));
    // 3.28084 feet per metre.
    EXPECT_EQ(Texts(edits, &QLineEdit::text), QStringList({"valve", "328.08", "656.17", "0.00", "492.13"}));

    auto* const info = overlay->findChild<WellComponentInfo*>();
    EXPECT_NEAR(info->geometry().center().x(), 400, 2);
    QTest::mouseClick(info, Qt::LeftButton);
    QTest::mouseClick(overlay->findChild<QGroupBox*>(), Qt::LeftButton);
    EXPECT_TRUE(overlay && overlay->isVisible());
    QTest::mouseClick(overlay, Qt::LeftButton, {}, {10, 10});
    EXPECT_TRUE(!overlay || !overlay->isVisible());
}
