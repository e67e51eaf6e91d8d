// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "app/kit/Quorrel.h"

#include "support/NumberFormats.h"

#include <QWidget>

namespace {
class NumericKit : public ::testing::Test
{
protected:
    NumberFormatScope scope_{{US, false}};
};

constexpr char16_t narrow_no_break_space = u'\u202F';
} // namespace

TEST_F(NumericKit, FormatsInTheSelectedFormat)
{
    for (auto const& format : NumberFormat::All()) {
        NumberFormatScope::Set(format);
        EXPECT_EQ(Quorrel::FloatTypeToString(1.5F, 2, false), format.Text("1.50"));
        EXPECT_EQ(Quorrel::FloatTypeToString(1234.5F, 2, false), format.Text("1,234.50"));
        EXPECT_EQ(Quorrel::FloatTypeToString(1234.5F, 2, true).toLower(), format.Text("1.23e+03"));
    }
}

TEST_F(NumericKit, NegativePrecisionGivesTheShortestDouble)
{
    EXPECT_EQ(Quorrel::FloatTypeToString(0.5F, -1), "0.5");
    // The single-precision 0.1 widened to double.
    EXPECT_EQ(Quorrel::FloatTypeToString(0.1F, -3), "0.10000000149011612");
    EXPECT_EQ(Quorrel::FloatTypeToString(2.0F, 0), "2");
}

TEST_F(NumericKit, ReadsOnlyTheSelectedFormat)
{
    bool ok = false;
    EXPECT_EQ(Quorrel::StringToFloatType("1,234.5", &ok), 1234.5F);
    EXPECT_TRUE(ok);
    (void)Quorrel::StringToFloatType("1.234,5", &ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(Quorrel::StringToFloatType(QString()), 0.0F);

    NumberFormatScope::Set({International, false});
    EXPECT_EQ(Quorrel::StringToFloatType("1.234,5", &ok), 1234.5F);
    EXPECT_TRUE(ok);
    // "." groups here, so this is another number rather than a fault.
    EXPECT_EQ(Quorrel::StringToFloatType("1.234", &ok), 1234.0F);
    EXPECT_TRUE(ok);
}

TEST_F(NumericKit, CopiedTextParsesOnlyWithBlanksAsGroups)
{
    for (char16_t const blank : {narrow_no_break_space, u'\u00A0'}) {
        QString const copied = QStringLiteral("1") + QChar(blank) + QStringLiteral("234,5");
        QString const cleaned = Quorrel::ParseCopiedText(copied);
        EXPECT_EQ(cleaned, "1 234,5");
        for (auto const selection : {US, International, AlternativeInternational}) {
            NumberFormatScope::Set({selection, false});
            bool ok = false;
            float const number = Quorrel::StringToFloatType(cleaned, &ok);
            EXPECT_EQ(ok, selection == AlternativeInternational) << selection;
            if (ok) {
                EXPECT_EQ(number, 1234.5F);
            }
        }
    }
    EXPECT_EQ(Quorrel::ParseCopiedText("a\tb \n"), "a\tb \n");
}

TEST_F(NumericKit, ConvertsInSinglePrecision)
{
    // Neither is the single-precision number nearest to the exact product.
    EXPECT_EQ(Quorrel::SettingsDepthToMetricDepth(1000.0F), 304.800018310546875F);
    EXPECT_EQ(Quorrel::MetricsDepthToSettingsDepth(1000.0F), 3280.83984375F);
    EXPECT_EQ(Quorrel::ConvertDoglegSeverityToSettingsUnit(2.0F), 2.032F);
    EXPECT_EQ(SettingsSingleton::Instance().GetDepthUnit(), "ft");
    NumberFormatScope::Set({US, true});
    EXPECT_EQ(Quorrel::SettingsDepthToMetricDepth(1000.0F), 1000.0F);
    EXPECT_EQ(Quorrel::MetricsDepthToSettingsDepth(1000.0F), 1000.0F);
    EXPECT_EQ(Quorrel::ConvertDoglegSeverityToSettingsUnit(2.0F), 2.0F);
    EXPECT_EQ(SettingsSingleton::Instance().GetDepthUnit(), "m");

    // The factors of whole vectors are the single-precision constants in double.
    EXPECT_EQ(Quorrel::FEET_TO_METRES, 0.30480000376701355);
    EXPECT_EQ(Quorrel::METRES_TO_FEET, 3.2808399200439453);
}

TEST_F(NumericKit, WindowSizeIsATruncatedFractionOfTheScreen)
{
    QWidget widget;
    Quorrel::available_screen_size_pixels = QSize(1001, 777);
    Quorrel::SetWindowSize(&widget, 0.5F, 0.9F); // 500.5 x 699.3
    EXPECT_EQ(widget.size(), QSize(500, 699));
    Quorrel::available_screen_size_pixels = QSize(-1, -1);
    Quorrel::SetWindowSize(&widget, 0.5F, 0.9F);
    EXPECT_EQ(widget.size(), QSize(0, 0));
}

TEST_F(NumericKit, PercentilesTakeTheSampleAtTheTruncatedIndex)
{
    std::vector<float> const values{50, 10, 40, 20, 30};
    EXPECT_EQ(Quorrel::GetPercentiles(values, 0.5F, 0.99F, 0.0F), std::make_tuple(30.0F, 50.0F, 10.0F));
    EXPECT_EQ(Quorrel::GetPercentiles(values, 0.19F, 0.2F, 0.61F), std::make_tuple(10.0F, 20.0F, 40.0F));
    EXPECT_THROW((void)Quorrel::GetPercentiles({}, 0.0F, 0.0F, 0.0F), std::out_of_range);
    for (float const wrong : {1.0F, -0.5F, std::nanf("")}) {
        EXPECT_THROW((void)Quorrel::GetPercentiles(values, wrong, 0.2F, 0.3F), std::out_of_range);
        EXPECT_THROW((void)Quorrel::GetPercentiles(values, 0.1F, wrong, 0.3F), std::out_of_range);
        EXPECT_THROW((void)Quorrel::GetPercentiles(values, 0.1F, 0.2F, wrong), std::out_of_range);
    }
}

TEST_F(NumericKit, PercentilesOfSamplesWithNaNStayInBounds)
{
    std::vector<float> values(4097, NAN);
    for (std::size_t i = 0; i < values.size(); i += 3) {
        values[i] = static_cast<float>(values.size() - i);
    }
    auto const [low, middle, high] = Quorrel::GetPercentiles(values, 0.0F, 0.3F, 0.999F);
    EXPECT_EQ(low, 2.0F); // at index 4095, the last multiple of 3
    EXPECT_TRUE(std::isfinite(middle));
    EXPECT_TRUE(std::isnan(high));
}
