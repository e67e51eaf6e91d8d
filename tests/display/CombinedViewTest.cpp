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
#include "support/DialogAnswer.h"
#include "support/Texts.h"

#include <QMenu>
#include <QTest>

namespace {
using namespace view_bench;

class CombinedViewTest : public view_bench::BenchTest
{
protected:
    CombinedViewTest() { pair.resize(300, 200); }

    Column column;
    AutomaticCombinedViewWidget pair{QStringLiteral("GR"), bench.context, &column};
    std::shared_ptr<Channel> const channel = MakeRamp("a", 0, "GR");
};

TEST_F(CombinedViewTest, TheRulerIsNarrowAndReportsTheDepth)
{
    EXPECT_TRUE(pair.isHidden()) << "until it is asked for";
    DepthAxisCombinedViewWidget depth(QStringLiteral("Depth"), bench.context, &column);
    EXPECT_EQ(depth.sizeHint(), QSize(38, 50)); // 96 dpi x 0.4, truncated
    EXPECT_FALSE(depth.GetDepthInterval_metric().has_value());
    depth.GetBaseViewWidget()->resize(38, 101);
    EXPECT_FLOAT_EQ(depth.GetBaseViewWidget()->GetStatusMessage(5, 30).depth, 1030);
    EXPECT_TRUE(depth.GetBaseViewWidget()->GetStatusMessage(5, 30).text.isEmpty());
}

TEST_F(CombinedViewTest, IsDraggedByItsName)
{
    pair.show();
    auto* const label = pair.GetBaseScaleView()->findChild<ScaleLabel*>();
    QTest::mousePress(label, Qt::LeftButton, {}, QPoint(10, 10));
    Drag(label, QPoint(70, 12));
    EXPECT_EQ(column.moved, &pair);
    EXPECT_EQ(column.moved_to, label->mapToGlobal(QPointF(70, 12)));
    for (auto const& [y, hides] : {std::pair(150, false), std::pair(201, true), std::pair(-1, true)}) {
        pair.show();
        QTest::mouseRelease(label, Qt::LeftButton, {}, QPoint(70, y)); // inside, below, above
        EXPECT_EQ(pair.isHidden(), hides) << y;
    }
}

/// Asks for the context menu of `widget` as the user would, and gives it to `act`; false when none opens.
bool OpensContextMenu(QWidget* widget, std::function<void(QMenu&)> const& act)
{
    bool seen = false;
    QTimer::singleShot(0, widget, [&] {
        if (auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            seen = true;
            act(*menu);
            menu->close();
        }
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), widget->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(widget, &event);
    QApplication::processEvents(); // the timer, where no menu waited for it
    return seen;
}

TEST_F(CombinedViewTest, ContextMenusSwitchMarkersAndBaseline)
{
    pair.GetBaseDataView()->AssignDepthDataChannel(channel);
    pair.show();
    BaseDataView& view = *pair.GetBaseDataView();
    EXPECT_TRUE(view.GetShowBaseline());
    auto* const item = pair.findChild<ScaleItem*>();
    std::vector<QWidget*> const widgets{&view, pair.GetBaseScaleView(), item};
    for (std::size_t i = 0; i < widgets.size(); ++i) {
        bool const now = i % 2 == 0;
        EXPECT_TRUE(OpensContextMenu(widgets[i], [&](QMenu& menu) {
            ASSERT_EQ(Texts(menu.actions(), &QAction::text),
                      QStringList({"Horizontal Scales", "Markers", "Show Baseline"}));
            QMenu* const markers = menu.actions()[1]->menu();
            ASSERT_EQ(Texts(markers->actions(), &QAction::text), QStringList({"A", "B"}));
            for (QAction* const action : {markers->actions()[0], markers->actions()[1], menu.actions()[2]}) {
                EXPECT_EQ(action->isChecked(), action->text() == "Show Baseline" ? now : !now);
                action->trigger();
            }
        }));
        EXPECT_EQ(view.GetShowMarkersA(), now);
        EXPECT_EQ(view.GetShowMarkersB(), now);
        EXPECT_EQ(view.GetShowBaseline(), !now);
    }
}

TEST_F(CombinedViewTest, ContextMenuOpensTheScaleDialogAndNoPropertiesYet)
{
    UserCombinedViewWidget user(QStringLiteral("Mine"), bench.context, &column);
    user.resize(300, 200);
    user.show();
    DialogAnswer const dialogs;
    EXPECT_TRUE(OpensContextMenu(user.GetBaseViewWidget(), [&](QMenu& menu) {
        ASSERT_EQ(Texts(menu.actions(), &QAction::text),
                  QStringList({"Horizontal Scales", "Markers", "Show Baseline", "Properties"}));
        EXPECT_FALSE(menu.actions()[3]->isEnabled());
        menu.actions()[0]->trigger();
    }));
    EXPECT_EQ(dialogs.GetTitles(), QStringList("Scales Dialog"));
}

TEST_F(CombinedViewTest, NoContextMenuOpensInTheMiddleOfADrag)
{
    using P = BaseViewWidgetParameters;
    pair.show();
    BaseViewWidget* const view = pair.GetBaseViewWidget();
    for (auto const& mode : {&P::SetVerticalZoomChecked, &P::SetHorizontalZoomChecked, &P::SetShiftChecked,
                             &P::SetInterpretationZonesDefinitionChecked, &P::SetStretchChecked}) {
        for (bool const on : {true, false}) { // with none on, the measuring arrow is drawn
            (bench.parameters.*mode)(on);
            QTest::mousePress(view, Qt::LeftButton, {}, QPoint(10, 90));
            EXPECT_FALSE(OpensContextMenu(view, [](QMenu&) {}));
            QTest::mouseRelease(view, Qt::LeftButton, {}, QPoint(10, 90));
            EXPECT_TRUE(OpensContextMenu(view, [](QMenu&) {}));
        }
    }
}
} // namespace
