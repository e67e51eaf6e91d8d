// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseDataView.h"

#include "ViewBench.h"
#include "display/AutomaticCombinedViewWidget.h"
#include "display/AutomaticDataView.h"
#include "display/UserCombinedViewWidget.h"
#include "display/UserDataView.h"
#include "model/TimeLog.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <limits>

namespace {
using namespace view_bench;

constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

/// A user pair 200 x 101 pixels wide, one row per metre, whose header picks the selected curve.
class DataViewTest : public ::testing::Test
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

    static void Add(BaseDataView& view, std::shared_ptr<Channel> const& channel)
    {
        view.AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const>(channel));
    }

    static QImage Render(BaseDataView& view, QColor const& ground, bool on_screen)
    {
        QImage image(200, 101, QImage::Format_RGB32);
        image.fill(ground);
        QPainter painter(&image);
        view.RenderToPainter(painter, Interval(1000, 1100), 96, on_screen);
        return image;
    }

    static int CountColumn(QImage const& image, int x, QColor const& color)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
        return count;
    }

    Bench bench;
    Column column;
    UserCombinedViewWidget user;
    AutomaticCombinedViewWidget automatic;
};

struct ScaleCase
{
    Interval values;
    Interval scale;
};

TEST(DefaultHorizontalScale, RoundsOneDecadeBelowTheExtent)
{
    for (ScaleCase const& c : {
             ScaleCase{{0, 100}, {0, 100}},         // extent 10^2: steps of 10
             ScaleCase{{3, 97}, {0, 100}},          // steps of 10
             ScaleCase{{12.3, 156.7}, {0, 200}},    // steps of 100
             ScaleCase{{-37, -12}, {-40, -10}},     // steps of 10
             ScaleCase{{-5, 5}, {-5, 5}},           // steps of 1
             ScaleCase{{-0.4, 149.9}, {-100, 200}}, // steps of 100
             ScaleCase{{0.00012, 0.00047}, {0.0001, 0.0005}},
             ScaleCase{{7, 7}, {6, 8}},
             ScaleCase{{0, 0}, {-1, 1}},
             ScaleCase{{-2.5, -2.5}, {-3, -2}},
             ScaleCase{{7.95, 7.95}, {7, 9}},
         }) {
        Interval const scale = BaseDataView::CalculateDefaultHorizontalScale(c.values);
        EXPECT_NEAR(scale.lower, c.scale.lower, 1e-12) << c.values.lower << " to " << c.values.upper;
        EXPECT_NEAR(scale.upper, c.scale.upper, 1e-12) << c.values.lower << " to " << c.values.upper;
    }
}

TEST(DefaultHorizontalScale, AlwaysHasAFiniteLength)
{
    for (Interval const& values :
         {Interval(), Interval(NOT_A_NUMBER, NOT_A_NUMBER), Interval(0, NOT_A_NUMBER), Interval(1e30, 1e30),
          Interval(-1e38, 1e38), Interval(0, 1e-300), Interval(5, 5 + 1e-15), Interval(-1e300, 1e300)}) {
        Interval const scale = BaseDataView::CalculateDefaultHorizontalScale(values);
        EXPECT_TRUE(std::isfinite(scale.Delta()) && scale.Delta() > 0)
            << scale.lower << " to " << scale.upper;
    }
}

TEST_F(DataViewTest, StatusMessageNamesTheSelectedCurve)
{
    EXPECT_EQ(User().GetStatusMessage(50, 40).text, QStringLiteral("No Selected Curve"));
    EXPECT_FLOAT_EQ(User().GetStatusMessage(50, 40).depth, 1040);
    auto const channel = MakeRamp("p", 0, "RAMP");
    Add(User(), channel);
    EXPECT_EQ(User().GetStatusMessage(50, 40).text, QStringLiteral("RAMP: 25.000u"));
    SettingsSingleton::Instance().SetSeparatorSelection(International);
    EXPECT_EQ(User().GetStatusMessage(50, 40).text, QStringLiteral("RAMP: 25,000u"));

    auto beyond = std::make_shared<ScaleItemParameters>();
    for (int const index : {1, 7, -1}) {
        beyond->index = index;
        User().SetSelectedScaleCurveInfo(beyond);
        EXPECT_EQ(User().GetStatusMessage(50, 40).text, QString());
    }
}

