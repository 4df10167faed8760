// The backgrounds of a chart's planes: the plot's plane in a flat chart,
// the back wall, floor and side wall of a chart with depth, slabs for a
// thickness, their layers behind the axes, and pictures that can't be read.
#include <gtest/gtest.h>

#include "axes/vxAxisTestSupport.h"
#include "charts/vxBaseChart.h"
#include "drawing/vxLayer.h"
#include "drawing/vxLayerManager.h"
#include "furniture/vxBackground.h"
#include "furniture/vxBackgroundManager.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix::test {
namespace {

using Rect = std::vector<float>;

class BackgroundScript : public ChartScript {
protected:
    vxBackground* plane(short index) const {
        return chart().getBackgroundManager()->getBackground(index);
    }
    static Rect boundsOf(vxGObjectOLD& shape) {
        float b[4];
        shape.getBounds(b);
        return {b[0], b[1], b[2], b[3]};
    }
    // The type of each layer the chart puts on a new layer manager.
    std::vector<long> layerTypes() {
        layers.clear();
        chart().setUpLayers(&layers);
        std::vector<long> types;
        for (long i = 0; i < layers.getNumOfLayers(); ++i) {
            types.push_back(layers.getLayer(i)->getTypeID());
        }
        return types;
    }
    vxLayerManager layers;
};

TEST_F(BackgroundScript, FlatChartFillsThePlotBehindTheAxes) {
    ASSERT_EQ(run(L"BarChart()\nChartData(1 2 3)\nChartBackground(all; #eeeeff)\n"), 0)
        << message();
    EXPECT_EQ(chart().getBackgroundManager()->getNumOfBackgrounds(), 3);
    const float* p = chart().getPlotBounds();
    EXPECT_EQ(boundsOf(*plane(1)->getQuad()), Rect({p[0], p[1], p[2], p[3]}));
    // Only the plot's plane has a place without depth: one layer, first.
    const std::vector<long> types = layerTypes();
    ASSERT_GE(types.size(), 2u);
    EXPECT_EQ(types[0], 60);
    EXPECT_EQ(std::count(types.begin(), types.end(), 60), 1);
}

TEST_F(BackgroundScript, DepthGivesBackWallFloorAndSideWall) {
    ASSERT_EQ(run(L"BarChart(;;;40)\nChartData(1 2 3)\nChartBackground(all; #eeeeff; ; 0)\n"), 0)
        << message();
    const float* p = chart().getPlotBounds();
    const auto& depth = chart().getChartType()->getDepthInfo();
    const float dx = -depth.getXDepth(), dy = depth.getYDepth();
    ASSERT_GT(dx, 1.0f);
    ASSERT_LT(dy, -1.0f);
    EXPECT_EQ(boundsOf(*plane(1)->getQuad()), Rect({p[0] + dx, p[1] + dy, p[2] + dx, p[3] + dy}));
    EXPECT_EQ(boundsOf(*plane(2)->getQuad()), Rect({p[0], p[3] + dy, p[2] + dx, p[3]}));
    EXPECT_EQ(boundsOf(*plane(3)->getQuad()), Rect({p[0], p[1] + dy, p[0] + dx, p[3]}));
    const std::vector<long> types = layerTypes();
    EXPECT_EQ(std::vector<long>(types.begin(), types.begin() + 3), std::vector<long>({60, 60, 60}));
    // "all" gives every plane the same look.
    for (short p : {1, 2, 3}) EXPECT_TRUE(plane(p)->getQuad()->hasFill()) << p;
}

TEST_F(BackgroundScript, ThicknessAddsASlabOutward) {
    ASSERT_EQ(run(L"BarChart(;;;40)\nChartData(1 2 3)\nChartBackground(xz; #cccccc; ; 0)\n"
                  L"ChartBackgroundOptions(xz; 5)\n"),
              0)
        << message();
    ASSERT_NE(plane(2)->getSlab(), nullptr);
    const Rect floor = boundsOf(*plane(2)->getQuad());
    const Rect slab = boundsOf(*plane(2)->getSlab());
    EXPECT_EQ(slab[3], floor[3] + 5.0f);  // down, away from the box
    EXPECT_EQ(slab[0], floor[0]);
    // Without thickness no slab; a flat chart has no floor.
    ASSERT_EQ(run(L"BarChart()\nChartData(1 2 3)\nChartBackground(all; #cccccc)\n"
                  L"ChartBackgroundOptions(xy; 5)\n"),
              0);
    EXPECT_EQ(plane(1)->getSlab(), nullptr);
}

TEST_F(BackgroundScript, PicturesThatCannotBeReadAreErrors) {
    EXPECT_EQ(
        run(L"BarChart()\nChartData(1 2 3)\nChartBackgroundPict(xy; file; \"no/such.png\")\n"),
        4000);
    EXPECT_NE(message().find(L"ChartBackgroundPict"), std::wstring::npos);
    // A plane out of range is the argument's error.
    EXPECT_NE(run(L"BarChart()\nChartData(1 2 3)\nChartBackground(4; #cccccc)\n"), 0);
}

}  // namespace
}  // namespace Velarix::test
