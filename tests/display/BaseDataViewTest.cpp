// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseDataView.h"

#include "ColumnFixture.h"
#include "display/AutomaticCombinedViewWidget.h"
#include "display/UserCombinedViewWidget.h"

#include <QSignalSpy>
#include <QTest>

namespace {
using namespace view_bench;

/// A user pair 200 x 101 pixels wide, one row per metre, whose header picks the selected curve.
class DataViewTest : public view_bench::BenchTest
{
protected:
    DataViewTest()
        : user(QStringLiteral("User"), bench.context, &column),
          automatic(QStringLiteral("Auto"), bench.context, &column)
    {
        // Fixed, as the pair's layout would resize them when they are grabbed or shown.
        user.GetBaseViewWidget()->setFixedSize(200, 101);
        automatic.GetBaseViewWidget()->setFixedSize(200, 101);
    }

    UserDataView& User() { return *user.GetUserDataView(); }
    AutomaticDataView& Automatic() { return *automatic.GetAutomaticDataView(); }
    std::vector<BaseDataView*> Both() { return {&User(), &Automatic()}; }

    /// Adds a ramp, which lives as long as the test.
    std::shared_ptr<Channel> AddRamp(BaseDataView& view, QString const& hash, int index,
                                     QString const& mnemonic = QStringLiteral("RAMP"), double factor = 100)
    {
        ramps.push_back(MakeRamp(hash, index, mnemonic, factor));
        view.AssignDepthDataChannel(ramps.back());
        return ramps.back();
    }
    static Interval ScaleOf(BaseDataView& view, std::size_t curve)
    {
        return view.GetScale(view.GetDepthCurves()[curve]);
    }

    /// A stroke of the left button through these points.
    static void Stroke(QWidget& view, std::vector<QPoint> const& points)
    {
        QTest::mousePress(&view, Qt::LeftButton, {}, points.front());
        for (QPoint const& point : points) {
            Drag(&view, point);
        }
        QTest::mouseRelease(&view, Qt::LeftButton, {}, points.back());
    }