TEST_F(DataViewTest, CurveColoursGoRound)
{
    std::vector<std::shared_ptr<Channel>> channels;
    for (int i = 0; i < 7; ++i) {
        channels.push_back(MakeRamp("p", i, "C"));
        Add(User(), channels.back());
        Add(User(), channels.back()); // a second time changes nothing
    }
    ASSERT_EQ(User().GetDepthCurves().size(), 7U);
    std::vector<QColor> const expected{Qt::red,    Qt::green, Qt::cyan, Qt::magenta,
                                       Qt::yellow, Qt::white, Qt::red};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(User().GetPen(User().GetDepthCurves()[i]).color(), expected[i]) << i;
    }
}

TEST_F(DataViewTest, ShiftDragSendsOneStepPerMove)
{
    auto const channel = MakeRamp("p", 3, "RAMP");
    Add(User(), channel);
    Add(Automatic(), channel);
    bench.parameters.SetShiftChecked(true);
    for (BaseDataView* const view :
         {static_cast<BaseDataView*>(&User()), static_cast<BaseDataView*>(&Automatic())}) {
        column.calls.clear();
        std::vector<float> steps;
        std::vector<bool> whole_pass;
        int started = 0;
        auto const connection =
            QObject::connect(view, &BaseDataView::ApplyShift_Signal, view,
                             [&](DataChannelIdentifier const* identifier, float delta) {
                                 steps.push_back(delta);
                                 whole_pass.push_back(identifier == nullptr);
                                 if (identifier != nullptr) {
                                     EXPECT_EQ(*identifier, DataChannelIdentifier(1, "p", 3));
                                 }
                             });
        auto const start =
            QObject::connect(view, &BaseDataView::ShiftStarted_Signal, view, [&] { ++started; });
        QTest::mousePress(view, Qt::LeftButton, {}, QPoint(50, 20));
        EXPECT_EQ(started, 1);
        Drag(view, QPoint(50, 30));
        Drag(view, QPoint(90, 30)); // along the row: no step
        Drag(view, QPoint(50, 25));
        EXPECT_EQ(column.Count("ShiftCompleted"), 0);
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(50, 25));
        EXPECT_EQ(column.Count("ShiftCompleted"), 1);
        Drag(view, QPoint(50, 60)); // after the drag
        ASSERT_EQ(steps.size(), 2U);
        EXPECT_FLOAT_EQ(steps[0], 10);
        EXPECT_FLOAT_EQ(steps[1], -5);
        bool const is_automatic = view == &Automatic();
        EXPECT_EQ(whole_pass, std::vector<bool>(2, is_automatic));
        QObject::disconnect(connection);
        QObject::disconnect(start);
    }
}

TEST_F(DataViewTest, ShiftNeedsASelectedCurveInAUserView)
{
    bench.parameters.SetShiftChecked(true);
    QSignalSpy started(&User(), &BaseDataView::ShiftStarted_Signal);
    QSignalSpy apply(&User(), &BaseDataView::ApplyShift_Signal);
    QTest::mousePress(&User(), Qt::LeftButton, {}, QPoint(50, 20));
    Drag(&User(), QPoint(50, 30));
    QTest::mouseRelease(&User(), Qt::LeftButton, {}, QPoint(50, 30));
    EXPECT_EQ(started.count() + apply.count(), 0);
    EXPECT_EQ(column.Count("ShiftCompleted"), 0);
}

