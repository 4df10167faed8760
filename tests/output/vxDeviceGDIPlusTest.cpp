// The raster device, judged by the pixels of its finished picture.
#include <gtest/gtest.h>

#include <cmath>

#include "graphics/vxCombinedStroke.h"
#include "graphics/vxSelectionKnobs.h"
#include "graphics/vxShadowOLD.h"
#include "output/vxRasterTestSupport.h"

namespace Velarix::test {
namespace {

const float kNoBounds[4] = {0, 0, 0, 0};

// The comparator itself: a shift by one pixel and a change of one step of
// brightness are seen, an identical picture is not.
TEST(vxRasterTestSupport, MaxDifferenceSeesShiftsAndBrightness) {
    auto draw = [](float left, short red) {
        auto device = openDevice(20, 20);
        fillRect(*device, *rgba(red, 0, 0), left, 5, left + 5, 10);
        device->close();
        return cairo_surface_reference(device->getPicture());
    };
    cairo_surface_t* base = draw(5, 200);
    cairo_surface_t* same = draw(5, 200);
    cairo_surface_t* shifted = draw(6, 200);
    cairo_surface_t* brighter = draw(5, 201);
    EXPECT_EQ(maxDifference(base, same), 0);
    EXPECT_EQ(maxDifference(base, shifted), 255);
    EXPECT_EQ(maxDifference(base, brighter), 1);
    for (cairo_surface_t* s : {base, same, shifted, brighter}) cairo_surface_destroy(s);
}

// Red inside; outside, transparent on a bitmap as on a record played for
// PNG, and opaque white where the picture is laid on white.
TEST(vxDeviceGDIPlus, FilledRectangleOnEitherRoute) {
    for (Route route : {Route::kBitmap, Route::kRecorded}) {
        auto device = openDevice(40, 30, route);
        fillRect(*device, *rgba(255, 0, 0), 10, 10, 30, 20);
        cairo_surface_t* picture = finish(*device);
        ASSERT_NE(picture, nullptr);
        EXPECT_EQ(cairo_image_surface_get_width(picture), 40);
        EXPECT_EQ(cairo_image_surface_get_height(picture), 30);
        EXPECT_TRUE(isNear(pixelAt(picture, 10, 10), 255, 0, 0, 255));
        EXPECT_TRUE(isNear(pixelAt(picture, 29, 19), 255, 0, 0, 255));
        EXPECT_EQ(pixelAt(picture, 9, 15).a, 0);
        EXPECT_EQ(pixelAt(picture, 30, 15).a, 0);
        EXPECT_EQ(pixelAt(picture, 20, 20).a, 0);
        cairo_surface_t* onWhite = device->getPicture(true);
        EXPECT_TRUE(isNear(pixelAt(onWhite, 0, 0), 255, 255, 255, 255));
        EXPECT_TRUE(isNear(pixelAt(onWhite, 20, 15), 255, 0, 0, 255));
        EXPECT_FALSE(device->isError());
    }
}

TEST(vxDeviceGDIPlus, PictureExistsOnlyAfterClose) {
    vxDeviceGDIPlus device;
    EXPECT_EQ(device.getDeviceID(), 4);
    device.setSize(10.4f, 9.6f);
    device.setIsBitmap(true);
    EXPECT_EQ(device.getPicture(), nullptr);
    device.open();
    fillRect(device, *rgba(0, 0, 0), 0, 0, 5, 5);
    EXPECT_EQ(device.getPicture(), nullptr);
    device.close();
    ASSERT_NE(device.getPicture(), nullptr);
    EXPECT_EQ(cairo_image_surface_get_width(device.getPicture()), 10);
    EXPECT_EQ(cairo_image_surface_get_height(device.getPicture()), 10);
    device.open();
    EXPECT_EQ(device.getPicture(), nullptr);
}

TEST(vxDeviceGDIPlus, PictureTooLargeIsAnImageDimensionError) {
    auto device = openDevice(40000, 10);
    EXPECT_TRUE(device->isError());
    EXPECT_EQ(device->getError()->getErrorCode(), vxErrChart::kImageDimension);
    fillRect(*device, *rgba(0, 0, 0), 0, 0, 5, 5);
    device->close();
    EXPECT_EQ(device->getPicture(), nullptr);
}

// The same shapes on whole pixels drawn on both routes give the same
// picture: the record keeps what the bitmap draws directly.
TEST(vxDeviceGDIPlus, RoutesAgreeOnWholePixels) {
    auto draw = [](Route route) {
        auto device = openDevice(60, 40, route, 1);
        fillRect(*device, *rgba(0, 128, 255, 200), 5, 5, 40, 30);
        device->drawLine2D(*buttStroke(2), *rgba(255, 0, 0), 0, 35, 60, 2);
        device->drawPolygon2D(*buttStroke(3), *rgba(0, 0, 0), {10, 50, 30}, {30, 30, 5}, kNoBounds,
                              true);
        device->close();
        return cairo_surface_reference(device->getPicture());
    };
    cairo_surface_t* bitmap = draw(Route::kBitmap);
    cairo_surface_t* recorded = draw(Route::kRecorded);
    EXPECT_EQ(maxDifference(bitmap, recorded), 0);
    cairo_surface_destroy(bitmap);
    cairo_surface_destroy(recorded);
}

// A bitmap rounds coordinates to whole pixels; a record keeps them, and a
// half-covered pixel comes out half covered.
TEST(vxDeviceGDIPlus, BitmapRoundsCoordinates) {
    auto bitmap = openDevice(20, 10, Route::kBitmap, 1);
    fillRect(*bitmap, *rgba(0, 0, 0), 2.4f, 2, 10.6f, 8);
    cairo_surface_t* picture = finish(*bitmap);
    EXPECT_EQ(pixelAt(picture, 1, 5).a, 0);
    EXPECT_EQ(pixelAt(picture, 2, 5).a, 255);
    EXPECT_EQ(pixelAt(picture, 10, 5).a, 255);
    EXPECT_EQ(pixelAt(picture, 11, 5).a, 0);

    auto recorded = openDevice(20, 10, Route::kRecorded, 1);
    fillRect(*recorded, *rgba(0, 0, 0), 2.5f, 2, 10.5f, 8);
    picture = finish(*recorded);
    EXPECT_NEAR(pixelAt(picture, 2, 5).a, 128, 2);
    EXPECT_NEAR(pixelAt(picture, 10, 5).a, 128, 2);
}

// A line of width 1 on a whole-pixel y covers half of two pixel rows:
// without antialiasing one row takes it whole, with it both are blended.
TEST(vxDeviceGDIPlus, ThinLineIsSharpWithoutAntialiasing) {
    for (short antialiasing : {0, 1}) {
        auto device = openDevice(50, 20, Route::kBitmap, antialiasing);
        device->drawLine2D(*buttStroke(1), *rgba(0, 0, 0), 5, 10, 45, 10);
        cairo_surface_t* picture = finish(*device);
        const int above = pixelAt(picture, 20, 9).a, below = pixelAt(picture, 20, 10).a;
        if (antialiasing == 0) {
            EXPECT_EQ(above + below, 255) << above << " " << below;
            EXPECT_TRUE(above == 0 || below == 0);
        } else {
            EXPECT_NEAR(above, 128, 2);
            EXPECT_NEAR(below, 128, 2);
        }
        EXPECT_EQ(pixelAt(picture, 20, 8).a, 0);
        EXPECT_EQ(pixelAt(picture, 20, 11).a, 0);
        EXPECT_EQ(pixelAt(picture, 4, 9).a + pixelAt(picture, 4, 10).a, 0);
    }
}

TEST(vxDeviceGDIPlus, NoPartialPixelsWithoutAntialiasing) {
    auto device = openDevice(50, 50, Route::kRecorded, 0);
    device->drawLine2D(*buttStroke(3), *rgba(0, 0, 0), 3, 7, 47, 41);
    device->fillPolygon2D(*rgba(0, 0, 0), {10, 40, 25}, {45, 42, 20}, kNoBounds, 1);
    cairo_surface_t* picture = finish(*device);
    EXPECT_EQ(countOf(picture, [](const Pixel& p) { return p.a != 0 && p.a != 255; }), 0);
    EXPECT_GT(countOf(picture, isInked), 100);
}

// Nothing of a zero-width stroke, a none paint, a line whose ends meet or
// a symbol of an unknown type reaches the picture.
TEST(vxDeviceGDIPlus, CommonRulesLeaveNoTrace) {
    auto device = openDevice(30, 30, Route::kBitmap, 1);
    vxBasicStroke zero(0.0f);
    device->drawLine2D(zero, *rgba(0, 0, 0), 0, 0, 30, 30);
    device->drawLine2D(*buttStroke(5), *rgba(0, 0, 0, 255, 1), 0, 0, 30, 30);
    device->drawLine2D(*buttStroke(5), *rgba(0, 0, 0, 0), 0, 0, 30, 30);
    device->drawLine2D(*buttStroke(5), *rgba(0, 0, 0), 10, 10, 10.0005f, 10.0005f);
    fillRect(*device, *rgba(0, 0, 0, 255, 1), 0, 0, 30, 30);
    device->drawSymbol(*buttStroke(1), *rgba(0, 0, 0), *rgba(0, 0, 0), 0, 10, 15, 15);
    device->drawSymbol(*buttStroke(1), *rgba(0, 0, 0), *rgba(0, 0, 0), 19, 10, 15, 15);
    cairo_surface_t* picture = finish(*device);
    EXPECT_EQ(countOf(picture, isInked), 0);
    EXPECT_FALSE(device->isError());
}

// Pattern 1 of 5 on and 2 off, in multiples of the line width.
TEST(vxDeviceGDIPlus, DashedLineHasGapsScaledByItsWidth) {
    for (float width : {1.0f, 2.0f}) {
        auto device = openDevice(60, 10, Route::kRecorded, 0);
        auto stroke = buttStroke(width);
        stroke->setDashStyle(1);
        device->drawLine2D(*stroke, *rgba(0, 0, 0), 0, 5.5f, 60, 5.5f);
        cairo_surface_t* picture = finish(*device);
        const int on = static_cast<int>(5 * width), off = static_cast<int>(2 * width);
        for (int x = 0; x < 2 * (on + off); ++x) {
            const bool isDash = x % (on + off) < on;
            EXPECT_EQ(pixelAt(picture, x, 5).a, isDash ? 255 : 0) << "width " << width << " x " << x;
        }
    }
}

// Caps: butt ends at the end point, square reaches half the width beyond.
TEST(vxDeviceGDIPlus, CapsAndJoins) {
    auto device = openDevice(60, 60, Route::kBitmap, 0);
    auto square = buttStroke(6);
    square->setLineCap(vxStrokeOLD::kSquareCap);
    device->drawLine2D(*buttStroke(6), *rgba(0, 0, 0), 10, 10, 50, 10);
    device->drawLine2D(*square, *rgba(0, 0, 0), 10, 30, 50, 30);
    auto miter = buttStroke(6);
    miter->setLineJoin(vxStrokeOLD::kMiterJoin);
    auto bevel = buttStroke(6);
    bevel->setLineJoin(vxStrokeOLD::kBevelJoin);
    device->drawPolygon2D(*miter, *rgba(0, 0, 0), {10, 20, 20}, {45, 45, 55}, kNoBounds, false);
    device->drawPolygon2D(*bevel, *rgba(0, 0, 0), {35, 45, 45}, {45, 45, 55}, kNoBounds, false);
    cairo_surface_t* picture = finish(*device);
    EXPECT_EQ(pixelAt(picture, 9, 10).a, 0);
    EXPECT_EQ(pixelAt(picture, 50, 10).a, 0);
    EXPECT_EQ(pixelAt(picture, 8, 30).a, 255);
    EXPECT_EQ(pixelAt(picture, 52, 30).a, 255);
    EXPECT_EQ(pixelAt(picture, 22, 43).a, 255);  // the miter's corner
    EXPECT_EQ(pixelAt(picture, 47, 43).a, 0);    // cut off by the bevel
}

// A wide light stroke under a thin dark one.
TEST(vxDeviceGDIPlus, CombinedStrokeDrawsEachStroke) {
    vxCombinedStroke combined;
    auto wide = buttStroke(9);
    auto thin = buttStroke(1);
    ASSERT_TRUE(combined.addStroke(*wide));
    ASSERT_TRUE(combined.addStroke(*thin));
    auto device = openDevice(40, 20, Route::kBitmap, 0);
    device->drawLine2D(combined, *rgba(0, 0, 255, 128), 5, 10, 35, 10);
    cairo_surface_t* picture = finish(*device);
    EXPECT_NEAR(pixelAt(picture, 20, 6).a, 128, 1);
    // Two layers of half alpha where the thin line lies on the wide one.
    EXPECT_NEAR(std::max(pixelAt(picture, 20, 9).a, pixelAt(picture, 20, 10).a), 192, 2);
    EXPECT_EQ(pixelAt(picture, 20, 3).a, 0);
}

TEST(vxDeviceGDIPlus, PathsWithCurves) {
    auto device = openDevice(60, 60, Route::kBitmap, 0);
    const vxVerbs verbs = {2, 3, 4, 5, 1};
    // From (10,10) right to (50,10), a quadratic bend down to (50,50), a
    // cubic back to (10,50), closed.
    const vxPoints x = {10, 50, 60, 50, 30, 20, 10};
    const vxPoints y = {10, 10, 30, 50, 60, 60, 50};
    const float bounds[4] = {10, 10, 60, 60};
    device->fillPath2D(*rgba(0, 255, 0), verbs, x, y, bounds, 0);
    device->drawPath2D(*buttStroke(1), *rgba(0, 0, 0), {2, 3}, {5, 55}, {3, 3}, bounds);
    cairo_surface_t* picture = finish(*device);
    EXPECT_TRUE(isNear(pixelAt(picture, 30, 30), 0, 255, 0, 255));
    EXPECT_TRUE(isNear(pixelAt(picture, 53, 30), 0, 255, 0, 255));  // inside the bend
    EXPECT_EQ(pixelAt(picture, 58, 30).a, 0);                      // the control point
    EXPECT_EQ(pixelAt(picture, 30, 2).a + pixelAt(picture, 30, 3).a, 255);
}

// A shadow row draws the shape moved by the offsets in the shadow's paint.
TEST(vxDeviceGDIPlus, ShadowsAreOffset) {
    vxShadowOLD shadow;
    shadow.setOffsets(5, 3);
    auto device = openDevice(60, 40, Route::kBitmap, 0);
    const float bounds[4] = {15, 13, 35, 23};
    device->fillPolygon2D(shadow, {10, 30, 30, 10}, {10, 10, 20, 20}, bounds, 1);
    device->drawLine2D(*buttStroke(1), shadow, 40, 5, 55, 5);
    device->drawSymbol(*buttStroke(1), *rgba(0, 0, 0), shadow, 3, 6, 45, 25);
    cairo_surface_t* picture = finish(*device);
    EXPECT_TRUE(isNear(pixelAt(picture, 15, 13), 136, 136, 136, 255));
    EXPECT_TRUE(isNear(pixelAt(picture, 34, 22), 136, 136, 136, 255));
    EXPECT_EQ(pixelAt(picture, 14, 13).a, 0);
    EXPECT_EQ(pixelAt(picture, 12, 12).a, 0);
    EXPECT_EQ(pixelAt(picture, 50, 7).a + pixelAt(picture, 50, 8).a, 255);
    EXPECT_TRUE(isNear(pixelAt(picture, 50, 28), 136, 136, 136, 255));  // symbol's fill
}

// Each mode combines the rectangle with the clip before it.
TEST(vxDeviceGDIPlus, ClipModes) {
    struct Case {
        short mode;
        bool inFirst, inSecond, inBoth;
    };
    // First clip 0..20, then 10..30 by the mode; fill all, probe x = 5, 25, 15.
    for (const Case& c : {Case{1, false, false, true}, Case{2, true, false, false},
                          Case{3, true, true, true}, Case{0, false, true, true}}) {
        for (Route route : {Route::kBitmap, Route::kRecorded}) {
            auto device = openDevice(40, 10, route, 0);
            device->setClipRegion(0, 0, 20, 10, 0);
            device->setClipRegion(10, 0, 20, 10, c.mode);
            fillRect(*device, *rgba(0, 0, 0), 0, 0, 40, 10);
            cairo_surface_t* picture = finish(*device);
            EXPECT_EQ(pixelAt(picture, 5, 5).a, c.inFirst ? 255 : 0) << "mode " << c.mode;
            EXPECT_EQ(pixelAt(picture, 25, 5).a, c.inSecond ? 255 : 0) << "mode " << c.mode;
            EXPECT_EQ(pixelAt(picture, 15, 5).a, c.inBoth ? 255 : 0) << "mode " << c.mode;
            EXPECT_EQ(pixelAt(picture, 35, 5).a, 0) << "mode " << c.mode;
        }
    }
}

// Clips after a mask keep combining; a reset opens the whole drawing.
TEST(vxDeviceGDIPlus, ClipsCombineAndReset) {
    auto device = openDevice(40, 10, Route::kBitmap, 0);
    device->setClipRegion(0, 0, 10, 10, 0);
    device->setClipRegion(30, 0, 10, 10, 3);  // 0..10 and 30..40
    device->setClipRegion(5, 0, 30, 10, 1);   // 5..10 and 30..35
    fillRect(*device, *rgba(255, 0, 0), 0, 0, 40, 10);
    device->resetClipRegion();
    fillRect(*device, *rgba(0, 0, 255), 0, 8, 40, 10);
    cairo_surface_t* picture = finish(*device);
    for (int x : {0, 4, 10, 29, 35, 39}) EXPECT_EQ(pixelAt(picture, x, 2).a, 0) << x;
    for (int x : {5, 9, 30, 34}) EXPECT_TRUE(isNear(pixelAt(picture, x, 2), 255, 0, 0, 255)) << x;
    EXPECT_TRUE(isNear(pixelAt(picture, 20, 9), 0, 0, 255, 255));
}

// Rectangles beyond 32000, and on a bitmap those thinner than a pixel,
// leave the clip as it was.
TEST(vxDeviceGDIPlus, ClipLimits) {
    const float limits[][4] = {{0, 0, 32001, 10}, {-32001, 0, 10, 10}, {0, 0, -1, 10}};
    for (const auto& r : limits) {
        auto device = openDevice(20, 10, Route::kBitmap, 0);
        device->setClipRegion(0, 0, 10, 10, 0);
        device->setClipRegion(r[0], r[1], r[2], r[3], 0);
        fillRect(*device, *rgba(0, 0, 0), 0, 0, 20, 10);
        cairo_surface_t* picture = finish(*device);
        EXPECT_EQ(pixelAt(picture, 5, 5).a, 255);
        EXPECT_EQ(pixelAt(picture, 15, 5).a, 0);
    }
    for (Route route : {Route::kBitmap, Route::kRecorded}) {
        auto device = openDevice(20, 10, route, 0);
        device->setClipRegion(2, 0, 0.5f, 10, 0);
        fillRect(*device, *rgba(0, 0, 0), 0, 0, 20, 10);
        cairo_surface_t* picture = finish(*device);
        EXPECT_EQ(pixelAt(picture, 15, 5).a, route == Route::kBitmap ? 255 : 0);
    }
}

TEST(vxDeviceGDIPlus, ClipByPathAndByBareRectangle) {
    auto device = openDevice(40, 40, Route::kBitmap, 0);
    const float bounds[4] = {0, 0, 40, 40};
    device->setClipRegion({2, 3, 3, 1}, {0, 40, 0}, {0, 0, 40}, bounds, 0);  // upper left half
    fillRect(*device, *rgba(0, 0, 0), 0, 0, 40, 40);
    const float rect[4] = {30, 30, 40, 40};
    device->setClipRegion(rect);
    fillRect(*device, *rgba(255, 0, 0), 0, 0, 40, 40);
    cairo_surface_t* picture = finish(*device);
    EXPECT_TRUE(isNear(pixelAt(picture, 5, 5), 0, 0, 0, 255));
    EXPECT_EQ(pixelAt(picture, 30, 25).a, 0);
    EXPECT_TRUE(isNear(pixelAt(picture, 35, 35), 255, 0, 0, 255));
    EXPECT_EQ(pixelAt(picture, 25, 35).a, 0);
}

// A sample pixel inside and outside of each shape, centred at 15, 15 in a
// box of 20 with a fill and an outline of another colour.
TEST(vxDeviceGDIPlus, SymbolShapes) {
    struct Case {
        short type;
        int insideX, insideY;    // where the fill shows
        int outsideX, outsideY;  // inside the box but outside the shape
    };
    for (const Case& c : {Case{2, 15, 15, 6, 6}, Case{3, 7, 7, 3, 3}, Case{4, 15, 15, 8, 8},
                          Case{5, 15, 9, 8, 20}, Case{6, 15, 21, 8, 10}}) {
        auto device = openDevice(30, 30, Route::kBitmap, 0);
        device->drawSymbol(*buttStroke(1), *rgba(0, 0, 0), *rgba(0, 255, 0), c.type, 20, 15, 15);
        cairo_surface_t* picture = finish(*device);
        EXPECT_TRUE(isNear(pixelAt(picture, c.insideX, c.insideY), 0, 255, 0, 255)) << c.type;
        EXPECT_EQ(pixelAt(picture, c.outsideX, c.outsideY).a, 0) << c.type;
        const Box box = boxOf(picture, isInked);
        EXPECT_GE(box.left, 4) << c.type;
        EXPECT_LE(box.right, 26) << c.type;

        auto outline = openDevice(30, 30, Route::kBitmap, 0);
        outline->drawSymbol(*buttStroke(1), *rgba(0, 0, 0), *rgba(0, 255, 0),
                            static_cast<short>(c.type + 6), 20, 15, 15);
        picture = finish(*outline);
        EXPECT_EQ(pixelAt(picture, c.insideX, c.insideY).a, 0) << c.type + 6;
        EXPECT_EQ(countOf(picture, [](const Pixel& p) { return p.g > 0; }), 0);
        EXPECT_GT(countOf(picture, isInked), 30) << c.type + 6;
    }
}

TEST(vxDeviceGDIPlus, SymbolLines) {
    struct Case {
        short type;
        int inkedX, inkedY, blankX, blankY;
    };
    for (const Case& c : {Case{1, 10, 10, 15, 10}, Case{7, 15, 10, 10, 10}, Case{13, 12, 15, 15, 10},
                          Case{14, 15, 12, 10, 15}, Case{15, 8, 15, 22, 15}, Case{16, 22, 15, 8, 15},
                          Case{17, 15, 8, 15, 22}, Case{18, 15, 22, 15, 8}}) {
        auto device = openDevice(30, 30, Route::kRecorded, 0);
        device->drawSymbol(*buttStroke(3), *rgba(0, 0, 0), *rgba(0, 255, 0), c.type, 10, 15, 15);
        cairo_surface_t* picture = finish(*device);
        EXPECT_EQ(pixelAt(picture, c.inkedX, c.inkedY).a, 255) << c.type;
        EXPECT_EQ(pixelAt(picture, c.blankX, c.blankY).a, 0) << c.type;
    }
}

TEST(vxDeviceGDIPlus, SelectionKnobs) {
    vxSelectionKnobs knobs;
    const float bounds[4] = {10, 10, 40, 30};
    knobs.doShowMidKnobs = true;
    knobs.setFromBounds(bounds);
    auto device = openDevice(50, 40, Route::kRecorded, 1);
    device->drawSelectionKnobs(knobs);
    cairo_surface_t* picture = finish(*device);
    for (int i = 0; i < knobs.numOfKnobs; ++i) {
        const int x = static_cast<int>(knobs.x[i]), y = static_cast<int>(knobs.y[i]);
        EXPECT_TRUE(isNear(pixelAt(picture, x - 3, y - 3), 0, 0, 0, 255)) << i;
        EXPECT_TRUE(isNear(pixelAt(picture, x + 1, y + 1), 0, 0, 0, 255)) << i;
        EXPECT_FALSE(isNear(pixelAt(picture, x + 2, y + 2), 0, 0, 0, 255)) << i;
    }
    // The frame runs along the edges between the knobs, grey; a line of
    // width 1 on a whole pixel covers two rows by half.
    const Pixel edge = pixelAt(picture, 20, 30);
    EXPECT_NEAR(edge.r, 0xA9, 2);
    EXPECT_NEAR(edge.a, 128, 2);
    EXPECT_EQ(pixelAt(picture, 25, 20).a, 0);
}

}  // namespace
}  // namespace Velarix::test
