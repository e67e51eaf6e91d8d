// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseViewWidget.h"

#include "PlainView.h"
#include "ViewBench.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

namespace {
using namespace view_bench;

class BaseViewWidgetTest : public view_bench::BenchTest
{
protected:
    BaseViewWidgetTest() : view(nullptr, QStringLiteral("Plain"), bench.context) { view.resize(200, 101); }

    PlainView view;
};

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
        pixels::Expect(image, line, {{10, 30}, {199, 30}, {60, 5}});
        pixels::Expect(image, ground, {{61, 31}});
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
    QColor const band(155, 155, 255); // white under blue of alpha 100: 255 x (1 - 100 / 255) = 155
    view.SetCursorRow(60);
    pixels::Expect(view.grab().toImage(), band, {{100, 40}, {0, 21}, {199, 59}});
    pixels::Expect(view.grab().toImage(), Qt::white, {{100, 15}, {100, 65}});
    view.SetCursorRow(-7); // as the column reports it while the button is held above the view
    pixels::Expect(view.grab().toImage(), band, {{100, 10}});
    pixels::Expect(view.grab().toImage(), Qt::white, {{100, 30}});
}

TEST_F(BaseViewWidgetTest, SelectsRowsInTheVerticalModes)
{
    QSignalSpy begin(&view, &BaseViewWidget::VerticalSelectionBegin_Signal);
    QSignalSpy end(&view, &BaseViewWidget::VerticalSelectionEnd_Signal);
    auto const drag = [&](Qt::MouseButton button, int from, int to) {
        QTest::mousePress(&view, button, {}, QPoint(50, from));
        QTest::mouseRelease(&view, button, {}, QPoint(20, to));
    };
    drag(Qt::LeftButton, 70, 80);
    EXPECT_EQ(begin.count() + end.count(), 0) << "no mode is on";

    bench.parameters.SetVerticalZoomChecked(true);
    drag(Qt::LeftButton, 70, 30); // upward drags are reported in ascending order too
    drag(Qt::RightButton, 5, 6);  // any button selects
    bench.parameters.SetVerticalZoomChecked(false);
    bench.parameters.SetInterpretationZonesDefinitionChecked(true);
    drag(Qt::LeftButton, 10, 10); // also without a distance
    EXPECT_EQ(begin, QList<QVariantList>({{70}, {5}, {10}}));
    EXPECT_EQ(end, QList<QVariantList>({{30, 70}, {5, 6}, {10, 10}}));
    EXPECT_EQ(view.GetSelectionStartRow(), -1);

    QTest::mouseRelease(&view, Qt::LeftButton, {}, QPoint(50, 80));
    EXPECT_EQ(end.count(), 3) << "nothing was begun";
}

TEST_F(BaseViewWidgetTest, ReportsAHeightThatIsNew)
{
    EXPECT_TRUE(view.hasMouseTracking());
    QSignalSpy height(&view, &BaseViewWidget::VisibleHeightChanged_Signal);
    bench.parameters.SetVisibleHeightPixels(80);
    for (int const rows : {80, 90}) { // the column knows the first of them already
        QResizeEvent event(QSize(200, rows), view.size());
        view.resize(200, rows);
        QApplication::sendEvent(&view, &event);
        EXPECT_EQ(height.isEmpty(), rows == 80);
    }
    EXPECT_EQ(height.last(), QVariantList({90}));
    view.resize(0, 0);
    view.grab(); // a view without area draws nothing
}
} // namespace
