// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DataViewScale.h"

#include "ViewBench.h"
#include "display/DepthAxisScale.h"
#include "display/DepthUnitLabel.h"
#include "display/ScaleItem.h"
#include "display/ScaleLabel.h"
#include "model/ScaleItemParameters.h"

#include <QAbstractScrollArea>
#include <QSignalSpy>
#include <QTest>

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
    EXPECT_EQ(scale.sizeHint(), QSize(50, 80));
    EXPECT_TRUE(records[0]->is_selected);
    EXPECT_EQ(adjust.count(), 0) << "nobody sees it yet";

    scale.resize(200, 80);
    scale.show();
    QTest::mouseClick(scale.findChildren<ScaleItem*>().at(2), Qt::LeftButton);
    EXPECT_EQ(selected.count(), 2);
    EXPECT_EQ(selected.last()[0].value<std::shared_ptr<ScaleItemParameters>>(), records[2]);
    EXPECT_FALSE(records[0]->is_selected);
    EXPECT_TRUE(records[2]->is_selected);

    scale.SetScale({records[1], records[2]});
    EXPECT_EQ(selected.count(), 2) << "the selected one stays selected";
    EXPECT_GE(adjust.count(), 1);
    scale.SetScale({});
    EXPECT_EQ(scale.sizeHint(), QSize(50, 20));
    scale.OnSelected(nullptr);
}

QImage DrawItem(ScaleItemParameters const& parameters, int width)
{
    ScaleItem item(nullptr, std::make_shared<ScaleItemParameters>(parameters));
    item.resize(width, 20);
    return pixels::Paint(item.size(), Qt::black,
                         [&](QPainter& painter) { item.DrawScaleItem(painter, QColor(240, 240, 240)); });
}

TEST(ScaleItem, ShowsThePenOnBothSidesOfTheName)
{
    Bench const bench;
    QColor const pen(255, 0, 200);
    ScaleItemParameters const parameters = *MakeRecord("GR", 0, pen);
    QImage const wide = DrawItem(parameters, 300);
    int const left = pixels::Count(wide, pen, QRect(0, 10, 150, 1));
    int const right = pixels::Count(wide, pen, QRect(150, 10, 150, 1));
    EXPECT_GT(left, 30);
    EXPECT_GT(right, 30);
    EXPECT_EQ(pixels::Count(wide, pen), left + right) << "one row of line, no coloured text";

    ScaleItemParameters selected = parameters;
    selected.is_selected = true;
    EXPECT_NE(DrawItem(selected, 300), wide) << "bold";

    // Too narrow for the name: only the two values are left, whatever the name and pen.
    ScaleItemParameters other = parameters;
    other.header.mnemonic = QStringLiteral("RHOB");
    other.pen = QPen(Qt::green);
    QImage const narrow = DrawItem(parameters, 60);
    EXPECT_EQ(pixels::Count(narrow, pen), 0);
    EXPECT_EQ(narrow, DrawItem(other, 60));
    other.scale.lower = 7.5;
    QImage const point = DrawItem(other, 60);
    EXPECT_NE(narrow, point);
    SettingsSingleton::Instance().SetSeparatorSelection(AlternativeInternational);
    EXPECT_NE(DrawItem(other, 60), point) << "a comma in 7,5";
}

TEST(BaseScaleView, PrintsNameAndItemsOneBelowTheOther)
{
    DataViewScale scale;
    scale.SetName(QStringLiteral("View"));
    scale.SetScale({MakeRecord("A", 0, QColor(255, 0, 200)), MakeRecord("B", 1, QColor(0, 180, 0))});
    EXPECT_EQ(scale.findChild<ScaleLabel*>()->toolTip(), QStringLiteral("View"));
    QImage const page = pixels::Paint({320, 150}, Qt::white, [&](QPainter& painter) {
        // Into a part of the page, in coordinates half as large as the page's.
        painter.setViewport(10, 20, 300, 120);
        painter.setWindow(0, 0, 150, 60);
        scale.RenderScalesToPainter(painter, 20, Qt::black);
        EXPECT_EQ(painter.window(), QRect(0, 0, 150, 60));
        EXPECT_EQ(painter.viewport(), QRect(10, 20, 300, 120));
    });
    pixels::Expect(page, QColor(0x99, 0xB4, 0xD1), {{12, 22}, {12, 58}}); // the name's ground
    pixels::Expect(page, Qt::white, {{5, 30}});                           // nothing beside the part
    for (auto const& [color, top] : {std::pair(QColor(255, 0, 200), 60), std::pair(QColor(0, 180, 0), 100)}) {
        EXPECT_GT(pixels::Count(page, color, QRect(0, top, 320, 40)), 0) << top;
        EXPECT_EQ(pixels::Count(page, color), pixels::Count(page, color, QRect(0, top, 320, 40))) << top;
    }
}

TEST(DataViewScale, ItsNameStandsOnTheHeaderColourAlsoInAScrollArea)
{
    QAbstractScrollArea area;
    auto* const scale = new DataViewScale(area.viewport());
    scale->resize(200, 40);
    scale->SetName(QStringLiteral("GR"));
    pixels::Expect(scale->grab().toImage(), QColor(0x99, 0xB4, 0xD1), {{3, 3}});
}

TEST(DepthAxisScale, ShowsTheDepthUnitOfTheMoment)
{
    Bench const bench;
    DepthAxisScale scale;
    for (bool const metric : {true, false}) {
        SettingsSingleton::Instance().SetMetricDepth(metric);
        scale.grab();
        EXPECT_EQ(scale.findChild<DepthUnitLabel*>()->text(), metric ? "[m]" : "[ft]");
    }
    scale.SetScale({MakeRecord("A", 0, Qt::red)});
    EXPECT_EQ(scale.GetScaleCount(), 0);
}
} // namespace