    std::vector<std::shared_ptr<Channel>> ramps;
    Column column;
    UserCombinedViewWidget user;
    AutomaticCombinedViewWidget automatic;
};

TEST(DefaultHorizontalScale, RoundsOneDecadeBelowTheExtent)
{
    for (auto const& [values, expected] : std::vector<std::pair<Interval, Interval>>{
             {{0, 100}, {0, 100}},         // extent 10^2: steps of 10
             {{-37, -12}, {-40, -10}},     // steps of 10
             {{-0.4, 149.9}, {-100, 200}}, // steps of 100
             {{0.00012, 0.00047}, {0.0001, 0.0005}},
             {{0, 0}, {-1, 1}},
             {{-2.5, -2.5}, {-3, -2}},
             {{7.95, 7.95}, {7, 9}},
         }) {
        Interval const scale = BaseDataView::CalculateDefaultHorizontalScale(values);
        EXPECT_NEAR(scale.lower, expected.lower, 1e-12) << values.lower << " to " << values.upper;
        EXPECT_NEAR(scale.upper, expected.upper, 1e-12) << values.lower << " to " << values.upper;
    }
    // Always of a finite length.
    for (Interval const& values :
         {Interval(), Interval(NAN, NAN), Interval(0, NAN), Interval(1e30, 1e30), Interval(-1e38, 1e38),
          Interval(0, 1e-300), Interval(5, 5 + 1e-15), Interval(-1e300, 1e300)}) {
        double const length = BaseDataView::CalculateDefaultHorizontalScale(values).Delta();
        EXPECT_TRUE(std::isfinite(length) && length > 0) << values.lower << " to " << values.upper;
    }
}

TEST_F(DataViewTest, StatusMessageNamesTheSelectedCurve)
{
    auto const text = [this] { return User().GetStatusMessage(50, 40).text; };
    EXPECT_EQ(text(), QStringLiteral("No Selected Curve"));
    EXPECT_FLOAT_EQ(User().GetStatusMessage(50, 40).depth, 1040);
    AddRamp(User(), "p", 0);
    EXPECT_EQ(text(), QStringLiteral("RAMP: 25.000u"));
    SettingsSingleton::Instance().SetSeparatorSelection(International);
    EXPECT_EQ(text(), QStringLiteral("RAMP: 25,000u"));

    auto beyond = std::make_shared<ScaleItemParameters>();
    for (int const index : {1, 7, -1}) {
        beyond->index = index;
        User().SetSelectedScaleCurveInfo(beyond);
        EXPECT_EQ(text(), QString());
    }
}

TEST_F(DataViewTest, CurveColoursGoRound)
{
    int index = 0;
    for (QColor const expected :
         {Qt::red, Qt::green, Qt::cyan, Qt::magenta, Qt::yellow, Qt::white, Qt::red}) {
        User().AssignDepthDataChannel(AddRamp(User(), "p", index)); // a second time changes nothing
        EXPECT_EQ(User().GetPen(User().GetDepthCurves().back()).color(), expected) << index;
        ++index;
    }
    EXPECT_EQ(User().GetDepthCurves().size(), 7U);
}

TEST_F(DataViewTest, ShiftDragSendsOneStepPerMove)
{
    bench.parameters.SetShiftChecked(true);
    QSignalSpy started(&User(), &BaseDataView::ShiftStarted_Signal);
    Stroke(User(), {{50, 20}, {50, 30}});
    EXPECT_EQ(started.count() + column.Count("ShiftCompleted"), 0) << "a user view needs a selected curve";

    Automatic().AssignDepthDataChannel(AddRamp(User(), "p", 3));
    for (BaseDataView* const view : Both()) {
        column.calls.clear();
        std::vector<float> steps;
        auto const connection =
            QObject::connect(view, &BaseDataView::ApplyShift_Signal, view,
                             [&](DataChannelIdentifier const* identifier, float delta) {
                                 steps.push_back(delta);
                                 EXPECT_EQ(identifier == nullptr, view == &Automatic());
                                 if (identifier != nullptr) {
                                     EXPECT_EQ(*identifier, DataChannelIdentifier(1, "p", 3));
                                 }
                                 EXPECT_EQ(column.Count("ShiftCompleted"), 0);
                             });
        QSignalSpy starts(view, &BaseDataView::ShiftStarted_Signal);
        Stroke(*view, {{50, 20}, {50, 30}, {90, 30}, {50, 25}}); // along the row: no step
        EXPECT_EQ(starts.count(), 1);
        EXPECT_EQ(column.Count("ShiftCompleted"), 1);
        Drag(view, QPoint(50, 60)); // after the drag
        EXPECT_EQ(steps, (std::vector<float>{10, -5}));
        QObject::disconnect(connection);
    }
}

TEST_F(DataViewTest, StretchDragKeepsToOneSideOfTheAnchor)
{
    bench.parameters.SetStretchChecked(true);
    bench.parameters.SetStretchAnchorDepth(1050);
    std::vector<std::vector<float>> steps;
    QObject::connect(&Automatic(), &BaseDataView::ApplyStretch_Signal, &Automatic(),
                     [&](DataChannelIdentifier const* identifier, float from, float to, float anchor) {
                         EXPECT_EQ(identifier, nullptr);
                         steps.push_back({from, to, anchor});
                     });
    Stroke(Automatic(), {{50, 20}});
    EXPECT_TRUE(steps.empty()) << "no distance, no step";
    Stroke(Automatic(), {{50, 50}, {50, 60}});
    EXPECT_TRUE(steps.empty()) << "starts on the anchor";
    // Onto the anchor would leave no length, across it would turn the log upside down.
    Stroke(Automatic(), {{50, 20}, {50, 30}, {50, 50}, {50, 60}, {50, 40}});
    EXPECT_EQ(steps, (std::vector<std::vector<float>>{{1020, 1030, 1050}, {1030, 1040, 1050}}));

    automatic.show();
    QTest::mousePress(&Automatic(), Qt::LeftButton, {}, QPoint(50, 20));
    automatic.hide(); // takes the release away
    EXPECT_EQ(column.Count("StretchStarted"), 4);
    EXPECT_EQ(column.Count("StretchCompleted"), 4);
}

TEST_F(DataViewTest, HorizontalZoomTakesTheDraggedValues)
{
    Automatic().AssignDepthDataChannel(AddRamp(User(), "p", 2));
    AddRamp(User(), "p", 3, "OTHER");
    bench.parameters.SetHorizontalZoomChecked(true);
    for (BaseDataView* const view : Both()) {
        column.undo.clear();
        QSignalSpy ended(view, &BaseDataView::HorizontalZoomEnd_Signal);
        Stroke(*view, {{150, 20}, {150, 90}});
        EXPECT_EQ(ended.count(), 0) << "no columns, no zoom";

        Stroke(*view, {{150, 20}, {80, 30}, {50, 30}}); // from right to left
        EXPECT_EQ(ended.count(), 1);
        EXPECT_EQ(column.Count("Begin"), 0) << "no rows are selected";
        auto const id = view == &Automatic() ? DataChannelIdentifier() : DataChannelIdentifier(1, "p", 2);
        EXPECT_EQ(column.undo, (std::vector<Column::Undo>{{view->GetName(), id, {0, 100}, {25, 75}}}));
        EXPECT_EQ(ScaleOf(*view, 0), Interval(25, 75));
        EXPECT_EQ(view->GetScales().front()->scale, Interval(25, 75));
    }
    EXPECT_EQ(ScaleOf(User(), 1), Interval(0, 100)) << "only the selected curve";

    Stroke(User(), {{100, 20}, {-100, 20}}); // as far outside as inside
    EXPECT_EQ(ScaleOf(User(), 0), Interval(0, 50)) << "25 to 75 over 200 columns";
}

TEST_F(DataViewTest, BaselineStandsOnAScaleThatSpansZero)
{
    DataChannelIdentifier const identifier = AddRamp(User(), "p", 0)->GetDataChannelIdentifier();
    User().SetScales(identifier, Interval(-25, 75)); // zero at 25 / 100 x 200
    QImage const image = Render(User());
    int const blue = pixels::CountInColumn(image, 50, Qt::blue);
    int const white = pixels::CountInColumn(image, 50, Qt::white);
    EXPECT_GT(blue, 30);
    EXPECT_GT(white, 15);
    EXPECT_EQ(blue + white + pixels::CountInColumn(image, 50, Qt::red), 101) << "over the whole height";
    QImage const page = pixels::Paint({800, 404}, Qt::black, [&](QPainter& painter) {
        painter.setWindow(0, 0, 200, 101); // a unit is four pixels here
        User().RenderToPainter(painter, Interval(1000, 1100), 96, false);
    });
    EXPECT_GT(pixels::CountInColumn(page, 200, Qt::blue), 150);
    EXPECT_EQ(pixels::Count(page, Qt::blue), pixels::CountInColumn(page, 200, Qt::blue)) << "a pixel wide";

    auto const count_blue = [&] { return pixels::Count(Render(User()), Qt::blue); };
    User().SetShowBaseline(false);
    EXPECT_EQ(count_blue(), 0) << "switched off";
    User().SetShowBaseline(true);
    for (Interval const& scale : {Interval(0, 75), Interval(75, -25)}) { // an end is zero, reversed
        User().SetScales(identifier, scale);
        EXPECT_EQ(count_blue(), 0) << scale.lower;
    }
    User().SetScales(identifier, Interval(-25, 75));
    User().SetSelectedScaleCurveInfo(nullptr);
    EXPECT_EQ(count_blue(), 0) << "no curve is selected";
}

TEST_F(DataViewTest, MarkersStandAtBothEdges)
{
    bench.markers_a << DepthMarker(1050, "A") << DepthMarker(5000, "far") << DepthMarker(-1e30F, "very far");
    bench.markers_b << DepthMarker(1080, "B");
    User().SetShowMarkersA(true);
    QImage const screen = Render(User());
    pixels::Expect(screen, Qt::white, {{0, 50}, {10, 50}, {20, 50}, {180, 50}, {199, 50}});
    pixels::Expect(screen, Qt::black, {{21, 50}, {100, 50}, {179, 50}, {10, 80}}); // B is off
    User().SetShowMarkersB(true);
    pixels::Expect(Render(User(), Qt::white, false), Qt::black, {{10, 50}, {10, 80}});
}

TEST_F(DataViewTest, GridHasMajorAndMinorDepthsAndFifths)
{
    auto const grid = [this](double start, double step) {
        return pixels::Paint({200, 101}, Qt::white, [&](QPainter& painter) {
            User().GenerateGridLines(painter, Interval(1000, 1100), start, step);
        });
    };
    QImage const image = grid(1020, 20);
    for (int y = 0; y <= 100; ++y) {
        int const inked = 200 - pixels::Count(image, Qt::white, QRect(0, y, 200, 1));
        if (y % 20 == 0 && y > 0) {
            EXPECT_EQ(pixels::Count(image, Qt::darkGray, QRect(0, y, 200, 1)), 200) << y; // solid
        } else if (y % 2 == 0) {
            EXPECT_GT(inked, 50) << y;
            EXPECT_LT(inked, 190) << y;
        } else {
            EXPECT_LE(inked, 4) << y; // only the four vertical lines
        }
    }
    for (int const x : {40, 80, 120, 160}) {
        EXPECT_GT(pixels::CountInColumn(image, x, Qt::darkGray), 50) << x;
    }
    for (auto const& [start, step] :
         {std::pair(1000.0, 0.0), std::pair(1000.0, -5.0), std::pair(1000.0, 1e-9),
          std::pair<double, double>(NAN, 10), std::pair(-1e300, 1.0)}) {
        EXPECT_EQ(pixels::Count(grid(start, step), Qt::white), 200 * 101) << start << " by " << step;
    }
}

/// The side of the tracker's label, by its red frame on a row: left, right or none (-).
char LabelAt(BaseDataView& view, int row)
{
    view.SetCursorRow(row);
    QImage const image = view.grab().toImage();
    int const left = pixels::Count(image, Qt::red, QRect(1, row, 1, 12));
    int const right = pixels::Count(image, Qt::red, QRect(image.width() - 2, row, 1, 12));
    EXPECT_FALSE(left > 0 && right > 0) << row;
    return left > 0 ? 'l' : right > 0 ? 'r' : '-';
}

TEST_F(DataViewTest, TrackerLabelChangesSideWithHysteresis)
{
    auto const channel = AddRamp(User(), "p", 0); // column 2 y on row y
    User().SetPen(channel->GetDataChannelIdentifier(), QPen(Qt::darkGreen));
    Quorrel::TRACKING_MODE = true;
    for (auto const& [row, side] : {std::pair(50, 'r'), // 50%: where it was
                                    std::pair(59, 'r'), std::pair(61, 'l'), std::pair(50, 'l'),
                                    std::pair(41, 'l'), std::pair(39, 'r'), std::pair(50, 'r'),
                                    // Strictly between the ends of the curve only.
                                    std::pair(0, '-'), std::pair(100, '-'), std::pair(-1, '-')}) {
        EXPECT_EQ(LabelAt(User(), row), side) << row;
    }
    channel->properties.hidden = true;
    EXPECT_EQ(LabelAt(User(), 50), '-');
}

TEST_F(DataViewTest, AutomaticTrackerFollowsTheCurrentPass)
{
    auto const rising = AddRamp(Automatic(), "a", 0);
    auto const constant = MakeChannel("b", 0, "RAMP", "u", [](double) { return 90.0; });
    rising->properties.pen = QPen(Qt::darkGreen);
    constant->properties.pen = QPen(Qt::darkGreen);
    Automatic().AssignDepthDataChannel(constant);
    Automatic().SetShowBaseline(false);
    Quorrel::TRACKING_MODE = true;
    EXPECT_EQ(LabelAt(Automatic(), 20), '-') << "no current pass";

    auto const pass_a = MakePass("a", 1000, 1100, {});
    auto const pass_b = MakePass("b", 1000, 1100, {});
    bench.current_pass.pass = pass_a;
    EXPECT_EQ(LabelAt(Automatic(), 20), 'r'); // at 20% of the width
    bench.current_pass.pass = pass_b;
    EXPECT_EQ(LabelAt(Automatic(), 20), 'l'); // at 90%
    constant->properties.hidden = true;
    EXPECT_EQ(LabelAt(Automatic(), 20), '-');
}

TEST_F(DataViewTest, MeasuringArrowDrawsOverTheCachedView)
{
    AddRamp(User(), "p", 0);
    std::vector<DirectionalSurveyItem> stations(2);
    stations[1].measured_depth = 2000;
    bench.survey = DirectionalSurveyData(stations, {});
    column.on_cursor = [this](int y) { User().SetCursorRow(y); };
    User().grab();
    int const renders = User().GetRenderCount();
    auto const count_green = [this] { return pixels::Count(User().grab().toImage(), QColor(0, 255, 0)); };
    QTest::mousePress(&User(), Qt::RightButton, {}, QPoint(30, 10));
    Drag(&User(), QPoint(120, 80));
    EXPECT_EQ(count_green(), 0) << "the right button does not measure";
    QTest::mousePress(&User(), Qt::LeftButton, {}, QPoint(30, 10));
    Drag(&User(), QPoint(120, 80));
    EXPECT_GT(count_green(), 100);
    // (0, 255, 255) of alpha 150 on black, on the vertical leg at the press column, beside the curve.
    QColor const arrow = User().grab().toImage().pixelColor(30, 20);
    EXPECT_EQ(arrow.red(), 0);
    EXPECT_NEAR(arrow.green(), 150, 1);
    EXPECT_NEAR(arrow.blue(), 150, 1);
    QTest::mouseRelease(&User(), Qt::LeftButton, {}, QPoint(120, 80));
    EXPECT_EQ(count_green(), 0);
    EXPECT_EQ(User().GetRenderCount(), renders);

    // Up to 15 pixels there is no room for a line, but for a head: of five columns at its tenth row.
    QTest::mousePress(&User(), Qt::LeftButton, {}, QPoint(100, 20));
    Drag(&User(), QPoint(100, 32));
    EXPECT_GT(User().grab().toImage().pixelColor(97, 23).blue(), 100);
}

TEST_F(DataViewTest, ScalesFollowTheVisibleDepths)
{
    AddRamp(User(), "p", 0, "R");
    auto const elsewhere = MakeChannel(
        "p", 1, "E", "u", [](double d) { return d; }, 2000, 2100);
    User().AssignDepthDataChannel(elsewhere);
    Interval const untouched = ScaleOf(User(), 1);
    bench.parameters.SetViewDepthMetric(Interval(1020, 1030));
    User().ResetScalesToVisibleDepth_Clicked();
    // Samples 20 to 30, extent 10: steps of 1.
    Interval const scale = ScaleOf(User(), 0);
    EXPECT_NEAR(scale.lower, 20, 1.01);
    EXPECT_NEAR(scale.upper, 30, 1.01);
    EXPECT_EQ(ScaleOf(User(), 1), untouched);
    ASSERT_EQ(column.undo.size(), 2U) << "one entry per curve";
    EXPECT_EQ(column.undo[0].before, Interval(0, 100));
    EXPECT_EQ(column.undo[0].after, scale);

    User().ResetHorizontalScale_Clicked();
    EXPECT_EQ(ScaleOf(User(), 0), Interval(0, 100));
    EXPECT_EQ(column.undo.size(), 4U);
}

TEST_F(DataViewTest, ForgetsDeletedChannels)
{
    AddRamp(User(), "a", 0, "A");
    auto gone = MakeRamp("b", 0, "B");
    User().AssignDepthDataChannel(gone);
    User().AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const>()); // nothing to add
    QImage const both = Render(User());
    gone.reset();
    EXPECT_NE(Render(User()), both) << "an expired channel draws nothing";
    EXPECT_EQ(User().GetScales().size(), 2U);
    EXPECT_TRUE(User().DeleteDependencies(DataChannelIdentifier(1, "b", -1)));
    EXPECT_EQ(User().GetDepthCurves().size(), 1U);
    EXPECT_FALSE(User().DeleteDependencies(DataChannelIdentifier(1, "", -1)));
    EXPECT_TRUE(User().IsEmpty());
    EXPECT_EQ(User().GetSelectedScaleCurveInfo(), nullptr);
    EXPECT_FALSE(User().GetDepthInterval_metric().has_value());
    EXPECT_EQ(User().GetStatusMessage(1, 1).text, QStringLiteral("No Selected Curve"));
}

