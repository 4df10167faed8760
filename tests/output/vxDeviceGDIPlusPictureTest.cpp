// Pictures in the raster device: pictures placed by their mapping, built-in
// textures and texture paints, through whole runs and through the device.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "graphics/vxTexturePaintOLD.h"
#include "output/vxBitmap.h"
#include "output/vxCairoPictures.h"
#include "output/vxImage.h"
#include "output/vxImageMapping.h"
#include "output/vxRasterTestSupport.h"
#include "output/vxReadExternal.h"
#include "platform/vxPictureTestSupport.h"
#include "platform/vxTextCodec.h"
#include "platform/vxTexturePictures.h"
#include "support/vxPictureFiles.h"
#include "support/vxTestRun.h"

namespace Velarix::test {
namespace {

constexpr vxRGBA kRed = {255, 0, 0, 255};
constexpr vxRGBA kBlue = {0, 0, 255, 255};
constexpr vxRGBA kGreen = {0, 255, 0, 255};
constexpr vxRGBA kClear = {255, 255, 255, 0};  // the transparent white background

// The colour of a picture of 20 by 10 with a green top row, below it red
// on the left half and blue on the right: turned or mirrored, it shows.
vxRGBA markedAt(int x, int y) {
    if (y == 0) return kGreen;
    return x < 10 ? kRed : kBlue;
}

Picture markedPicture() {
    Picture p{20, 10, {}};
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 20; ++x) {
            const vxRGBA c = markedAt(x, y);
            p.pixels.push_back({uint8_t(c[0]), uint8_t(c[1]), uint8_t(c[2]), 255});
        }
    }
    return p;
}

// Equal colours, or both fully transparent, whatever their colour.
bool isSame(const vxRGBA& c, const vxRGBA& expected) {
    return c == expected || (c[3] == 0 && expected[3] == 0);
}