TEST_F(DataViewTest, StretchDragKeepsToOneSideOfTheAnchor)
{
    bench.parameters.SetStretchChecked(true);
    bench.parameters.SetStretchAnchorDepth(1050);
    struct Step
    {
        float from, to, anchor;
    };
    std::vector<Step> steps;
    QObject::connect(&Automatic(), &BaseDataView::ApplyStretch_Signal, &Automatic(),
                     [&](DataChannelIdentifier const* identifier, float from, float to, float anchor) {
                         EXPECT_EQ(identifier, nullptr);
                         steps.push_back({from, to, anchor});
                     });
    QTest::mousePress(&Automatic(), Qt::LeftButton, {}, QPoint(50, 20));
    QTest::mouseRelease(&Automatic(), Qt::LeftButton, {}, QPoint(50, 20));
    EXPECT_TRUE(steps.empty()) << "no distance, no step";
    EXPECT_EQ(column.Count("StretchStarted"), 1);
    EXPECT_EQ(column.Count("StretchCompleted"), 1);

    QTest::mousePress(&Automatic(), Qt::LeftButton, {}, QPoint(50, 20));
    Drag(&Automatic(), QPoint(50, 30));
    Drag(&Automatic(), QPoint(50, 50)); // onto the anchor: would leave no length
    Drag(&Automatic(), QPoint(50, 60)); // across: would turn the log upside down
    Drag(&Automatic(), QPoint(50, 40));
    QTest::mouseRelease(&Automatic(), Qt::LeftButton, {}, QPoint(50, 40));
    ASSERT_EQ(steps.size(), 2U);
    EXPECT_FLOAT_EQ(steps[0].from, 1020);
    EXPECT_FLOAT_EQ(steps[0].to, 1030);
    EXPECT_FLOAT_EQ(steps[0].anchor, 1050);
    EXPECT_FLOAT_EQ(steps[1].from, 1030);
    EXPECT_FLOAT_EQ(steps[1].to, 1040);

    steps.clear();
    QTest::mousePress(&Automatic(), Qt::LeftButton, {}, QPoint(50, 50)); // starts on the anchor
    Drag(&Automatic(), QPoint(50, 60));
    EXPECT_TRUE(steps.empty());
    QTest::mouseRelease(&Automatic(), Qt::LeftButton, {}, QPoint(50, 60));

    automatic.show();
    QTest::mousePress(&Automatic(), Qt::LeftButton, {}, QPoint(50, 20));
    automatic.hide(); // takes the release away
    EXPECT_EQ(column.Count("StretchStarted"), 4);
    EXPECT_EQ(column.Count("StretchCompleted"), 4);
}

TEST_F(DataViewTest, HorizontalZoomTakesTheDraggedValues)
{
    auto const channel = MakeRamp("p", 2, "RAMP");
    auto const other = MakeRamp("p", 3, "OTHER");
    Add(User(), channel);
    Add(User(), other);
    Add(Automatic(), channel);
    bench.parameters.SetHorizontalZoomChecked(true);
    for (BaseDataView* const view :
         {static_cast<BaseDataView*>(&User()), static_cast<BaseDataView*>(&Automatic())}) {
        column.calls.clear();
        column.undo.clear();
        QSignalSpy ended(view, &BaseDataView::HorizontalZoomEnd_Signal);
        QTest::mousePress(view, Qt::LeftButton, {}, QPoint(150, 20));
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(150, 90));
        EXPECT_EQ(ended.count(), 0) << "no columns, no zoom";
        EXPECT_TRUE(column.undo.empty());

        QTest::mousePress(view, Qt::LeftButton, {}, QPoint(150, 20));
        Drag(view, QPoint(80, 30));
        QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(50, 30)); // from right to left
        EXPECT_EQ(ended.count(), 1);
        EXPECT_EQ(column.Count("Begin"), 0) << "no rows are selected";
        ASSERT_EQ(column.undo.size(), 1U);
        bool const is_automatic = view == &Automatic();
        EXPECT_EQ(column.undo[0].identifier,
                  is_automatic ? DataChannelIdentifier() : DataChannelIdentifier(1, "p", 2));
        EXPECT_EQ(column.undo[0].view, view->GetName());
        EXPECT_EQ(column.undo[0].before, Interval(0, 100));
        EXPECT_EQ(column.undo[0].after, Interval(25, 75));
        EXPECT_EQ(view->GetScale(view->GetDepthCurves().front()), Interval(25, 75));
        EXPECT_EQ(view->GetScales().front()->scale, Interval(25, 75));
    }
    EXPECT_EQ(User().GetScale(User().GetDepthCurves()[1]), Interval(0, 100)) << "only the selected curve";

    QTest::mousePress(&User(), Qt::LeftButton, {}, QPoint(100, 20));
    QTest::mouseRelease(&User(), Qt::LeftButton, {}, QPoint(-100, 20)); // as far outside as inside
    EXPECT_EQ(User().GetScales().front()->scale, Interval(0, 50)) << "25 to 75 over 200 columns";
}

