// Lines, line arrays and label connectors: what they draw and where.
#include <gtest/gtest.h>

#include "graphics/vxAuxiliaryLine2D.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxLine2DOLD.h"
#include "graphics/vxLineArray2DOLD.h"
#include "graphics/vxPathTestSupport.h"
#include "graphics/vxShadowOLD.h"
#include "output/vxSVGTestSupport.h"
#include "support/vxRecordingDevice.h"

namespace Velarix::test {
namespace {

using Calls = std::vector<std::string>;

void giveLook(vxGObjectOLD& object, bool fill, bool shadow) {
    object.getAppearance()->setBorderPaint(vxBasicPaint(0, 0, 0));
    object.getAppearance()->setBorderStroke(*plainStroke());
    if (fill) object.getAppearance()->setFillPaint(vxBasicPaint(255, 0, 0));
    if (shadow) object.getAppearance()->shadowPart();
}

Calls drawn(vxGObjectOLD& object) {
    vxRecordingDevice device;
    object.draw(device);
    return device.calls;
}

TEST(vxLine2DOLD, DrawsOneLineAndNoFill) {
    vxLine2DOLD line(nullptr, 1, 2, 3, 4);
    EXPECT_EQ(line.getType(), kTypeLine);
    giveLook(line, true, true);
    EXPECT_EQ(drawn(line), (Calls{"line shadow", "line"}));

    auto device = openDevice();
    line.getAppearance()->shadowPart()->setShow(false);
    line.draw(*device);
    EXPECT_EQ(bodyOf(*device),
              "<line x1=\"1\" y1=\"2\" x2=\"3\" y2=\"4\" \n"
              "\tstyle=\"stroke: #000000; fill: none;\" />\n"
              "\n");
}

TEST(vxLine2DOLD, TurnsAboutItsCentre) {
    vxLine2DOLD line(nullptr, 10, 0, 0, 0);
    EXPECT_TRUE(hasBounds(line, {0, 0, 10, 0}));
    line.rotate(3.14159265f / 2);  // about its centre, 5, 0
    EXPECT_TRUE(hasBounds(line, {5, -5, 5, 5}));
    EXPECT_NEAR(line.getY1(), 5, 1e-4f);
}

TEST(vxLineArray2DOLD, PairsOfPointsAreSeparateLines) {
    vxLineArray2DOLD lines;
    EXPECT_EQ(lines.getType(), kTypeLineArray);
    lines.addLine(0, 0, 10, 0);
    const float second[4] = {0, 5, 10, 15};
    lines.addLine(second);
    EXPECT_EQ(lines.getNumOfLines(), 2);
    EXPECT_TRUE(hasBounds(lines, {0, 0, 10, 15}));
    giveLook(lines, true, false);
    auto device = openDevice();
    lines.draw(*device);
    EXPECT_EQ(bodyOf(*device),
              "<g style=\"stroke: #000000; fill: none;\" >\n"
              "\t<line x1=\"0\" y1=\"0\" x2=\"10\" y2=\"0\" />\n"
              "\t<line x1=\"0\" y1=\"5\" x2=\"10\" y2=\"15\" />\n"
              "</g>\n");
    lines.getAppearance()->shadowPart();
    EXPECT_EQ(drawn(lines), (Calls{"lines shadow", "lines"}));
}

TEST(vxLineArray2DOLD, PointsCountWhereXAndYAreBothGiven) {
    vxLineArray2DOLD lines;
    EXPECT_TRUE(lines.set({1, 2, 30, 40, 5}));  // pairs: the odd number is dropped
    EXPECT_EQ(lines.getX(), (std::vector<float>{1, 30}));
    EXPECT_FALSE(lines.setPoint(2, 0, 0));
    lines.addX(std::vector<float>{7, 50});
    lines.addY(-8);
    EXPECT_EQ(lines.getNumOfPoints(), 3);
    EXPECT_TRUE(hasBounds(lines, {1, -8, 30, 40}));  // 50 has no y yet
}

TEST(vxAuxiliaryLine2D, AnOpenPolylineWithElbowsAtItsEnds) {
    vxAuxiliaryLine2D connector;
    EXPECT_EQ(connector.getType(), kTypeAuxiliaryLine);
    connector.set(0, 0, 10, 10);
    connector.setP1Extension(-5, 0);
    connector.setP2Extension(20, 10);
    std::vector<float> xs, ys;
    connector.getPoints(xs, ys);
    EXPECT_EQ(xs, (std::vector<float>{-5, 0, 10, 20}));
    EXPECT_EQ(ys, (std::vector<float>{0, 0, 10, 10}));
    EXPECT_TRUE(hasBounds(connector, {-5, 0, 20, 10}));
    connector.shift(1.0f, 1.0f);
    EXPECT_TRUE(hasBounds(connector, {-4, 1, 21, 11}));

    // Black and one wide unless told otherwise; the default stroke has
    // square caps and a miter limit of 10.
    auto device = openDevice();
    connector.draw(*device);
    EXPECT_EQ(bodyOf(*device),
              "<polyline\n"
              "\tpoints=\"-4 1 1 1 11 11 21 11 \" \n"
              "\tstyle=\"stroke: #000000; stroke-linecap: square; stroke-miterlimit: 10; "
              "fill: none;\" />\n"
              "\n");
    connector.setLineWidth(2);
    connector.setColor(vxColorOLD(255, 0, 0));
    connector.removeExtensions();
    device = openDevice();
    connector.draw(*device);
    EXPECT_EQ(bodyOf(*device),
              "<polyline\n"
              "\tpoints=\"1 1 11 11 \" \n"
              "\tstyle=\"stroke: #ff0000; stroke-width: 2; stroke-linecap: square; "
              "stroke-miterlimit: 10; fill: none;\" />\n"
              "\n");
}

TEST(vxAuxiliaryLine2D, DrawsItsShadowInAnotherObjectsShadow) {
    vxAuxiliaryLine2D connector;
    connector.set(0, 0, 10, 10);
    EXPECT_EQ(drawn(connector), (Calls{"outline"}));
    vxRecordingDevice device;
    vxShadowOLD shadow;
    connector.drawShadow(device, shadow);
    shadow.setShow(false);
    connector.drawShadow(device, shadow);
    EXPECT_EQ(device.calls, (Calls{"outline shadow"}));
}

}  // namespace
}  // namespace Velarix::test