class vxDeviceGDIPlusPictureRun : public ::testing::Test {
protected:
    void SetUp() override {
        folder = makeTempFolder("raster-picture");
        writeFile(folder + "/p.png", encodePNG(markedPicture()));
        writeFile(folder + "/p.bmp", encodeBMP(markedPicture(), 24));
        const Picture red = solidPicture(3, 2, {255, 0, 0, 255});
        writeFile(folder + "/red.png", encodePNG(red));
        writeFile(folder + "/red.bmp", encodeBMP(red, 24));
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    // The PNG of a 200 by 100 drawing with the given lines, antialiasing off.
    vxDecodedPicture png(const std::string& lines) {
        last = runVelarix(
            "OpenDrawing(200; 100; 0; 0)\n" + lines + "\nSaveAsPNGFile(\"a.png\"; replace)\n",
            {"--base", folder});
        if (last.status != 0) return {};
        const std::string bytes = readFile(folder + "/a.png");
        return vxDecodePicture(vxImageFormat::kPNG, {bytes.begin(), bytes.end()});
    }

    // Whether every pixel of the drawing is `inside` within the box, left,
    // top, right, bottom, and `outside` elsewhere.
    static ::testing::AssertionResult showsBox(const vxDecodedPicture& p, const int box[4],
                                               auto inside, vxRGBA outside = kClear) {
        for (int y = 0; y < p.height; ++y) {
            for (int x = 0; x < p.width; ++x) {
                const bool isIn = x >= box[0] && x < box[2] && y >= box[1] && y < box[3];
                const vxRGBA expected = isIn ? inside(x - box[0], y - box[1]) : outside;
                if (!isSame(p.at(x, y), expected))
                    return ::testing::AssertionFailure() << "at " << x << "," << y;
            }
        }
        return ::testing::AssertionSuccess();
    }

    std::string folder;
    RunResult last;
};

TEST_F(vxDeviceGDIPlusPictureRun, PicturesArePlacedByTheirMapping) {
    for (const char* format : {"png", "bmp"}) {
        SCOPED_TRACE(format);
        // Filled: the red picture of 3 by 2 stretched over 40 by 25.
        vxDecodedPicture p =
            png(std::string("AddPicture(10; 20; 40; 25; file; \"red.") + format + "\")");
        ASSERT_TRUE(p.ok) << last.err;
        const int filled[4] = {10, 20, 50, 45};
        EXPECT_TRUE(showsBox(p, filled, [](int, int) { return kRed; }));

        const std::string name = std::string("file; \"p.") + format + "\"";
        // Kept at its own size in the centre of the box.
        p = png("AddPicture(10; 20; 80; 40; " + name + "; centercenter; crop)");
        const int centred[4] = {40, 35, 60, 45};
        EXPECT_TRUE(showsBox(p, centred, markedAt));

        // Four columns and three rows of tiles from the top left, the last
        // ones reaching past the box as far as a whole tile goes.
        p = png("AddPicture(10; 20; 75; 25; " + name + "; topleft; tile)");
        const int tiled[4] = {10, 20, 90, 50};
        EXPECT_TRUE(showsBox(p, tiled, [](int x, int y) { return markedAt(x % 20, y % 10); }));
    }
}

// The background picture fills the view; pictures draw only inside the
// clip of their view.
TEST_F(vxDeviceGDIPlusPictureRun, BackgroundFillsTheViewAndClipsHold) {
    vxDecodedPicture p = png("BackgroundPict(file; \"red.png\")");
    ASSERT_TRUE(p.ok) << last.err;
    const int all[4] = {0, 0, 200, 100};
    EXPECT_TRUE(showsBox(p, all, [](int, int) { return kRed; }));

    p = png("OpenView(50; 25; 100; 50)\nAddPicture(-50; -25; 200; 100; file; \"red.png\")");
    ASSERT_TRUE(p.ok) << last.err;
    // The view's clip runs one unit beyond its frame.
    const int view[4] = {49, 24, 151, 76};
    EXPECT_TRUE(showsBox(p, view, [](int, int) { return kRed; }));
}

// Pattern numbers 65 to 128 fill with their built-in picture, repeated
// from the drawing's origin, never with the colour; a gradient resource
// draws its gradient.
TEST_F(vxDeviceGDIPlusPictureRun, TexturesAndGradientResources) {
    const vxDecodedPicture p =
        png("AddRect(100; 0; 100; 100; 0 0 0; 70)\n"
            "AddPicture(0; 0; 100; 40; resource; \"23437\")\n"
            "AddPicture(0; 50; 90; 40; resource; \"23437\"; topleft; tile)");
    ASSERT_TRUE(p.ok) << last.err;
    vxBitmap texture;
    ASSERT_TRUE(vxTexturePictures::make(70, texture));
    std::set<vxRGBA> colours;
    for (int y = 0; y < 100; ++y) {
        for (int x = 100; x < 200; ++x) {
            uint8_t c[4];
            texture.getColor(x % 32, y % 32, c);
            ASSERT_EQ(p.at(x, y), (vxRGBA{c[0], c[1], c[2], c[3]})) << x << "," << y;
            colours.insert(p.at(x, y));
        }
    }
    EXPECT_GT(colours.size(), 8u);
    // Resource 23437 runs from white on the left to grey on the right, over
    // the whole box, or over each tile of 32 pixels; three columns of tiles
    // reach just past the box.
    auto isNear = [&](int x, int y, int level) {
        return vxChannelDifference(p.at(x, y), {level, level, level, 255}, true) <= 3;
    };
    EXPECT_TRUE(isNear(0, 20, 255) && isNear(99, 20, 184) && isNear(50, 20, 220));
    for (int x : {0, 32, 64}) EXPECT_TRUE(isNear(x, 60, 255)) << x;
    for (int x : {31, 63, 95}) EXPECT_TRUE(isNear(x, 60, 185)) << x;
    EXPECT_TRUE(isSame(p.at(50, 45), kClear));
}

TEST_F(vxDeviceGDIPlusPictureRun, MissingPictureIsStillAnError) {
    png("AddPicture(0; 0; 10; 10; file; \"missing.png\")");
    EXPECT_EQ(last.status, 1);
    EXPECT_EQ(last.err.substr(0, 5), "4000:") << last.err;
}

// A picture is read once for the whole run: once read, the file may go.
TEST_F(vxDeviceGDIPlusPictureRun, PictureIsReadOnce) {
    vxImage image;
    ASSERT_TRUE(image.setSource(kSourceFile, vxFromUtf8(folder + "/p.png")));
    vxCairoPictures pictures;
    vxBitmap report;
    vxCairoSurface first, second;
    ASSERT_TRUE(pictures.find(image, first, report, L"find"));
    std::filesystem::remove(folder + "/p.png");
    ASSERT_TRUE(pictures.find(image, second, report, L"find"));
    EXPECT_EQ(first.get(), second.get());
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(cairo_image_surface_get_width(first.get()), 20);

    // Cleared, the cache reads again and tells the fault.
    pictures.clear();
    EXPECT_FALSE(pictures.find(image, second, report, L"find"));
    EXPECT_TRUE(report.isError());
}

// A texture paint repeats its picture from where its mapping lays it in
// the shape; an image without a picture draws nothing.
TEST(vxDeviceGDIPlusPicture, TexturePaintRepeatsItsPicture) {
    vxBitmap bitmap;
    ASSERT_TRUE(bitmap.allocateMemory(2, 2));
    bitmap.setPixel(0, 0, 255, 0, 0);
    bitmap.setPixel(1, 0, 0, 255, 0);
    bitmap.setPixel(0, 1, 0, 0, 255);
    bitmap.setPixel(1, 1, 255, 255, 255);
    vxTexturePaintOLD paint;
    ASSERT_TRUE(paint.createImage());
    ASSERT_TRUE(paint.getImage()->setBitmap(bitmap));
    ASSERT_TRUE(paint.getImage()->setMapping(vxImageMapping::kKeep, 1, false));
    const Drawn d = draw(20, 10, [&](vxDevice& device) {
        fillRect(device, paint, 5, 1, 15, 9);
        device.drawImage(vxImage());
    });
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 20; ++x) {
            uint8_t c[4] = {0, 0, 0, 0};
            if (x >= 5 && x < 15 && y >= 1 && y < 9) bitmap.getColor((x - 5) % 2, (y - 1) % 2, c);
            ASSERT_TRUE(isNear(d.at(x, y), c[0], c[1], c[2], c[3])) << x << "," << y;
        }
    }
    EXPECT_FALSE(d.device->isError());
}

// A picture keeps to the clip, a cut-out one as well, on either route.
TEST(vxDeviceGDIPlusPicture, PictureKeepsToTheClip) {
    vxBitmap red;
    ASSERT_TRUE(red.allocateMemory(1, 1));
    red.setPixel(0, 0, 255, 0, 0);
    vxImage image;
    ASSERT_TRUE(image.setBitmap(red));
    const float box[4] = {0, 0, 30, 10};
    ASSERT_TRUE(image.setMapping(box));
    for (Route route : {Route::kBitmap, Route::kRecorded}) {
        const Drawn d = draw(
            30, 10,
            [&](vxDevice& device) {
                device.setClipRegion(0, 0, 20, 10, 0);
                device.setClipRegion(5, 0, 5, 10, 2);
                device.drawImage(image);
            },
            route);
        for (int x = 0; x < 30; ++x) {
            const bool isIn = x < 5 || (x >= 10 && x < 20);
            EXPECT_EQ(d.alpha(x, 5), isIn ? 255 : 0) << x;
        }
        EXPECT_TRUE(isNear(d.at(15, 5), 255, 0, 0, 255));
    }
}

}  // namespace
}  // namespace Velarix::test