TEST_F(DataViewTest, BaselineStandsOnAScaleThatSpansZero)
{
    auto const both_signs = MakeRamp("p", 0, "RAMP", 100);
    Add(User(), both_signs);
    DataChannelIdentifier const identifier = both_signs->GetDataChannelIdentifier();
    User().SetScales(identifier, Interval(-25, 75)); // zero at 25 / 100 x 200
    QImage image = Render(User(), Qt::black, true);
    EXPECT_GT(CountColumn(image, 50, Qt::blue), 30);
    EXPECT_GT(CountColumn(image, 50, Qt::white), 15);
    EXPECT_EQ(CountColumn(image, 50, Qt::blue) + CountColumn(image, 50, Qt::white) +
                  CountColumn(image, 50, Qt::red),
              101)
        << "the line runs over the whole height";

    auto const expect_none = [&](char const* why) {
        image = Render(User(), Qt::black, true);
        for (int x = 0; x < image.width(); ++x) {
            ASSERT_EQ(CountColumn(image, x, Qt::blue), 0) << why;
        }
    };
    User().SetShowBaseline(false);
    expect_none("switched off");
    User().SetShowBaseline(true);
    User().SetScales(identifier, Interval(0, 75));
    expect_none("zero is the low end itself");
    User().SetScales(identifier, Interval(75, -25));
    expect_none("reversed");
    User().SetScales(identifier, Interval(-25, 75));
    User().SetSelectedScaleCurveInfo(nullptr);
    expect_none("no curve is selected");
}

TEST_F(DataViewTest, MarkersStandAtBothEdges)
{
    bench.markers_a << DepthMarker(1050, "A") << DepthMarker(5000, "far") << DepthMarker(-1e30F, "very far");
    bench.markers_b << DepthMarker(1080, "B");
    User().SetShowMarkersA(true);
    QImage const screen = Render(User(), Qt::black, true);
    for (int const x : {0, 10, 20, 180, 199}) {
        EXPECT_EQ(screen.pixelColor(x, 50), QColor(Qt::white)) << x;
    }
    for (int const x : {21, 100, 179}) {
        EXPECT_EQ(screen.pixelColor(x, 50), QColor(Qt::black)) << x;
    }
    EXPECT_EQ(screen.pixelColor(10, 80), QColor(Qt::black)) << "B is off";
    User().SetShowMarkersB(true);
    QImage const print = Render(User(), Qt::white, false);
    EXPECT_EQ(print.pixelColor(10, 50), QColor(Qt::black));
    EXPECT_EQ(print.pixelColor(10, 80), QColor(Qt::black));
}

TEST_F(DataViewTest, GridHasMajorAndMinorDepthsAndFifths)
{
    QImage image(200, 101, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        User().GenerateGridLines(painter, Interval(1000, 1100), 1020, 20);
    }
    auto const inked = [&](int y) {
        int count = 0;
        for (int x = 0; x < 200; ++x) {
            count += image.pixelColor(x, y) != QColor(Qt::white) ? 1 : 0;
        }
        return count;
    };
    for (int const y : {20, 40, 60, 80, 100}) {
        EXPECT_EQ(inked(y), 200) << y; // solid, dark grey
        EXPECT_EQ(image.pixelColor(7, y), QColor(Qt::darkGray));
    }
    for (int const y : {0, 2, 18, 22, 98}) {
        EXPECT_GT(inked(y), 50) << y;
        EXPECT_LT(inked(y), 190) << y;
    }
    for (int const y : {1, 19, 21, 99}) {
        EXPECT_LE(inked(y), 4) << y; // only the four vertical lines
    }
    for (int const x : {40, 80, 120, 160}) {
        EXPECT_GT(CountColumn(image, x, Qt::darkGray), 50) << x;
    }

    QImage const before = image;
    QPainter painter(&image);
    for (auto const& [start, step] :
         {std::pair(1000.0, 0.0), std::pair(1000.0, -5.0), std::pair(1000.0, 1e-9),
          std::pair(NOT_A_NUMBER, 10.0), std::pair(-1e300, 1.0)}) {
        User().GenerateGridLines(painter, Interval(1000, 1100), start, step);
    }
    painter.end();
    EXPECT_EQ(image, before) << "steps that give no grid draw nothing";
}

