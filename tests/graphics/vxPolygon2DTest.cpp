// Polygons and quads as the SVG device writes them.
#include <gtest/gtest.h>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxPathTestSupport.h"
#include "graphics/vxPolygon2D.h"
#include "graphics/vxQuad2D.h"
#include "output/vxSVGTestSupport.h"

namespace Velarix::test {
namespace {

void giveLook(vxGObjectOLD& object, bool fill, bool border) {
    if (fill) object.getAppearance()->setFillPaint(vxBasicPaint(255, 0, 0));
    if (border) object.getAppearance()->setBorderPaint(vxBasicPaint(0, 0, 0));
    object.getAppearance()->setBorderStroke(*plainStroke());
}

TEST(vxPolygon2D, FillsByItsRuleAndOutlinesOpenOrClosed) {
    vxPolygon2D polygon;
    EXPECT_EQ(polygon.getType(), 106);
    polygon.set({0, 10, 10}, {0, 0, 10});
    giveLook(polygon, true, true);
    polygon.setDoClose(false);
    auto device = openDevice();
    polygon.draw(*device);
    EXPECT_EQ(bodyOf(*device),
              "<polygon\n"
              "\tpoints=\"0 0 10 0 10 10 \" \n"
              "\tstyle=\"fill: #ff0000; fill-rule: nonzero; \" />\n"
              "\n"
              "<polyline\n"
              "\tpoints=\"0 0 10 0 10 10 \" \n"
              "\tstyle=\"stroke: #000000; fill: none;\" />\n"
              "\n");

    polygon.setDoClose(true);
    polygon.setWindingRule(vxPolygon2D::kEvenOdd);
    device = openDevice();
    polygon.draw(*device);
    const std::string body = bodyOf(*device);
    EXPECT_NE(body.find("fill-rule: evenodd"), std::string::npos);
    EXPECT_EQ(body.find("<polyline"), std::string::npos);
}

TEST(vxPolygon2D, CopyTakesPointsRuleAndClosing) {
    vxPolygon2D polygon, copy;
    polygon.addPoint({3, 4, 9}, {0, 1});
    polygon.setWindingRule(vxPolygon2D::kEvenOdd);
    polygon.setDoClose(false);
    copy.copy(&polygon);
    EXPECT_EQ(copy.getNumOfPoints(), 2);
    EXPECT_TRUE(hasBounds(copy, {3, 0, 4, 1}));
    EXPECT_EQ(copy.getWindingRule(), vxPolygon2D::kEvenOdd);
    EXPECT_FALSE(copy.getDoClose());
    copy.copy(nullptr);
    EXPECT_EQ(copy.getNumOfPoints(), 0);
    EXPECT_TRUE(copy.getDoClose());
}

// The red quad of the device's worked example.
TEST(vxQuad2D, FillsEvenOddAndOutlinesClosed) {
    vxQuad2D quad(nullptr, 10, 10, 60, 40);
    EXPECT_EQ(quad.getType(), kTypeQuad);
    giveLook(quad, true, false);
    auto device = openDevice();
    quad.draw(*device);
    EXPECT_EQ(bodyOf(*device),
              "<polygon\n"
              "\tpoints=\"10 10 60 10 60 40 10 40 \" \n"
              "\tstyle=\"fill: #ff0000; fill-rule: evenodd; \" />\n"
              "\n");

    vxQuad2D framed(nullptr, 0, 0, 5, 5);
    giveLook(framed, false, true);
    device = openDevice();
    framed.draw(*device);
    EXPECT_EQ(
        bodyOf(*device).rfind("<polygon\n\tpoints=\"0 0 5 0 5 5 0 5 \" \n\tstyle=\"stroke", 0), 0u);
}

TEST(vxQuad2D, StaysAxisAlignedOnlyByQuarterTurns) {
    vxQuad2D quad(nullptr, 0, 0, 20, 10);
    EXPECT_TRUE(quad.isAxisAligned());
    quad.rotate(3.14159265f / 2);
    EXPECT_TRUE(quad.isAxisAligned());
    EXPECT_TRUE(hasBounds(quad, {5, -5, 15, 15}));
    quad.rotate(0.5f);
    EXPECT_FALSE(quad.isAxisAligned());
    quad.setCorner(4, 99, 99);
    EXPECT_LT(boundsOf(quad)[2], 99);
}

}  // namespace
}  // namespace Velarix::test