TEST_F(DataViewTest, BinsLiveOnlyWhileTheViewIsShown)
{
    auto const has_bins = [this](std::size_t curve) {
        return !User().GetDepthCurves()[curve].GetBinLevels().empty();
    };
    AddRamp(User(), "p", 0);
    EXPECT_FALSE(has_bins(0));
    user.show();
    EXPECT_TRUE(has_bins(0));
    AddRamp(User(), "p", 1);
    EXPECT_TRUE(has_bins(1));
    user.hide();
    EXPECT_FALSE(has_bins(0));
}

TEST_F(DataViewTest, AutomaticViewHasOneScaleForAllPasses)
{
    AddRamp(Automatic(), "a", 0, "GR");
    EXPECT_EQ(Automatic().GetHorizontalScale(), Interval(0, 100));
    AddRamp(Automatic(), "b", 0, "GR", 800)->properties.pen = QPen(Qt::cyan, 3);
    EXPECT_EQ(Automatic().GetHorizontalScale(), Interval(0, 800)) << "follows the values of all passes";
    EXPECT_EQ(Automatic().GetPen(Automatic().GetDepthCurves()[1]), QPen(Qt::cyan, 3)) << "the pass's pen";
    EXPECT_EQ(Automatic().GetScales().size(), 1U);
    EXPECT_EQ(Automatic().GetDescription(), QStringLiteral("GR description"));
    EXPECT_EQ(Automatic().GetMinMaxInInterval(0, 5000), std::vector{Interval(0, 800)});

    QPalette palette = automatic.palette();
    palette.setColor(QPalette::WindowText, Qt::yellow);
    automatic.setPalette(palette);
    EXPECT_EQ(Automatic().GetSelectedScaleCurveInfo()->pen.color(), QColor(Qt::yellow));

    Automatic().SetAutomaticDataViewScales(Interval(-10, 10));
    EXPECT_EQ(Automatic().GetSelectedScaleCurveInfo()->scale, Interval(-10, 10)) << "for the baseline";
    AddRamp(Automatic(), "c", 0, "GR", 5000);
    EXPECT_EQ(Automatic().GetHorizontalScale(), Interval(-10, 10)) << "a scale somebody set stays";
    Automatic().ResetHorizontalScale_Clicked();
    EXPECT_EQ(Automatic().GetHorizontalScale(), Interval(0, 5000));
    EXPECT_EQ(column.undo, (std::vector<Column::Undo>{{"Auto", {}, {-10, 10}, {0, 5000}}}));
}

