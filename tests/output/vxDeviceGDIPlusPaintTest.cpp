// Hatches and gradients of the raster device, read back from the picture.
#include <gtest/gtest.h>

#include "graphics/vxLinearGradient.h"
#include "graphics/vxRadialGradient.h"
#include "graphics/vxTexturePaintOLD.h"
#include "output/vxRasterTestSupport.h"

namespace Velarix::test {
namespace {

// Pattern 10 is row 9: a line on every 8th pixel row from the top. Set
// bits take the colour, clear bits white at the paint's alpha.
TEST(vxDeviceGDIPlusPaint, HatchShowsItsPattern) {
    for (short alpha : {255, 128}) {
        auto device = openDevice(16, 16, Route::kRecorded, 1);
        fillRect(*device, *rgba(255, 0, 0, alpha, 10), 0, 0, 16, 16);
        cairo_surface_t* picture = finish(*device);
        for (int y = 0; y < 16; ++y) {
            for (int x : {0, 5, 15}) {
                const bool isSet = y % 8 == 0;
                EXPECT_TRUE(isNear(pixelAt(picture, x, y), 255, isSet ? 0 : 255, isSet ? 0 : 255,
                                   alpha, 1))
                    << "alpha " << alpha << " at " << x << "," << y << ": "
                    << pixelAt(picture, x, y);
            }
        }
    }
}

// The tile repeats from the drawing's origin, wherever the shape lies;
// pattern 15 is row 14, a column on every 4th pixel.
TEST(vxDeviceGDIPlusPaint, HatchIsAnchoredAtTheOrigin) {
    auto device = openDevice(20, 10, Route::kBitmap, 0);
    fillRect(*device, *rgba(0, 0, 255, 255, 15), 3, 0, 20, 10);
    cairo_surface_t* picture = finish(*device);
    EXPECT_EQ(pixelAt(picture, 2, 5).a, 0);
    for (int x = 3; x < 20; ++x) {
        const bool isSet = x % 4 == 0;
        EXPECT_TRUE(isNear(pixelAt(picture, x, 5), isSet ? 0 : 255, isSet ? 0 : 255, 255, 255))
            << x;
    }
}

// A colour with a texture number draws its colour, a texture paint
// nothing, until pictures are read.
TEST(vxDeviceGDIPlusPaint, TexturesWaitForPictures) {
    auto device = openDevice(20, 10, Route::kBitmap, 0);
    fillRect(*device, *rgba(0, 128, 0, 255, 70), 0, 0, 10, 10);
    vxTexturePaintOLD texture;
    fillRect(*device, texture, 10, 0, 20, 10);
    cairo_surface_t* picture = finish(*device);
    EXPECT_TRUE(isNear(pixelAt(picture, 5, 5), 0, 128, 0, 255));
    EXPECT_EQ(pixelAt(picture, 15, 5).a, 0);
    EXPECT_FALSE(device->isError());
}

std::unique_ptr<vxLinearGradient> redToBlue() {
    auto gradient = std::make_unique<vxLinearGradient>();
    gradient->addColor(255, 0, 0, 0.0f);
    gradient->addColor(0, 0, 255, 1.0f);
    return gradient;
}

// The default runs left to right over the shape's bounds, wherever the
// shape lies; P2 at (0, 1) runs top to bottom.
TEST(vxDeviceGDIPlusPaint, LinearGradientRunsFromFirstToLastColour) {
    auto device = openDevice(120, 120, Route::kRecorded, 1);
    auto across = redToBlue();
    fillRect(*device, *across, 10, 0, 110, 10);
    auto down = redToBlue();
    down->setP2(0, 1);
    fillRect(*device, *down, 10, 20, 20, 120);
    cairo_surface_t* picture = finish(*device);
    EXPECT_TRUE(isNear(pixelAt(picture, 10, 5), 255, 0, 0, 255, 3));
    EXPECT_TRUE(isNear(pixelAt(picture, 109, 5), 0, 0, 255, 255, 3));
    EXPECT_TRUE(isNear(pixelAt(picture, 59, 5), 128, 0, 128, 255, 3));
    int lastRed = 256;
    for (int x = 10; x < 110; x += 10) {
        const int red = pixelAt(picture, x, 5).r;
        EXPECT_LT(red, lastRed) << x;
        lastRed = red;
    }
    EXPECT_TRUE(isNear(pixelAt(picture, 15, 20), 255, 0, 0, 255, 3));
    EXPECT_TRUE(isNear(pixelAt(picture, 15, 119), 0, 0, 255, 255, 3));
    EXPECT_TRUE(isNear(pixelAt(picture, 15, 69), 128, 0, 128, 255, 3));
}

// Between P1 and P2 at a quarter and three quarters: the pad spread keeps
// the end colours to the edges, repeat starts again, reflect turns back.
TEST(vxDeviceGDIPlusPaint, LinearGradientSpreads) {
    struct Case {
        short spread;
        int redNearRightEdge;  // at 95.5 of 100: 0.41 of P1-P2 beyond P2
    };
    for (const Case& c : {Case{1, 0}, Case{2, 150}, Case{3, 105}}) {
        auto gradient = redToBlue();
        gradient->setP1(0.25f, 0);
        gradient->setP2(0.75f, 0);
        gradient->setSpread(c.spread);
        auto device = openDevice(100, 10, Route::kRecorded, 1);
        fillRect(*device, *gradient, 0, 0, 100, 10);
        cairo_surface_t* picture = finish(*device);
        EXPECT_TRUE(isNear(pixelAt(picture, 25, 5), 250, 0, 5, 255, 4)) << c.spread;
        EXPECT_NEAR(pixelAt(picture, 95, 5).r, c.redNearRightEdge, 4) << c.spread;
        if (c.spread == 1) {
            EXPECT_TRUE(isNear(pixelAt(picture, 2, 5), 255, 0, 0, 255));
        }
    }
}

TEST(vxDeviceGDIPlusPaint, GradientStopsKeepTheirAlpha) {
    vxLinearGradient gradient;
    gradient.addColor(0, 0, 0, 255, 0.0f);
    gradient.addColor(0, 0, 0, 0, 1.0f);
    auto device = openDevice(100, 10, Route::kBitmap, 1);
    fillRect(*device, gradient, 0, 0, 100, 10);
    cairo_surface_t* picture = finish(*device);
    EXPECT_NEAR(pixelAt(picture, 0, 5).a, 254, 2);
    EXPECT_NEAR(pixelAt(picture, 50, 5).a, 127, 3);
    EXPECT_NEAR(pixelAt(picture, 99, 5).a, 1, 2);
}

// The centre has the first colour, the circle of radius 0.5 of the box the
// last: on a wide box the circle becomes an ellipse.
TEST(vxDeviceGDIPlusPaint, RadialGradientIsScaledToTheBox) {
    vxRadialGradient gradient;
    gradient.addColor(255, 255, 255, 0.0f);
    gradient.addColor(0, 0, 0, 1.0f);
    auto device = openDevice(200, 100, Route::kRecorded, 1);
    fillRect(*device, gradient, 0, 0, 200, 100);
    cairo_surface_t* picture = finish(*device);
    EXPECT_TRUE(isNear(pixelAt(picture, 100, 50), 255, 255, 255, 255, 4));
    EXPECT_TRUE(isNear(pixelAt(picture, 199, 50), 0, 0, 0, 255, 4));
    EXPECT_TRUE(isNear(pixelAt(picture, 100, 0), 0, 0, 0, 255, 4));
    // Half way to the rim in either direction: half way in colour.
    EXPECT_NEAR(pixelAt(picture, 150, 50).r, 128, 4);
    EXPECT_NEAR(pixelAt(picture, 100, 25).r, 128, 4);
    EXPECT_TRUE(isNear(pixelAt(picture, 0, 0), 0, 0, 0, 255));
}

// A gradient strokes along the line's own box.
TEST(vxDeviceGDIPlusPaint, GradientStroke) {
    auto gradient = redToBlue();
    auto device = openDevice(100, 10, Route::kBitmap, 0);
    device->drawLine2D(*buttStroke(4), *gradient, 0, 5, 100, 5);
    cairo_surface_t* picture = finish(*device);
    EXPECT_TRUE(isNear(pixelAt(picture, 0, 5), 255, 0, 0, 255, 3));
    EXPECT_TRUE(isNear(pixelAt(picture, 99, 5), 0, 0, 255, 255, 3));
}

}  // namespace
}  // namespace Velarix::test
