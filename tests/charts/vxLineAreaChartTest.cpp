// Line and area charts: awkward data through the whole command, the
// legend markers and label places each chart kind starts with, and where
// the reference value comes from.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "axes/vxAxisTestSupport.h"
#include "charts/vxBaseChart.h"
#include "support/vxSVGChecks.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

// A random walk of n values, one decimal each.
std::string randomWalk(int n, unsigned seed) {
    std::mt19937 random(seed);
    std::normal_distribution<double> step(0.0, 1.0);
    std::string data;
    double v = 0.0;
    for (int i = 0; i < n; ++i) {
        v += step(random);
        data += (i ? " " : "") + std::to_string(std::round(v * 10) / 10);
    }
    return data;
}

struct BadData {
    const char* name;
    const char* chart;
    std::string data;
    int error;  // the code the run stops with; 0 when it draws
    int paths;  // the paths of the chart (axes are off)
};

TEST(LineAreaBadInput, AwkwardDataDrawsOrNamesItsError) {
    const std::string folder = makeTempFolder("line-bad-input");
    const BadData cases[] = {
        {"every value missing", "LineChart()", "null null null", 2010, 0},
        {"every area value missing", "AreaChart()", "null null; null null", 2010, 0},
        // One point draws neither a line nor an area: nothing to join.
        {"a single point", "LineChart()", "5", 0, 0},
        {"a single point of an area", "AreaChart()", "5", 0, 0},
        {"a single stepped point reaches the frame", "LineChart()\nLineStyle(1; step)", "5", 0, 1},
        {"a point between gaps", "LineChart()", "null 5 null 1 2", 0, 1},
        {"all values zero", "LineChart(symbol)", "0 0 0", 0, 1},
        {"all zero, stacked and proportional", "AreaChart(stacked + proportional)", "0 0; 0 0", 0,
         4},
        {"huge, tiny and plain", "LineChart()", "1e300 1e-300 5", 0, 1},
        {"huge of both signs stacked", "AreaChart(stacked)", "1e300 -1e300; -1e300 1e300", 0, 4},
        {"both ends of the doubles", "LineChart()", "1e308 -1e308", 2100, 0},
        {"a smooth line of two points", "LineChart()\nLineStyle(1; smooth)", "1 2", 0, 1},
        {"an area of one valid pair", "AreaChart2D(; 1)", "1 2; null 3", 0, 0},
        {"an area doubling back", "AreaChart2D(; 2)", "1 3 2 0; 5 6 7 8", 0, 2},
        {"10,000 points", "LineChart()", randomWalk(10000, 3), 0, 1},
    };
    for (const BadData& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string svg = folder + "/a.svg";
        std::filesystem::remove(svg);
        const RunResult r =
            runVelarix(std::string("OpenDrawing(400; 300)\n") + c.chart + "\nChartData(" + c.data +
                           ")\nAxisOptions(all; none)\nCloseDrawing()\n"
                           "SaveAsSVGFile(\"a.svg\"; replace)\n",
                       {"--base", folder});
        if (c.error != 0) {
            EXPECT_EQ(r.status, 1);
            EXPECT_EQ(r.err.rfind(std::to_string(c.error) + ":", 0), 0u) << r.err;
            EXPECT_FALSE(std::filesystem::exists(svg));
            continue;
        }
        ASSERT_EQ(r.status, 0) << r.err;
        const std::string text = readFile(svg);
        expectOnlyFiniteCoordinates(text);
        EXPECT_EQ(countOf(text, "<path"), size_t(c.paths));
    }
}

class LineAreaDefaults : public ChartScript {};

// Bits of the legend marker: 1 area, 2 symbol, 4 line.
TEST_F(LineAreaDefaults, LegendMarkersAndLabelPlacesFollowTheChartKind) {
    const struct {
        const wchar_t* chart;
        short marker;
        short labelLocation;
    } cases[] = {
        {L"LineChart()", 4, 3},
        {L"LineChart(symbol)", 6, 3},
        // Lines don't stack: the flag is masked away.
        {L"LineChart(stacked)", 4, 3},
        {L"LineChart2D(symbol)", 6, 3},
        {L"AreaChart()", 1, 3},
        {L"AreaChart(symbol + stacked)", 3, 5},
        {L"AreaChart()\nAreaChartOptions(1)", 5, 3},
        {L"AreaChart2D(symbol)\nAreaChartOptions(1)", 7, 3},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.chart, c.chart + wcslen(c.chart)));
        ASSERT_EQ(run(std::wstring(c.chart) + L"\nChartData(1 2 3; 4 5 6)"), 0) << message();
        const vxBaseChart* type = chart().getChartType();
        ASSERT_NE(type, nullptr);
        EXPECT_EQ(type->getDefaultLegendMarkerType(), c.marker);
        EXPECT_EQ(type->getDefaultLabelLocation(), c.labelLocation);
    }
}

// The reference value reaches a line chart through the first argument of
// ScatterChartOptions only; LineChartOptions is read and has no effect.
TEST_F(LineAreaDefaults, OnlyScatterOptionsMoveTheLinesBase) {
    ASSERT_EQ(run(L"LineChart()\nChartData(1 2 3)\nLineChartOptions(2)"), 0) << message();
    EXPECT_FALSE(chart().getChartType()->getParameters().hasReferenceValue());
    ASSERT_EQ(run(L"LineChart()\nChartData(1 2 3)\nScatterChartOptions(1)"), 0) << message();
    EXPECT_TRUE(chart().getChartType()->getParameters().hasReferenceValue());
    EXPECT_EQ(chart().getChartType()->getParameters().getReferenceValue(), 1.0);
}

}  // namespace
}  // namespace Velarix::test
