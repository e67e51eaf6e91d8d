// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/DepthShiftStretch.h"

#include "app/kit/SettingsSingleton.h"

#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace {
class DepthCorrectionForm : public ::testing::Test
{
protected:
    void TearDown() override
    {
        settings.SetMetricDepth(false);
        settings.SetSeparatorSelection(US);
    }

    static QLineEdit* Edit(DepthShiftStretch& form, char const* name)
    {
        return form.findChild<QLineEdit*>(QLatin1String(name));
    }
    static bool HasLabel(DepthShiftStretch const& form, QString const& text)
    {
        for (auto const* label : form.findChildren<QLabel*>()) {
            if (label->text() == text) {
                return true;
            }
        }
        return false;
    }

    SettingsSingleton& settings = SettingsSingleton::Instance();
};
} // namespace

TEST_F(DepthCorrectionForm, ShowsTheShiftInTheSettingsUnit)
{
    settings.SetMetricDepth(true);
    DepthShiftStretch metric(1.5F, 1.25F);
    EXPECT_EQ(Edit(metric, "shift_edit")->text(), "1.50");
    EXPECT_EQ(Edit(metric, "stretch_edit")->text(), "1.2500");
    EXPECT_TRUE(HasLabel(metric, "m"));
    EXPECT_EQ(metric.GetDepthShift_metric(), 1.5F);

    settings.SetMetricDepth(false);
    DepthShiftStretch imperial(1.5F, 1.0F);
    EXPECT_EQ(Edit(imperial, "shift_edit")->text(), "4.92126"); // 1.5 * 3.28084
    EXPECT_TRUE(HasLabel(imperial, "ft"));
    EXPECT_NEAR(imperial.GetDepthShift_metric(), 1.5F, 3e-7F);
    Edit(imperial, "shift_edit")->setText("-100");
    EXPECT_EQ(imperial.GetDepthShift_metric(), -30.48F);
}

TEST_F(DepthCorrectionForm, UntouchedValuesComeBackExactly)
{
    for (bool const metric : {true, false}) {
        settings.SetMetricDepth(metric);
        for (auto const selection : {US, International, AlternativeInternational}) {
            settings.SetSeparatorSelection(selection);
            for (float const stretch : {1.0F, 1.00012207F, 0.99999994F, 12345.678F}) {
                EXPECT_EQ(DepthShiftStretch(0.0F, stretch).GetDepthStretchFactor(), stretch);
            }
            for (float const shift : {0.0F, -0.03F, 1234.5678F}) {
                // There and back through feet costs the factors' rounding.
                float const tolerance = metric ? 0.0F : std::abs(shift) * 4e-7F;
                EXPECT_NEAR(DepthShiftStretch(shift, 1.0F).GetDepthShift_metric(), shift, tolerance);
            }
        }
    }
}

TEST_F(DepthCorrectionForm, ReadsTheSelectedNumberFormat)
{
    settings.SetMetricDepth(true);
    settings.SetSeparatorSelection(International);
    DepthShiftStretch form(0.0F, 1.0F);
    Edit(form, "shift_edit")->setText("1.234,5");
    Edit(form, "stretch_edit")->setText("1,002");
    EXPECT_EQ(form.GetDepthShift_metric(), 1234.5F);
    EXPECT_EQ(form.GetDepthStretchFactor(), 1.002F);
}

TEST_F(DepthCorrectionForm, ResetShowsTheNeutralCorrection)
{
    DepthShiftStretch form(3.0F, 1.1F);
    form.OnReset();
    EXPECT_EQ(form.GetDepthShift_metric(), 0.0F);
    EXPECT_EQ(form.GetDepthStretchFactor(), 1.0F);
}

TEST_F(DepthCorrectionForm, TextThatIsNoNumberChangesNothing)
{
    settings.SetMetricDepth(true);
    DepthShiftStretch form(3.0F, 1.1F);
    Edit(form, "shift_edit")->setText("three");
    Edit(form, "stretch_edit")->setText("");
    EXPECT_EQ(form.GetDepthShift_metric(), 3.0F);
    EXPECT_EQ(form.GetDepthStretchFactor(), 1.1F);
    for (char const* const text : {"nan", "inf", "1e300"}) {
        Edit(form, "shift_edit")->setText(text);
        Edit(form, "stretch_edit")->setText(text);
        EXPECT_EQ(form.GetDepthShift_metric(), 3.0F) << text;
        EXPECT_EQ(form.GetDepthStretchFactor(), 1.1F) << text;
    }
}
