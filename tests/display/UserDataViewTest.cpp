// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/UserDataView.h"

#include "ViewBench.h"
#include "display/BaseScaleView.h"
#include "display/ScaleItem.h"
#include "display/TreeItemDropData.h"
#include "display/UserCombinedViewWidget.h"
#include "formats/project/ViewRecords.h"

#include <QApplication>
#include <QDataStream>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTreeWidget>

namespace {
using namespace view_bench;

/// The drag of a browser item, made by a tree as the toolkit makes it.
std::unique_ptr<QMimeData> DragOf(int type, DataChannelIdentifier const& identifier)
{
    class Tree final : public QTreeWidget
    {
    public:
        using QTreeWidget::mimeData;
    };
    Tree tree;
    auto* const item = new QTreeWidgetItem(&tree, type);
    item->setText(0, QStringLiteral("GR"));
    item->setData(0, TREE_ITEM_TYPE_ROLE, type);
    item->setData(0, TREE_ITEM_SURVEY_ROLE, identifier.GetSurveyKey());
    item->setData(0, TREE_ITEM_HASH_ROLE, identifier.GetHash());
    item->setData(0, TREE_ITEM_INDEX_ROLE, identifier.GetIndex());
    return std::unique_ptr<QMimeData>(tree.mimeData({item}));
}

TEST(TreeItemDropData, RefusesDamagedPayloads)
{
    EXPECT_FALSE(Quorrel::ReadTreeItemDropData(static_cast<QMimeData const*>(nullptr)).has_value());
    QByteArray const whole =
        DragOf(1006, DataChannelIdentifier(4, QStringLiteral("hash"), 1))->data(Quorrel::TREE_ITEM_MIME_TYPE);
    for (qsizetype size = 0; size < whole.size(); ++size) {
        EXPECT_FALSE(Quorrel::ReadTreeItemDropData(whole.first(size)).has_value()) << size;
    }
    EXPECT_FALSE(Quorrel::ReadTreeItemDropData(QByteArray(200, '\xff')).has_value());
    QTreeWidgetItem const plain; // an item of another program's list has other roles
    QByteArray foreign;
    QDataStream(&foreign, QIODevice::WriteOnly) << 0 << 0 << QMap<int, QVariant>{{0, QStringLiteral("x")}};
    EXPECT_FALSE(Quorrel::ReadTreeItemDropData(foreign).has_value());
}

class UserDataViewTest : public view_bench::BenchTest
{
protected:
    UserDataViewTest() : pair(QStringLiteral("Mine"), bench.context, &column) { View().resize(200, 101); }

    UserDataView& View() { return *pair.GetUserDataView(); }

