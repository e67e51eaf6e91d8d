// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseScaleDialog.h"

#include "ViewBench.h"
#include "display/ChannelsScaleWidget.h"
#include "display/ScaleEditTarget.h"
#include "model/ScaleItemParameters.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {
using namespace view_bench;

using Records = std::vector<std::shared_ptr<ScaleItemParameters>>;

/// Three curves, of which the second is selected.
class Target final : public ScaleEditTarget
{
public:
    Target()
    {
        QStringList const units{"M", "API", "m"};
        for (int i = 0; i < 3; ++i) {
            auto record = std::make_shared<ScaleItemParameters>();
            record->header = HeaderRow(QStringLiteral("C%1").arg(i), units[i], QString(), QString());
            record->index = i;
            record->scale = Interval(i, i + 10);
            record->is_selected = i == 1;
            records.push_back(record);
        }
    }

    [[nodiscard]] Records GetScales() const override { return records; }
    void SetScales(Records scales) override
    {
        ++set_count;
        set = std::move(scales);
    }
    [[nodiscard]] std::vector<Interval> GetMinMaxInInterval(float top, float bottom) const override
    {
        EXPECT_LT(top, -1e30F);
        EXPECT_GT(bottom, 1e30F);
        return {Interval(3, 97), Interval(-37, -12), Interval()};
    }
    [[nodiscard]] std::vector<Interval> GetMinMaxInVisibleInterval() const override
    {
        return {Interval(7, 7), Interval(0, 100), Interval()};
    }

    Records records;
    Records set;
    int set_count = 0;
};

class ScaleDialogTest : public view_bench::BenchTest
{
protected:
    QLineEdit* Edit(char const* name) { return dialog.findChild<QLineEdit*>(name); }
    void Choose(int curve) { dialog.findChild<QComboBox*>("cb_curves")->setCurrentIndex(curve); }
    void Type(char const* name, QString const& text)
    {
        Edit(name)->selectAll();
        QTest::keyClicks(Edit(name), text);
    }
    void Click(char const* name) { dialog.findChild<QPushButton*>(name)->click(); }
    QPushButton* Button(QDialogButtonBox::StandardButton which)
    {
        return dialog.findChild<QDialogButtonBox*>()->button(which);
    }
    /// What stands in the two edits.
    [[nodiscard]] QStringList Ends() { return {Edit("le_left")->text(), Edit("le_right")->text()}; }
    /// The scales that Apply hands over.
    std::vector<Interval> Apply()
    {
        Button(QDialogButtonBox::Apply)->click();
        std::vector<Interval> scales;
        for (auto const& record : target.set) {
            scales.push_back(record->scale);
        }
        return scales;
    }

    Target target;
    BaseScaleDialog dialog{nullptr, &target};
};

