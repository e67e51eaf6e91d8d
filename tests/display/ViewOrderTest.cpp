// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/ViewOrder.h"

#include <gtest/gtest.h>

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
    struct Case
    {
        QList<QString> names;
        char const* expected;
    };
    Case const cases[] = {
        {{"CCL", "Depth", "GR"}, "CCL:300 Depth:40 GR:200 TEMP:0 Zones:0"},
        // A view without a size takes its share of 900 for each name, or the width it asks for.
        {{"TEMP", "Zones", "GR"}, "TEMP:300 Zones:60 GR:200 Depth:40 CCL:300"},
        {{"TEMP"}, "TEMP:900 Depth:40 GR:200 CCL:300 Zones:0"},
        {{"nothing", "TEMP"}, "TEMP:450 Depth:40 GR:200 CCL:300 Zones:0"},
        {{}, "Depth:40 GR:200 CCL:300 TEMP:0 Zones:0"},
        {{"GR", "Depth", "GR"}, "GR:200 Depth:40 CCL:300 TEMP:0 Zones:0"},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(Text(ArrangeViews(views, c.names, 900)), QString(c.expected))
            << c.names.join(',').toStdString();
    }
    std::vector<ViewSlot> const moved = ArrangeViews(views, {"TEMP"}, 900);
    EXPECT_EQ(moved[0].index, 3);
    EXPECT_EQ(moved[1].index, 0);
}

TEST(ViewOrderTest, ADraggedViewTakesThePlaceOfTheFirstViewWhoseMiddleThePointerPassed)
{
    // Views of 100 px from x = 0: middles at 50, 150, 250 and 350. View 2 is dragged.
    std::vector<ViewPlace> const places{{0, 100}, {100, 100}, {200, 100}, {300, 100}};
    struct Case
    {
        double pointer;
        std::optional<int> expected;
    };
    Case const cases[] = {
        {250, {}}, {150, {}}, {149.9, 1}, {50, 1}, {49, 0}, {-20, 0}, {350, {}}, {350.1, 3}, {2000, 3},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(FindMoveTarget(places, 2, c.pointer), c.expected) << c.pointer;
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
    struct Case
    {
        QList<QString> names;
        QList<int> expected;
    };
    Case const cases[] = {
        // By priority SPIN, GR, CCL, TEMP, and then what stands at index 4.
        {{"Depth", "TEMP", "GR", "X", "Y", "SPIN", "CCL"}, {5, 2, 6, 1, 4}},
        {{"Depth", "A", "B", "C", "D", "E"}, {0, 1, 2, 3, 4}},
        {{"Depth", "A"}, {0, 1}},
        {{"TEMP", "QP", "YCAL", "XCAL", "LSPD", "ILS", "CFB"}, {6, 5, 4, 3, 2}},
        {{"Depth", "spin"}, {0, 1}},
        {{}, {}},
    };
    for (Case const& c : cases) {
        EXPECT_EQ(ChooseFirstViews(c.names), c.expected) << c.names.join(',').toStdString();
    }
}
