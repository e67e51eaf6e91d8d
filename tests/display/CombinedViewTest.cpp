// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/CombinedDataViewWidget.h"

#include "ViewBench.h"
#include "display/AutomaticCombinedViewWidget.h"
#include "display/AutomaticDataView.h"
#include "display/BaseScaleView.h"
#include "display/DepthAxis.h"
#include "display/DepthAxisCombinedViewWidget.h"
#include "display/ScaleItem.h"
#include "display/ScaleLabel.h"
#include "display/UserCombinedViewWidget.h"
#include "display/UserDataView.h"

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {
using namespace view_bench;

class CombinedViewTest : public ::testing::Test
{
protected:
    static void Add(CombinedDataViewWidget& pair, std::shared_ptr<Channel> const& channel)
    {
        pair.GetBaseDataView()->AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const>(channel));
    }

    Bench bench;
    Column column;
};

TEST_F(CombinedViewTest, PairsHaveTheirNamesAndPolicies)
{
    AutomaticCombinedViewWidget automatic(QStringLiteral("GR"), bench.context, &column);
    UserCombinedViewWidget user(QStringLiteral("Mine"), bench.context, &column);
    DepthAxisCombinedViewWidget depth(QStringLiteral("Depth"), bench.context, &column);
    for (CombinedDataViewWidget* const pair :
         {static_cast<CombinedDataViewWidget*>(&automatic), static_cast<CombinedDataViewWidget*>(&user)}) {
        EXPECT_TRUE(pair->isHidden());
        EXPECT_EQ(pair->objectName(), QStringLiteral("COMBINED_VIEW_WIDGET_OBJECT_NAME"));
        EXPECT_EQ(pair->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        EXPECT_EQ(pair->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
        EXPECT_EQ(pair->sizePolicy().horizontalStretch(), 1);
        QSizePolicy const view = pair->GetBaseViewWidget()->sizePolicy();
        EXPECT_EQ(view.horizontalPolicy(), QSizePolicy::Expanding);
        EXPECT_EQ(view.horizontalStretch(), 1);
        EXPECT_EQ(view.verticalStretch(), 1);
        QSizePolicy const scale = pair->GetBaseScaleView()->sizePolicy();
        EXPECT_EQ(scale.horizontalPolicy(), QSizePolicy::Expanding);
        EXPECT_EQ(scale.verticalPolicy(), QSizePolicy::Fixed);
    }
    EXPECT_EQ(automatic.GetBaseViewWidgetObjectName(), QStringLiteral("VIEW_WIDGET_AUTOMATIC_DATAVIEW"));
    EXPECT_EQ(user.GetBaseViewWidgetObjectName(), QStringLiteral("VIEW_WIDGET_USER_DATAVIEW"));
    EXPECT_EQ(depth.GetBaseViewWidgetObjectName(), QStringLiteral("VIEW_WIDGET_DEPTHAXIS"));
    EXPECT_EQ(user.GetBaseViewWidget()->GetDescription(), QStringLiteral("User-defined dataview"));
    EXPECT_EQ(depth.GetBaseViewWidget()->GetDescription(), QStringLiteral("Depth axis"));
    EXPECT_EQ(automatic.GetBaseViewWidgetName(), QStringLiteral("GR"));
    EXPECT_EQ(automatic.GetBaseScaleView()->GetName(), QStringLiteral("GR"));

    EXPECT_EQ(depth.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    EXPECT_EQ(depth.GetBaseViewWidget()->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    EXPECT_EQ(depth.sizeHint(), QSize(38, 50)); // 96 dpi x 0.4, truncated
    EXPECT_FALSE(depth.GetDepthInterval_metric().has_value());
    depth.GetBaseViewWidget()->resize(38, 101);
    EXPECT_FLOAT_EQ(depth.GetBaseViewWidget()->GetStatusMessage(5, 30).depth, 1030);
    EXPECT_TRUE(depth.GetBaseViewWidget()->GetStatusMessage(5, 30).text.isEmpty());
}

TEST_F(CombinedViewTest, ViewTalksToHeaderAndColumn)
{
    AutomaticCombinedViewWidget pair(QStringLiteral("GR"), bench.context, &column);
    auto const channel = MakeRamp("a", 0, "GR");
    Add(pair, channel);
    EXPECT_EQ(pair.GetBaseScaleView()->GetScaleCount(), 1) << "the header follows the view";
    ASSERT_NE(pair.GetBaseDataView()->GetSelectedScaleCurveInfo(), nullptr) << "and picks its first curve";

    pair.resize(300, 200);
    pair.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&pair));
    EXPECT_GE(column.Count("VisibleWidgets"), 1);
    EXPECT_GE(column.Count("VisibleHeight"), 1);
    EXPECT_EQ(column.visible_height, pair.GetBaseViewWidget()->height());
    EXPECT_EQ(pair.GetBaseScaleView()->height(), 40);
    EXPECT_EQ(pair.GetBaseViewWidget()->height(), 160);

    BaseViewWidget* const view = pair.GetBaseViewWidget();
    Drag(view, QPoint(30, 20));
    EXPECT_EQ(column.cursor_y, 20);
    EXPECT_NEAR(column.cursor_depth, 1000 + 20 * 100.0 / 159, 1e-3);
    EXPECT_FALSE(column.cursor_text.isEmpty());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(view, &leave);
    EXPECT_EQ(column.Count("RemoveCursors"), 1);

    bench.parameters.SetVerticalZoomChecked(true);
    QTest::mousePress(view, Qt::LeftButton, {}, QPoint(10, 90));
    EXPECT_EQ(column.selection, std::vector<int>{90});
    QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(10, 40));
    EXPECT_EQ(column.selection, (std::vector<int>{40, 90}));

    column.calls.clear();
    pair.hide();
    EXPECT_EQ(column.Count("VisibleWidgets"), 1);
}

TEST_F(CombinedViewTest, HeaderHeightGrowsWithTheCurves)
{
    UserCombinedViewWidget pair(QStringLiteral("Mine"), bench.context, &column);
    EXPECT_EQ(pair.GetBaseScaleView()->sizeHint(), QSize(50, 20));
    pair.resize(300, 300);
    pair.show();
    std::vector<std::shared_ptr<Channel>> channels;
    for (int i = 0; i < 3; ++i) {
        channels.push_back(MakeRamp("a", i, "C"));
        Add(pair, channels.back());
    }
    EXPECT_EQ(pair.GetBaseScaleView()->sizeHint(), QSize(50, 80));
    EXPECT_GE(column.Count("ScaleHeight"), 3);
}

TEST_F(CombinedViewTest, IsDraggedByItsName)
{
    AutomaticCombinedViewWidget pair(QStringLiteral("GR"), bench.context, &column);
    pair.resize(300, 200);
    pair.show();
    auto* const label = pair.GetBaseScaleView()->findChild<ScaleLabel*>();
    ASSERT_NE(label, nullptr);
    QTest::mousePress(label, Qt::LeftButton, {}, QPoint(10, 10));
    Drag(label, QPoint(70, 12));
    EXPECT_EQ(column.moved, &pair);
    EXPECT_EQ(column.moved_to, label->mapToGlobal(QPointF(70, 12)));
    QTest::mouseRelease(label, Qt::LeftButton, {}, QPoint(70, 150));
    EXPECT_FALSE(pair.isHidden()) << "let go inside";
    QTest::mouseRelease(label, Qt::LeftButton, {}, QPoint(70, 201));
    EXPECT_TRUE(pair.isHidden()) << "let go below";
    pair.show();
    QTest::mouseRelease(label, Qt::LeftButton, {}, QPoint(70, -1));
    EXPECT_TRUE(pair.isHidden()) << "let go above";
}

TEST_F(CombinedViewTest, SetScalesIsOneStepOfUndo)
{
    UserCombinedViewWidget pair(QStringLiteral("Mine"), bench.context, &column);
    std::vector<std::shared_ptr<Channel>> channels;
    for (int i = 0; i < 3; ++i) {
        channels.push_back(MakeRamp("a", i, "C"));
        Add(pair, channels.back());
    }
    std::vector<std::shared_ptr<ScaleItemParameters>> copies;
    for (auto const& record : pair.GetScales()) {
        copies.push_back(std::make_shared<ScaleItemParameters>(*record));
    }
    pair.SetScales(copies);
    EXPECT_TRUE(column.undo.empty()) << "nothing differs";
    copies[1]->scale = Interval(5, 6);
    column.calls.clear();
    pair.SetScales(copies);
    EXPECT_EQ(column.calls, QStringList({"Undo"}));
    ASSERT_EQ(column.undo.size(), 1U);
    EXPECT_EQ(column.undo[0].identifier, DataChannelIdentifier(1, "a", 1));
    EXPECT_EQ(column.undo[0].after, Interval(5, 6));

    copies[0]->scale = Interval(7, 8);
    copies[2]->scale = Interval(9, 1); // reversed scales are as good as others
    column.calls.clear();
    pair.SetScales(copies);
    EXPECT_EQ(column.calls, QStringList({"BatchStarted", "Undo", "Undo", "BatchCompleted"}));
    EXPECT_EQ(pair.GetScales()[2]->scale, Interval(9, 1));
}

/// Opens the context menu of `widget` as the user would and gives it to `act`.
void WithContextMenu(QWidget* widget, std::function<void(QMenu&)> const& act)
{
    bool seen = false;
    QTimer::singleShot(0, widget, [&] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        seen = true;
        act(*menu);
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), widget->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(widget, &event);
    EXPECT_TRUE(seen);
}

QAction* FindAction(QMenu& menu, QString const& text)
{
    for (QAction* const action : menu.actions()) {
        if (action->text() == text) {
            return action;
        }
    }
    ADD_FAILURE() << "no action " << text.toStdString();
    return nullptr;
}

QStringList Texts(QMenu& menu)
{
    QStringList texts;
    for (QAction const* const action : menu.actions()) {
        texts << action->text();
    }
    return texts;
}

TEST_F(CombinedViewTest, ContextMenusSwitchMarkersAndBaseline)
{
    AutomaticCombinedViewWidget pair(QStringLiteral("GR"), bench.context, &column);
    auto const channel = MakeRamp("a", 0, "GR");
    Add(pair, channel);
    pair.resize(300, 200);
    pair.show();
    BaseDataView& view = *pair.GetBaseDataView();
    EXPECT_TRUE(view.GetShowBaseline());
    auto* const item = pair.findChild<ScaleItem*>();
    ASSERT_NE(item, nullptr);
    std::vector<QWidget*> const widgets{&view, pair.GetBaseScaleView(), item};
    for (std::size_t i = 0; i < widgets.size(); ++i) {
        bool const now = i % 2 == 0;
        WithContextMenu(widgets[i], [&](QMenu& menu) {
            EXPECT_EQ(Texts(menu), QStringList({"Horizontal Scales", "Markers", "Show Baseline"}));
            QMenu* const markers = FindAction(menu, QStringLiteral("Markers"))->menu();
            ASSERT_NE(markers, nullptr);
            EXPECT_EQ(Texts(*markers), QStringList({"A", "B"}));
            EXPECT_EQ(FindAction(*markers, QStringLiteral("A"))->isChecked(), !now);
            EXPECT_EQ(FindAction(menu, QStringLiteral("Show Baseline"))->isChecked(), now);
            FindAction(*markers, QStringLiteral("A"))->trigger();
            FindAction(*markers, QStringLiteral("B"))->trigger();
            FindAction(menu, QStringLiteral("Show Baseline"))->trigger();
        });
        EXPECT_EQ(view.GetShowMarkersA(), now);
        EXPECT_EQ(view.GetShowMarkersB(), now);
        EXPECT_EQ(view.GetShowBaseline(), !now);
    }
}

TEST_F(CombinedViewTest, ContextMenuOpensTheScaleDialogAndTheProperties)
{
    UserCombinedViewWidget pair(QStringLiteral("Mine"), bench.context, &column);
    pair.resize(300, 200);
    pair.show();
    QSignalSpy properties(&pair, &UserCombinedViewWidget::ShowUserDataViewProperties_Signal);
    QString title;
    WithContextMenu(pair.GetBaseViewWidget(), [&](QMenu& menu) {
        EXPECT_EQ(Texts(menu), QStringList({"Horizontal Scales", "Markers", "Show Baseline", "Properties"}));
        FindAction(menu, QStringLiteral("Properties"))->trigger();
        QTimer::singleShot(0, &pair, [&] {
            if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                title = dialog->windowTitle();
                dialog->reject();
            }
        });
        FindAction(menu, QStringLiteral("Horizontal Scales"))->trigger();
    });
    ASSERT_EQ(properties.count(), 1);
    EXPECT_EQ(properties[0][0].toString(), QStringLiteral("Mine"));
    EXPECT_EQ(title, QStringLiteral("Scales Dialog"));
}

