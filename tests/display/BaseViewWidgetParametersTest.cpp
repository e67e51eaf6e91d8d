// SPDX-FileCopyrightText: The Quorrel authors
// SPDX-License-Identifier: MIT

#include "display/BaseViewWidgetParameters.h"

#include "app/kit/Globals.h"

class BaseViewWidgetParametersTest : public testing::Test
{
protected:
    void SetUp() override { Quorrel::DPI_Y = 100; } // at 100 dpi 5 cm an inch are half a millimetre a pixel
    void TearDown() override { Quorrel::DPI_Y = dpi_before_; }

    void Check(Interval const& view, double top, double bottom, int height = 1000)
    {
        BaseViewWidgetParameters parameters;
        parameters.SetTotalDisplayedDepthInterval({0, 5000});
        parameters.SetVisibleHeightPixels(height);
        parameters.SetViewDepthMetric(view);
        parameters.CheckZoomLevel();
        Interval const checked = parameters.GetViewDepthMetric();
        EXPECT_NEAR(checked.lower, top, 1e-4) << view.lower << " to " << view.upper;
        EXPECT_NEAR(checked.upper, bottom, 1e-4) << view.lower << " to " << view.upper;
    }

private:
    double dpi_before_ = Quorrel::DPI_Y;
};

TEST_F(BaseViewWidgetParametersTest, AViewInsideANewTotalStaysAndAnyOtherBecomesTheTotal)
{
    for (Interval const& view : {Interval(1200, 1300), Interval(900, 1300), Interval(1200, 2001),
                                 Interval(10, 20), Interval(), Interval(INFINITY, INFINITY)}) {
        BaseViewWidgetParameters parameters;
        parameters.SetViewDepthMetric(view);
        parameters.SetTotalDisplayedDepthInterval({1000, 2000});
        EXPECT_EQ(parameters.GetViewDepthMetric(),
                  view.lower == 1200 && view.upper == 1300 ? view : Interval(1000, 2000))
            << view.lower << " to " << view.upper;
    }
}

TEST_F(BaseViewWidgetParametersTest, TheViewIsForcedInsideTheTotalEachEndByItself)
{
    Check({1000, 2000}, 1000, 2000);
    Check({-500, 2000}, 0, 2000);
    Check({4000, 9000}, 4000, 5000);
    Check({-20, -10}, 0, 5000);
}

TEST_F(BaseViewWidgetParametersTest, ThousandRowsNeverShowLessThanHalfAMetre)
{
    Check({1000, 1000.5}, 1000, 1000.5);
    Check({1000, 1000.1}, 999.8, 1000.3);
    Check({1000, 1000}, 999.75, 1000.25);
    // The widened view may stick out of the total at either end.
    Check({0, 0.1}, -0.2, 0.3);
    // Single precision steps by 1/2048 here: the centre 4999.95 becomes 10239898 / 2048.
    Check({4999.9, 5000}, 4999.7001953125, 5000.2001953125);
    // Half the rows, half the length.
    Check({1000, 1000.1}, 999.925, 1000.175, 500);
}

TEST_F(BaseViewWidgetParametersTest, WithoutHeightOrScreenThereIsNoLimit)
{
    Check({1000, 1000.1}, 1000, 1000.1, 0);
    Quorrel::DPI_Y = 0;
    Check({1000, 1000.1}, 1000, 1000.1);
}
