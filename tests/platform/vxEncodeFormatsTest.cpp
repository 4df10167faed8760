// What only one format does: JPEG quality, the GIF palette, the BMP layout,
// TIFF compression.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/vxImageEncoder.h"
#include "vxPictureTestSupport.h"

namespace Velarix {
namespace {

std::vector<unsigned char> encode(vxImageFormat format, const vxTestRaster& raster,
                                  vxEncoderOptions options = {}) {
    std::vector<unsigned char> out;
    std::string status;
    EXPECT_TRUE(vxEncodeImage(format, raster.pixels(), options, out, status)) << status;
    return out;
}

// A field of changing colour, which JPEG needs more bytes for the better it
// keeps it.
TEST(vxEncodeJPEG, QualityChangesTheSizeAndIsClamped) {
    vxTestRaster raster(64, 64);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x) raster.set(x, y, {x * 4, y * 4, (x * y) % 256, 255});
    auto withQuality = [&](int quality) {
        vxEncoderOptions options;
        options.quality = static_cast<short>(quality);
        return encode(vxImageFormat::kJPEG, raster, options);
    };
    const auto low = withQuality(10), middle = withQuality(50), high = withQuality(95);
    EXPECT_LT(low.size(), middle.size());
    EXPECT_LT(middle.size(), high.size());
    EXPECT_EQ(withQuality(150), withQuality(100));
    EXPECT_EQ(withQuality(-3), withQuality(0));
    EXPECT_NE(withQuality(0), low);
}

// 320 colours along a path on which neighbours differ by one step per
// channel: the palette has to choose, and 256 entries spread along the path
// leave each colour within two steps of one (libimagequant gets within one).
TEST(vxEncodeGIF, FitsAPaletteToMoreThan256Colours) {
    auto path = [](int x) { return vxRGBA{std::min(x, 255), std::max(x - 64, 0), 128, 255}; };
    vxTestRaster raster(320, 2);
    for (int x = 0; x < 320; ++x) raster.fill(x, 0, x + 1, 2, path(x));
    vxDecodedPicture picture =
        vxDecodePicture(vxImageFormat::kGIF, encode(vxImageFormat::kGIF, raster));
    ASSERT_TRUE(picture.ok);
    int worst = 0;
    for (int x = 0; x < 320; ++x)
        worst = std::max(worst, vxChannelDifference(picture.at(x, 1), path(x), false));
    EXPECT_LE(worst, 2);
}

// The whole file of a 3 by 2 picture, written down by hand: rows of 9 bytes
// padded to 12, the bottom row first, 150 dpi as 5906 dots per metre.
TEST(vxEncodeBMP, WritesHeadersAndPaddedRowsBottomUp) {
    vxTestRaster raster(3, 2);
    raster.fill(0, 0, 3, 1, {255, 0, 0, 255});  // top row red
    raster.fill(0, 1, 3, 2, {0, 0, 255, 255});  // bottom row blue
    raster.set(2, 1, {0, 0, 0, 0});             // transparent: shown as white
    vxEncoderOptions options;
    options.resolution = 150;
    const std::vector<unsigned char> expected = {
        'B', 'M', 78,  0,   0,  0,   0,   0,   0,    0,    54, 0, 0,    0,  // file header
        40,  0,   0,   0,   3,  0,   0,   0,   2,    0,    0,  0, 1,    0,
        24,  0,  // size, width, height, planes, bits
        0,   0,   0,   0,   24, 0,   0,   0,   0x12, 0x17, 0,  0, 0x12, 0x17,
        0,   0,                                                     // no compression
        0,   0,   0,   0,   0,  0,   0,   0,                        // no palette
        255, 0,   0,   255, 0,  0,   255, 255, 255,  0,    0,  0,   // bottom row, blue green red
        0,   0,   255, 0,   0,  255, 0,   0,   255,  0,    0,  0};  // top row
    EXPECT_EQ(encode(vxImageFormat::kBMP, raster, options), expected);
}

// Handed to a writer, a BMP larger than a megabyte comes in several pieces
// that make the same file as the one held in memory; the other formats
// come in one piece. A writer that refuses stops the encoder.
TEST(vxEncodeImageTo, WritesBMPInPiecesAndStopsWhenRefused) {
    vxTestRaster raster(1000, 400);
    raster.fill(0, 0, 500, 400, {255, 0, 0, 255});
    raster.fill(0, 200, 1000, 210, {0, 0, 255, 128});
    for (vxImageFormat format : {vxImageFormat::kBMP, vxImageFormat::kPNG}) {
        std::vector<unsigned char> joined;
        int pieces = 0;
        std::string status;
        ASSERT_TRUE(vxEncodeImageTo(
            format, raster.pixels(), {},
            [&](const unsigned char* data, size_t length) {
                joined.insert(joined.end(), data, data + length);
                return ++pieces > 0;
            },
            status))
            << status;
        EXPECT_EQ(joined, encode(format, raster));
        if (format == vxImageFormat::kBMP) {
            EXPECT_GT(pieces, 2);
        } else {
            EXPECT_EQ(pieces, 1);
        }
    }
    int calls = 0;
    std::string status;
    EXPECT_FALSE(vxEncodeImageTo(
        vxImageFormat::kBMP, raster.pixels(), {},
        [&](const unsigned char*, size_t) { return ++calls < 2; }, status));
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(status.rfind("BMP: ", 0), 0u) << status;
}

TEST(vxEncodeTIFF, CompressesFlatAreas) {
    vxTestRaster raster(200, 200);
    raster.fill(50, 50, 150, 150, {255, 0, 0, 255});
    EXPECT_LT(encode(vxImageFormat::kTIFF, raster).size(), 200u * 200u * 4u / 50u);
}

}  // namespace
}  // namespace Velarix
