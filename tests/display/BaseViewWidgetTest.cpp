// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseViewWidget.h"

#include "ViewBench.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {
using namespace view_bench;

/// A track filled with one colour.
class PlainView final : public BaseViewWidget
{
public:
    explicit PlainView(Bench const& bench)
        : BaseViewWidget(nullptr, QStringLiteral("Plain"), &bench.parameters, bench.survey)
    {
    }
    [[nodiscard]] QString GetDescription() const override { return {}; }
    [[nodiscard]] StatusMessage GetStatusMessage(int x, int y) const override
    {
        return {ConvertYValueToDepth_metric(y), QString::number(x)};
    }

    QColor color = Qt::black;

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        DrawCachedPixmap(painter, [this](QPainter& pixmap) { pixmap.fillRect(rect(), color); });
        RenderMouseCursor(painter);
    }
};

class BaseViewWidgetTest : public ::testing::Test
{
protected:
    BaseViewWidgetTest() : view(bench) { view.resize(200, 101); }

    Bench bench;
    PlainView view;
};

TEST_F(BaseViewWidgetTest, ShowsItsNameAndHidesTheSystemCursor)
{
    EXPECT_EQ(view.windowTitle(), QStringLiteral("Plain"));
    EXPECT_EQ(view.cursor().shape(), Qt::BlankCursor);
    EXPECT_TRUE(view.hasMouseTracking());
}

TEST_F(BaseViewWidgetTest, RendersOnlyWhenShownMarkedOrResized)
{
    EXPECT_EQ(view.GetRenderCount(), 0);
    view.grab();
    view.grab();
    EXPECT_EQ(view.GetRenderCount(), 1);
    view.SetCursorRow(20);
    view.SetSelectionStartRow(40);
    view.grab();
    EXPECT_EQ(view.GetRenderCount(), 1);
    view.ForceRedraw();
    view.grab();
    EXPECT_EQ(view.GetRenderCount(), 2);
    view.resize(150, 101);
    view.grab();
    EXPECT_EQ(view.GetRenderCount(), 3);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    int const shown = view.GetRenderCount();
    EXPECT_GT(shown, 3) << "being shown asks for a new picture";
    view.resize(0, 0);
    view.grab();
    SUCCEED() << "a view without area draws nothing";
}

TEST_F(BaseViewWidgetTest, CrossHairInvertsWhatLiesBelow)
{
    // The mouse stands at column 60; the row comes from the column.
    for (auto const& [ground, line] :
         {std::pair(QColor(Qt::black), QColor(Qt::white)), std::pair(QColor(Qt::white), QColor(Qt::black)),
          std::pair(QColor(200, 40, 90), QColor(55, 215, 165))}) {
        view.color = ground;
        view.ForceRedraw();
        view.SetCursorRow(30);
        QTest::mouseMove(&view, QPoint(60, 30));
        Drag(&view, QPoint(60, 30));
        QImage const image = view.grab().toImage();
        EXPECT_EQ(image.pixelColor(10, 30), line);
        EXPECT_EQ(image.pixelColor(199, 30), line);
        EXPECT_EQ(image.pixelColor(60, 5), line);
        EXPECT_EQ(image.pixelColor(61, 31), ground);
    }
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&view, &leave);
    view.SetCursorRow(-1);
    EXPECT_EQ(view.grab().toImage().pixelColor(60, 5), view.color);
}

TEST_F(BaseViewWidgetTest, SelectionBandCoversTheRowsInBlue)
{
    bench.parameters.SetVerticalZoomChecked(true);
    view.color = Qt::white;
    view.SetSelectionStartRow(20);
    view.SetCursorRow(60);
    QImage const image = view.grab().toImage();
    // White under blue of alpha 100: 255 x (1 - 100 / 255) = 155.
    QColor const band = image.pixelColor(100, 40);
    EXPECT_NEAR(band.red(), 155, 1);
    EXPECT_NEAR(band.green(), 155, 1);
    EXPECT_EQ(band.blue(), 255);
    EXPECT_EQ(image.pixelColor(100, 15), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(100, 65), QColor(Qt::white));
    EXPECT_NEAR(image.pixelColor(0, 21).red(), 155, 1);
    EXPECT_NEAR(image.pixelColor(199, 59).red(), 155, 1);
}

