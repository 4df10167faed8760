// The fit calls of a script, in the manager and through the command.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "overlays/vxCurveFittingData.h"
#include "overlays/vxCurveFittingLineStyle.h"
#include "overlays/vxCurveFittingManager.h"
#include "support/vxTestRun.h"
#include "vxCurveFittingTestSupport.h"

namespace Velarix::test {
namespace {

using Item = vxCurveFittingItem;

// A call of the group: series, type, then whole numbers, -1 for an
// argument left empty.
void call(vxCurveFittingManager& manager, long function, long series, short type,
          const std::vector<short>& more = {}) {
    vxAssign a;
    a.setFunction(function);
    a.addLong(series);
    a.addShort(type);
    for (short value : more) value < 0 ? a.addVoid() : a.addShort(value);
    manager.assign(a);
}

TEST(CurveFittingManager, KeepsOneRequestPerSeriesAndType) {
    vxUserSettings settings(L"", L"", 1, 1);
    vxCurveFittingManager manager(&settings);
    call(manager, kCurveFitting, 1, Item::kLinear);
    call(manager, kCurveFitting, 1, Item::kLinear);
    call(manager, kCurveFitting, 1, Item::kExponential);
    call(manager, kCurveFitting, 2, 3);
    EXPECT_EQ(manager.getNumOfRequests(), 3);
    call(manager, kCurveFitting, 1, Item::kNone);
    EXPECT_EQ(manager.getNumOfRequests(), 1);
    call(manager, kCurveFitting, 0, Item::kNone);
    EXPECT_EQ(manager.getNumOfRequests(), 0);
    EXPECT_FALSE(manager.isError());
}

TEST(CurveFittingManager, RefusesTheStackedSeriesAndNumbersThatAreNoType) {
    vxUserSettings settings(L"", L"", 1, 1);
    for (auto [series, type] : {std::pair<long, short>{-1, 1}, {1, -1}}) {
        vxCurveFittingManager manager(&settings);
        call(manager, kCurveFitting, series, type);
        ASSERT_TRUE(manager.isError());
        EXPECT_EQ(manager.getError()->getErrorCode(), vxErrScript::kOutOfRange);
    }
}

// Options given for all series before a fit reach it through the default;
// options of one type after it reach only that type.
TEST(CurveFittingManager, NewFitsCopyTheDefaultAndCallsReachTheirType) {
    FitData data({1, 2, 3, 4}, {2, 4, 6, 8});
    vxCurveFittingManager manager(&data.settings);
    call(manager, kCurveFittingOptions, 0, Item::kNone, {0, 1, 0, 50});
    call(manager, kCurveFitting, 1, Item::kLinear);
    call(manager, kCurveFitting, 1, 2);
    call(manager, kCurveFittingOptions, 1, 2, {-1, -1, 1});
    manager.setUp(data.data);
    ASSERT_FALSE(manager.isError());
    ASSERT_EQ(manager.getNumOfItems(), 2);
    const Item* line = manager.getItem(0);
    const Item* parabola = manager.getItem(1);
    EXPECT_TRUE(line->doExtrapolate());
    EXPECT_FALSE(line->doForceThruZero());
    EXPECT_EQ(line->getNumOfCurvePointsAsked(), 50);
    EXPECT_TRUE(parabola->doExtrapolate());
    EXPECT_TRUE(parabola->doForceThruZero());
    EXPECT_EQ(parabola->getNumOfCoefficients(), 2);
    EXPECT_EQ(manager.getItem(2), nullptr);
}

TEST(CurveFittingManager, ExtrapolatedCurvesWidenTheValueAxis) {
    FitData data({1, 2, 3, 4}, {2, 4, 6, 8});
    vxCurveFittingManager manager(&data.settings);
    call(manager, kCurveFitting, 1, Item::kLinear);
    manager.setUp(data.data);
    std::vector<double> min = {0, 2}, max = {10, 8};
    manager.getYLimits(min, max);
    EXPECT_EQ(max[1], 8.0);  // not extrapolating: the data's span

    vxCurveFittingManager extrapolating(&data.settings);
    call(extrapolating, kCurveFittingOptions, 0, Item::kNone, {0, 1});
    call(extrapolating, kCurveFitting, 1, Item::kLinear);
    extrapolating.setUp(data.data);
    extrapolating.getYLimits(min, max);
    EXPECT_NEAR(min[1], 0.0, 1e-12);  // y = 2x over the x axis's 0 to 10
    EXPECT_NEAR(max[1], 20.0, 1e-12);
    EXPECT_EQ(max[0], 10.0);
}

TEST(CurveFittingManager, StoresItsResultsUnderTheChart) {
    FitData data({0, 1}, {1, 3});
    vxCurveFittingManager manager(&data.settings);
    call(manager, kCurveFitting, 1, Item::kLinear);
    manager.setUp(data.data);
    vxCurveFittingData store;
    manager.addResults(store, 4);
    EXPECT_DOUBLE_EQ(store.getNumOfCoefficients(4, 1, 1), 2.0);
    EXPECT_NEAR(store.getCoefficient(4, 1, 1, 0), 1.0, 1e-12);
    EXPECT_NEAR(store.getCoefficient(4, 1, 1, 1), 2.0, 1e-12);
    EXPECT_EQ(store.getCoefficient(4, 1, 1, 2), 0.0);
}

// ---- through the command ---------------------------------------------------

std::string chart(const std::string& data, const std::string& calls) {
    return "OpenDrawing(400; 300)\nBarChart2D()\nChartData(" + data + ")\n" + calls +
           "\nCloseDrawing()\n";
}

TEST(CurveFittingRun, PrintsTheFitsOfEverySeries) {
    RunResult run = runVelarix(chart("0 1 2 3; 1 3 5 7; 0 1 2 3; 2 2 2 2",
                                     "CurveFitting(all; linear)\nCurveFitting(1; exp)"),
                               {"--fits"});
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out,
              "chart=0 series=1 type=1 r2=1 c0=1 c1=2\n"
              "chart=0 series=1 type=-3 r2=0.929108842214 c0=1.23516760929 c1=0.634855607093\n"
              "chart=0 series=2 type=1 r2=1 c0=2 c1=0\n");
    // "none" takes one series out of "all"; no fit, no lines.
    run = runVelarix(chart("0 1 2 3; 1 3 5 7; 0 1 2 3; 2 2 2 2",
                           "CurveFitting(all; linear)\nCurveFitting(2; none)"),
                     {"--fits"});
    EXPECT_EQ(run.out, "chart=0 series=1 type=1 r2=1 c0=1 c1=2\n");
    run = runVelarix(chart("0 1 2 3; 1 3 5 7", ""), {"--fits"});
    EXPECT_EQ(run.out, "");
}

struct BadRun {
    const char* calls;
    const char* message;
};

TEST(CurveFittingRun, BadDataStopsTheChartWithItsMessage) {
    const std::vector<BadRun> runs = {
        {"CurveFitting(1; 3)", "Curve fitting: Not enough data."},
        {"CurveFitting(1; exp)", "Invalid logarithmic value."},
        {"CurveFitting(1; log)", "Invalid logarithmic value."},
        {"CurveFitting(2; linear)", "Division by zero."},
        {"CurveFitting(stacked; linear)", "out of range"},
    };
    for (const BadRun& bad : runs) {
        SCOPED_TRACE(bad.calls);
        const RunResult run =
            runVelarix(chart("0 1 2; 0 1 4; 5 5 5; 1 2 3", bad.calls) + "SaveAsSVGFile(\"x.svg\")",
                       {"--fits", "--base", makeTempFolder("fit-bad")});
        EXPECT_EQ(run.status, 1);
        EXPECT_NE(run.err.find(bad.message), std::string::npos) << run.err;
        EXPECT_EQ(run.out, "");
    }
}

size_t count(const std::string& text, const std::string& what) {
    size_t n = 0;
    for (size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++n;
    return n;
}

// The curve is one path in the line style; shadows and marks follow the
// chart and the symbol style.
TEST(CurveFittingRun, DrawsTheCurveItsShadowAndItsMarks) {
    const std::string folder = makeTempFolder("fit-draw");
    const auto svg = [&](const std::string& flags, const std::string& calls) {
        const std::string script = "OpenDrawing(400; 300)\nBarChart(" + flags +
                                   ")\nChartData(3 5 7 9)\n" + calls +
                                   "\nCloseDrawing()\nSaveAsSVGFile(\"a.svg\"; replace)\n";
        const RunResult run = runVelarix(script, {"--base", folder});
        EXPECT_EQ(run.status, 0) << run.err;
        return readFile(folder + "/a.svg");
    };
    const std::string plain = svg("", "");
    const std::string fitted = svg("", "CurveFitting(1; 2)\nCurveFittingLineStyle(1; 2; 3; red)");
    EXPECT_EQ(count(fitted, "<path"), count(plain, "<path") + 1);
    EXPECT_NE(fitted.find("stroke: #ff3300; stroke-width: 3;"), std::string::npos);
    const std::string shadowed = svg("shadow", "CurveFitting(1; 2)");
    EXPECT_EQ(count(shadowed, "<path"), count(svg("shadow", ""), "<path") + 2);
    const std::string marked =
        svg("", "CurveFitting(1; 2)\nCurveFittingSymbolStyle(1; 2; square; 5)");
    EXPECT_GE(count(marked, "<path") + count(marked, "<rect"), count(fitted, "<path") + 4);
}

}  // namespace
}  // namespace Velarix::test
