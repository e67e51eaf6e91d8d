// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/ColorPicker.h"
#include "display/InputStyle.h"
#include "support/NumberFormats.h"
#include "well/BaseTable.h"
#include "well/ColorPickerDelegate.h"
#include "well/DepthEdit.h"
#include "well/DepthMarkerModel.h"
#include "well/PipeComponentModel.h"
#include "well/WellComponentModel.h"
#include "well/WellComponentTypeDelegate.h"
#include "well/WellTrajectoryModel.h"
#include "well/ZoneModel.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

namespace {
constexpr auto FATAL = QAbstractItemModelTester::FailureReportingMode::Fatal;

bool IsMarked(QAbstractItemModel const& model, int row, int column)
{
    return model.index(row, column).data(Qt::BackgroundRole).value<QBrush>().color() ==
           Quorrel::INVALID_INPUT_COLOR;
}

class PlainTable : public BaseTable
{
public:
    using BaseTable::BaseTable;
    void ParsePasteAction() override {}
};

QString Headings(QAbstractItemModel const& model)
{
    QStringList headings;
    for (int column = 0; column < model.columnCount(); ++column) {
        headings << model.headerData(column, Qt::Horizontal).toString();
    }
    return headings.join('|');
}

class TableModels : public testing::Test
{
    NumberFormatScope scope_;
};
} // namespace

TEST_F(TableModels, KeepTheContractOfModels)
{
    ZoneModel zones;
    QAbstractItemModelTester const zone_tester(&zones, FATAL);
    zones.AppendZones({Zone({1, 2}, "a", Qt::red), Zone({3, 4}, "b", Qt::blue), Zone({5, 6}, "c", Qt::blue)});
    zones.setData(zones.index(1, 3), "edited");
    zones.setData(zones.index(1, 4), QColor(Qt::green));
    zones.RemoveRows({0, 2});
    EXPECT_EQ(zones.GetZones(), QList<Zone>({Zone({3, 4}, "edited", Qt::green)}));
    EXPECT_FALSE(zones.removeRows(1, 1));
    EXPECT_FALSE(zones.removeRows(0, 2));
    zones.Clear();

    PipeComponentModel pipes;
    WellComponentModel components;
    DepthMarkerModel markers;
    QAbstractItemModelTester const pipe_tester(&pipes, FATAL);
    QAbstractItemModelTester const component_tester(&components, FATAL);
    QAbstractItemModelTester const marker_tester(&markers, FATAL);
    pipes.AppendComponents({PipeComponent(1, 1, 1, 1, "x"), PipeComponent(1, 1, 1, 1, "y")});
    pipes.RemoveRows({0});
    components.AppendComponents({WellComponent({1, 2}, "p", WellComponentType::Plug)});
    markers.AppendMarkers({DepthMarker(1, "m")});
    EXPECT_EQ(Headings(zones), "Top|Bottom|Length|Description|Color");
    EXPECT_EQ(Headings(pipes), "OD|ID|Weight|Length|Description|Top Depth|Btm Depth");
    EXPECT_EQ(Headings(components), "Top|Bottom|Type|Description");
    EXPECT_EQ(Headings(markers), "Depth|Text");

    WellTrajectoryModel trajectory({WellTrajectoryItem({100, 1, 2}, 99, 3, 4, 1.5F, 5)});
    QAbstractItemModelTester const trajectory_tester(&trajectory, FATAL);
    EXPECT_FALSE(trajectory.setData(trajectory.index(0, 0), "7"));
}

TEST_F(TableModels, AnEditChangesItsCellAlone)
{
    NumberFormatScope::Set({International, false});
    ZoneModel model;
    Interval const odd(1000.0 / 3, 2000.0 / 3); // no depth of two decimals
    model.AppendZones({Zone(odd, "z", Qt::red)});
    // What an editor that was opened and closed hands back.
    for (int const column : {0, 1}) {
        EXPECT_TRUE(model.setData(model.index(0, column), model.index(0, column).data(Qt::EditRole)));
    }
    EXPECT_EQ(model.GetZones()[0].GetDepth(), odd);
    EXPECT_TRUE(model.setData(model.index(0, 0), "1.000,5"));
    EXPECT_EQ(model.GetZones()[0].GetDepth(), Interval(static_cast<double>(1000.5F * 0.3048F), odd.upper));
    EXPECT_FALSE(model.setData(model.index(0, 2), "7")) << "the length is calculated";
    EXPECT_FALSE(model.setData(model.index(0, 4), "no color"));
}

