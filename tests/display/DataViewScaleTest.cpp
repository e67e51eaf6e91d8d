// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DataViewScale.h"

#include "ViewBench.h"
#include "display/DepthAxisScale.h"
#include "display/DepthUnitLabel.h"
#include "display/ScaleItem.h"
#include "model/ScaleItemParameters.h"
#include "display/ScaleLabel.h"

#include <QAbstractScrollArea>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {
using namespace view_bench;
using Records = std::vector<std::shared_ptr<ScaleItemParameters>>;

std::shared_ptr<ScaleItemParameters> MakeRecord(QString const& mnemonic, int index, QColor const& color)
{
    auto record = std::make_shared<ScaleItemParameters>();
    record->header = HeaderRow(mnemonic, QStringLiteral("u"), QString(), QString());
    record->index = index;
    record->scale = Interval(0, 150);
    record->pen = QPen(color);
    return record;
}

TEST(DataViewScale, SelectsTheFirstItemAndThenTheClickedOne)
{
    DataViewScale scale;
    QSignalSpy selected(&scale, &BaseScaleView::SetSelectedCurveInfo_Signal);
    QSignalSpy adjust(&scale, &BaseScaleView::AdjustHeight_Signal);
    Records const records{MakeRecord("A", 0, Qt::red), MakeRecord("B", 1, Qt::green),
                          MakeRecord("C", 2, Qt::blue)};
    EXPECT_EQ(scale.sizeHint(), QSize(50, 20));
    scale.SetScale(records);
    EXPECT_EQ(scale.GetScaleCount(), 3);
    EXPECT_EQ(scale.sizeHint(), QSize(50, 80));
    ASSERT_EQ(selected.count(), 1);
    EXPECT_EQ(selected[0][0].value<std::shared_ptr<ScaleItemParameters>>(), records[0]);
    EXPECT_TRUE(records[0]->is_selected);
    EXPECT_EQ(adjust.count(), 0) << "nobody sees it yet";

    scale.resize(200, 80);
    scale.show();
    QList<ScaleItem*> const items = scale.findChildren<ScaleItem*>();
    ASSERT_EQ(items.size(), 3);
    QTest::mouseClick(items[2], Qt::LeftButton);
    ASSERT_EQ(selected.count(), 2);
    EXPECT_EQ(selected[1][0].value<std::shared_ptr<ScaleItemParameters>>(), records[2]);
    EXPECT_FALSE(records[0]->is_selected);
    EXPECT_TRUE(records[2]->is_selected);

    scale.SetScale({records[1], records[2]});
    EXPECT_EQ(selected.count(), 2) << "the selected one stays selected";
    EXPECT_GE(adjust.count(), 1);
    scale.SetScale({});
    EXPECT_EQ(scale.GetScaleCount(), 0);
    EXPECT_EQ(scale.sizeHint(), QSize(50, 20));
    scale.OnSelected(nullptr);
}

QImage DrawItem(ScaleItemParameters const& parameters, int width)
{
    ScaleItem item(nullptr, std::make_shared<ScaleItemParameters>(parameters));
    item.resize(width, 20);
    QImage image(width, 20, QImage::Format_RGB32);
    QPainter painter(&image);
    item.DrawScaleItem(painter, QColor(240, 240, 240));
    return image;
}

