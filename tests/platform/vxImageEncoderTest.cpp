#include "platform/vxImageEncoder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "vxPictureTestSupport.h"

namespace Velarix {
namespace {

const vxRGBA kRed{255, 0, 0, 255};
const vxRGBA kHalfViolet{100, 50, 200, 128};

vxRGBA gradientAt(int x) {
    return {x * 8, 128, 255 - x * 8, 255};
}

// A 32 by 32 picture on a transparent background whose parts fill whole
// 8 by 8 blocks, so that JPEG keeps their colours: a half transparent violet
// block at the top left, a red square in the middle and, in the bottom eight
// rows, a gradient from blue to red. Rows carry spare bytes after the pixels.
vxRGBA sceneAt(int x, int y) {
    if (y >= 24) return gradientAt(x);
    if (x < 8 && y < 8) return kHalfViolet;
    if (x >= 8 && x < 24 && y >= 8) return kRed;
    return {0, 0, 0, 0};
}

struct FormatCase {
    vxImageFormat format;
    const char* name;
    bool alpha;
    bool holdsResolution;
    // The largest channel difference allowed: none for the lossless formats
    // (GIF too: the scene has fewer than 256 colours, which the palette then
    // holds exactly); JPEG at quality 90 is off by up to 3 where the gradient
    // meets the flat blocks, and by up to 4 on a single pixel at quality 75.
    int tolerance;
};

class vxImageEncoderFormat : public testing::TestWithParam<FormatCase> {
protected:
    vxDecodedPicture encodeAndDecode(const vxTestRaster& raster, short quality, short dpi) {
        std::vector<unsigned char> bytes;
        std::string status;
        EXPECT_TRUE(
            vxEncodeImage(GetParam().format, raster.pixels(), {dpi, quality}, bytes, status))
            << status;
        EXPECT_TRUE(status.empty());
        vxDecodedPicture picture = vxDecodePicture(GetParam().format, bytes);
        EXPECT_TRUE(picture.ok);
        const double expectedDpi = GetParam().holdsResolution ? (dpi < 1 ? 96 : dpi) : 0;
        EXPECT_NEAR(picture.dpiX, expectedDpi, 0.02);  // whole dots per metre: within 0.0127
        EXPECT_NEAR(picture.dpiY, expectedDpi, 0.02);
        return picture;
    }
};

TEST_P(vxImageEncoderFormat, KeepsSizeColoursResolutionAndAlphaWhereTheFormatHasThem) {
    vxTestRaster raster(32, 32, 12);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 32; ++x) raster.set(x, y, sceneAt(x, y));
    vxDecodedPicture picture = encodeAndDecode(raster, 90, 150);
    ASSERT_TRUE(picture.ok);
    ASSERT_EQ(picture.width, 32);
    ASSERT_EQ(picture.height, 32);
    const bool alpha = GetParam().alpha;
    EXPECT_EQ(vxFormatHasAlpha(GetParam().format), alpha);
    ASSERT_EQ(picture.hasAlpha, alpha);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
            vxRGBA expected = alpha ? sceneAt(x, y) : vxOverWhite(sceneAt(x, y));
            if (alpha && expected[3] == 0) {  // transparent white
                ASSERT_EQ(picture.at(x, y), (vxRGBA{255, 255, 255, 0})) << "at " << x << ", " << y;
                continue;
            }
            // Premultiplied storage loses up to a step of the straight colour.
            int allowed = GetParam().tolerance + (alpha && expected[3] < 255 ? 1 : 0);
            ASSERT_LE(vxChannelDifference(picture.at(x, y), expected, alpha), allowed)
                << "at " << x << ", " << y;
        }
    }
}

// The single pixel also asks for resolution 0, which stands for 96. The wide
// raster is longer than any strip, buffer or line the libraries start with.
TEST_P(vxImageEncoderFormat, EncodesOnePixelAndAWideRaster) {
    vxTestRaster dot(1, 1);
    dot.set(0, 0, kRed);
    vxDecodedPicture one = encodeAndDecode(dot, 75, 0);
    ASSERT_EQ(one.width * one.height, 1);
    EXPECT_LE(vxChannelDifference(one.at(0, 0), kRed, true), GetParam().tolerance);

    vxTestRaster wide(7000, 3);
    wide.fill(0, 0, 3500, 3, {0, 0, 0, 255});
    wide.fill(3500, 0, 7000, 3, {255, 255, 255, 255});
    vxDecodedPicture picture = encodeAndDecode(wide, 75, 96);
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
                         testing::Values(FormatCase{vxImageFormat::kPNG, "PNG", true, true, 0},
                                         FormatCase{vxImageFormat::kTIFF, "TIFF", true, true, 0},
                                         FormatCase{vxImageFormat::kBMP, "BMP", false, true, 0},
                                         FormatCase{vxImageFormat::kGIF, "GIF", false, false, 0},
                                         FormatCase{vxImageFormat::kJPEG, "JPEG", false, true, 4}),
                         [](const auto& info) { return std::string(info.param.name); });

// Rasters the encoders can't read, an unknown format, and errors inside the
// libraries (libpng refuses widths above a million, libjpeg above 65500, and
// GIF stores 16-bit sides) all give false, a status and no bytes.
TEST(vxImageEncoder, FailuresLeaveAStatusAndNoBytes) {
    const vxTestRaster small(4, 4), wide(70'000, 1), wider(1'000'001, 1);
    std::vector<vxRasterPixels> bad(4, small.pixels());
    bad[0].data = nullptr;
    bad[1].width = 0;
    bad[2].height = -1;
    bad[3].stride = 15;  // shorter than 4 pixels
    const std::vector<std::tuple<vxImageFormat, vxRasterPixels, std::string>> cases = {
        {vxImageFormat::kBMP, bad[0], "BMP: "},
        {vxImageFormat::kBMP, bad[1], "BMP: "},
        {vxImageFormat::kTIFF, bad[2], "TIFF: "},
        {vxImageFormat::kPNG, bad[3], "PNG: "},
        {vxImageFormat(7), small.pixels(), "unknown"},
        {vxImageFormat::kPNG, wider.pixels(), "PNG: "},
        {vxImageFormat::kJPEG, wide.pixels(), "JPEG: "},
        {vxImageFormat::kGIF, wide.pixels(), "GIF: "}};
    for (const auto& [format, pixels, prefix] : cases) {
        std::vector<unsigned char> out{1, 2, 3};
        std::string status;
        EXPECT_FALSE(vxEncodeImage(format, pixels, {}, out, status)) << prefix;
        EXPECT_TRUE(out.empty());
        EXPECT_EQ(status.rfind(prefix, 0), 0u) << status;
        EXPECT_GT(status.size(), prefix.size() + 3) << status;
    }
}

}  // namespace
}  // namespace Velarix
