// The rectangles of a chart: the plot fitted against its axes' labels in
// three rounds, a fixed plot, round charts in a square, and frames too
// small to draw in.
#include <gtest/gtest.h>

#include "axes/vxAxisTestSupport.h"

namespace Velarix::test {
namespace {

using Rect = std::vector<float>;

Rect rectOf(const float* r) {
    return {r[0], r[1], r[2], r[3]};
}

TEST_F(ChartScript, PlotMakesRoomForTheAxesLabels) {
    // The axes' lines, marks and labels fit the graph, the frame less its
    // margins of 10, and touch it on the left and at the bottom.
    for (const wchar_t* data : {L"ChartData(1 2 3)", L"ChartData(1000000 2500000 3000000)"}) {
        ASSERT_EQ(run(L"BarChart()\n" + std::wstring(data) + L"\n"), 0) << message();
        const Rect graph = rectOf(chart().getGraphBounds());
        float outer[4];
        ASSERT_TRUE(chart().getAxisManager()->getOuterBounds(outer));
        EXPECT_NEAR(outer[0], 10.0f, 1.0f) << data;
        EXPECT_NEAR(outer[3], 290.0f, 1.0f) << data;
        EXPECT_GE(outer[1], 9.5f);
        EXPECT_LE(outer[2], 390.5f);
        // The graph is the union of the plot and the axes.
        EXPECT_NEAR(graph[0], outer[0], 1e-3);
        EXPECT_NEAR(graph[3], outer[3], 1e-3);
    }
    // Wider labels take more of the plot's width.
    ASSERT_EQ(run(L"BarChart()\nChartData(1 2 3)\n"), 0);
    const float narrow = chart().getPlotBounds()[0];
    ASSERT_EQ(run(L"BarChart()\nChartData(1000000 2500000 3000000)\n"), 0);
    EXPECT_GT(chart().getPlotBounds()[0], narrow + 20.0f);
}

TEST_F(ChartScript, FixedPlotKeepsItsPlaceAndGrowsTheGraph) {
    ASSERT_EQ(run(L"BarChart()\nChartData(1 2 3)\n", L"OpenChart(60; 40; 300; 200; 1)"), 0)
        << message();
    EXPECT_EQ(rectOf(chart().getPlotBounds()), Rect({60, 40, 360, 240}));
    const Rect graph = rectOf(chart().getGraphBounds());
    EXPECT_LT(graph[0], 50.0f);  // the value labels stand left of the plot
    EXPECT_GT(graph[3], 250.0f);
}

TEST_F(ChartScript, RoundChartsStandInASquare) {
    // A graph of 300 by 201: the square's side is the even whole number
    // below, centred, its corners rounded half away from zero.
    ASSERT_EQ(run(L"PieChart()\nChartData(1 2 3)\n", L"OpenChart(0; 0; 320; 221)"), 0) << message();
    EXPECT_EQ(rectOf(chart().getPlotBounds()), Rect({60, 11, 260, 211}));
    ASSERT_EQ(run(L"PieChart()\nChartData(1 2 3)\n", L"OpenChart(0; 0; 320; 222.6)"), 0);
    EXPECT_EQ(rectOf(chart().getPlotBounds()), Rect({59, 10, 261, 212}));
    // An oval may fill the graph.
    ASSERT_EQ(run(L"PieChart(oval)\nChartData(1 2 3)\n", L"OpenChart(0; 0; 320; 221)"), 0)
        << message();
    EXPECT_EQ(rectOf(chart().getPlotBounds()), Rect({10, 10, 310, 211}));
}

TEST_F(ChartScript, FramesTooSmallAndOptionsBeforeTheChart) {
    // The graph needs 20 units each way, the plot 10.
    EXPECT_EQ(run(L"BarChart()\nChartData(1 2)\n", L"OpenChart(0; 0; 39; 300)"), 2200);
    EXPECT_NE(message().find(L"Frame too small to draw chart."), std::wstring::npos);
    EXPECT_NE(message().find(L"vxChart/isGraphAreaTooSmall/1"), std::wstring::npos);
    EXPECT_EQ(run(L"BarChart()\nChartData(1000000 2)\n", L"OpenChart(0; 0; 60; 300)"), 2200);
    EXPECT_NE(message().find(L"vxChart/isPlotAreaTooSmall/1"), std::wstring::npos);
    EXPECT_EQ(run(L"BarChart()\nChartData(1 2)\n", L"OpenChart(0; 0; 5; 5; 1)"), 2200);
    // A pie has no axes: a graph of 20 by 20 holds it.
    EXPECT_EQ(run(L"PieChart()\nChartData(1 2)\n", L"OpenChart(0; 0; 40; 40)"), 0) << message();
    EXPECT_EQ(run(L"PieChart()\nChartData(1 2)\n", L"OpenChart(0; 0; 40; 39)"), 2200);
    // Options of a chart before its chart function.
    run(L"BarChartOptions(1)\nBarChart()\nChartData(1 2)\n");
    ASSERT_TRUE(chart().isError());
    EXPECT_EQ(chart().getError()->getErrorCode(), 1242);
}

}  // namespace
}  // namespace Velarix::test
