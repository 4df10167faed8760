// Symbols drawn into the SVG device, compared with the text written out by
// hand from the shapes of the marks and heads.
#include <gtest/gtest.h>

#include "graphics/vxArrowSymbol.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxShadowOLD.h"
#include "output/vxSVGTestSupport.h"

namespace Velarix::test {
namespace {

std::string svgOf(vxGObjectOLD& object) {
    auto device = openDevice();
    object.draw(*device);
    return bodyOf(*device);
}

TEST(SymbolSVG, MarksWithShadowAndOffset) {
    vxBasicSymbol diamond(4, 10.0f, 20.0f, 20.0f);
    diamond.getAppearance()->setBorderStroke(*plainStroke());
    diamond.getAppearance()->setBorderPaint(*rgba(0, 0, 0));
    diamond.getAppearance()->setFillPaint(*rgba(255, 255, 0));
    diamond.getAppearance()->shadowPart();
    EXPECT_EQ(svgOf(diamond),
              "<polygon\n\tpoints=\"23 18 28 23 23 28 18 23 \" \n"
              "\tstyle=\"fill: #888888; fill-rule: evenodd; \" />\n\n"
              "<polygon\n\tpoints=\"23 18 28 23 23 28 18 23 \" \n"
              "\tstyle=\"stroke: #888888; fill: none;\" />\n\n"
              "<polygon\n\tpoints=\"20 15 25 20 20 25 15 20 \" \n"
              "\tstyle=\"fill: #ffff00; fill-rule: evenodd; \" />\n\n"
              "<polygon\n\tpoints=\"20 15 25 20 20 25 15 20 \" \n"
              "\tstyle=\"stroke: #000000; fill: none;\" />\n\n");

    vxBasicSymbol dot(2, 7.0f, 10.0f, 10.0f);
    dot.setOffsets(1.0f, 1.0f);
    dot.getAppearance()->setFillPaint(*rgba(255, 0, 0));
    EXPECT_EQ(svgOf(dot),
              "<circle\n\tcx=\"11\" cy=\"11\" r=\"3.5\" \n"
              "\tstyle=\"fill: #ff0000; fill-rule: evenodd; \" />\n\n");
}

TEST(SymbolSVG, ArrowHeads) {
    vxArrowSymbol filled;
    filled.setCenter(50.0f, 20.0f);
    filled.getAppearance()->setBorderPaint(*rgba(0, 0, 0));
    filled.getAppearance()->setFillPaint(*rgba(255, 0, 0));
    EXPECT_EQ(svgOf(filled),
              "<polygon\n\tpoints=\"50 20 34 16 34 20 34 24 \" \n"
              "\tstyle=\"fill: #ff0000; fill-rule: evenodd; \" />\n\n");

    filled.setHeadLength(0.0f);
    filled.getAppearance()->setBorderStroke(*plainStroke(2.0f));
    EXPECT_EQ(svgOf(filled),
              "<line x1=\"50\" y1=\"16\" x2=\"50\" y2=\"24\" \n"
              "\tstyle=\"stroke: #000000; stroke-width: 2; fill: none;\" />\n\n");
}

TEST(SymbolSVG, MarksWithoutExtentWriteNothing) {
    auto device = openDevice();
    vxShadowOLD shadow;
    for (float size : {0.0f, -4.0f}) {
        for (short type : {1, 2, 3, 12, 15}) {
            device->drawSymbol(*plainStroke(), *rgba(0, 0, 0), *rgba(255, 0, 0), type, size, 10,
                               10);
            device->drawSymbol(*plainStroke(), *rgba(0, 0, 0), shadow, type, size, 10, 10);
        }
    }
    EXPECT_EQ(bodyOf(*device), "");
}

}  // namespace
}  // namespace Velarix::test
