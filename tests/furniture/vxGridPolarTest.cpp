// Grids of a polar plane about (100, 100) with spokes at twelve, three,
// six and nine o'clock and rings every 20 up to 80: spokes, rings as ovals
// and as polygons, wedges, bands and the outer frame.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "drawing/vxLayer.h"
#include "furniture/vxGridFrame.h"
#include "furniture/vxGridLines.h"
#include "furniture/vxGridStripes.h"
#include "graphics/vxLineArray2DOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix::test {
namespace {

constexpr float kQuarter = 1.5707963f;

vxGridPlane polarPlane() {
    vxGridPlane plane;
    vxGridPolarPlane& p = plane.polar;
    p.centre[0] = p.centre[1] = 100;
    p.outerRadius = 80;
    p.majorAngles = {0, kQuarter, 2 * kQuarter, 3 * kQuarter};
    p.majorRadii = {20, 40, 60, 80};
    return plane;
}

// The shapes an item puts on a layer of its own.
class PolarGrid : public ::testing::Test {
protected:
    const vxLayer& add(vxGridItem& item, short shape, const vxGridPlane& plane = polarPlane()) {
        layer = std::make_unique<vxLayer>();
        EXPECT_TRUE(item.add(*layer, plane, shape));
        return *layer;
    }
    const vxPath2DOLD& path(long index = 0) const {
        return *dynamic_cast<const vxPath2DOLD*>(layer->getShape(index));
    }
    static std::vector<float> bounds(const vxGObjectOLD& shape) {
        float b[4];
        const_cast<vxGObjectOLD&>(shape).getBounds(b);
        return {std::round(b[0]), std::round(b[1]), std::round(b[2]), std::round(b[3])};
    }
    static long closes(const vxPath2DOLD& p) {
        return long(std::count(p.getVerbs().begin(), p.getVerbs().end(), vxPath2DOLD::kClose));
    }
    std::unique_ptr<vxLayer> layer;
};

TEST_F(PolarGrid, SpokesRunFromTheCentreAndEndOnPolygonEdges) {
    vxGridLines spokes(nullptr, 1, vxGridItem::kRadial, vxGridItem::kMajor);
    ASSERT_EQ(add(spokes, vxGridItem::kOval).getNumOfShapes(), 1);
    const auto& lines = *dynamic_cast<const vxLineArray2DOLD*>(layer->getShape(0));
    ASSERT_EQ(lines.getNumOfLines(), 4);
    // Twelve o'clock, upright, on the middle of its pixel; three o'clock.
    EXPECT_FLOAT_EQ(lines.getX()[0], 100.5f);
    EXPECT_FLOAT_EQ(lines.getY()[1], 20);
    EXPECT_FLOAT_EQ(lines.getX()[3], 180);
    EXPECT_FLOAT_EQ(lines.getY()[3], 100.5f);

    // A minor spoke at half past one ends on the polygon's edge, at the
    // middle of the chord from (100, 20) to (180, 100); on an oval it
    // reaches the circle.
    vxGridPlane plane = polarPlane();
    plane.polar.minorAngles = {kQuarter / 2};
    vxGridLines minor(nullptr, 1, vxGridItem::kRadial, vxGridItem::kMinor);
    add(minor, vxGridItem::kPolygon, plane);
    const auto& onEdge = *dynamic_cast<const vxLineArray2DOLD*>(layer->getShape(0));
    EXPECT_NEAR(onEdge.getX()[1], 140, 1e-3);
    EXPECT_NEAR(onEdge.getY()[1], 60, 1e-3);
    add(minor, vxGridItem::kOval, plane);
    const auto& onCircle = *dynamic_cast<const vxLineArray2DOLD*>(layer->getShape(0));
    EXPECT_NEAR(onCircle.getX()[1], 100 + 80 * std::sqrt(0.5), 1e-3);
}

TEST_F(PolarGrid, RingsAreOvalsOrPolygonsThroughTheSpokes) {
    vxGridLines rings(nullptr, 1, vxGridItem::kTangential, vxGridItem::kMajor);
    ASSERT_EQ(add(rings, vxGridItem::kOval).getNumOfShapes(), 1);
    EXPECT_EQ(closes(path()), 4);
    EXPECT_EQ(bounds(path()), (std::vector<float>{20, 20, 180, 180}));

    add(rings, vxGridItem::kPolygon);
    EXPECT_EQ(closes(path()), 4);
    // The ring at 40: a diamond with its corners on the spokes.
    const std::vector<float>& x = path().getX();
    const std::vector<float>& y = path().getY();
    EXPECT_NEAR(x[4], 100, 1e-3);
    EXPECT_NEAR(y[4], 60, 1e-3);
    EXPECT_NEAR(x[5], 140, 1e-3);
    EXPECT_NEAR(y[5], 100, 1e-3);

    // Two spokes make no polygon: the rings stay ovals; an oval ring has
    // curves.
    vxGridPlane two = polarPlane();
    two.polar.majorAngles = {0, kQuarter};
    two.polar.yRatio = 0.5f;
    add(rings, vxGridItem::kPolygon, two);
    EXPECT_EQ(bounds(path()), (std::vector<float>{20, 60, 180, 140}));
    EXPECT_NE(std::find(path().getVerbs().begin(), path().getVerbs().end(), vxPath2DOLD::kCubic),
              path().getVerbs().end());
}

TEST_F(PolarGrid, WedgesBetweenSpokesAndBandsBetweenRings) {
    // Spokes 0 with 1 and 2 with 3: the quarters at three and at nine.
    vxGridStripes wedges(nullptr, 1, vxGridItem::kRadial, vxGridItem::kMajor);
    add(wedges, vxGridItem::kPolygon);
    ASSERT_EQ(layer->getNumOfShapes(), 1);
    EXPECT_EQ(closes(path()), 2);
    EXPECT_EQ(path().getX()[0], 100);
    EXPECT_EQ(path().getY()[0], 20);
    EXPECT_NEAR(path().getX()[1], 180, 1e-3);
    EXPECT_EQ(path().getX()[2], 100);
    EXPECT_EQ(path().getY()[2], 100);

    vxGridPlane ring = polarPlane();
    ring.polar.innerRadius = 40;
    add(wedges, vxGridItem::kOval, ring);
    EXPECT_EQ(bounds(path()), (std::vector<float>{20, 20, 180, 180}));
    EXPECT_EQ(closes(path()), 2);

    // Rings 0 with 1 and 2 with 3: two bands, each an outer and an inner
    // outline, filled under the even-odd rule.
    vxGridStripes bands(nullptr, 1, vxGridItem::kTangential, vxGridItem::kMajor);
    for (short shape : {vxGridItem::kOval, vxGridItem::kPolygon}) {
        add(bands, shape);
        EXPECT_EQ(closes(path()), 4) << shape;
        EXPECT_EQ(path().getWindingRule(), vxPath2DOLD::kEvenOdd);
        EXPECT_EQ(bounds(path()), (std::vector<float>{20, 20, 180, 180}));
    }
}

TEST_F(PolarGrid, FrameIsTheOuterRing) {
    vxGridFrame frame(nullptr, 1);
    vxAssign a;
    a.setFunction(kGridFrame);
    a.addShort(1);
    a.addToArgumentOffset(1);
    ASSERT_TRUE(frame.assign(a));
    add(frame, vxGridItem::kOval);
    ASSERT_EQ(layer->getNumOfShapes(), 1);
    EXPECT_TRUE(path().hasBorder());
    EXPECT_EQ(bounds(path()), (std::vector<float>{20, 20, 180, 180}));

    vxGridPlane three = polarPlane();
    three.polar.majorAngles = {0, 4 * kQuarter / 3, 8 * kQuarter / 3};
    add(frame, vxGridItem::kPolygon, three);
    EXPECT_EQ(path().getNumOfPoints(), 3);
    EXPECT_NEAR(path().getY()[1], 140, 1e-3);
}

}  // namespace
}  // namespace Velarix::test
