// Gradients written as number lists in a script, followed into the PNG the
// command writes: the file is decoded and its pixels read back. The drawing
// is 100 by 60 and transparent where nothing is drawn.
#include <cairo.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "output/vxRasterTestSupport.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

Surface render(const std::string& additions) {
    const std::string folder = makeTempFolder("gradient-pictures");
    const std::string script = "OpenDrawing(100; 60)\n" + additions + "SaveAsPNGFile(\"g.png\")\n";
    const RunResult r = runVelarix(script, {"--base", folder});
    EXPECT_EQ(r.status, 0) << r.err;
    return Surface(cairo_image_surface_create_from_png((folder + "/g.png").c_str()),
                   cairo_surface_destroy);
}

bool isBlank(const Pixel& p) {
    return p.a == 0;
}

// A correct result: red at the left edge, blue at the right, the red
// falling and the blue rising in between with no green at all, every row
// alike, and nothing around the rectangle.
TEST(GradientPicture, LinearRunsAcrossTheRectangle) {
    const Surface png = render("AddRect(10; 10; 50; 40; 0 0 1 0 1 255 0 0 255 0 0 0 255 255 1)\n");
    ASSERT_EQ(cairo_surface_status(png.get()), CAIRO_STATUS_SUCCESS);
    EXPECT_TRUE(isBlank(pixelAt(png.get(), 9, 30)));
    EXPECT_TRUE(isBlank(pixelAt(png.get(), 60, 30)));
    const Pixel first = pixelAt(png.get(), 10, 30), last = pixelAt(png.get(), 59, 30);
    EXPECT_GE(first.r, 250);
    EXPECT_GT(first.r, first.b);
    EXPECT_GE(last.b, 250);
    EXPECT_GT(last.b, last.r);
    Pixel previous = first;
    for (int x = 10; x < 60; ++x) {
        const Pixel p = pixelAt(png.get(), x, 30);
        EXPECT_EQ(p.g, 0) << "x " << x;
        EXPECT_EQ(p.a, 255) << "x " << x;
        EXPECT_LE(p.r, previous.r) << "x " << x;
        EXPECT_GE(p.b, previous.b) << "x " << x;
        const Pixel top = pixelAt(png.get(), x, 11);
        EXPECT_TRUE(isNear(top, p.r, p.g, p.b, p.a)) << "x " << x;
        previous = p;
    }
}

// The gradient spans the first half of the box. Padded, the second half is
// all blue; repeated, it starts over so that a pixel a half box further on
// has the colour of its partner; reflected, it mirrors about the middle.
TEST(GradientPicture, SpreadCodesContinueBeyondTheEnd) {
    const std::string stops = " 255 0 0 255 0 0 0 255 255 1)\n";
    const Surface png = render("AddRect(0; 0; 100; 20; 0 0 0.5 0 1" + stops +
                               "AddRect(0; 20; 100; 20; 0 0 0.5 0 2" + stops +
                               "AddRect(0; 40; 100; 20; 0 0 0.5 0 3" + stops);
    ASSERT_EQ(cairo_surface_status(png.get()), CAIRO_STATUS_SUCCESS);
    for (int x = 50; x < 100; ++x) {
        EXPECT_TRUE(isNear(pixelAt(png.get(), x, 10), 0, 0, 255, 255)) << "pad, x " << x;
    }
    // Tolerance 2: the pattern's sampling may fall a little apart between
    // the two periods.
    for (int x = 0; x < 50; x += 7) {
        const Pixel one = pixelAt(png.get(), x, 30), other = pixelAt(png.get(), x + 50, 30);
        EXPECT_TRUE(isNear(other, one.r, one.g, one.b, one.a, 2)) << "repeat, x " << x;
        const Pixel mirrored = pixelAt(png.get(), 99 - x, 50);
        const Pixel original = pixelAt(png.get(), x, 50);
        EXPECT_TRUE(isNear(mirrored, original.r, original.g, original.b, original.a, 2))
            << "reflect, x " << x;
    }
    EXPECT_GT(pixelAt(png.get(), 60, 30).r, pixelAt(png.get(), 60, 30).b);
    EXPECT_GT(pixelAt(png.get(), 60, 50).b, pixelAt(png.get(), 60, 50).r);
}

