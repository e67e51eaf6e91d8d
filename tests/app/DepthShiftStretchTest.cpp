// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/DepthShiftStretch.h"

#include "support/NumberFormats.h"
#include "support/Texts.h"

#include <QLabel>
#include <QLineEdit>

namespace {
class DepthCorrectionForm : public ::testing::Test
{
protected:
    static QLineEdit* Edit(DepthShiftStretch& form, char const* name)
    {
        return form.findChild<QLineEdit*>(QLatin1String(name));
    }
    static bool HasLabel(DepthShiftStretch const& form, QString const& text)
    {
        return Texts(form.findChildren<QLabel*>(), &QLabel::text).contains(text);
    }

    NumberFormatScope scope_;
};
} // namespace

TEST_F(DepthCorrectionForm, ShowsAndReadsTheSettingsUnitAndNumberFormat)
{
    DepthShiftStretch metric(1.5F, 1.25F);
    EXPECT_EQ(Edit(metric, "shift_edit")->text(), "1.50");
    EXPECT_EQ(Edit(metric, "stretch_edit")->text(), "1.2500");
    EXPECT_TRUE(HasLabel(metric, "m"));
    EXPECT_EQ(metric.GetDepthShift_metric(), 1.5F);

    NumberFormatScope::Set({US, false});
    DepthShiftStretch imperial(1.5F, 1.0F);
    EXPECT_EQ(Edit(imperial, "shift_edit")->text(), "4.92126"); // 1.5 * 3.28084
    EXPECT_TRUE(HasLabel(imperial, "ft"));
    EXPECT_NEAR(imperial.GetDepthShift_metric(), 1.5F, 3e-7F);
    Edit(imperial, "shift_edit")->setText("-100");
    EXPECT_EQ(imperial.GetDepthShift_metric(), -30.48F);

    NumberFormatScope::Set({International, true});
    Edit(metric, "shift_edit")->setText("1.234,5");
    Edit(metric, "stretch_edit")->setText("1,002");
    EXPECT_EQ(metric.GetDepthShift_metric(), 1234.5F);
    EXPECT_EQ(metric.GetDepthStretchFactor(), 1.002F);
}

TEST_F(DepthCorrectionForm, UntouchedValuesComeBackExactly)
{
    for (auto const& format : NumberFormat::All()) {
        NumberFormatScope::Set(format);
        for (float const stretch : {1.0F, 1.00012207F, 0.99999994F, 12345.678F}) {
            EXPECT_EQ(DepthShiftStretch(0.0F, stretch).GetDepthStretchFactor(), stretch);
        }
        for (float const shift : {0.0F, -0.03F, 1234.5678F}) {
            // There and back through feet costs the factors' rounding.
            float const tolerance = format.is_metric ? 0.0F : std::abs(shift) * 4e-7F;
            EXPECT_NEAR(DepthShiftStretch(shift, 1.0F).GetDepthShift_metric(), shift, tolerance);
        }
    }
}

TEST_F(DepthCorrectionForm, TextThatIsNoNumberChangesNothingAndResetIsNeutral)
{
    DepthShiftStretch form(3.0F, 1.1F);
    for (char const* const text : {"three", "", "nan", "inf", "1e300"}) {
        Edit(form, "shift_edit")->setText(text);
        Edit(form, "stretch_edit")->setText(text);
        EXPECT_EQ(form.GetDepthShift_metric(), 3.0F) << text;
        EXPECT_EQ(form.GetDepthStretchFactor(), 1.1F) << text;
    }
    form.OnReset();
    EXPECT_EQ(form.GetDepthShift_metric(), 0.0F);
    EXPECT_EQ(form.GetDepthStretchFactor(), 1.0F);
}
