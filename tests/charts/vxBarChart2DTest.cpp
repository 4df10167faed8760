// Bars at their own interval values: each in the step of the axis that
// ends at its value, or in its day on a date axis.
#include "charts/vxBarChart2D.h"

#include <gtest/gtest.h>

#include "axes/vxAxisScaling.h"
#include "axes/vxAxisTestSupport.h"
#include "data/vxDataManager.h"
#include "settings/vxError.h"

namespace Velarix::test {
namespace {

class BarChart2D : public ChartScript {
protected:
    vxBarChart2D& bars() const { return *dynamic_cast<vxBarChart2D*>(chart().getChartType()); }
    std::vector<float> rect(long s, long c) const {
        float r[4];
        if (!bars().getBarRect(s, c, r)) return {};
        return {r[0], r[1], r[2], r[3]};
    }
};

TEST_F(BarChart2D, BarsFillTheStepBeforeTheirValue) {
    ASSERT_EQ(run(L"BarChart2D()\nChartData(1 2 3 5; 10 20 30 15; 1 2 3 5; 12 22 8 5)\n"), 0)
        << message();
    // The axis begins one step before the smallest value; each step holds
    // two bars and a gap of one bar.
    EXPECT_DOUBLE_EQ(axis(0).getScaling()->getMinUC(), 0.0);
    const float step = axis(0).toDC(1) - axis(0).toDC(0);
    EXPECT_NEAR(bars().getBarWidthDC(), step / 3, 1e-3);
    const float gap = bars().getCategoryGapDC();
    EXPECT_NEAR(rect(0, 0)[0], axis(0).toDC(0) + gap / 2, 1e-3);
    EXPECT_NEAR(rect(1, 0)[0], rect(0, 0)[2], 1e-3);
    // The missing 4 leaves its step empty: 5 stands in the step from 4.
    EXPECT_NEAR(rect(0, 3)[0], axis(0).toDC(4) + gap / 2, 1e-3);
    EXPECT_FLOAT_EQ(rect(1, 3)[1], axis(1).toDC(5));
    EXPECT_TRUE(bars().isDrawable(1, 3));
}

TEST_F(BarChart2D, ValuesOutsideAFixedAxisDrawNoBar) {
    ASSERT_EQ(run(L"BarChart2D()\nChartData(1 2 9; 10 20 30)\nScaling(x; linear; 0; 5)\n"), 0)
        << message();
    EXPECT_TRUE(bars().isDrawable(0, 1));
    EXPECT_FALSE(bars().isDrawable(0, 2));
}

TEST_F(BarChart2D, DatesTakeADayEach) {
    ASSERT_EQ(run(L"BarChart2D()\nChartData(2026-11-02 2026-11-05 2026-11-09; 12 30 24)\n"), 0)
        << message();
    const float day = axis(0).toDC(1.0) - axis(0).toDC(0.0);
    ASSERT_GT(day, 0.0f);
    // One bar and one gap a day.
    EXPECT_NEAR(bars().getBarWidthDC(), day / 2, 0.05f * day);
    const double first = chart().getDataManager()->getValue(0, 0, 0);
    EXPECT_NEAR(rect(0, 0)[0], axis(0).toDC(first) + bars().getCategoryGapDC() / 2, 0.5f);
}

}  // namespace
}  // namespace Velarix::test
