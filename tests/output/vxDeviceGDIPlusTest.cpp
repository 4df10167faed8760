// The raster device, judged by the pixels of its finished picture.
#include <gtest/gtest.h>

#include "graphics/vxCombinedStroke.h"
#include "graphics/vxFontOLD.h"
#include "graphics/vxSelectionKnobs.h"
#include "graphics/vxShadowOLD.h"
#include "output/vxRasterTestSupport.h"
#include "platform/vxEncoderSupport.h"

namespace Velarix::test {
namespace {

const float kNoBounds[4] = {0, 0, 0, 0};

// The comparator itself: it sees a shift by one pixel and one step of
// brightness, and nothing in an identical picture.
TEST(vxRasterTestSupport, MaxDifferenceSeesShiftsAndBrightness) {
    auto rect = [](float left, short red) {
        return draw(20, 20,
                    [&](vxDevice& d) { fillRect(d, *rgba(red, 0, 0), left, 5, left + 5, 10); });
    };
    const Drawn base = rect(5, 200);
    EXPECT_EQ(maxDifference(base.picture, rect(5, 200).picture), 0);
    EXPECT_EQ(maxDifference(base.picture, rect(6, 200).picture), 255);
    EXPECT_EQ(maxDifference(base.picture, rect(5, 201).picture), 1);
}

// Red inside; outside transparent, or opaque white where the picture is
// laid on white for the formats without alpha.
TEST(vxDeviceGDIPlus, FilledRectangleOnEitherRoute) {
    for (Route route : {Route::kBitmap, Route::kRecorded}) {
        const Drawn d = draw(
            40, 30, [](vxDevice& d) { fillRect(d, *rgba(255, 0, 0), 10, 10, 30, 20); }, route);
        ASSERT_NE(d.picture, nullptr);
        EXPECT_EQ(cairo_image_surface_get_width(d.picture), 40);
        EXPECT_TRUE(isNear(d.at(10, 10), 255, 0, 0, 255));
        EXPECT_TRUE(isNear(d.at(29, 19), 255, 0, 0, 255));
        EXPECT_EQ(d.alpha(9, 15) + d.alpha(30, 15) + d.alpha(20, 20), 0);
        const vxRasterPixels pixels{cairo_image_surface_get_data(d.picture), 40, 30,
                                    cairo_image_surface_get_stride(d.picture)};
        EXPECT_EQ(vxPixelOverWhite(pixels, 0, 0), 0xffffffu);
        EXPECT_EQ(vxPixelOverWhite(pixels, 20, 15), 0xff0000u);
    }
}

// On whole pixels the record gives what the bitmap draws directly (strokes
// of an even width); off them the bitmap rounds, and the record half covers
// a pixel.
TEST(vxDeviceGDIPlus, RoutesAndRounding) {
    auto scene = [](vxDevice& d) {
        fillRect(d, *rgba(0, 128, 255, 200), 5, 5, 40, 30);
        d.drawLine2D(*buttStroke(2), *rgba(255, 0, 0), 0, 35, 60, 2);
        d.drawPolygon2D(*buttStroke(4), *rgba(0, 0, 0), {10, 50, 30}, {30, 30, 5}, kNoBounds, true);
    };
    EXPECT_EQ(maxDifference(draw(60, 40, scene, Route::kBitmap, 1).picture,
                            draw(60, 40, scene, Route::kRecorded, 1).picture),
              0);
    auto offPixels = [](vxDevice& d) { fillRect(d, *rgba(0, 0, 0), 2.4f, 2, 10.5f, 8); };
    const Drawn bitmap = draw(20, 10, offPixels, Route::kBitmap, 1);
    EXPECT_EQ(bitmap.alpha(1, 5) + bitmap.alpha(11, 5), 0);
    EXPECT_EQ(bitmap.alpha(2, 5) + bitmap.alpha(10, 5), 510);
    EXPECT_NEAR(draw(20, 10, offPixels, Route::kRecorded, 1).alpha(10, 5), 128, 2);
}

// On a bitmap a whole-pixel coordinate is the centre of a pixel: lines of
// width 1 and 3 cover whole rows and columns, with antialiasing or
// without, and a width of 2 lies between two pixels. A record keeps the
// exact coordinates: width 1 lies half in two rows.
TEST(vxDeviceGDIPlus, ThinLinesCoverWholePixelsOnABitmap) {
    for (short antialiasing : {0, 1}) {
        for (float width : {1.0f, 2.0f, 3.0f}) {
            const Drawn d = draw(
                50, 20,
                [&](vxDevice& d) {
                    d.drawLine2D(*buttStroke(width), *rgba(0, 0, 0), 5, 10, 45, 10);
                    d.drawLine2D(*buttStroke(width), *rgba(0, 0, 0), 30, 2, 30.4f, 18);
                },
                Route::kBitmap, antialiasing);
            SCOPED_TRACE(std::to_string(antialiasing) + " width " + std::to_string(width));
            const int first = width == 2.0f ? 9 : 10 - static_cast<int>(width) / 2;
            const int last = first + static_cast<int>(width) - 1;
            for (int y = 7; y <= 13; ++y)
                EXPECT_EQ(d.alpha(20, y), y >= first && y <= last ? 255 : 0) << y;
            for (int x = 26; x <= 34; ++x)
                EXPECT_EQ(d.alpha(x, 15), x - 20 >= first && x - 20 <= last ? 255 : 0) << x;
        }
    }
    const Drawn recorded = draw(
        50, 20, [](vxDevice& d) { d.drawLine2D(*buttStroke(1), *rgba(0, 0, 0), 5, 10, 45, 10); },
        Route::kRecorded, 1);
    EXPECT_NEAR(recorded.alpha(20, 9), 128, 2);
    EXPECT_NEAR(recorded.alpha(20, 10), 128, 2);
}

// A zero-width stroke, a none paint, a line whose ends meet, an unknown
// symbol type and a text of empty lines leave no trace.
TEST(vxDeviceGDIPlus, CommonRulesLeaveNoTrace) {
    const Drawn d = draw(
        30, 30,
        [](vxDevice& d) {
            d.drawLine2D(vxBasicStroke(0.0f), *rgba(0, 0, 0), 0, 0, 30, 30);
            d.drawLine2D(*buttStroke(5), *rgba(0, 0, 0, 255, 1), 0, 0, 30, 30);
            d.drawLine2D(*buttStroke(5), *rgba(0, 0, 0, 0), 0, 0, 30, 30);
            d.drawLine2D(*buttStroke(5), *rgba(0, 0, 0), 10, 10, 10.0005f, 10.0005f);
            fillRect(d, *rgba(0, 0, 0, 255, 1), 0, 0, 30, 30);
            for (short type : {0, 19})
                d.drawSymbol(*buttStroke(1), *rgba(0, 0, 0), *rgba(0, 0, 0), type, 10, 15, 15);
            const vxFontOLD font(L"Arial", 12, vxFontOLD::kPlain);
            const float bounds[4] = {0, 0, 30, 30};
            d.drawString2D(L"\r\r", font, *rgba(0, 0, 0), bounds, 1, 1, 0.0f);
            d.drawString2D(L"x", font, *rgba(0, 0, 0, 0), bounds, 1, 1, 0.0f);
        },
        Route::kBitmap, 1);
    EXPECT_EQ(boxOf(d.picture, isInked).count, 0);
    EXPECT_FALSE(d.device->isError());
}

// A pair of a line array whose ends meet leaves the dot of its cap, square
// or round, and nothing with a flat cap; a single line of the same ends
// leaves nothing at all.
TEST(vxDeviceGDIPlus, ZeroLengthPairsOfALineArrayLeaveTheirCaps) {
    for (short cap : {vxStrokeOLD::kButtCap, vxStrokeOLD::kSquareCap, vxStrokeOLD::kRoundCap}) {
        vxBasicStroke stroke(4.0f);
        stroke.setLineCap(cap);
        const Drawn d = draw(
            40, 20,
            [&](vxDevice& d) {
                d.drawLineArray2D(stroke, *rgba(0, 0, 0), {10, 10.0005f, 20, 30}, {10, 10, 10, 10});
                d.drawLine2D(stroke, *rgba(0, 0, 0), 5, 3, 5, 3);
            },
            Route::kRecorded, 1);
        const int dot = cap == vxStrokeOLD::kButtCap ? 0 : 255;
        EXPECT_EQ(d.alpha(10, 10), dot) << cap;
        // The corner of the square, which the round dot leaves out.
        EXPECT_EQ(d.alpha(8, 8) > 128, cap == vxStrokeOLD::kSquareCap) << cap;
        EXPECT_EQ(d.alpha(13, 10) + d.alpha(5, 3), 0) << cap;
        EXPECT_EQ(d.alpha(25, 10), 255) << cap;
    }
}

// Dash pattern 1, 5 on and 2 off, keeps its lengths on a wider line, as
// the SVG of it does; a combined stroke draws its strokes one over the
// other.
TEST(vxDeviceGDIPlus, DashedAndCombinedStrokes) {
    for (float width : {1.0f, 2.0f, 4.0f}) {
        auto stroke = buttStroke(width);
        stroke->setDashStyle(1);
        const Drawn d = draw(
            60, 10, [&](vxDevice& d) { d.drawLine2D(*stroke, *rgba(0, 0, 0), 0, 5.5f, 60, 5.5f); },
            Route::kRecorded);
        for (int x = 0; x < 21; ++x)
            EXPECT_EQ(d.alpha(x, 5), x % 7 < 5 ? 255 : 0) << "width " << width << ", " << x;
    }
    vxCombinedStroke combined;
    ASSERT_TRUE(combined.addStroke(*buttStroke(9)) && combined.addStroke(*buttStroke(1)));
    const Drawn d = draw(
        60, 20, [&](vxDevice& d) { d.drawLine2D(combined, *rgba(0, 0, 255, 128), 5, 10, 55, 10); });
    EXPECT_NEAR(d.alpha(20, 6), 128, 1);
    // Two layers of half alpha where the thin line lies on the wide one.
    EXPECT_NEAR(std::max(d.alpha(20, 9), d.alpha(20, 10)), 192, 2);
}

TEST(vxDeviceGDIPlus, PathsWithCurves) {
    // Right from (10,10) to (50,10), a quadratic bend through (60,30) down
    // to (50,50), a cubic back to (10,50), closed; and a straight path.
    const Drawn d = draw(60, 60, [](vxDevice& d) {
        const float bounds[4] = {10, 10, 60, 60};
        d.fillPath2D(*rgba(0, 255, 0), {2, 3, 4, 5, 1}, {10, 50, 60, 50, 30, 20, 10},
                     {10, 10, 30, 50, 60, 60, 50}, bounds, 0);
        d.drawPath2D(*buttStroke(1), *rgba(0, 0, 0), {2, 3}, {5, 55}, {3, 3}, bounds);
    });
    EXPECT_TRUE(isNear(d.at(30, 30), 0, 255, 0, 255));
    EXPECT_TRUE(isNear(d.at(53, 30), 0, 255, 0, 255));  // inside the bend
    EXPECT_EQ(d.alpha(58, 30), 0);                      // the control point
    EXPECT_EQ(d.alpha(30, 2) + d.alpha(30, 3), 255);
}

// A shadow row draws the shape moved by the offsets in the shadow's paint;
// a symbol's shadow fills with it.
TEST(vxDeviceGDIPlus, ShadowsAreOffset) {
    vxShadowOLD shadow;
    shadow.setOffsets(5, 3);
    const Drawn d = draw(60, 40, [&](vxDevice& d) {
        const float bounds[4] = {15, 13, 35, 23};
        d.fillPolygon2D(shadow, {10, 30, 30, 10}, {10, 10, 20, 20}, bounds, 1);
        d.drawLine2D(*buttStroke(1), shadow, 40, 5, 55, 5);
        d.drawSymbol(*buttStroke(1), *rgba(0, 0, 0), shadow, 3, 6, 45, 25);
    });
    EXPECT_TRUE(isNear(d.at(15, 13), 136, 136, 136, 255));
    EXPECT_TRUE(isNear(d.at(34, 22), 136, 136, 136, 255));
    EXPECT_EQ(d.alpha(14, 13) + d.alpha(12, 12), 0);
    EXPECT_EQ(d.alpha(50, 7) + d.alpha(50, 8), 255);
    EXPECT_TRUE(isNear(d.at(50, 28), 136, 136, 136, 255));
}

// A first clip of 0..20, then 10..30 by each mode; probes at 5, 15, 25, 35.
TEST(vxDeviceGDIPlus, ClipModes) {
    const struct {
        short mode;
        int covered[4];
    } cases[] = {{1, {0, 1, 0, 0}}, {2, {1, 0, 0, 0}}, {3, {1, 1, 1, 0}}, {0, {0, 1, 1, 0}}};
    for (const auto& c : cases) {
        for (Route route : {Route::kBitmap, Route::kRecorded}) {
            const Drawn d = draw(
                40, 10,
                [&](vxDevice& d) {
                    d.setClipRegion(0, 0, 20, 10, 0);
                    d.setClipRegion(10, 0, 20, 10, c.mode);
                    fillRect(d, *rgba(0, 0, 0), 0, 0, 40, 10);
                },
                route);
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(d.alpha(5 + 10 * i, 5), 255 * c.covered[i]) << c.mode << " " << i;
        }
    }
}

// Clips after a mask keep combining, by rectangle and by path; a reset
// opens the whole drawing.
TEST(vxDeviceGDIPlus, ClipsCombineAndReset) {
    const Drawn d = draw(40, 40, [](vxDevice& d) {
        const float bounds[4] = {0, 0, 40, 40};
        d.setClipRegion(0, 0, 10, 40, 0);
        d.setClipRegion(30, 0, 10, 40, 3);                                  // 0..10 and 30..40
        d.setClipRegion({2, 3, 3, 1}, {5, 40, 40}, {0, 0, 35}, bounds, 1);  // right of x = y + 5
        fillRect(d, *rgba(255, 0, 0), 0, 0, 40, 40);
        d.resetClipRegion();
        fillRect(d, *rgba(0, 0, 255), 0, 38, 40, 40);
    });
    EXPECT_EQ(d.alpha(2, 2) + d.alpha(20, 2) + d.alpha(32, 30) + d.alpha(8, 20), 0);
    EXPECT_TRUE(isNear(d.at(8, 1), 255, 0, 0, 255));
    EXPECT_TRUE(isNear(d.at(32, 20), 255, 0, 0, 255));
    EXPECT_TRUE(isNear(d.at(20, 39), 0, 0, 255, 255));
}

// Rectangles beyond 32000 leave the clip as it was, and so does one
// thinner than a pixel on a bitmap; the bare rectangle replaces the clip.
TEST(vxDeviceGDIPlus, ClipLimits) {
    for (Route route : {Route::kBitmap, Route::kRecorded}) {
        const Drawn d = draw(
            40, 10,
            [](vxDevice& d) {
                d.setClipRegion(0, 0, 20, 10, 0);
                d.setClipRegion(0, 0, 32001, 10, 0);
                d.setClipRegion(-32001, 0, 10, 10, 0);
                d.setClipRegion(0, 0, -1, 10, 0);
                d.setClipRegion(2, 0, 0.5f, 10, 0);
                fillRect(d, *rgba(0, 0, 0), 0, 0, 40, 10);
                const float rect[4] = {30, 0, 40, 10};
                d.setClipRegion(rect);
                fillRect(d, *rgba(255, 0, 0), 0, 0, 40, 10);
            },
            route);
        EXPECT_EQ(d.alpha(15, 5), route == Route::kBitmap ? 255 : 0);
        EXPECT_EQ(d.alpha(25, 5), 0);
        EXPECT_TRUE(isNear(d.at(35, 5), 255, 0, 0, 255));
    }
}

// Each type centred at 15, 15 with size 20 (10 for the marks of lines),
// a black outline of width 3 and a green fill: a pixel that shows the
// fill, or the outline where a shape has no fill; nothing beyond the box
// and the outline, which stands half a pixel right and down on a bitmap.
TEST(vxDeviceGDIPlus, SymbolShapes) {
    const struct {
        short type;
        int x, y;
        bool isFill;
    } probes[] = {{1, 11, 11, false},  {2, 15, 15, true},   {3, 7, 7, true},    {4, 15, 15, true},
                  {5, 15, 9, true},    {6, 15, 21, true},   {7, 15, 10, false}, {8, 15, 5, false},
                  {9, 5, 15, false},   {10, 9, 10, false},  {11, 10, 5, false}, {12, 9, 24, false},
                  {13, 12, 15, false}, {14, 15, 12, false}, {15, 8, 15, false}, {16, 22, 15, false},
                  {17, 15, 8, false},  {18, 15, 22, false}};
    for (const auto& p : probes) {
        const float size = p.type == 1 || p.type == 7 || p.type >= 13 ? 10.0f : 20.0f;
        const Drawn d = draw(30, 30, [&](vxDevice& d) {
            d.drawSymbol(*buttStroke(3), *rgba(0, 0, 0), *rgba(0, 255, 0), p.type, size, 15, 15);
        });
        EXPECT_TRUE(isNear(d.at(p.x, p.y), 0, p.isFill ? 255 : 0, 0, 255)) << p.type;
        const bool hasFill = boxOf(d.picture, [](const Pixel& px) { return px.g > 0; }).count > 0;
        EXPECT_EQ(hasFill, p.type >= 2 && p.type <= 6) << p.type;
        const Box ink = boxOf(d.picture, isInked);
        EXPECT_LE(ink.right, 28) << p.type;
        EXPECT_GE(ink.left, 3) << p.type;
    }
}

// Black squares from x - 3 to x + 2 at each knob and a grey frame through
// the corners, on whole pixels even in a record.
TEST(vxDeviceGDIPlus, SelectionKnobs) {
    vxSelectionKnobs knobs;
    const float bounds[4] = {10, 10, 40, 30};
    knobs.doShowMidKnobs = true;
    knobs.setFromBounds(bounds);
    const Drawn d = draw(
        50, 40, [&](vxDevice& d) { d.drawSelectionKnobs(knobs); }, Route::kRecorded, 1);
    for (int i = 0; i < knobs.numOfKnobs; ++i) {
        const int x = static_cast<int>(knobs.x[i]), y = static_cast<int>(knobs.y[i]);
        EXPECT_TRUE(isNear(d.at(x - 3, y - 3), 0, 0, 0, 255)) << i;
        EXPECT_TRUE(isNear(d.at(x + 1, y + 1), 0, 0, 0, 255)) << i;
        EXPECT_FALSE(isNear(d.at(x + 2, y + 2), 0, 0, 0, 255)) << i;
    }
    EXPECT_NEAR(d.at(20, 30).r, 0xA9, 2);
    EXPECT_NEAR(d.alpha(20, 30), 128, 2);
    EXPECT_EQ(d.alpha(25, 20), 0);
}

}  // namespace
}  // namespace Velarix::test
