// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ViewOrder.h"

using namespace Quorrel;

namespace {
/// "name:size" of each view, in order.
QString Text(std::vector<ViewSlot> const& views)
{
    QStringList text;
    for (ViewSlot const& view : views) {
        text.append(QString("%1:%2").arg(view.name).arg(view.size));
    }
    return text.join(' ');
}
} // namespace

TEST(ViewOrderTest, NamedViewsStandFirstInTheOrderOfTheNamesAndTakeTheirSizesAlong)
{
    std::vector<ViewSlot> const views{{0, "Depth", 40, 38},
                                      {1, "GR", 200, {}},
                                      {2, "CCL", 300, {}},
                                      {3, "TEMP", 0, {}},
                                      {4, "Zones", 0, 60}};
    for (auto const& [names, expected] : std::vector<std::pair<QList<QString>, QString>>{
             {{"CCL", "Depth", "GR"}, "CCL:300 Depth:40 GR:200 TEMP:0 Zones:0"},
             // A view without a size takes its share of 900 for each name, or the width it asks for.
             {{"TEMP", "Zones", "GR"}, "TEMP:300 Zones:60 GR:200 Depth:40 CCL:300"},
             {{"nothing", "TEMP"}, "TEMP:450 Depth:40 GR:200 CCL:300 Zones:0"},
             {{}, "Depth:40 GR:200 CCL:300 TEMP:0 Zones:0"},
             {{"GR", "Depth", "GR"}, "GR:200 Depth:40 CCL:300 TEMP:0 Zones:0"},
         }) {
        EXPECT_EQ(Text(ArrangeViews(views, names, 900)), expected) << names.join(',').toStdString();
    }
    std::vector<ViewSlot> const moved = ArrangeViews(views, {"TEMP"}, 900);
    EXPECT_EQ(moved[0].index, 3);
    EXPECT_EQ(moved[1].index, 0);
}

TEST(ViewOrderTest, ADraggedViewTakesThePlaceOfTheFirstViewWhoseMiddleThePointerPassed)
{
    // Views of 100 px from x = 0: middles at 50, 150, 250 and 350. View 2 is dragged.
    std::vector<ViewPlace> const places{{0, 100}, {100, 100}, {200, 100}, {300, 100}};
    for (auto const& [pointer, target] :
         {std::pair(250.0, -1), std::pair(150.0, -1), std::pair(149.9, 1), std::pair(49.0, 0),
          std::pair(-20.0, 0), std::pair(350.0, -1), std::pair(350.1, 3), std::pair(2000.0, 3)}) {
        EXPECT_EQ(FindMoveTarget(places, 2, pointer).value_or(-1), target) << pointer;
    }
}

TEST(ViewOrderTest, HiddenViewsAreNoTargetsAndOddWidthsRoundDown)
{
    std::vector<ViewPlace> const places{{0, 101, true}, {101, 101, false}, {101, 101, true}};
    EXPECT_EQ(FindMoveTarget(places, 0, 151), std::nullopt); // 101 + 101 / 2 = 151
    EXPECT_EQ(FindMoveTarget(places, 0, 152), std::optional(2));
    // At the same x the pointer has to be before the middle.
    std::vector<ViewPlace> const stacked{{0, 100}, {0, 100}};
    EXPECT_EQ(FindMoveTarget(stacked, 1, 60), std::nullopt);
    EXPECT_EQ(FindMoveTarget(stacked, 1, 40), std::optional(0));
}

TEST(ViewOrderTest, UpToFiveViewsAreChosenByPriority)
{
    for (auto const& [names, expected] : std::vector<std::pair<QList<QString>, QList<int>>>{
             // By priority SPIN, GR, CCL, TEMP, and then what stands at index 4.
             {{"Depth", "TEMP", "GR", "X", "Y", "SPIN", "CCL"}, {5, 2, 6, 1, 4}},
             {{"Depth", "A", "B", "C", "D", "E"}, {0, 1, 2, 3, 4}},
             {{"TEMP", "QP", "YCAL", "XCAL", "LSPD", "ILS", "CFB"}, {6, 5, 4, 3, 2}},
             {{"Depth", "spin"}, {0, 1}},
             {{}, {}},
         }) {
        EXPECT_EQ(ChooseFirstViews(names), expected) << names.join(',').toStdString();
    }
}