TEST_F(DataViewTest, HiddenPassesAreNotDrawn)
{
    auto const channel = AddRamp(Automatic(), "a", 0);
    channel->properties.pen = QPen(Qt::green);
    auto const count = [this] { return pixels::Count(Render(Automatic()), Qt::green); };
    int const plain = count();
    EXPECT_GE(plain, 101);
    channel->properties.highlighted = true;
    EXPECT_GT(count(), 2 * plain);
    channel->properties.hidden = true;
    EXPECT_EQ(count(), 0);
}

TEST_F(DataViewTest, TimeCurvesShowStrictlyInsideTheInterval)
{
    auto const log = MakeTimeLog("t", 1050, {"GR"}, {20, 40, 60});
    Automatic().AssignTimeDataChannel(log->GetDataChannel(0));
    TimeCurveOverlay const& overlay = *Automatic().GetTimeCurves().front();
    EXPECT_EQ(Automatic().GetHorizontalScale(), Interval(20, 60));
    EXPECT_EQ(Automatic().GetDepthInterval_metric(), Interval(1050, 1050));

    Render(Automatic());
    EXPECT_EQ(overlay.geometry().width(), 200);
    EXPECT_NEAR(overlay.geometry().center().y(), 50, 1);
    for (bool const on_screen : {false, true}) { // at the very top; print leaves the overlays alone
        Render(Automatic(), Qt::black, on_screen, {1050, 1100});
        EXPECT_EQ(overlay.isHidden(), on_screen);
    }

    EXPECT_EQ(Automatic().GetMinMaxInInterval(1050, 1060)[0], Interval(20, 60)) << "ends count here";
    EXPECT_FALSE(Automatic().GetMinMaxInInterval(1051, 1060)[0].IsValid());

    AddRamp(User(), "p", 0, "R");
    AddRamp(User(), "p", 1, "S", 800);
    User().AssignTimeDataChannel(log->GetDataChannel(0));
    EXPECT_EQ(User().GetScales().size(), 3U);
    for (auto const& record : User().GetScales()) {
        EXPECT_EQ(record->scale, Interval(0, 100)) << "that of the first curve";
    }
}
} // namespace
