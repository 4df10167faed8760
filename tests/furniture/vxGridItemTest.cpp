// Grid lines, stripes and frames on a Cartesian plane of 200 by 100: the
// looks their lists give each tick, the lines through the ticks, the
// stripes between them and the frame around the plane.
#include <gtest/gtest.h>

#include <vector>

#include "drawing/vxLayer.h"
#include "furniture/vxGridFrame.h"
#include "furniture/vxGridLines.h"
#include "furniture/vxGridStripes.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxColorOLD.h"
#include "graphics/vxLineArray2DOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxQuad2D.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix::test {
namespace {

using Span = vxGridStripes::Span;

// The plot from (10, 10) to (210, 110): x along the bottom with a major
// tick every 50, y up the left side with one every 25 and minor ticks
// halfway.
vxGridPlane flatPlane() {
    vxGridPlane plane;
    vxGridRectPlane& p = plane.rect;
    p.axes[0] = {{10, 110, 210, 110}, {0, 50, 100, 150, 200}, {}};
    p.axes[1] = {{10, 110, 10, 10}, {0, 25, 50, 75, 100}, {12.5f, 37.5f, 62.5f, 87.5f}};
    p.crossing[0] = 10;
    p.crossing[1] = 110;
    return plane;
}

// A list call with the given entries after the two axes, read from them.
vxAssign& listCall(vxAssign& a, long function, const std::vector<std::vector<float>>& entries) {
    a.setFunction(function);
    a.addShort(1);
    a.addShort(2);
    for (const auto& entry : entries) {
        if (entry.empty()) {
            a.addVoid();
        } else if (function == kMajorGridLinePatterns || function == kMajorGridStripePatterns) {
            a.addShort(short(entry[0]));
        } else {
            a.addFloatArray(entry);
        }
    }
    a.addToArgumentOffset(2);
    return a;
}

std::vector<float> rgb(const vxPaintOLD* paint) {
    const vxColorOLD* c = paint ? paint->getColor() : nullptr;
    if (!c) return {};
    return {float(c->getRed()), float(c->getGreen()), float(c->getBlue())};
}

template <class Shape>
const Shape& shapeAt(const vxLayer& layer, long index) {
    const auto* shape = dynamic_cast<const Shape*>(layer.getShape(index));
    EXPECT_NE(shape, nullptr) << "shape " << index;
    static const Shape none;
    return shape ? *shape : none;
}

TEST(GridLines, DefaultsAndListsThatCycleByTick) {
    vxGridLines major(nullptr, 1, vxGridItem::kRadial, vxGridItem::kMajor);
    vxGridLines minor(nullptr, 1, vxGridItem::kRadial, vxGridItem::kMinor);
    EXPECT_FLOAT_EQ(major.getLineStroke(7)->getLineWidth(), 1.0f);
    EXPECT_EQ(rgb(major.getLinePaint(7).get()), (std::vector<float>{136, 136, 136}));
    EXPECT_EQ(rgb(minor.getLinePaint(0).get()), (std::vector<float>{221, 221, 221}));
    EXPECT_EQ(major.getLinePatterns(), std::vector<short>{0});

    // Two colours, three widths, a pattern: each list cycles on its own;
    // an empty colour entry is the default one.
    vxAssign colors;
    listCall(colors, kMajorGridLineColors, {{255, 0, 0}, {}});
    ASSERT_TRUE(major.assignColors(colors));
    vxAssign widths;
    listCall(widths, kMajorGridLineWidths, {{1}, {2}, {3, 2}});
    ASSERT_TRUE(major.assignWidths(widths));
    vxAssign patterns;
    listCall(patterns, kMajorGridLinePatterns, {{5}});
    ASSERT_TRUE(major.assignPatterns(patterns));
    for (long i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        const std::vector<float> expected =
            i % 2 ? std::vector<float>{136, 136, 136} : std::vector<float>{255, 0, 0};
        EXPECT_EQ(rgb(major.getLinePaint(i).get()), expected);
        EXPECT_FLOAT_EQ(major.getLineStroke(i)->getLineWidth(), float(i % 3 + 1));
        EXPECT_EQ(major.getLinePaint(i)->getPatternIndex(), 5);
    }
    EXPECT_NE(major.getLineStroke(2)->getDashStyle(), nullptr);
    EXPECT_EQ(major.getLineStroke(2)->getLineCap(), vxStrokeOLD::kButtCap);

    // An empty list restores the default of its own kind only.
    vxAssign none;
    listCall(none, kMajorGridLineColors, {{}});
    ASSERT_TRUE(major.assignColors(none));
    EXPECT_EQ(major.getNumOfLinePaints(), 1);
    EXPECT_EQ(rgb(major.getLinePaint(0).get()), (std::vector<float>{136, 136, 136}));
    EXPECT_EQ(major.getNumOfLineStrokes(), 3);
}

TEST(GridLines, LinesThroughTheTicksOnWholePixelsOneShapePerLook) {
    // Lines along y through the five x ticks, two colours: red at the
    // even ticks, blue at the odd ones, each colour one shape.
    vxGridLines lines(nullptr, 1, vxGridItem::kTangential, vxGridItem::kMajor);
    vxAssign colors;
    listCall(colors, kMajorGridLineColors, {{255, 0, 0}, {0, 0, 255}});
    ASSERT_TRUE(lines.assignColors(colors));
    vxLayer layer;
    ASSERT_TRUE(lines.add(layer, flatPlane(), vxGridItem::kRect));
    ASSERT_EQ(layer.getNumOfShapes(), 2);
    const auto& red = shapeAt<vxLineArray2DOLD>(layer, 0);
    const auto& blue = shapeAt<vxLineArray2DOLD>(layer, 1);
    EXPECT_EQ(rgb(red.getBorderPaint()), (std::vector<float>{255, 0, 0}));
    // A line 1 wide stands in the middle of the pixel, from bottom to top;
    // the last on the plane's last pixel.
    EXPECT_EQ(red.getX(), (std::vector<float>{10.5f, 10.5f, 110.5f, 110.5f, 209.5f, 209.5f}));
    EXPECT_EQ(red.getY(), (std::vector<float>{110, 10, 110, 10, 110, 10}));
    EXPECT_EQ(blue.getX(), (std::vector<float>{60.5f, 60.5f, 160.5f, 160.5f}));

    // Minor lines along x through the minor y ticks; 2 wide on a pixel edge.
    vxGridLines minor(nullptr, 1, vxGridItem::kRadial, vxGridItem::kMinor);
    vxAssign widths;
    listCall(widths, kMajorGridLineWidths, {{2}});
    ASSERT_TRUE(minor.assignWidths(widths));
    vxLayer second;
    ASSERT_TRUE(minor.add(second, flatPlane(), vxGridItem::kRect));
    ASSERT_EQ(second.getNumOfShapes(), 1);
    EXPECT_EQ(shapeAt<vxLineArray2DOLD>(second, 0).getY(),
              (std::vector<float>{98, 98, 73, 73, 48, 48, 23, 23}));

    // A line of the pattern "transparent" draws nothing.
    vxAssign hidden;
    listCall(hidden, kMajorGridLinePatterns, {{1}});
    ASSERT_TRUE(lines.assignPatterns(hidden));
    vxLayer third;
    ASSERT_TRUE(lines.add(third, flatPlane(), vxGridItem::kRect));
    EXPECT_EQ(third.getNumOfShapes(), 0);
}

TEST(GridLines, SlantedPlanesKeepTheirEnds) {
    // The floor of a chart with depth: x ticks carried back by (20, -20).
    vxGridPlane plane = flatPlane();
    plane.rect.axes[1] = {{10, 110, 30, 90}, {}, {}};
    vxGridLines lines(nullptr, 2, vxGridItem::kTangential, vxGridItem::kMajor);
    vxLayer layer;
    ASSERT_TRUE(lines.add(layer, plane, vxGridItem::kRect));
    ASSERT_EQ(layer.getNumOfShapes(), 1);
    const auto& floor = shapeAt<vxLineArray2DOLD>(layer, 0);
    EXPECT_EQ(floor.getNumOfLines(), 5);
    EXPECT_FLOAT_EQ(floor.getX()[2], 60);
    EXPECT_FLOAT_EQ(floor.getY()[2], 110);
    EXPECT_FLOAT_EQ(floor.getX()[3], 80);
    EXPECT_FLOAT_EQ(floor.getY()[3], 90);
    // The depth has no ticks: no lines along x on the floor.
    vxGridLines across(nullptr, 2, vxGridItem::kRadial, vxGridItem::kMajor);
    vxLayer none;
    ASSERT_TRUE(across.add(none, plane, vxGridItem::kRect));
    EXPECT_EQ(none.getNumOfShapes(), 0);
}

TEST(GridStripes, MajorStripesPairTheTicksMinorOnesSplitEachInterval) {
    const std::vector<float> five = {0, 10, 20, 30, 40};
    auto spans = vxGridStripes::stripeSpans(five, {}, vxGridItem::kMajor);
    ASSERT_EQ(spans.size(), 2u);
    EXPECT_EQ(spans[1].from, 20);
    EXPECT_EQ(spans[1].to, 30);

    // Three pieces an interval: the first and the third filled, counted
    // anew in each interval; minors outside the majors make none.
    spans = vxGridStripes::stripeSpans({0, 30, 60}, {-5, 10, 20, 40, 50, 70}, vxGridItem::kMinor);
    std::vector<float> ends;
    for (const Span& s : spans) ends.insert(ends.end(), {s.from, s.to});
    EXPECT_EQ(ends, (std::vector<float>{0, 10, 20, 30, 30, 40, 50, 60}));

    // Ticks that run down are taken from the first major tick on.
    spans = vxGridStripes::stripeSpans({60, 30}, {50, 40}, vxGridItem::kMinor);
    ASSERT_EQ(spans.size(), 2u);
    EXPECT_EQ(spans[0].from, 60);
    EXPECT_EQ(spans[1].to, 30);

    EXPECT_TRUE(vxGridStripes::stripeSpans(five, {}, vxGridItem::kMinor).empty());
    EXPECT_TRUE(vxGridStripes::stripeSpans({7}, {}, vxGridItem::kMajor).empty());
}

TEST(GridStripes, QuadsBetweenTicksEdgesOnPixelEdgesPaintsByStripe) {
    vxGridStripes stripes(nullptr, 1, vxGridItem::kRadial, vxGridItem::kMajor);
    vxAssign colors;
    listCall(colors, kMajorGridStripeColors, {{255, 255, 0}, {0, 255, 0}});
    ASSERT_TRUE(stripes.assignColors(colors));
    vxGridPlane plane = flatPlane();
    plane.rect.axes[1].major = {0, 25.3f, 50, 75, 100};
    vxLayer layer;
    ASSERT_TRUE(stripes.add(layer, plane, vxGridItem::kRect));
    ASSERT_EQ(layer.getNumOfShapes(), 2);
    const auto& yellow = shapeAt<vxPath2DOLD>(layer, 0);
    const auto& green = shapeAt<vxPath2DOLD>(layer, 1);
    EXPECT_EQ(rgb(yellow.getFillPaint()), (std::vector<float>{255, 255, 0}));
    EXPECT_FALSE(yellow.hasBorder());
    // Stripe 0 from y 110 to 84.7, rounded; stripe 1 from 60 to 35.
    EXPECT_EQ(yellow.getX(), (std::vector<float>{10, 210, 210, 10}));
    EXPECT_EQ(yellow.getY(), (std::vector<float>{110, 110, 85, 85}));
    EXPECT_EQ(green.getY(), (std::vector<float>{60, 60, 35, 35}));
}

TEST(GridFrame, CornersOfThePlaneInTheFrameStyle) {
    vxGridFrame frame(nullptr, 1);
    vxLayer layer;
    ASSERT_TRUE(frame.add(layer, flatPlane(), vxGridItem::kRect));
    EXPECT_EQ(layer.getNumOfShapes(), 0) << "no frame before GridFrame";

    vxAssign a;
    a.setFunction(kGridFrame);
    a.addShort(1);
    a.addFloatArray({3});
    a.addFloatArray({0, 0, 255});
    a.addToArgumentOffset(1);
    ASSERT_TRUE(frame.assign(a));
    ASSERT_TRUE(frame.add(layer, flatPlane(), vxGridItem::kRect));
    ASSERT_EQ(layer.getNumOfShapes(), 1);
    const auto& quad = shapeAt<vxQuad2D>(layer, 0);
    EXPECT_EQ(rgb(quad.getBorderPaint()), (std::vector<float>{0, 0, 255}));
    EXPECT_FLOAT_EQ(quad.getBorderStroke()->getLineWidth(), 3);
    // Clockwise from the top left, on pixel centres for a width of 3, the
    // outermost pixels of the plane.
    EXPECT_EQ(quad.getX(), (std::vector<float>{11.5f, 208.5f, 208.5f, 11.5f}));
    EXPECT_EQ(quad.getY(), (std::vector<float>{11.5f, 11.5f, 108.5f, 108.5f}));

    // The side wall of a chart with depth is a parallelogram.
    vxGridPlane wall = flatPlane();
    wall.rect.axes[0] = wall.rect.axes[1];
    wall.rect.axes[1] = {{10, 110, 30, 90}, {}, {}};
    vxLayer second;
    ASSERT_TRUE(frame.add(second, wall, vxGridItem::kRect));
    const auto& side = shapeAt<vxQuad2D>(second, 0);
    EXPECT_EQ(side.getX(), (std::vector<float>{30, 30, 10, 10}));
    EXPECT_EQ(side.getY(), (std::vector<float>{90, -10, 10, 110}));
}

}  // namespace
}  // namespace Velarix::test