/// Whether the tracker's label stands at the left edge: its red frame tells.
bool IsLabelLeft(QWidget& view, int row)
{
    QImage const image = view.grab().toImage();
    int left = 0;
    int right = 0;
    for (int y = row; y < std::min(row + 12, image.height()); ++y) {
        left += image.pixelColor(1, y) == QColor(Qt::red) ? 1 : 0;
        right += image.pixelColor(image.width() - 2, y) == QColor(Qt::red) ? 1 : 0;
    }
    EXPECT_NE(left > 0, right > 0) << "one label at row " << row;
    return left > 0;
}

TEST_F(DataViewTest, TrackerLabelChangesSideWithHysteresis)
{
    auto const channel = MakeRamp("p", 0, "RAMP"); // column 2 y on row y
    Add(User(), channel);
    User().SetPen(channel->GetDataChannelIdentifier(), QPen(Qt::darkGreen));
    Quorrel::TRACKING_MODE = true;
    std::vector<std::pair<int, bool>> const rows{
        {50, false}, // 50%: where it was
        {59, false}, {61, true}, {50, true}, {41, true}, {39, false}, {50, false},
    };
    for (auto const& [row, left] : rows) {
        User().SetCursorRow(row);
        EXPECT_EQ(IsLabelLeft(User(), row), left) << row;
    }
    // Strictly between the ends of the curve only.
    for (int const row : {0, 100, -1}) {
        User().SetCursorRow(row);
        QImage const image = User().grab().toImage();
        EXPECT_EQ(CountColumn(image, 1, Qt::red) + CountColumn(image, 198, Qt::red), 0) << row;
    }
}

TEST_F(DataViewTest, AutomaticTrackerFollowsTheCurrentPass)
{
    auto const rising = MakeRamp("a", 0, "RAMP");
    auto const constant = MakeChannel("b", 0, "RAMP", "u", [](double) { return 90.0; });
    rising->properties.pen = QPen(Qt::darkGreen);
    constant->properties.pen = QPen(Qt::darkGreen);
    Add(Automatic(), rising);
    Add(Automatic(), constant);
    Automatic().SetShowBaseline(false);
    Quorrel::TRACKING_MODE = true;
    Automatic().SetCursorRow(20);
    QImage image = Automatic().grab().toImage();
    EXPECT_EQ(CountColumn(image, 1, Qt::red) + CountColumn(image, 198, Qt::red), 0) << "no current pass";

    auto const pass_a = MakePass("a");
    auto const pass_b = MakePass("b");
    bench.current_pass.pass = pass_a;
    EXPECT_FALSE(IsLabelLeft(Automatic(), 20)); // at 20% of the width
    bench.current_pass.pass = pass_b;
    EXPECT_TRUE(IsLabelLeft(Automatic(), 20)); // at 90%
    constant->properties.hidden = true;
    image = Automatic().grab().toImage();
    EXPECT_EQ(CountColumn(image, 1, Qt::red) + CountColumn(image, 198, Qt::red), 0) << "hidden";
}

