// Hatches and gradients of the raster device, read back from the picture.
#include <gtest/gtest.h>

#include <cstdint>

#include "graphics/vxLinearGradient.h"
#include "graphics/vxRadialGradient.h"
#include "graphics/vxTexturePaintOLD.h"
#include "output/vxBitmap.h"
#include "output/vxRasterTestSupport.h"
#include "platform/vxTexturePictures.h"

namespace Velarix::test {
namespace {

// Pattern i shows row i - 1 of the hatch table, whose rows 3 to 8 are
// given as hex below: set bits, the left pixel the highest, in the colour,
// clear bits white at the paint's alpha. The tile repeats from the
// drawing's origin, wherever the shape starts.
TEST(vxDeviceGDIPlusPaint, HatchShowsItsPattern) {
    const uint64_t rows[] = {0x8000000008000000, 0x8000080080000800, 0x0011004400110044,
                             0x8822882288228822, 0x55aa55aa55aa55aa, 0x77dd77dd77dd77dd};
    for (short alpha : {255, 128}) {
        for (short pattern = 4; pattern <= 9; ++pattern) {
            const Drawn d = draw(
                16, 16,
                [&](vxDevice& d) { fillRect(d, *rgba(255, 0, 0, alpha, pattern), 3, 0, 16, 16); },
                Route::kRecorded, 1);
            for (int y = 0; y < 16; ++y) {
                for (int x = 3; x < 16; ++x) {
                    const bool isSet = (rows[pattern - 4] >> (63 - (y % 8) * 8 - x % 8)) & 1;
                    const int clear = isSet ? 0 : 255;
                    ASSERT_TRUE(isNear(d.at(x, y), 255, clear, clear, alpha, 1))
                        << pattern << " at " << x << "," << y;
                }
            }
        }
    }
}

// A colour with a texture number draws the number's picture, repeated
// from the drawing's origin, on either route; a texture paint without a
// picture draws nothing.
TEST(vxDeviceGDIPlusPaint, TextureNumbersDrawTheirPictures) {
    for (Route route : {Route::kBitmap, Route::kRecorded}) {
        for (short pattern : {65, 128}) {
            const Drawn d = draw(
                50, 40,
                [&](vxDevice& d) {
                    fillRect(d, *rgba(0, 128, 0, 255, pattern), 5, 0, 40, 40);
                    fillRect(d, vxTexturePaintOLD(), 40, 0, 50, 40);
                },
                route);
            vxBitmap texture;
            ASSERT_TRUE(vxTexturePictures::make(pattern, texture));
            for (int y = 0; y < 40; ++y) {
                for (int x = 5; x < 40; ++x) {
                    uint8_t c[4];
                    texture.getColor(x % 32, y % 32, c);
                    ASSERT_TRUE(isNear(d.at(x, y), c[0], c[1], c[2], c[3])) << x << "," << y;
                }
            }
            EXPECT_EQ(d.alpha(45, 5), 0);
            EXPECT_FALSE(d.device->isError());
        }
    }
}

// Blended plainly, without gamma correction, unless asked.
std::unique_ptr<vxLinearGradient> redToBlue(float x1 = 0, float y1 = 0, float x2 = 1, float y2 = 0,
                                            bool isGammaCorrected = false) {
    auto gradient = std::make_unique<vxLinearGradient>();
    gradient->addColor(255, 0, 0, 0.0f);
    gradient->addColor(0, 0, 255, 1.0f);
    gradient->setP1(x1, y1);
    gradient->setP2(x2, y2);
    gradient->setUseGammaCorrection(isGammaCorrected);
    return gradient;
}

// Gamma correction, on unless turned off, blends in linear light: half way
// from red to blue both stand at 0.5 to the power 1 / 2.2, or 186, where a
// plain blend gives 128; alpha is blended plainly either way. The ends keep
// their colours.
TEST(vxDeviceGDIPlusPaint, GammaCorrectionBlendsInLinearLight) {
    EXPECT_TRUE(vxLinearGradient().getUseGammaCorrection());
    for (bool isGammaCorrected : {true, false}) {
        auto gradient = redToBlue(0, 0, 1, 0, isGammaCorrected);
        vxLinearGradient fading;
        fading.setUseGammaCorrection(isGammaCorrected);
        fading.addColor(255, 255, 255, 255, 0.0f);
        fading.addColor(255, 255, 255, 0, 1.0f);
        const Drawn d = draw(
            101, 8,
            [&](vxDevice& d) {
                fillRect(d, *gradient, 0, 0, 101, 4);
                fillRect(d, fading, 0, 4, 101, 8);
            },
            Route::kRecorded, 1);
        const int middle = isGammaCorrected ? 186 : 128;
        EXPECT_TRUE(isNear(d.at(50, 2), middle, 0, middle, 255, 2)) << isGammaCorrected;
        EXPECT_TRUE(isNear(d.at(0, 2), 254, 0, 1, 255, 3)) << isGammaCorrected;
        EXPECT_TRUE(isNear(d.at(100, 2), 1, 0, 254, 255, 3)) << isGammaCorrected;
        EXPECT_NEAR(d.alpha(50, 6), 128, 2) << isGammaCorrected;
    }
}

// Laid over the shape's bounds wherever the shape lies: left to right by
// default, top to bottom with P2 at (0, 1), along a line's own box.
TEST(vxDeviceGDIPlusPaint, LinearGradientRunsFromFirstToLastColour) {
    const Drawn d = draw(
        120, 120,
        [](vxDevice& d) {
            fillRect(d, *redToBlue(), 10, 0, 110, 10);
            fillRect(d, *redToBlue(0, 0, 0, 1), 10, 20, 20, 120);
            d.drawLine2D(*buttStroke(4), *redToBlue(), 30, 50, 110, 50);
        },
        Route::kRecorded, 1);
    for (auto [x, y] : {std::pair{10, 5}, std::pair{15, 20}, std::pair{30, 50}})
        EXPECT_TRUE(isNear(d.at(x, y), 255, 0, 0, 255, 3)) << x << "," << y;
    for (auto [x, y] : {std::pair{109, 5}, std::pair{15, 119}, std::pair{109, 50}})
        EXPECT_TRUE(isNear(d.at(x, y), 0, 0, 255, 255, 3)) << x << "," << y;
    EXPECT_TRUE(isNear(d.at(59, 5), 128, 0, 128, 255, 3));
    EXPECT_TRUE(isNear(d.at(15, 69), 128, 0, 128, 255, 3));
}

// From P1 at a quarter to P2 at three quarters: pad keeps the end colours
// out to the edges, repeat starts again, reflect turns back. At 95.5 the
// gradient stands 0.41 beyond P2.
TEST(vxDeviceGDIPlusPaint, LinearGradientSpreadsAndStopAlpha) {
    for (auto [spread, red] : {std::pair{1, 0}, std::pair{2, 150}, std::pair{3, 105}}) {
        auto gradient = redToBlue(0.25f, 0, 0.75f, 0);
        gradient->setSpread(static_cast<short>(spread));
        const Drawn d = draw(
            100, 10, [&](vxDevice& d) { fillRect(d, *gradient, 0, 0, 100, 10); }, Route::kRecorded,
            1);
        EXPECT_TRUE(isNear(d.at(25, 5), 250, 0, 5, 255, 4)) << spread;
        EXPECT_NEAR(d.at(95, 5).r, red, 4) << spread;
    }
    vxLinearGradient fading;
    fading.setUseGammaCorrection(false);
    fading.addColor(0, 0, 0, 255, 0.0f);
    fading.addColor(0, 0, 0, 0, 1.0f);
    const Drawn d = draw(100, 10, [&](vxDevice& d) { fillRect(d, fading, 0, 0, 100, 10); });
    EXPECT_NEAR(d.alpha(0, 5), 254, 2);
    EXPECT_NEAR(d.alpha(50, 5), 127, 3);
    EXPECT_NEAR(d.alpha(99, 5), 1, 2);
}

// The first colour at the centre, the last on the circle of radius 0.5,
// which a wide box draws out to an ellipse.
TEST(vxDeviceGDIPlusPaint, RadialGradientIsScaledToTheBox) {
    vxRadialGradient gradient;
    gradient.setUseGammaCorrection(false);
    gradient.addColor(255, 255, 255, 0.0f);
    gradient.addColor(0, 0, 0, 1.0f);
    const Drawn d = draw(
        200, 100, [&](vxDevice& d) { fillRect(d, gradient, 0, 0, 200, 100); }, Route::kRecorded, 1);
    EXPECT_TRUE(isNear(d.at(100, 50), 255, 255, 255, 255, 4));
    EXPECT_TRUE(isNear(d.at(199, 50), 0, 0, 0, 255, 4));
    EXPECT_TRUE(isNear(d.at(100, 0), 0, 0, 0, 255, 4));
    EXPECT_NEAR(d.at(150, 50).r, 128, 4);
    EXPECT_NEAR(d.at(100, 25).r, 128, 4);
}

}  // namespace
}  // namespace Velarix::test