int Count(QImage const& image, QColor const& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

TEST(ScaleItem, ShowsThePenOnBothSidesOfTheName)
{
    Bench const bench;
    QColor const pen(255, 0, 200);
    ScaleItemParameters const parameters = *MakeRecord("GR", 0, pen);
    QImage const wide = DrawItem(parameters, 300);
    int left = 0;
    int right = 0;
    for (int x = 0; x < 300; ++x) {
        bool const colored = wide.pixelColor(x, 10) == pen;
        left += colored && x < 150 ? 1 : 0;
        right += colored && x >= 150 ? 1 : 0;
    }
    EXPECT_GT(left, 30);
    EXPECT_GT(right, 30);
    EXPECT_EQ(Count(wide, pen), left + right) << "one row of line, no coloured text";

    ScaleItemParameters selected = parameters;
    selected.is_selected = true;
    EXPECT_NE(DrawItem(selected, 300), wide) << "bold";

    // Too narrow for the name: only the two values are left, whatever the name and pen.
    ScaleItemParameters other = parameters;
    other.header.mnemonic = QStringLiteral("RHOB");
    other.pen = QPen(Qt::green);
    QImage const narrow = DrawItem(parameters, 60);
    EXPECT_EQ(Count(narrow, pen), 0);
    EXPECT_EQ(narrow, DrawItem(other, 60));
    other.scale.lower = 7;
    EXPECT_NE(narrow, DrawItem(other, 60));
}

TEST(ScaleItem, ShowsTheValuesInTheNumberFormatOfTheSettings)
{
    Bench const bench;
    ScaleItemParameters parameters = *MakeRecord("GR", 0, Qt::red);
    parameters.scale = Interval(0.5, 1.5);
    QImage const point = DrawItem(parameters, 60);
    SettingsSingleton::Instance().SetSeparatorSelection(AlternativeInternational);
    EXPECT_NE(DrawItem(parameters, 60), point);
}

TEST(BaseScaleView, PrintsNameAndItemsOneBelowTheOther)
{
    Bench const bench;
    DataViewScale scale;
    scale.SetName(QStringLiteral("View"));
    scale.SetScale({MakeRecord("A", 0, QColor(255, 0, 200)), MakeRecord("B", 1, QColor(0, 180, 0))});
    EXPECT_EQ(scale.findChild<ScaleLabel*>()->toolTip(), QStringLiteral("View"));
    QImage page(320, 150, QImage::Format_RGB32);
    page.fill(Qt::white);
    {
        // Into a part of the page, in coordinates half as large as the page's.
        QPainter painter(&page);
        painter.setViewport(10, 20, 300, 120);
        painter.setWindow(0, 0, 150, 60);
        scale.RenderScalesToPainter(painter, 20, Qt::black);
        EXPECT_EQ(painter.window(), QRect(0, 0, 150, 60));
        EXPECT_EQ(painter.viewport(), QRect(10, 20, 300, 120));
    }
    EXPECT_EQ(page.pixelColor(12, 22), QColor(0x99, 0xB4, 0xD1)) << "the name's ground";
    EXPECT_EQ(page.pixelColor(12, 58), QColor(0x99, 0xB4, 0xD1));
    EXPECT_EQ(page.pixelColor(5, 30), QColor(Qt::white)) << "nothing beside the part";
    auto const rows_of = [&page](QColor const& color) {
        int first = -1;
        int last = -1;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                if (page.pixelColor(x, y) == color) {
                    first = first < 0 ? y : first;
                    last = y;
                }
            }
        }
        return std::pair(first, last);
    };
    auto const [a_first, a_last] = rows_of(QColor(255, 0, 200));
    EXPECT_GE(a_first, 60);
    EXPECT_LT(a_last, 100);
    auto const [b_first, b_last] = rows_of(QColor(0, 180, 0));
    EXPECT_GE(b_first, 100);
    EXPECT_LT(b_last, 140);
}

TEST(DataViewScale, ItsNameStandsOnTheHeaderColourAlsoInAScrollArea)
{
    QAbstractScrollArea area;
    auto* const scale = new DataViewScale(area.viewport());
    scale->resize(200, 40);
    scale->SetName(QStringLiteral("GR"));
    EXPECT_EQ(scale->grab().toImage().pixelColor(3, 3), QColor(0x99, 0xB4, 0xD1));
}

TEST(DepthAxisScale, ShowsTheDepthUnitOfTheMoment)
{
    Bench const bench;
    DepthAxisScale scale;
    EXPECT_EQ(scale.GetScaleCount(), 0);
    EXPECT_EQ(scale.sizeHint(), QSize(50, 20));
    auto* const label = scale.findChild<DepthUnitLabel*>();
    ASSERT_NE(label, nullptr);
    scale.resize(60, 60);
    scale.grab();
    EXPECT_EQ(label->text(), QStringLiteral("[m]"));
    SettingsSingleton::Instance().SetMetricDepth(false);
    scale.grab();
    EXPECT_EQ(label->text(), QStringLiteral("[ft]"));
    scale.SetScale({MakeRecord("A", 0, Qt::red)});
    EXPECT_EQ(scale.GetScaleCount(), 0);
}
} // namespace