TEST_F(DataViewTest, MeasuringArrowDrawsOverTheCachedView)
{
    auto const channel = MakeRamp("p", 0, "RAMP");
    Add(User(), channel);
    std::vector<DirectionalSurveyItem> stations(2);
    stations[0].measured_depth = 0;
    stations[1].measured_depth = 2000;
    bench.survey = DirectionalSurveyData(stations, {});
    column.on_cursor = [this](int y) { User().SetCursorRow(y); };
    User().grab();
    int const renders = User().GetRenderCount();
    QTest::mousePress(&User(), Qt::RightButton, {}, QPoint(30, 10));
    Drag(&User(), QPoint(120, 80));
    auto const count_green = [this] {
        QImage const image = User().grab().toImage();
        int count = 0;
        for (int x = 0; x < image.width(); ++x) {
            count += CountColumn(image, x, QColor(0, 255, 0));
        }
        return count;
    };
    EXPECT_EQ(count_green(), 0) << "the right button does not measure";
    QTest::mousePress(&User(), Qt::LeftButton, {}, QPoint(30, 10));
    Drag(&User(), QPoint(120, 80));
    EXPECT_GT(count_green(), 100);
    QImage const image = User().grab().toImage();
    // (0, 255, 255) of alpha 150 on black, on the vertical leg at the press column, beside the curve.
    QColor const arrow = image.pixelColor(30, 20);
    EXPECT_EQ(arrow.red(), 0);
    EXPECT_NEAR(arrow.green(), 150, 1);
    EXPECT_NEAR(arrow.blue(), 150, 1);
    QTest::mouseRelease(&User(), Qt::LeftButton, {}, QPoint(120, 80));
    EXPECT_EQ(count_green(), 0);
    EXPECT_EQ(User().GetRenderCount(), renders);
}

TEST_F(DataViewTest, ScalesFollowTheVisibleDepths)
{
    auto const rising = MakeRamp("p", 0, "R");
    auto const elsewhere = MakeChannel(
        "p", 1, "E", "u", [](double d) { return d; }, 2000, 2100);
    Add(User(), rising);
    Add(User(), elsewhere);
    Interval const untouched = User().GetScale(User().GetDepthCurves()[1]);
    bench.parameters.SetViewDepthMetric(Interval(1020, 1030));
    User().ResetScalesToVisibleDepth_Clicked();
    // Samples 20 to 30, extent 10: steps of 1.
    Interval const scale = User().GetScale(User().GetDepthCurves()[0]);
    EXPECT_NEAR(scale.lower, 20, 1.01);
    EXPECT_NEAR(scale.upper, 30, 1.01);
    EXPECT_EQ(User().GetScale(User().GetDepthCurves()[1]), untouched);
    ASSERT_EQ(column.undo.size(), 2U) << "one entry per curve";
    EXPECT_EQ(column.undo[0].before, Interval(0, 100));
    EXPECT_EQ(column.undo[0].after, scale);

    column.undo.clear();
    User().ResetHorizontalScale_Clicked();
    EXPECT_EQ(User().GetScale(User().GetDepthCurves()[0]), Interval(0, 100));
    EXPECT_EQ(column.undo.size(), 2U);
}

TEST_F(DataViewTest, ForgetsDeletedChannels)
{
    auto kept = MakeRamp("a", 0, "A");
    auto gone = MakeRamp("b", 0, "B");
    Add(User(), kept);
    Add(User(), gone);
    QImage const both = Render(User(), Qt::black, true);
    gone.reset();
    QImage const one = Render(User(), Qt::black, true); // an expired channel draws nothing
    EXPECT_NE(both, one);
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
    auto const channel = MakeRamp("p", 0, "R");
    Add(User(), channel);
    EXPECT_TRUE(User().GetDepthCurves().front().GetBinLevels().empty());
    user.show();
    EXPECT_FALSE(User().GetDepthCurves().front().GetBinLevels().empty());
    auto const late = MakeRamp("p", 1, "S");
    Add(User(), late);
    EXPECT_FALSE(User().GetDepthCurves()[1].GetBinLevels().empty());
    user.hide();
    EXPECT_TRUE(User().GetDepthCurves().front().GetBinLevels().empty());
}

