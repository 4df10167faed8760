// The grid manager: which grids and directions a call reaches, the
// location of a grid, and the grids of laid-out bar charts on their
// layers, flat, with depth and horizontal.
#include "furniture/vxGridManager.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <utility>
#include <vector>

#include "axes/vxAxisTestSupport.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "furniture/vxGrid.h"
#include "furniture/vxGridFrame.h"
#include "furniture/vxGridLines.h"
#include "graphics/vxLineArray2DOLD.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix::test {
namespace {

using Targets = std::set<std::pair<long, short>>;

Targets targetsOf(short a, short b) {
    Targets out;
    for (const auto& t : vxGridManager::selectTargets(a, b)) out.insert({t.plane, t.direction});
    return out;
}

void listCall(vxAssign& a, long function, short first, short second) {
    a.setFunction(function);
    a.addShort(first);
    a.addShort(second);
    a.addFloatArray({255, 0, 0});
    a.addFloatArray({0, 0, 255});
}

void expectNear(const std::vector<float>& actual, const std::vector<float>& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (size_t i = 0; i < actual.size(); ++i) EXPECT_NEAR(actual[i], expected[i], 1e-3) << i;
}

TEST(GridManager, AxisPairsSelectGridsAndDirections) {
    // Named pairs: the plane of the two axes, direction 0 when the first
    // is the plane's first axis.
    EXPECT_EQ(targetsOf(1, 2), (Targets{{1, 0}}));
    EXPECT_EQ(targetsOf(2, 1), (Targets{{1, 1}}));
    EXPECT_EQ(targetsOf(1, 3), (Targets{{2, 0}}));
    EXPECT_EQ(targetsOf(3, 1), (Targets{{2, 1}}));
    EXPECT_EQ(targetsOf(2, 3), (Targets{{3, 0}}));
    EXPECT_EQ(targetsOf(3, 2), (Targets{{3, 1}}));
    // "all" pairs with every other axis.
    EXPECT_EQ(targetsOf(1, 0), (Targets{{1, 0}, {2, 0}}));
    EXPECT_EQ(targetsOf(0, 2), (Targets{{1, 0}, {3, 1}}));
    EXPECT_EQ(targetsOf(0, 0), (Targets{{1, 0}, {1, 1}, {2, 0}, {2, 1}, {3, 0}, {3, 1}}));
    for (short a = 1; a <= 3; ++a) EXPECT_TRUE(targetsOf(a, a).empty()) << a;
    EXPECT_EQ(vxGridManager::selectPlanes(0), (std::vector<long>{1, 2, 3}));
    EXPECT_EQ(vxGridManager::selectPlanes(3), (std::vector<long>{3}));
}

TEST(GridManager, OneListServesEveryTargetAndAnAxisTwiceIsAnError) {
    vxGridManager manager(nullptr, nullptr);
    ASSERT_EQ(manager.getNumOfGrids(), 3);
    vxAssign all;
    listCall(all, kMajorGridLineColors, 0, 0);
    manager.assign(all);
    ASSERT_FALSE(manager.isError());
    for (long plane = 1; plane <= 3; ++plane) {
        for (short direction = 0; direction < 2; ++direction) {
            const vxGridLines* lines = manager.getGrid(plane)->getLines(1, direction);
            ASSERT_NE(lines, nullptr) << plane << direction;
            EXPECT_EQ(lines->getNumOfLinePaints(), 2);
            EXPECT_EQ(lines->getGridDirection(), direction + 1);
        }
        EXPECT_EQ(manager.getGrid(plane)->getLines(2, 0), nullptr);
    }

    vxAssign twice;
    listCall(twice, kMinorGridStripeColors, 2, 2);
    manager.assign(twice);
    ASSERT_TRUE(manager.isError());
    EXPECT_EQ(manager.getError()->getErrorCode(), 1300);
    EXPECT_EQ(manager.getError()->getLocation(), L"vxGridManager/assign/1");
}

TEST(GridManager, GridsWithPartsStandAtTheBackUntilPlacedNoneKeepsTheParts) {
    vxGridManager manager(nullptr, nullptr);
    vxGrid& xy = *manager.getGrid(1);
    EXPECT_EQ(xy.getGridLocation(), vxGrid::kNone);
    vxAssign stripes;
    listCall(stripes, kMajorGridStripeColors, 1, 2);
    manager.assign(stripes);
    EXPECT_EQ(xy.getGridLocation(), vxGrid::kBack);
    EXPECT_EQ(manager.getGrid(2)->getGridLocation(), vxGrid::kNone);

    vxAssign none;
    none.setFunction(kGridLocation);
    none.addShort(1);
    none.addShort(vxGrid::kNone);
    manager.assign(none);
    EXPECT_EQ(xy.getGridLocation(), vxGrid::kNone);
    EXPECT_NE(xy.getStripes(1, 0), nullptr);

    vxAssign frames;
    frames.setFunction(kGridFrame);
    frames.addShort(0);
    manager.assign(frames);
    for (long plane = 1; plane <= 3; ++plane) {
        EXPECT_NE(manager.getGrid(plane)->getFrame(), nullptr) << plane;
    }
    EXPECT_EQ(manager.getGrid(3)->getGridLocation(), vxGrid::kBack);
}

// Bar charts in a view of 400 by 300, their layers as they are drawn.
class ChartGrids : public ChartScript {
protected:
    void layOut(const std::wstring& calls) {
        ASSERT_EQ(run(calls), 0) << message();
        layers.clear();
        view->setUpLayers(&layers);
        ASSERT_FALSE(view->isError()) << message();
    }
    std::vector<std::pair<long, long>> order() const {
        std::vector<std::pair<long, long>> out;
        for (long index : layers.getDrawingIndices()) {
            // The layers of the bars, one per series, count once.
            const vxLayer* layer = layers.getLayer(index);
            const bool bars = layer->getTypeID() == 5;
            if (bars && !out.empty() && out.back().first == 5) continue;
            out.push_back({layer->getTypeID(), bars ? 0 : layer->getSubTypeID()});
        }
        return out;
    }
    // The lines of the first shape of a grid's layer, x1, y1, x2, y2 each.
    std::vector<std::vector<float>> gridLines(long plane, long shape = 1) const {
        const vxLayer* layer = layers.getLayer(layers.findLayer(0, vxGrid::kLayerType, plane));
        const auto* lines =
            layer ? dynamic_cast<const vxLineArray2DOLD*>(layer->getShape(shape)) : nullptr;
        std::vector<std::vector<float>> out;
        for (long i = 0; lines && i < lines->getNumOfLines(); ++i) {
            out.push_back({lines->getX()[2 * i], lines->getY()[2 * i], lines->getX()[2 * i + 1],
                           lines->getY()[2 * i + 1]});
        }
        return out;
    }
    std::vector<float> ticks(long axisIndex) const {
        std::vector<float> positions;
        axis(axisIndex).getTickPositions(1, positions);
        return positions;
    }
    vxLayerManager layers;
};

TEST_F(ChartGrids, BackGridsUnderAxesAndSeriesFrontGridsOverTheSeries) {
    const std::wstring calls =
        L"BarChart()\nChartData(1 2 3; 2 3 4)\nMajorGridLineColors(all; all)\n";
    layOut(calls);
    using Order = std::vector<std::pair<long, long>>;
    EXPECT_EQ(order(), (Order{{50, 1}, {40, 1}, {5, 0}, {40, 2}}));
    layOut(calls + L"GridLocation(xy; front)\n");
    EXPECT_EQ(order(), (Order{{40, 1}, {5, 0}, {50, 1}, {40, 2}}));
    layOut(calls + L"GridLocation(all; none)\n");
    EXPECT_EQ(order(), (Order{{40, 1}, {5, 0}, {40, 2}}));
}

TEST_F(ChartGrids, WithDepthTheBackWallTheFloorAndTheSideWall) {
    layOut(L"BarChart(; ; ; 20 20; off)\nChartData(1 2 3)\nMajorGridLineColors(all; all)\n");
    const std::vector<float> x = ticks(0);
    const std::vector<float> y = ticks(1);
    const float bottom = chart().getPlotBounds()[3];
    const float left = chart().getPlotBounds()[0];
    // The back wall: the lines through the x ticks, moved back by 20 and up
    // by 20.
    const auto wall = gridLines(1, 2);
    ASSERT_EQ(wall.size(), x.size());
    EXPECT_FLOAT_EQ(wall[1][0], std::floor(x[1] + 20) + 0.5f);
    EXPECT_FLOAT_EQ(wall[1][1], bottom - 20);
    // The floor: from each x tick back; the side wall: from each y tick.
    const auto floor = gridLines(2);
    ASSERT_EQ(floor.size(), x.size());
    expectNear(floor[2], {x[2], bottom, x[2] + 20, bottom - 20});
    const auto side = gridLines(3);
    ASSERT_EQ(side.size(), y.size());
    expectNear(side[1], {left, y[1], left + 20, y[1] - 20});
}

TEST_F(ChartGrids, HorizontalBarsAndHiddenAxesKeepTheirGrids) {
    // The value axis runs across: the lines along y stand at its ticks.
    layOut(
        L"BarChart(horizontal)\nChartData(1 2 3; 5 1 2)\nAxisOptions(all; none)\n"
        L"MajorGridLineColors(y; x; red)\n");
    EXPECT_EQ(axis(0).getAxisType(), 2);
    const std::vector<float> x = ticks(0);
    const auto lines = gridLines(1);
    ASSERT_EQ(lines.size(), x.size());
    ASSERT_GE(x.size(), 3u);
    EXPECT_FLOAT_EQ(lines[2][0], std::floor(x[2]) + 0.5f);
    EXPECT_FLOAT_EQ(lines[2][1], chart().getPlotBounds()[3]);
    EXPECT_FLOAT_EQ(lines[2][3], chart().getPlotBounds()[1]);
}

}  // namespace
}  // namespace Velarix::test