    Column column;
    UserCombinedViewWidget pair;
};

TEST_F(UserDataViewTest, TakesDepthAndStorageChannelsByDrop)
{
    QSignalSpy dropped(&pair, &BaseCombinedViewWidget::DataChannelDroppedOnUserDataView_Signal);
    DataChannelIdentifier const identifier(2, QStringLiteral("hash"), 9);
    auto const accepts = [this](QMimeData const& mime) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QDragMoveEvent move(QPoint(9, 9), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        for (QDropEvent* const event :
             {static_cast<QDropEvent*>(&enter), static_cast<QDropEvent*>(&move), &drop}) {
            event->ignore();
            QApplication::sendEvent(&View(), event);
        }
        EXPECT_EQ(enter.isAccepted(), move.isAccepted());
        return enter.isAccepted();
    };
    QList<int> accepted;
    for (int type = 1000; type <= 1020; ++type) {
        if (accepts(*DragOf(type, identifier))) {
            accepted.append(type);
        }
        ASSERT_EQ(dropped.count(), accepted.size()) << type;
    }
    EXPECT_EQ(accepted, (QList<int>{1006, 1015}));
    EXPECT_EQ(dropped[0], QVariantList({"Mine", QVariant::fromValue(identifier)}));
    QMimeData text;
    text.setText(QStringLiteral("GR"));
    EXPECT_FALSE(accepts(text));
}

TEST_F(UserDataViewTest, FillsLieUnderTheCurves)
{
    auto const left = MakeChannel("p", 0, "L", "u", [](double) { return 2.0; });
    auto const right = MakeChannel("p", 1, "R", "u", [](double) { return 8.0; });
    for (auto const& channel : {left, right}) {
        View().AssignDepthDataChannel(channel);
        View().SetScaleInterval(channel->GetDataChannelIdentifier(), Interval(0, 10));
        View().SetPen(channel->GetDataChannelIdentifier(), QPen(Qt::green, 3));
    }
    FillAreaDefinition fill;
    fill.curve_a = right->GetDataChannelIdentifier();
    fill.curve_b = left->GetDataChannelIdentifier();
    fill.method = FILL_AREA_METHODS::A_RIGHT_OF_B;
    fill.color = QColor(200, 100, 50);
    View().SetFillAreaDefinitions({fill});
    QImage const image = Render(View());
    pixels::Expect(image, fill.color, {{100, 50}});
    pixels::Expect(image, Qt::green, {{40, 50}, {160, 50}}); // the curves stand on top
    pixels::Expect(image, Qt::black, {{20, 50}});

    right->properties.hidden = true;
    pixels::Expect(Render(View()), Qt::black, {{100, 50}}); // no fill to a curve that is not drawn
    right->properties.hidden = false;
    View().RemoveDepthDataChannel({1, "", -1}); // no wildcards here
    EXPECT_EQ(Render(View()), image);
    View().RemoveDepthDataChannel(left->GetDataChannelIdentifier());
    pixels::Expect(Render(View()), Qt::black, {{100, 50}});
}

TEST_F(UserDataViewTest, StateGoesToTheChannelsThatAreStillThere)
{
    QList<std::shared_ptr<Channel>> const channels{MakeRamp("p", 0, "A"), MakeRamp("p", 1, "B"),
                                                   MakeRamp("q", 0, "C")};
    for (int i = 0; i < 3; ++i) {
        View().AssignDepthDataChannel(channels[i]);
        View().SetPen(channels[i]->GetDataChannelIdentifier(), QPen(QColor(10 * i, 0, 0), i));
        View().SetScaleInterval(channels[i]->GetDataChannelIdentifier(), Interval(i, -i));
    }
    EXPECT_EQ(View().GetPenFromDci(DataChannelIdentifier(1, "p", 5)), QPen()) << "not in the view";
    View().SetShowMarkersB(true);
    View().SetShowBaseline(false);
    FillAreaDefinition fill;
    fill.name = "F";
    View().SetFillAreaDefinitions({fill});
    pair.GetBaseScaleView()->OnSelected(pair.findChildren<ScaleItem*>()[2]);
    USER_DATAVIEW_STRUCT const record = View().WriteState_UserDataView();
    EXPECT_EQ(record.name, QStringLiteral("Mine"));
    EXPECT_EQ(record.object_name, UserDataView::OBJECT_NAME_);

    UserCombinedViewWidget other(QStringLiteral("Mine"), bench.context, &column);
    UserDataView& view = *other.GetUserDataView();
    for (int const i : {0, 2}) {
        view.AssignDepthDataChannel(channels[i]);
    }
    view.RestoreState_UserDataView(record);
    view.UpdateScales();
    EXPECT_TRUE(view.GetShowMarkersB());
    EXPECT_FALSE(view.GetShowMarkersA() || view.GetShowBaseline());
    EXPECT_EQ(view.GetFillAreaDefinitions(), View().GetFillAreaDefinitions());
    for (int const i : {0, 2}) {
        DepthCurve const* const curve = view.GetCurve(record.curves[static_cast<std::size_t>(i)]);
        EXPECT_EQ(curve->GetScale(), Interval(i, -i));
        EXPECT_EQ(curve->GetCurvePen(), QPen(QColor(10 * i, 0, 0), i));
    }
    EXPECT_EQ(view.GetSelectedScaleCurveInfo()->header.mnemonic, QStringLiteral("C"));
    EXPECT_FALSE(view.GetScales()[0]->is_selected);
}
} // namespace