TEST_F(DataViewTest, AutomaticViewHasOneScaleForAllPasses)
{
    auto const first = MakeRamp("a", 0, "GR", 100);
    auto const second = MakeRamp("b", 0, "GR", 800);
    second->properties.pen = QPen(Qt::cyan, 3);
    Add(Automatic(), first);
    EXPECT_EQ(Automatic().GetHorizontalScale(), Interval(0, 100));
    Add(Automatic(), second);
    EXPECT_EQ(Automatic().GetHorizontalScale(), Interval(0, 800)) << "follows the values of all passes";
    EXPECT_EQ(Automatic().GetPen(Automatic().GetDepthCurves()[1]), QPen(Qt::cyan, 3)) << "the pass's pen";
    ASSERT_EQ(Automatic().GetScales().size(), 1U);
    EXPECT_EQ(Automatic().GetScales()[0]->header.mnemonic, QStringLiteral("GR"));
    EXPECT_EQ(Automatic().GetDescription(), QStringLiteral("GR description"));
    ASSERT_EQ(Automatic().GetMinMaxInInterval(0, 5000).size(), 1U);
    EXPECT_EQ(Automatic().GetMinMaxInInterval(0, 5000)[0], Interval(0, 800));

    Automatic().SetAutomaticDataViewScales(Interval(10, 20));
    auto const third = MakeRamp("c", 0, "GR", 5000);
    Add(Automatic(), third);
    EXPECT_EQ(Automatic().GetHorizontalScale(), Interval(10, 20)) << "a scale somebody set stays";
    Automatic().ResetHorizontalScale_Clicked();
    EXPECT_EQ(Automatic().GetHorizontalScale(), Interval(0, 5000));
    ASSERT_EQ(column.undo.size(), 1U);
    EXPECT_EQ(column.undo[0].identifier, DataChannelIdentifier());
    EXPECT_EQ(column.undo[0].before, Interval(10, 20));
}

TEST_F(DataViewTest, HiddenPassesAreNotDrawn)
{
    auto const channel = MakeRamp("a", 0, "GR");
    channel->properties.pen = QPen(Qt::green);
    Add(Automatic(), channel);
    auto const count = [this] {
        QImage const image = Render(Automatic(), Qt::black, true);
        int pixels = 0;
        for (int x = 0; x < image.width(); ++x) {
            pixels += CountColumn(image, x, Qt::green);
        }
        return pixels;
    };
    int const plain = count();
    EXPECT_GE(plain, 101);
    channel->properties.highlighted = true;
    EXPECT_GT(count(), 2 * plain);
    channel->properties.hidden = true;
    EXPECT_EQ(count(), 0);
}

TEST_F(DataViewTest, TimeCurvesShowStrictlyInsideTheInterval)
{
    BASE_LOGPASS_STRUCT record;
    record.properties.identifier = LogPassIdentifier(1, "t");
    record.curve_info_header.push_back(HeaderRow("GR", "u", "", ""));
    auto samples = std::make_shared<std::vector<float>>(std::vector<float>{20, 40, 60});
    TimeLog log(record, {samples}, {0, 1, 2}, 1050.0F);
    Automatic().AssignTimeDataChannel(log.GetDataChannel(0));
    ASSERT_EQ(Automatic().GetTimeCurves().size(), 1U);
    TimeCurveOverlay const& overlay = *Automatic().GetTimeCurves().front();
    EXPECT_EQ(Automatic().GetHorizontalScale(), Interval(20, 60));
    EXPECT_EQ(Automatic().GetScales().front()->header.mnemonic, QStringLiteral("GR"));
    EXPECT_EQ(Automatic().GetDepthInterval_metric(), Interval(1050, 1050));

    Render(Automatic(), Qt::black, true);
    EXPECT_FALSE(overlay.isHidden());
    EXPECT_EQ(overlay.geometry().left(), 0);
    EXPECT_EQ(overlay.geometry().width(), 200);
    EXPECT_NEAR(overlay.geometry().center().y(), 50, 1);
    QImage image(200, 101, QImage::Format_RGB32);
    QPainter painter(&image);
    Automatic().RenderToPainter(painter, Interval(1050, 1100), 96, false);
    EXPECT_FALSE(overlay.isHidden()) << "print leaves the overlays alone";
    Automatic().RenderToPainter(painter, Interval(1050, 1100), 96, true);
    EXPECT_TRUE(overlay.isHidden()) << "at the very top";

    EXPECT_EQ(Automatic().GetMinMaxInInterval(1050, 1060)[0], Interval(20, 60)) << "ends count here";
    EXPECT_FALSE(Automatic().GetMinMaxInInterval(1051, 1060)[0].IsValid());
}
} // namespace