TEST_F(ScaleDialogTest, EditsCopiesUntilApplied)
{
    EXPECT_EQ(Ends(), (QStringList{"1", "11"})) << "begins with the selected curve";
    Type("le_left", "-2.5");
    EXPECT_EQ(target.set_count, 0);
    EXPECT_EQ(Apply(), (std::vector{Interval(0, 10), Interval(-2.5, 11), Interval(2, 12)}));
    EXPECT_EQ(target.set_count, 1);
    EXPECT_NE(target.set[1], target.records[1]) << "a copy, so that the view sees what differs";
    Button(QDialogButtonBox::Cancel)->click();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    Button(QDialogButtonBox::Ok)->click();
    EXPECT_EQ(target.set_count, 2);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(ScaleDialogTest, ChangingTheCurveStoresTheOneLeft)
{
    Type("le_right", "77");
    Choose(2);
    EXPECT_EQ(Ends(), (QStringList{"2", "12"}));
    Type("le_left", "abc");
    EXPECT_FALSE(Button(QDialogButtonBox::Ok)->isEnabled());
    Choose(1);
    EXPECT_EQ(Ends(), (QStringList{"1", "77"}));
    EXPECT_TRUE(Button(QDialogButtonBox::Ok)->isEnabled()) << "the faulty text is gone";
    EXPECT_EQ(Apply(), (std::vector{Interval(0, 10), Interval(1, 77), Interval(2, 12)}));
}

TEST_F(ScaleDialogTest, FaultyInputDisablesAndMarks)
{
    auto* const left = Edit("le_left");
    QString const good = left->styleSheet();
    std::vector<QPushButton*> const applying{Button(QDialogButtonBox::Ok), Button(QDialogButtonBox::Apply),
                                             dialog.findChild<QPushButton*>("pb_apply_to_all"),
                                             dialog.findChild<QPushButton*>("pb_apply_to_similar")};
    for (char const* const text : {"", "x", "1.2.3", "nan", "inf", "1e99"}) {
        left->setText(text);
        EXPECT_NE(left->styleSheet(), good) << text;
        for (QPushButton const* const button : applying) {
            EXPECT_FALSE(button->isEnabled()) << text;
        }
    }
    EXPECT_TRUE(Button(QDialogButtonBox::Cancel)->isEnabled());
    Type("le_right", "5");
    EXPECT_FALSE(applying[0]->isEnabled()) << "the other edit is still faulty";
    Type("le_left", "9");
    EXPECT_TRUE(applying[0]->isEnabled());
    EXPECT_EQ(left->styleSheet(), good);
    EXPECT_EQ(Apply()[1], Interval(9, 5));
}

TEST_F(ScaleDialogTest, AppliesToAllOrToTheSameUnit)
{
    Choose(0);
    Type("le_left", "40");
    Type("le_right", "50");
    Click("pb_apply_to_similar");
    EXPECT_EQ(target.set_count, 0) << "the view is not touched yet";
    EXPECT_EQ(Apply(), (std::vector{Interval(40, 50), Interval(1, 11), Interval(40, 50)})) << "M is m";
    Choose(2);
    Type("le_right", "60");
    Click("pb_apply_to_similar");
    EXPECT_EQ(Apply(), (std::vector{Interval(40, 60), Interval(1, 11), Interval(40, 60)})) << "m is M";
    Click("pb_apply_to_all");
    EXPECT_EQ(Apply(), std::vector(3, Interval(40, 60)));
}

TEST_F(ScaleDialogTest, FitsTheCurrentCurve)
{
    Click("pb_entire_interval");
    EXPECT_EQ(Ends(), (QStringList{"-40", "-10"}));
    Click("pb_visible_interval");
    EXPECT_EQ(Ends(), (QStringList{"0", "100"}));
    Choose(0);
    Type("le_left", "x");
    Click("pb_visible_interval");
    EXPECT_EQ(Ends(), (QStringList{"6", "8"}));
    EXPECT_TRUE(Button(QDialogButtonBox::Ok)->isEnabled());
    Choose(2);
    Click("pb_entire_interval");
    EXPECT_EQ(Ends(), (QStringList{"2", "12"})) << "no values, no change";
}

TEST_F(ScaleDialogTest, ReadsAndShowsEachNumberFormat)
{
    for (auto const& [selection, typed, shown] :
         {std::tuple(US, "1234.5", "1,234.5"), std::tuple(International, "1234,5", "1.234,5"),
          std::tuple(AlternativeInternational, "1234,5", "1\u202f234,5")}) {
        SettingsSingleton::Instance().SetSeparatorSelection(selection);
        Choose(1);
        Type("le_right", typed);
        Choose(0);
        Choose(1);
        EXPECT_EQ(Ends()[1], shown);
        EXPECT_EQ(Apply()[1], Interval(1, 1234.5));
    }
}

TEST(ScaleDialog, KeepsDigitsThatAreNotShownAndOpensWithoutCurves)
{
    Bench const bench;
    Target target;
    target.records[1]->scale = Interval(1234567.25, 0.123456789012);
    BaseScaleDialog(nullptr, &target).OnApply();
    EXPECT_EQ(target.set[1]->scale, Interval(1234567.25, 0.123456789012));
    target.records.clear();
    BaseScaleDialog dialog(nullptr, &target);
    dialog.findChild<ChannelsScaleWidget*>()->OnEntireInterval();
    dialog.OnAccept();
    EXPECT_TRUE(target.set.empty());
}

} // namespace
