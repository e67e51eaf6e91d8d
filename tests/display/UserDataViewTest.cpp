// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/UserDataView.h"

#include "ViewBench.h"
#include "display/BaseScaleView.h"
#include "display/TreeItemDropData.h"
#include "display/UserCombinedViewWidget.h"

#include <QApplication>
#include <QDataStream>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QSignalSpy>
#include <QTreeWidget>

#include <gtest/gtest.h>

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

TEST(TreeItemDropData, ReadsWhatATreeWrites)
{
    DataChannelIdentifier const identifier(4, QStringLiteral("d41d8c"), 17);
    auto const data = Quorrel::ReadTreeItemDropData(DragOf(1006, identifier).get());
    ASSERT_TRUE(data.has_value());
    EXPECT_EQ(data->type, TreeItemType::LogPassDataChannel);
    EXPECT_EQ(data->identifier, identifier);
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

class UserDataViewTest : public ::testing::Test
{
protected:
    UserDataViewTest() : pair(QStringLiteral("Mine"), bench.context, &column) { View().resize(200, 101); }

    UserDataView& View() { return *pair.GetUserDataView(); }
    void Add(std::shared_ptr<Channel> const& channel)
    {
        View().AssignDepthDataChannel(std::weak_ptr<BaseDepthDataChannel const>(channel));
    }

    Bench bench;
    Column column;
    UserCombinedViewWidget pair;
};

TEST_F(UserDataViewTest, TakesDepthAndStorageChannelsByDrop)
{
    QSignalSpy dropped(&pair, &BaseCombinedViewWidget::DataChannelDroppedOnUserDataView_Signal);
    DataChannelIdentifier const identifier(2, QStringLiteral("hash"), 9);
    int accepted = 0;
    for (int type = 1000; type <= 1020; ++type) {
        std::unique_ptr<QMimeData> const mime = DragOf(type, identifier);
        bool const expected = type == 1006 || type == 1015;
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, mime.get(), Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(&View(), &enter);
        EXPECT_EQ(enter.isAccepted(), expected) << type;
        QDragMoveEvent move(QPoint(9, 9), Qt::CopyAction, mime.get(), Qt::LeftButton, Qt::NoModifier);
        move.ignore();
        QApplication::sendEvent(&View(), &move);
        EXPECT_EQ(move.isAccepted(), expected) << type;
        QDropEvent drop(QPointF(9, 9), Qt::CopyAction, mime.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&View(), &drop);
        accepted += expected ? 1 : 0;
        ASSERT_EQ(dropped.count(), accepted) << type;
    }
    EXPECT_EQ(dropped[0][0].toString(), QStringLiteral("Mine"));
    EXPECT_EQ(dropped[0][1].value<DataChannelIdentifier>(), identifier);

    QMimeData text;
    text.setText(QStringLiteral("GR"));
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&View(), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(UserDataViewTest, FillsLieUnderTheCurves)
{
    auto const left = MakeChannel("p", 0, "L", "u", [](double) { return 2.0; });
    auto const right = MakeChannel("p", 1, "R", "u", [](double) { return 8.0; });
    Add(left);
    Add(right);
    for (auto const& channel : {left, right}) {
        View().SetScaleInterval(channel->GetDataChannelIdentifier(), Interval(0, 10));
        View().SetPen(channel->GetDataChannelIdentifier(), QPen(Qt::green, 3));
    }
    FillAreaDefinition fill;
    fill.curve_a = right->GetDataChannelIdentifier();
    fill.curve_b = left->GetDataChannelIdentifier();
    fill.method = FILL_AREA_METHODS::A_RIGHT_OF_B;
    fill.color = QColor(200, 100, 50);
    View().SetFillAreaDefinitions({fill});
    auto const render = [this] {
        QImage image(200, 101, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        View().RenderToPainter(painter, Interval(1000, 1100), 96, true);
        return image;
    };
    QImage image = render();
    EXPECT_EQ(image.pixelColor(100, 50), fill.color);
    EXPECT_EQ(image.pixelColor(20, 50), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(40, 50), QColor(Qt::green)) << "the curve stands on top";
    EXPECT_EQ(image.pixelColor(160, 50), QColor(Qt::green));

    right->properties.hidden = true;
    EXPECT_EQ(render().pixelColor(100, 50), QColor(Qt::black)) << "no fill to a curve that is not drawn";
    right->properties.hidden = false;
    View().RemoveDepthDataChannel(left->GetDataChannelIdentifier());
    EXPECT_EQ(render().pixelColor(100, 50), QColor(Qt::black));
}

TEST_F(UserDataViewTest, NamesPensAndChannels)
{
    auto const a = MakeRamp("p", 0, "A");
    auto const b = MakeRamp("p", 1, "B");
    Add(a);
    Add(b);
    EXPECT_EQ(View().GetDataChannelIDs(), (std::vector<DataChannelIdentifier>{{1, "p", 0}, {1, "p", 1}}));
    View().SetPen(DataChannelIdentifier(1, "p", 1), QPen(Qt::darkCyan, 4));
    EXPECT_EQ(View().GetPenFromDci(DataChannelIdentifier(1, "p", 1)), QPen(Qt::darkCyan, 4));
    EXPECT_EQ(View().GetPenFromDci(DataChannelIdentifier(1, "p", 5)), QPen());
    EXPECT_EQ(View().GetCurve(DataChannelIdentifier(1, "p", 5)), nullptr);
    View().SetName(QStringLiteral("Other"));
    EXPECT_EQ(pair.GetBaseViewWidgetName(), QStringLiteral("Other"));
    EXPECT_EQ(pair.GetBaseScaleView()->GetName(), QStringLiteral("Other"));
}
} // namespace
