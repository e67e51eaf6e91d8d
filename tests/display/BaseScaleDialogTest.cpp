// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseScaleDialog.h"

#include "ViewBench.h"
#include "display/ChannelsScaleWidget.h"
#include "display/ScaleEditTarget.h"
#include "model/ScaleItemParameters.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {
using namespace view_bench;

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

    [[nodiscard]] std::vector<std::shared_ptr<ScaleItemParameters>> GetScales() const override
    {
        return records;
    }
    void SetScales(std::vector<std::shared_ptr<ScaleItemParameters>> scales) override
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

    std::vector<std::shared_ptr<ScaleItemParameters>> records;
    std::vector<std::shared_ptr<ScaleItemParameters>> set;
    int set_count = 0;
};

class ScaleDialogTest : public ::testing::Test
{
protected:
    ScaleDialogTest() : dialog(nullptr, &target) {}

    template <typename Widget>
    Widget* Find(char const* name)
    {
        auto* const widget = dialog.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    void Type(char const* name, QString const& text)
    {
        auto* const edit = Find<QLineEdit>(name);
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
    void Click(char const* name) { Find<QPushButton>(name)->click(); }
    QPushButton* Button(QDialogButtonBox::StandardButton which)
    {
        return dialog.findChild<QDialogButtonBox*>()->button(which);
    }
    [[nodiscard]] QString Left() { return Find<QLineEdit>("le_left")->text(); }
    [[nodiscard]] QString Right() { return Find<QLineEdit>("le_right")->text(); }

    Bench bench;
    Target target;
    BaseScaleDialog dialog;
};

TEST_F(ScaleDialogTest, EditsCopiesUntilApplied)
{
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Scales Dialog"));
    EXPECT_EQ(Find<QComboBox>("cb_curves")->currentIndex(), 1) << "begins with the selected curve";
    EXPECT_EQ(Left(), QStringLiteral("1"));
    EXPECT_EQ(Right(), QStringLiteral("11"));
    Type("le_left", QStringLiteral("-2.5"));
    EXPECT_EQ(target.records[1]->scale, Interval(1, 11));
    EXPECT_EQ(target.set_count, 0);
    Button(QDialogButtonBox::Apply)->click();
    EXPECT_EQ(target.set_count, 1);
    ASSERT_EQ(target.set.size(), 3U);
    EXPECT_EQ(target.set[1]->scale, Interval(-2.5, 11));
    EXPECT_EQ(target.set[0]->scale, Interval(0, 10));
    EXPECT_NE(target.set[1], target.records[1]) << "a copy, so that the view sees what differs";
    Button(QDialogButtonBox::Cancel)->click();
    EXPECT_EQ(target.set_count, 1);
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    Button(QDialogButtonBox::Ok)->click();
    EXPECT_EQ(target.set_count, 2);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(ScaleDialogTest, ChangingTheCurveStoresTheOneLeft)
{
    Type("le_right", QStringLiteral("77"));
    Find<QComboBox>("cb_curves")->setCurrentIndex(2);
    EXPECT_EQ(Left(), QStringLiteral("2"));
    Type("le_left", QStringLiteral("abc"));
    EXPECT_FALSE(Button(QDialogButtonBox::Ok)->isEnabled());
    Find<QComboBox>("cb_curves")->setCurrentIndex(1);
    EXPECT_EQ(Right(), QStringLiteral("77"));
    EXPECT_TRUE(Button(QDialogButtonBox::Ok)->isEnabled()) << "the faulty text is gone";
    Button(QDialogButtonBox::Apply)->click();
    EXPECT_EQ(target.set[1]->scale, Interval(1, 77));
    EXPECT_EQ(target.set[2]->scale, Interval(2, 12)) << "text that is no number is not stored";
}

TEST_F(ScaleDialogTest, FaultyInputDisablesAndMarks)
{
    QString const good = Find<QLineEdit>("le_left")->styleSheet();
    EXPECT_EQ(good, QStringLiteral("QLineEdit { background: ;}"));
    for (char const* const text : {"", "x", "1.2.3", "nan", "inf", "1e99"}) {
        Find<QLineEdit>("le_left")->setText(QString::fromLatin1(text));
        EXPECT_NE(Find<QLineEdit>("le_left")->styleSheet(), good) << text;
        EXPECT_FALSE(Button(QDialogButtonBox::Ok)->isEnabled()) << text;
        EXPECT_FALSE(Button(QDialogButtonBox::Apply)->isEnabled()) << text;
        EXPECT_FALSE(Find<QPushButton>("pb_apply_to_all")->isEnabled()) << text;
        EXPECT_FALSE(Find<QPushButton>("pb_apply_to_similar")->isEnabled()) << text;
    }
    EXPECT_TRUE(Button(QDialogButtonBox::Cancel)->isEnabled());
    Type("le_right", QStringLiteral("5"));
    EXPECT_FALSE(Button(QDialogButtonBox::Ok)->isEnabled()) << "the other edit is still faulty";
    Type("le_left", QStringLiteral("9"));
    EXPECT_TRUE(Button(QDialogButtonBox::Ok)->isEnabled());
    EXPECT_EQ(Find<QLineEdit>("le_left")->styleSheet(), good);
    Button(QDialogButtonBox::Apply)->click();
    EXPECT_EQ(target.set[1]->scale, Interval(9, 5));
}

TEST_F(ScaleDialogTest, AppliesToAllOrToTheSameUnit)
{
    Find<QComboBox>("cb_curves")->setCurrentIndex(0);
    Type("le_left", QStringLiteral("40"));
    Type("le_right", QStringLiteral("50"));
    Click("pb_apply_to_similar");
    EXPECT_EQ(target.set_count, 0) << "the view is not touched yet";
    Button(QDialogButtonBox::Apply)->click();
    EXPECT_EQ(target.set[0]->scale, Interval(40, 50));
    EXPECT_EQ(target.set[1]->scale, Interval(1, 11)) << "another unit";
    EXPECT_EQ(target.set[2]->scale, Interval(40, 50)) << "M and m are the same";
    Click("pb_apply_to_all");
    Button(QDialogButtonBox::Apply)->click();
    EXPECT_EQ(target.set[1]->scale, Interval(40, 50));
}

TEST_F(ScaleDialogTest, FitsTheCurrentCurve)
{
    Click("pb_entire_interval");
    EXPECT_EQ(Left(), QStringLiteral("-40"));
    EXPECT_EQ(Right(), QStringLiteral("-10"));
    Click("pb_visible_interval");
    EXPECT_EQ(Left(), QStringLiteral("0"));
    EXPECT_EQ(Right(), QStringLiteral("100"));
    Find<QComboBox>("cb_curves")->setCurrentIndex(0);
    Type("le_left", QStringLiteral("x"));
    Click("pb_visible_interval");
    EXPECT_EQ(Left(), QStringLiteral("6"));
    EXPECT_EQ(Right(), QStringLiteral("8"));
    EXPECT_TRUE(Button(QDialogButtonBox::Ok)->isEnabled());
    Find<QComboBox>("cb_curves")->setCurrentIndex(2);
    Click("pb_entire_interval");
    EXPECT_EQ(Left(), QStringLiteral("2")) << "no values, no change";
}

TEST(ScaleDialog, ReadsAndShowsEachNumberFormat)
{
    struct Format
    {
        Separator_Selection selection;
        char const* typed;
        QString shown;
    };
    for (Format const& format :
         {Format{US, "1234.5", QStringLiteral("1,234.5")},
          Format{International, "1234,5", QStringLiteral("1.234,5")},
          Format{AlternativeInternational, "1234,5", QStringLiteral("1\u202f234,5")}}) {
        Bench const bench;
        SettingsSingleton::Instance().SetSeparatorSelection(format.selection);
        Target target;
        BaseScaleDialog dialog(nullptr, &target);
        auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("le_right"));
        edit->selectAll();
        QTest::keyClicks(edit, QString::fromLatin1(format.typed));
        auto* const box = dialog.findChild<QComboBox*>();
        box->setCurrentIndex(0);
        box->setCurrentIndex(1);
        EXPECT_EQ(edit->text(), format.shown);
        dialog.OnApply();
        EXPECT_EQ(target.set[1]->scale, Interval(1, 1234.5));
    }
}

TEST(ScaleDialog, KeepsDigitsThatAreNotShown)
{
    Bench const bench;
    Target target;
    target.records[1]->scale = Interval(1234567.25, 0.123456789012);
    BaseScaleDialog dialog(nullptr, &target);
    dialog.OnApply();
    EXPECT_EQ(target.set[1]->scale, Interval(1234567.25, 0.123456789012));
}

TEST(ScaleDialog, OpensOnAViewWithoutCurves)
{
    Bench const bench;
    Target target;
    target.records.clear();
    BaseScaleDialog dialog(nullptr, &target);
    dialog.findChild<ChannelsScaleWidget*>()->OnEntireInterval();
    dialog.OnAccept();
    EXPECT_TRUE(target.set.empty());
}
} // namespace