/// Twelve tracks side by side, as on screen.
class TracksTest : public CombinedViewTest
{
protected:
    TracksTest()
    {
        auto* const layout = new QHBoxLayout(&window);
        for (int i = 0; i < 12; ++i) {
            channels.push_back(MakeRamp(QStringLiteral("p"), i, QStringLiteral("C%1").arg(i)));
            CombinedDataViewWidget* pair = nullptr;
            if (i % 2 == 0) {
                pair = new AutomaticCombinedViewWidget(QStringLiteral("V%1").arg(i), bench.context, &column);
            } else {
                pair = new UserCombinedViewWidget(QStringLiteral("V%1").arg(i), bench.context, &column);
            }
            Add(*pair, channels.back());
            layout->addWidget(pair);
            pair->show();
            pairs.push_back(pair);
        }
        pairs.back()->hide();
        column.on_cursor = [this](int y) {
            for (CombinedDataViewWidget* const pair : pairs) {
                y < 0 ? pair->RemoveCursor() : pair->MoveCursor(y);
            }
        };
        window.resize(1200, 400);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        Settle();
    }

    static void Settle()
    {
        for (int i = 0; i < 3; ++i) {
            QApplication::processEvents();
            QApplication::sendPostedEvents();
        }
    }

    /// Renders of each track since the last call.
    std::vector<int> Renders()
    {
        Settle();
        std::vector<int> renders;
        former.resize(pairs.size(), 0);
        for (std::size_t i = 0; i < pairs.size(); ++i) {
            int const count = pairs[i]->GetBaseViewWidget()->GetRenderCount();
            renders.push_back(count - former[i]);
            former[i] = count;
        }
        return renders;
    }

