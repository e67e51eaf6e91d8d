// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/DisplayedIntervalDialog.h"

#include "ViewBench.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

class DisplayedIntervalDialogTest : public view_bench::BenchTest
{
protected:
    static void Type(DisplayedIntervalDialog const& dialog, QString const& top, QString const& bottom)
    {
        dialog.findChild<QLineEdit*>("le_top")->setText(top);
        dialog.findChild<QLineEdit*>("le_bottom")->setText(bottom);
    }
    static QStringList Texts(DisplayedIntervalDialog const& dialog)
    {
        return {dialog.findChild<QLineEdit*>("le_top")->text(),
                dialog.findChild<QLineEdit*>("le_bottom")->text()};
    }
    static bool OkEnabled(DisplayedIntervalDialog const& dialog)
    {
        return dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled();
    }
};

TEST_F(DisplayedIntervalDialogTest, ShowsAndReadsTheSettingsUnitAndNumberFormat)
{
    DisplayedIntervalDialog dialog(true, {1000.5, 2500});
    EXPECT_EQ(Texts(dialog), QStringList({"1,000.50", "2,500.00"}));
    EXPECT_TRUE(dialog.GetOverrideAutomaticInterval());
    EXPECT_EQ(dialog.GetTotalDisplayedInterval(), Interval(1000.5, 2500));
    Type(dialog, "12.25", "400");
    EXPECT_EQ(dialog.GetTotalDisplayedInterval(), Interval(12.25, 400));

    NumberFormatScope::Set({International, false});
    DisplayedIntervalDialog in_feet(true, {304.8, 3048});
    EXPECT_EQ(Texts(in_feet), QStringList({"1.000,00", "10.000,00"}));
    Type(in_feet, "100,5", "2.000");
    EXPECT_NEAR(in_feet.GetTotalDisplayedInterval().lower, 30.6324, 1e-5);
    EXPECT_NEAR(in_feet.GetTotalDisplayedInterval().upper, 609.6, 1e-4);
}

TEST_F(DisplayedIntervalDialogTest, TheEditsAreOffWithoutOverrideAndOkWantsAnAscendingInterval)
{
    DisplayedIntervalDialog dialog(false, {0, 5000});
    auto* group = dialog.findChild<QGroupBox*>();
    auto* override_box = dialog.findChild<QCheckBox*>("cb_override");
    EXPECT_FALSE(group->isEnabled());
    EXPECT_FALSE(dialog.GetOverrideAutomaticInterval());

    override_box->click();
    EXPECT_TRUE(group->isEnabled());
    EXPECT_TRUE(dialog.GetOverrideAutomaticInterval());
    EXPECT_TRUE(OkEnabled(dialog));
    std::pair<char const*, char const*> const bad[] = {
        {"abc", "100"}, {"10", ""}, {"200", "100"}, {"100", "100"}};
    for (auto const& [top, bottom] : bad) {
        Type(dialog, top, bottom);
        EXPECT_FALSE(OkEnabled(dialog)) << top << " to " << bottom;
    }
    override_box->click();
    EXPECT_FALSE(group->isEnabled());
    EXPECT_TRUE(OkEnabled(dialog));
}
