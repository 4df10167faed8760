#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/vxImageEncoder.h"
#include "vxPictureTestSupport.h"

namespace Velarix {
namespace {

const vxRGBA kRed{255, 0, 0, 255};
const vxRGBA kClear{0, 0, 0, 0};
const vxRGBA kHalfViolet{100, 50, 200, 128};

vxRGBA gradientAt(int x) {
    return {x * 8, 128, 255 - x * 8, 255};
}

// A 32 by 32 picture on a transparent background whose parts fill whole
// 8 by 8 blocks, so that JPEG keeps their colours: a half transparent
// violet block at the top left, a red square in the middle and, in the bottom
// eight rows, a gradient from blue to red. The rows carry spare bytes to
// show that the stride is honoured.
vxTestRaster scene() {
    vxTestRaster raster(32, 32, 12);
    raster.fill(0, 0, 8, 8, kHalfViolet);
    raster.fill(8, 8, 24, 24, kRed);
    for (int x = 0; x < 32; ++x) raster.fill(x, 24, x + 1, 32, gradientAt(x));
    return raster;
}

vxRGBA sceneAt(int x, int y) {
    if (y >= 24) return gradientAt(x);
    if (x < 8 && y < 8) return kHalfViolet;
    if (x >= 8 && x < 24 && y >= 8) return kRed;
    return kClear;
}

struct FormatCase {
    vxImageFormat format;
    const char* name;
    // The largest channel difference allowed in the scene: none for the
    // lossless formats (GIF too, since the scene has fewer than 256 colours,
    // which the palette then holds exactly); JPEG at quality 90 differs by
    // up to 3 where the gradient meets the flat blocks.
    int tolerance;
    bool holdsResolution;
};

void PrintTo(const FormatCase& c, std::ostream* os) {
    *os << c.name;
}

class vxImageEncoderFormat : public testing::TestWithParam<FormatCase> {
protected:
    vxDecodedPicture encodeAndDecode(const vxRasterPixels& pixels, vxEncoderOptions options) {
        std::vector<unsigned char> bytes;
        std::string status;
        EXPECT_TRUE(vxEncodeImage(GetParam().format, pixels, options, bytes, status)) << status;
        EXPECT_TRUE(status.empty());
        vxDecodedPicture picture = vxDecodePicture(GetParam().format, bytes);
        EXPECT_TRUE(picture.ok) << picture.error;
        return picture;
    }
};

TEST_P(vxImageEncoderFormat, KeepsSizeColoursAndAlphaWhereTheFormatHasIt) {
    vxEncoderOptions options;
    options.quality = 90;
    vxDecodedPicture picture = encodeAndDecode(scene().pixels(), options);
    ASSERT_TRUE(picture.ok);
    ASSERT_EQ(picture.width, 32);
    ASSERT_EQ(picture.height, 32);
    const bool alpha = vxFormatHasAlpha(GetParam().format);
    EXPECT_EQ(picture.hasAlpha, alpha);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            vxRGBA expected = alpha ? sceneAt(x, y) : vxOverWhite(sceneAt(x, y));
            if (alpha && expected[3] == 0) continue;  // no colour under full transparency
            // Premultiplied storage loses up to a step of the straight colour.
            int allowed = GetParam().tolerance + (alpha && expected[3] < 255 ? 1 : 0);
            ASSERT_LE(vxChannelDifference(picture.at(x, y), expected, alpha), allowed)
                << "at " << x << ", " << y;
        }
    }
    if (alpha) {
        EXPECT_EQ(picture.at(30, 2)[3], 0);
    }
}

TEST_P(vxImageEncoderFormat, WritesTheResolutionWhereTheFormatHoldsOne) {
    vxTestRaster raster(4, 4);
    vxEncoderOptions options;
    for (short asked : {short(150), short(0)}) {  // 0 stands for the default 96
        options.resolution = asked;
        vxDecodedPicture picture = encodeAndDecode(raster.pixels(), options);
        double expected = GetParam().holdsResolution ? (asked ? asked : 96) : 0;
        // PNG and BMP store whole dots per metre: within 0.0127 dpi.
        EXPECT_NEAR(picture.dpiX, expected, 0.02) << asked;
        EXPECT_NEAR(picture.dpiY, expected, 0.02) << asked;
    }
}

