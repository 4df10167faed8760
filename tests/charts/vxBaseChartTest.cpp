// What every chart class reads through the base: items in device units,
// interval widths, runs of valid values, the reference value on a
// logarithmic axis, clip rectangles and label texts.
#include "charts/vxBaseChart.h"

#include <gtest/gtest.h>

#include "axes/vxAxisScaling.h"
#include "axes/vxAxisTestSupport.h"
#include "settings/vxError.h"

namespace Velarix::test {
namespace {

class TestChart : public vxBaseChart {
public:
    TestChart() : vxBaseChart(L"vxTestChart") {}
    void setUp() override {}
    void setUpLayers(vxLayerManager*) override {}
};

class BaseChart : public ChartScript {
protected:
    // Runs the calls and gives the test chart the chart's managers.
    void layOut(const std::wstring& calls) {
        ASSERT_EQ(run(calls), 0) << message();
        base.getParameters().copyFrom(chart().getParameters());
        base.setManagers(chart().getDataManager(), chart().getAxisManager(), nullptr);
    }
    TestChart base;
};

TEST_F(BaseChart, ItemsInDeviceUnitsFollowTheAxes) {
    layOut(L"BarChart()\nChartData(10 20 null 40)\n");
    float point[2];
    ASSERT_TRUE(base.getPointDC(0, 1, 1, point));
    EXPECT_FLOAT_EQ(point[0], axis(0).toDC(1.5));
    EXPECT_FLOAT_EQ(point[1], axis(1).toDC(20));
    EXPECT_FLOAT_EQ(base.getIntervalWidthDC(), axis(0).toDC(1.5) - axis(0).toDC(0.5));
    EXPECT_FLOAT_EQ(base.getIntervalAxisLengthDC(),
                    chart().getPlotBounds()[2] - chart().getPlotBounds()[0]);
    EXPECT_EQ(base.getNumOfValidValues(0, 0), 4);  // positions are all valid
    EXPECT_EQ(base.getIntervalAxis(), &axis(0));
    EXPECT_TRUE(base.isInAxisRange(40));
    EXPECT_FALSE(base.isInAxisRange(1e6));

    // A horizontal chart turns the item: its value runs along x.
    layOut(L"BarChart(horizontal)\nChartData(10 20 30 40)\n");
    ASSERT_TRUE(base.getPointDC(0, 1, 1, point));
    EXPECT_FLOAT_EQ(point[0], axis(0).toDC(20));
    EXPECT_FLOAT_EQ(point[1], axis(1).toDC(1.5));
    EXPECT_EQ(base.getIntervalAxis(), &axis(1));
}

TEST_F(BaseChart, BarsOnALogarithmicAxisStartOnIt) {
    layOut(L"BarChart()\nChartData(3 97)\nScaling(y; log)\n");
    ASSERT_TRUE(base.getParameters().hasReferenceValue());
    base.setUpReferenceValue();
    // The axis starts at its first tick, 2 (data 3 to 97, ticks by 10).
    EXPECT_DOUBLE_EQ(base.getParameters().getReferenceValue(), axis(1).getScaling()->getMinUC());
    EXPECT_GE(base.getParameters().getReferenceValue(), 1e-10);
}

TEST(vxBaseChart, ClipRectanglesGrowByStrokesDepthAndShadows) {
    TestChart chart;
    const float plot[4] = {10, 10, 100, 100};
    const float limit[4] = {0, 0, 105, 105};
    chart.setPlotBounds(plot);
    chart.setLimitBounds(limit);
    chart.getDepthInfo().setDepth(5, 5);
    chart.setUpClipRect(2);
    // Grown by 2 and 1 everywhere, by the depth to the left and down.
    EXPECT_EQ(std::vector<float>(chart.getExtendedPlotBounds(), chart.getExtendedPlotBounds() + 4),
              (std::vector<float>{2, 7, 103, 105}));
    struct Case {
        float shadow[4];
        std::vector<float> clip;
    } cases[] = {
        {{0, 0, 3, 3}, {5, 10, 105, 105}},   // moved by the positive offset
        {{-2, 0, 4, 0}, {0, 3, 105, 105}},   // grown by the larger side
        {{-2, -1, 0, 0}, {0, 5, 101, 103}},  // moved by the negative offset
    };
    for (const Case& c : cases) {
        chart.setUpShadowClipRect(c.shadow);
        EXPECT_EQ(std::vector<float>(chart.getShadowClipRect(), chart.getShadowClipRect() + 4),
                  c.clip);
    }
}

TEST(vxBaseChart, LabelTextsInTheirFormats) {
    TestChart chart;
    EXPECT_EQ(chart.formatLabelString(1, 2.5, L"|f1| kg"), L"2.5 kg");
    EXPECT_EQ(chart.formatLabelString(1, 3.5, L"DEFAULT_FORMAT"), L"3.5");
    EXPECT_EQ(chart.formatLabelString(2, 12, L"n = |u|"), L"n = 12");
    EXPECT_EQ(chart.formatLabelString(3, 2453010, L"DEFAULT_FORMAT"), L"2004/1/5");
    EXPECT_EQ(chart.formatLabelString(3, 2453010, L"D.M."), L"5.1.");
    EXPECT_EQ(chart.formatLabelString(4, 1, L"as written"), L"as written");
    EXPECT_EQ(chart.formatLabelString(1, 1, L""), L"");
    EXPECT_FALSE(chart.isError());
    EXPECT_EQ(chart.formatLabelString(1, 1, L"|q|"), L"");
    ASSERT_TRUE(chart.isError());
    EXPECT_EQ(chart.getError()->getErrorCode(), 2001);
    EXPECT_EQ(chart.getError()->getLocation(), L"vxTestChart/formatLabelString/1");
}

}  // namespace
}  // namespace Velarix::test