TEST_F(BaseViewWidgetTest, SelectionBandStaysWhileTheDragIsOutsideTheView)
{
    bench.parameters.SetVerticalZoomChecked(true);
    view.color = Qt::white;
    view.SetSelectionStartRow(20);
    view.SetCursorRow(-7); // as the column reports it while the button is held above the view
    QImage const image = view.grab().toImage();
    EXPECT_NEAR(image.pixelColor(100, 10).red(), 155, 1);
    EXPECT_EQ(image.pixelColor(100, 30), QColor(Qt::white));
}

TEST_F(BaseViewWidgetTest, SelectsRowsInTheVerticalModes)
{
    QSignalSpy begin(&view, &BaseViewWidget::VerticalSelectionBegin_Signal);
    QSignalSpy end(&view, &BaseViewWidget::VerticalSelectionEnd_Signal);
    QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(50, 70));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, QPoint(50, 80));
    EXPECT_EQ(begin.count() + end.count(), 0) << "no mode is on";

    bench.parameters.SetVerticalZoomChecked(true);
    QTest::mousePress(&view, Qt::RightButton, {}, QPoint(50, 70));
    QTest::mouseRelease(&view, Qt::RightButton, {}, QPoint(50, 80));
    EXPECT_EQ(begin.count() + end.count(), 0);

    QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(50, 70));
    ASSERT_EQ(begin.count(), 1);
    EXPECT_EQ(begin[0][0].toInt(), 70);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, QPoint(20, 30));
    ASSERT_EQ(end.count(), 1);
    EXPECT_EQ(end[0][0].toInt(), 30) << "upward drags are reported in ascending order too";
    EXPECT_EQ(end[0][1].toInt(), 70);
    EXPECT_EQ(view.GetSelectionStartRow(), -1);

    bench.parameters.SetVerticalZoomChecked(false);
    bench.parameters.SetInterpretationZonesDefinitionChecked(true);
    QTest::mousePress(&view, Qt::LeftButton, {}, QPoint(50, 10));
    QTest::mouseRelease(&view, Qt::LeftButton, {}, QPoint(50, 10));
    ASSERT_EQ(end.count(), 2) << "also without a distance";
    EXPECT_EQ(end[1][0].toInt(), 10);
    EXPECT_EQ(end[1][1].toInt(), 10);
}

TEST_F(BaseViewWidgetTest, ReportsTheMouseAndTheHeight)
{
    QSignalSpy move(&view, &BaseViewWidget::MouseMove_Signal);
    Drag(&view, QPoint(17, 25));
    ASSERT_EQ(move.count(), 1);
    EXPECT_EQ(move[0][0].toInt(), 25);
    EXPECT_FLOAT_EQ(move[0][1].toFloat(), 1025); // 101 rows over 100 m
    EXPECT_EQ(move[0][2].toString(), QStringLiteral("17"));

    QSignalSpy height(&view, &BaseViewWidget::VisibleHeightChanged_Signal);
    bench.parameters.SetVisibleHeightPixels(80);
    QResizeEvent same(QSize(200, 80), QSize(200, 101));
    view.resize(200, 80);
    QApplication::sendEvent(&view, &same);
    EXPECT_EQ(height.count(), 0) << "the column knows this height already";
    view.resize(200, 90);
    QResizeEvent other(QSize(200, 90), QSize(200, 80));
    QApplication::sendEvent(&view, &other);
    ASSERT_GE(height.count(), 1);
    EXPECT_EQ(height.last()[0].toInt(), 90);
}

TEST_F(BaseViewWidgetTest, SurvivesAViewWithoutHeight)
{
    view.resize(200, 1);
    EXPECT_FLOAT_EQ(view.ConvertYValueToDepth_metric(5), 1000);
    EXPECT_FLOAT_EQ(view.GetTopDepthVisible_metric(), 1000);
    EXPECT_FLOAT_EQ(view.GetBottomDepthVisible_metric(), 1100);
}
} // namespace