TEST_F(TableModels, WrongNumbersStayMarkedAndAreRefused)
{
    ZoneModel model;
    model.AppendZones({Zone({1, 2}, "a", Qt::red), Zone({3, 4}, "b", Qt::red)});
    for (QString const& wrong : QStringList{"abc", "", "nan", "inf", "1e99", "1 2", "0x10"}) {
        model.setData(model.index(1, 0), wrong);
        EXPECT_TRUE(IsMarked(model, 1, 0)) << wrong.toStdString();
        EXPECT_THAT([&] { (void)model.GetZones(); },
                    testing::ThrowsMessage<std::exception>(
                        "Row 2, \"Top\": Error in number format: Unable to convert to number. Number-text: " +
                        wrong.toStdString() + " "));
        EXPECT_FALSE(IsMarked(model, 0, 0));
    }
    model.setData(model.index(1, 0), "3.5");
    EXPECT_FALSE(model.index(1, 0).data(Qt::BackgroundRole).isValid());
    EXPECT_EQ(model.GetZones()[1].GetDepth(), Interval(3.5, 4));
}

TEST_F(TableModels, PipeComponentsTakeUnknownDiametersAndNoNegativeLength)
{
    PipeComponentModel model;
    model.AppendComponents({PipeComponent(5, 4, 15, 100, "a"), PipeComponent(5, 4, 15, -1, "b"),
                            PipeComponent(-2, std::numeric_limits<float>::infinity(), 15, 1, "c")});
    EXPECT_TRUE(IsMarked(model, 1, 3));
    EXPECT_THAT([&] { (void)model.GetPipeComponents(); },
                testing::ThrowsMessage<std::exception>("Row 2, \"Length\": The number must be at least 0."));
    EXPECT_TRUE(IsMarked(model, 2, 0));
    EXPECT_TRUE(IsMarked(model, 2, 1));
    model.RemoveRows({1, 2});
    model.setData(model.index(0, 0), "");
    model.setData(model.index(0, 1), "-999.25");
    EXPECT_EQ(model.GetPipeComponents(),
              std::vector<PipeComponent>({PipeComponent(-999.25F, -999.25F, 15, 100, "a")}));
    // The calculated depths follow the set depth and the lengths.
    model.SetSetDepth(1000);
    model.setData(model.index(0, 3), "250");
    EXPECT_EQ(model.index(0, 5).data(), "750.00");
    EXPECT_EQ(model.index(0, 6).data(), "1,000.00");
}

TEST_F(TableModels, TheTrajectoryShowsTheUnitsOfTheSettings)
{
    WellTrajectoryItem const item({100, 10, 20}, 90, 30, -40, 1.5F, 50);
    EXPECT_EQ(WellTrajectoryModel({item}).GetRowTexts(0).join('|'),
              "100.00|10.00|20.00|90.00|30.00|-40.00|1.50|50.00");
    NumberFormatScope::Set({US, false});
    WellTrajectoryModel const imperial({item});
    // Times 3.28084, the dogleg severity times 1.016.
    EXPECT_EQ(imperial.GetRowTexts(0).join('|'), "328.08|10.00|20.00|295.28|98.43|-131.23|1.52|164.04");
    EXPECT_TRUE(Headings(imperial).contains("|DLS [deg/100ft]|"));
}