TEST_P(vxImageEncoderFormat, EncodesOnePixelAndAWideRaster) {
    vxTestRaster dot(1, 1);
    dot.set(0, 0, kRed);
    vxDecodedPicture one = encodeAndDecode(dot.pixels(), {});
    ASSERT_EQ(one.width, 1);
    ASSERT_EQ(one.height, 1);
    EXPECT_LE(vxChannelDifference(one.at(0, 0), kRed, true), GetParam().tolerance);

    // Wider than any strip, buffer or line length the libraries start with.
    vxTestRaster wide(7000, 3);
    wide.fill(0, 0, 3500, 3, {0, 0, 0, 255});
    wide.fill(3500, 0, 7000, 3, {255, 255, 255, 255});
    vxDecodedPicture picture = encodeAndDecode(wide.pixels(), {});
    ASSERT_EQ(picture.width, 7000);
    ASSERT_EQ(picture.height, 3);
    for (int x : {0, 3000, 4000, 6999}) {
        int grey = x < 3500 ? 0 : 255;
        EXPECT_LE(vxChannelDifference(picture.at(x, 2), {grey, grey, grey, 255}, true),
                  GetParam().tolerance)
            << x;
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, vxImageEncoderFormat,
                         testing::Values(FormatCase{vxImageFormat::kPNG, "PNG", 0, true},
                                         FormatCase{vxImageFormat::kTIFF, "TIFF", 0, true},
                                         FormatCase{vxImageFormat::kBMP, "BMP", 0, true},
                                         FormatCase{vxImageFormat::kGIF, "GIF", 0, false},
                                         FormatCase{vxImageFormat::kJPEG, "JPEG", 4, true}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(vxImageEncoder, OnlyPNGAndTIFFHaveAlpha) {
    EXPECT_TRUE(vxFormatHasAlpha(vxImageFormat::kPNG));
    EXPECT_TRUE(vxFormatHasAlpha(vxImageFormat::kTIFF));
    EXPECT_FALSE(vxFormatHasAlpha(vxImageFormat::kJPEG));
    EXPECT_FALSE(vxFormatHasAlpha(vxImageFormat::kGIF));
    EXPECT_FALSE(vxFormatHasAlpha(vxImageFormat::kBMP));
}

TEST(vxImageEncoder, RefusesRastersItCannotReadAndLeavesNoBytes) {
    vxTestRaster raster(4, 4);
    const vxRasterPixels good = raster.pixels();
    std::vector<vxRasterPixels> bad(4, good);
    bad[0].data = nullptr;
    bad[1].width = 0;
    bad[2].height = -1;
    bad[3].stride = 15;  // shorter than 4 pixels
    for (const vxRasterPixels& pixels : bad) {
        std::vector<unsigned char> out{1, 2, 3};
        std::string status;
        EXPECT_FALSE(vxEncodeImage(vxImageFormat::kBMP, pixels, {}, out, status));
        EXPECT_TRUE(out.empty());
        EXPECT_EQ(status.rfind("BMP: ", 0), 0u) << status;
    }
    std::vector<unsigned char> out;
    std::string status;
    EXPECT_FALSE(vxEncodeImage(static_cast<vxImageFormat>(7), good, {}, out, status));
    EXPECT_FALSE(status.empty());
}

// Errors inside the libraries come back as a false result: libpng refuses a
// width above its limit of a million, libjpeg one above 65500, and a GIF
// stores 16-bit sides.
TEST(vxImageEncoder, FailuresOfTheLibrariesAreReturned) {
    const struct {
        vxImageFormat format;
        int width;
        const char* prefix;
    } cases[] = {{vxImageFormat::kPNG, 1'000'001, "PNG: "},
                 {vxImageFormat::kJPEG, 70'000, "JPEG: "},
                 {vxImageFormat::kGIF, 70'000, "GIF: "}};
    for (const auto& c : cases) {
        vxTestRaster raster(c.width, 1);
        std::vector<unsigned char> out;
        std::string status;
        EXPECT_FALSE(vxEncodeImage(c.format, raster.pixels(), {}, out, status)) << c.prefix;
        EXPECT_TRUE(out.empty());
        EXPECT_EQ(status.rfind(c.prefix, 0), 0u) << status;
        EXPECT_GT(status.size(), std::string(c.prefix).size());
    }
}

}  // namespace
}  // namespace Velarix