// White in the middle of the square, black from the radius outwards: the
// corners. The middle of each side lies just inside the radius, nearly
// black; 64 leaves room for the blending of the last stretch in linear light.
TEST(GradientPicture, RadialRunsFromTheCentre) {
    const Surface png =
        render("AddRect(10; 10; 40; 40; 0.5 0.5 0.5 0.5 0.5 1 255 255 255 255 0 0 0 0 255 1)\n");
    ASSERT_EQ(cairo_surface_status(png.get()), CAIRO_STATUS_SUCCESS);
    const Pixel centre = pixelAt(png.get(), 30, 30);
    EXPECT_GE(centre.r, 240);
    EXPECT_TRUE(isNear(centre, centre.r, centre.r, centre.r, 255));
    for (const auto& [x, y] : {std::pair{10, 10}, {49, 10}, {10, 49}, {49, 49}}) {
        EXPECT_TRUE(isNear(pixelAt(png.get(), x, y), 0, 0, 0, 255)) << x << ", " << y;
    }
    for (const auto& [x, y] : {std::pair{30, 10}, {10, 30}, {49, 30}, {30, 49}}) {
        EXPECT_LE(pixelAt(png.get(), x, y).r, 64) << x << ", " << y;
    }
}

// The outermost fully inked pixels of the rows: opaque, with little green
// (the ink has none).
struct InkEnds {
    Pixel left, right;
    bool found = false;
};

InkEnds inkEnds(cairo_surface_t* png, int top, int bottom) {
    InkEnds ends;
    int leftX = 0, rightX = 0;
    for (int y = top; y < bottom; ++y) {
        for (int x = 0; x < cairo_image_surface_get_width(png); ++x) {
            const Pixel p = pixelAt(png, x, y);
            if (p.a < 255 || p.g >= 40) continue;
            if (!ends.found || x < leftX) leftX = x, ends.left = p;
            if (!ends.found || x > rightX) rightX = x, ends.right = p;
            ends.found = true;
        }
    }
    return ends;
}

// Text and a shadow take a gradient as well as an area: the text's ink is
// red at its left end and blue at its right; the shadow, thrown 10 to the
// right and down from a white rectangle, is red on its left and blue on
// its right where it shows below the rectangle.
TEST(GradientPicture, TextAndShadowTakeGradients) {
    const Surface png = render(
        "AddText(2; 0; \"MMMM\"; \"Liberation Sans\"; 18; bold;"
        " 0 0 1 0 1 255 0 0 255 0 0 0 255 255 1; left; top)\n"
        "AddPath(2 10 30 3 40 30 3 40 45 3 10 45 1; white; ; ; ; ; 10;"
        " 0 0 1 0 1 255 0 0 255 0 0 0 255 255 1)\n");
    ASSERT_EQ(cairo_surface_status(png.get()), CAIRO_STATUS_SUCCESS);
    const InkEnds text = inkEnds(png.get(), 0, 30);
    ASSERT_TRUE(text.found);
    EXPECT_GT(text.left.r, text.left.b);
    EXPECT_GT(text.right.b, text.right.r);

    const Pixel shadowLeft = pixelAt(png.get(), 22, 52), shadowRight = pixelAt(png.get(), 48, 52);
    EXPECT_EQ(shadowLeft.g, 0);
    EXPECT_GT(shadowLeft.r, shadowLeft.b);
    EXPECT_GT(shadowRight.b, shadowRight.r);
    EXPECT_TRUE(isNear(pixelAt(png.get(), 25, 40), 255, 255, 255, 255));
}

}  // namespace
}  // namespace Velarix::test