    /// `count` for each visible track, 0 for the hidden one.
    static std::vector<int> Each(int count)
    {
        std::vector<int> renders(12, count);
        renders.back() = 0;
        return renders;
    }

    QWidget window;
    std::vector<CombinedDataViewWidget*> pairs;
    std::vector<std::shared_ptr<Channel>> channels;
    std::vector<int> former;
};

TEST_F(TracksTest, EachChangeRendersEachVisibleTrackOnceAndAMouseMoveNone)
{
    Renders();
    Quorrel::TRACKING_MODE = true;
    for (int y = 5; y < 200; y += 13) {
        for (CombinedDataViewWidget* const pair : pairs) {
            if (!pair->isHidden()) {
                Drag(pair->GetBaseViewWidget(), QPoint(20 + y % 40, y));
            }
        }
        Settle();
    }
    QTest::mousePress(pairs[0]->GetBaseViewWidget(), Qt::LeftButton, {}, QPoint(20, 20));
    Drag(pairs[0]->GetBaseViewWidget(), QPoint(40, 120));
    QTest::mouseRelease(pairs[0]->GetBaseViewWidget(), Qt::LeftButton, {}, QPoint(40, 120));
    EXPECT_EQ(Renders(), Each(0)) << "mouse moves, tracker and measuring arrow";

    auto const redraw = [this] {
        for (CombinedDataViewWidget* const pair : pairs) {
            pair->ForceRedraw();
        }
    };
    bench.parameters.SetViewDepthMetric(Interval(1020, 1060)); // zoom or scroll, as the column does it
    redraw();
    EXPECT_EQ(Renders(), Each(1)) << "zoom";

    window.resize(1300, 500);
    EXPECT_EQ(Renders(), Each(1)) << "resize";

    for (auto const& channel : channels) {
        channel->depth.ApplyShift(1.0);
    }
    redraw();
    redraw();
    EXPECT_EQ(Renders(), Each(1)) << "changed data, told twice before the next paint";

    std::vector<int> one(12, 0);
    one[3] = 1;
    pairs[3]->GetBaseDataView()->SetShowMarkersA(true);
    EXPECT_EQ(Renders(), one) << "a change of one track";
    one[3] = 0;
    one[5] = 1;
    auto copy = std::make_shared<ScaleItemParameters>(*pairs[5]->GetScales().front());
    copy->scale = Interval(-50, 50);
    pairs[5]->SetScales({copy});
    EXPECT_EQ(Renders(), one) << "a new scale";
}
} // namespace