TEST_F(TableModels, AreEditedInTypeAndColor)
{
    WellComponentModel components;
    components.AppendComponents({WellComponent({1, 2}, "", static_cast<WellComponentType>(99))});
    WellComponentTypeDelegate const types;
    auto const type_index = components.index(0, WellComponentModel::TYPE_COLUMN);
    std::unique_ptr<QComboBox> const box(
        qobject_cast<QComboBox*>(types.createEditor(nullptr, {}, type_index)));
    ASSERT_TRUE(box);
    types.setEditorData(box.get(), type_index);
    types.setModelData(box.get(), &components, type_index);
    EXPECT_EQ(components.GetComponents()[0].type, static_cast<WellComponentType>(99)) << "nothing chosen";
    box->setCurrentText("Straddle");
    types.setModelData(box.get(), &components, type_index);
    EXPECT_EQ(components.GetComponents()[0].type, WellComponentType::Straddle);

    ZoneModel zones;
    QColor const half_red(255, 0, 0, 128);
    zones.AppendZones({Zone({1, 2}, "", half_red)});
    ColorPickerDelegate const colors;
    auto const color_index = zones.index(0, ZoneModel::COLOR_COLUMN);
    std::unique_ptr<ColorPicker> const picker(
        qobject_cast<ColorPicker*>(colors.createEditor(nullptr, {}, color_index)));
    ASSERT_TRUE(picker);
    QStyleOptionViewItem option;
    option.rect = QRect(5, 6, 90, 20);
    colors.updateEditorGeometry(picker.get(), option, color_index);
    EXPECT_EQ(picker->geometry(), option.rect) << "over the cell's own swatch";
    colors.setEditorData(picker.get(), color_index);
    EXPECT_EQ(picker->GetColor(), half_red);
    picker->SetColor(Qt::blue);
    colors.setModelData(picker.get(), &zones, color_index);
    EXPECT_EQ(zones.GetZones()[0].GetColor(), QColor(Qt::blue));
}

TEST_F(TableModels, BaseTableReadsMarksAndMissesCells)
{
    NumberFormatScope::Set({International, false});
    PlainTable table({"A", "B"});
    EXPECT_EQ(table.AddRow(), 0);
    bool ok = true;
    QString text;
    EXPECT_THAT(
        [&] { table.ItemToDouble(0, 1, ok, text); },
        testing::ThrowsMessage<std::exception>(testing::StartsWith("No table item in Row: 0, Column: 1.")));

    table.InsertDepthItem(0, 0, 1000.0 / 3);
    table.InsertFloatItem(0, 1, 1.23456F, 2);
    EXPECT_EQ(table.item(0, 1)->text(), "1,23");
    EXPECT_EQ(table.ItemToDouble(0, 1, ok, text), static_cast<double>(1.23456F)) << "exactly, while unedited";
    EXPECT_TRUE(ok);

    for (QString const& wrong : QStringList{"1,2,3", "", "nan", "inf", "x", "1e99"}) {
        ok = true;
        text.clear();
        table.item(0, 1)->setText(wrong);
        EXPECT_EQ(table.ItemToDouble(0, 1, ok, text), 0);
        EXPECT_FALSE(ok);
        EXPECT_EQ(text, "Error in number format: Unable to convert to number. Number-text: " + wrong + " \n");
        EXPECT_EQ(table.item(0, 1)->background().color(), Quorrel::INVALID_INPUT_COLOR);
    }
    table.item(0, 1)->setText("4,5e1");
    EXPECT_EQ(table.ItemToDouble(0, 1, ok, text), 45);
    EXPECT_FALSE(ok) << "an earlier error stays";
    EXPECT_EQ(table.item(0, 1)->background(), QBrush());

    // What is typed is shown, and so copied, as the other numbers, and read as typed.
    for (int const column : {0, 1}) {
        table.setCurrentCell(0, column);
        table.edit(table.currentIndex());
        auto* editor = table.findChild<QLineEdit*>();
        ASSERT_NE(editor, nullptr);
        editor->setText("2000,375");
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // it is closed later
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_EQ(table.item(0, 0)->text(), "2.000,38");
    EXPECT_EQ(table.item(0, 1)->text(), "2.000,38");
    EXPECT_EQ(table.ItemToDepth(0, 0, ok, text), static_cast<double>(2000.375F * 0.3048F));
    EXPECT_EQ(table.ItemToDouble(0, 1, ok, text), 2000.375);
}

TEST_F(TableModels, DepthEditMarksWrongInput)
{
    NumberFormatScope::Set({AlternativeInternational, false});
    DepthEdit edit;
    edit.setText("100 000,5");
    EXPECT_EQ(edit.GetDepth_metric(), static_cast<double>(100000.5F * 0.3048F));
    EXPECT_EQ(edit.styleSheet(), Quorrel::VALID_INPUT_STYLE);
    edit.setText("inf");
    EXPECT_EQ(edit.styleSheet(), Quorrel::INVALID_INPUT_STYLE);
    EXPECT_THROW((void)edit.GetDepth_metric(), std::invalid_argument);
    edit.setText(" ");
    EXPECT_FALSE(edit.GetDepth_metric());
    EXPECT_THROW((void)edit.GetRequiredDepth_metric(), std::invalid_argument);
}
