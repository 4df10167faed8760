// Pictures written by the formats' own libraries, read back; damaged and
// foreign bytes, which must give error records and never a crash.
#include "platform/vxPictureReader.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <string>
#include <vector>

#include "output/vxBitmap.h"
#include "output/vxFileType.h"
#include "support/vxPictureFiles.h"

namespace Velarix {
namespace {

using test::Picture;
using test::Rgba;

vxPictureReader::Bytes bytesOf(const std::string& text) {
    return {reinterpret_cast<const uint8_t*>(text.data()), text.size()};
}

uint32_t premultiplied(Rgba c) {
    return vxBitmap::premultiply(c.r, c.g, c.b, c.a);
}

// What a reader must give for each pixel of the written picture, by the
// alpha the format can carry.
enum class Alpha { kFull, kOnOff, kNone };

Rgba expected(Rgba c, Alpha alpha) {
    if (alpha == Alpha::kNone) return {c.r, c.g, c.b, 255};
    if (alpha == Alpha::kOnOff) return c.a == 0 ? Rgba{0, 0, 0, 0} : Rgba{c.r, c.g, c.b, 255};
    return c;
}

struct Lossless {
    const char* name;
    short type;
    std::string bytes;
    Alpha alpha;
};

std::vector<Lossless> losslessFiles(const Picture& p) {
    return {
        {"png", kFileTypePNG, test::encodePNG(p), Alpha::kFull},
        {"interlaced png", kFileTypePNG, test::encodePNG(p, 0, true), Alpha::kFull},
        {"gif", kFileTypeGIF, test::encodeGIF(p), Alpha::kOnOff},
        {"interlaced gif", kFileTypeGIF, test::encodeGIF(p, true), Alpha::kOnOff},
        {"tiff", kFileTypeTIFF, test::encodeTIFF(p), Alpha::kFull},
        {"bmp 24", kFileTypeBMP, test::encodeBMP(p, 24), Alpha::kNone},
        {"bmp 32", kFileTypeBMP, test::encodeBMP(p, 32), Alpha::kFull},
        {"bmp 32 top-down", kFileTypeBMP, test::encodeBMP(p, 32, true), Alpha::kFull},
    };
}

TEST(vxPictureReader, LosslessFormatsGiveEveryPixel) {
    // 9 by 10: odd widths pad BMP rows; ten rows take every interlace pass.
    const Picture picture = test::makePicture(9, 10);
    for (const Lossless& file : losslessFiles(picture)) {
        SCOPED_TRACE(file.name);
        vxPictureReader reader;
        vxBitmap bitmap;
        ASSERT_TRUE(reader.read(file.type, bytesOf(file.bytes), bitmap));
        EXPECT_FALSE(reader.isError());
        ASSERT_EQ(bitmap.getWidth(), 9);
        ASSERT_EQ(bitmap.getHeight(), 10);
        EXPECT_EQ(bitmap.getStride(), 36);
        for (int y = 0; y < 10; ++y) {
            for (int x = 0; x < 9; ++x) {
                ASSERT_EQ(bitmap.getPixel(x, y),
                          premultiplied(expected(picture.at(x, y), file.alpha)))
                    << x << "," << y;
            }
        }
    }
}

TEST(vxPictureReader, PixelsAreCairoWords) {
    // Opaque red, and white at half alpha, premultiplied with alpha high.
    Picture picture = test::solidPicture(2, 1, {255, 0, 0, 255});
    picture.pixels[1] = {255, 255, 255, 128};
    vxPictureReader reader;
    vxBitmap bitmap;
    ASSERT_TRUE(reader.read(kFileTypePNG, bytesOf(test::encodePNG(picture)), bitmap));
    EXPECT_EQ(bitmap.getPixel(0, 0), 0xFFFF0000u);
    EXPECT_EQ(bitmap.getPixel(1, 0), 0x80808080u);
    uint8_t rgba[4];
    bitmap.getColor(1, 0, rgba);
    EXPECT_EQ(rgba[0], 255);
    EXPECT_EQ(rgba[3], 128);
    EXPECT_EQ(bitmap.getPixel(2, 0), 0u);  // outside
}

TEST(vxPictureReader, BmpPaletteAndJpeg) {
    // Eight-bit BMP: the encoder's palette is a grey ramp indexed by green.
    const Picture picture = test::makePicture(5, 3);
    vxPictureReader reader;
    vxBitmap bitmap;
    ASSERT_TRUE(reader.read(kFileTypeBMP, bytesOf(test::encodeBMP(picture, 8)), bitmap));
    for (int y = 0; y < 3; ++y) {
        const uint8_t g = picture.at(0, y).g;
        EXPECT_EQ(bitmap.getPixel(0, y), vxBitmap::premultiply(g, g, g, 255));
    }

    // JPEG is lossy: a flat colour comes back within 2 of each component.
    const Rgba blue{30, 120, 200, 255};
    ASSERT_TRUE(reader.read(kFileTypeJPEG,
                            bytesOf(test::encodeJPEG(test::solidPicture(16, 8, blue))), bitmap));
    ASSERT_EQ(bitmap.getWidth(), 16);
    ASSERT_EQ(bitmap.getHeight(), 8);
    uint8_t rgba[4];
    bitmap.getColor(7, 5, rgba);
    EXPECT_NEAR(rgba[0], 30, 2);
    EXPECT_NEAR(rgba[1], 120, 2);
    EXPECT_NEAR(rgba[2], 200, 2);
    EXPECT_EQ(rgba[3], 255);
}

TEST(vxPictureReader, ResolutionFromTheHeaderElse72) {
    const Picture p = test::makePicture(4, 4);
    const struct {
        short type;
        std::string bytes;
        short dpi;
    } cases[] = {
        {kFileTypePNG, test::encodePNG(p, 150), 150},
        {kFileTypePNG, test::encodePNG(p), 72},
        {kFileTypeJPEG, test::encodeJPEG(p, 300), 300},
        {kFileTypeTIFF, test::encodeTIFF(p, 200), 200},
        {kFileTypeBMP, test::encodeBMP(p, 24, false, 96), 96},
        {kFileTypeGIF, test::encodeGIF(p), 72},
    };
    for (const auto& c : cases) {
        vxPictureReader reader;
        vxPictureInfo info;
        ASSERT_TRUE(reader.readInfo(c.type, bytesOf(c.bytes), info)) << c.type;
        EXPECT_EQ(info.width, 4);
        EXPECT_EQ(info.height, 4);
        EXPECT_EQ(info.resolution, c.dpi) << c.type;
        vxBitmap bitmap;
        ASSERT_TRUE(reader.read(c.type, bytesOf(c.bytes), bitmap));
        EXPECT_EQ(bitmap.getResolution(), c.dpi) << c.type;
    }
}

// Every prefix of every file: a cut file either still holds a whole first
// picture (a GIF cut after its frame) or fails as damaged or foreign, with
// the bitmap left empty. A cut in the middle always fails.
TEST(vxPictureReader, CutFilesFailWithoutCrashing) {
    const Picture picture = test::makePicture(6, 5);
    std::vector<Lossless> files = losslessFiles(picture);
    files.push_back({"jpeg", kFileTypeJPEG, test::encodeJPEG(picture), Alpha::kNone});
    for (const Lossless& file : files) {
        SCOPED_TRACE(file.name);
        for (size_t length = 0; length < file.bytes.size(); ++length) {
            const std::string cut = file.bytes.substr(0, length);
            vxPictureReader reader;
            vxBitmap bitmap;
            if (reader.read(file.type, bytesOf(cut), bitmap)) {
                EXPECT_EQ(bitmap.getWidth(), 6) << length;
                continue;
            }
            const short code = reader.getError()->getErrorCode();
            EXPECT_TRUE(code == 4004 || code == 4013) << length << ": " << code;
            EXPECT_TRUE(bitmap.isEmpty());
        }
        vxPictureReader reader;
        vxBitmap bitmap;
        EXPECT_FALSE(
            reader.read(file.type, bytesOf(file.bytes.substr(0, file.bytes.size() / 2)), bitmap));
    }
}

// Bytes without a picture's signature are refused by every reader; a
// picture under another format's name is read by the reader of its bytes.
TEST(vxPictureReader, ForeignBytesAreAnUnknownFormat) {
    const std::string png = test::encodePNG(test::makePicture(3, 3));
    const std::string text = "Region;Sales\nNorth;12\n";
    for (short type : {kFileTypePNG, kFileTypeJPEG, kFileTypeGIF, kFileTypeTIFF, kFileTypeBMP}) {
        vxPictureReader reader;
        vxBitmap bitmap;
        EXPECT_FALSE(reader.read(type, bytesOf(text), bitmap));
        EXPECT_EQ(reader.getError()->getErrorCode(), 4013) << type;
        EXPECT_TRUE(reader.read(type, bytesOf(png), bitmap)) << type;
        EXPECT_EQ(bitmap.getWidth(), 3) << type;
    }
    vxPictureReader reader;
    vxPictureInfo info;
    EXPECT_FALSE(reader.readInfo(kFileTypeSVG, bytesOf(png), info));
    EXPECT_EQ(reader.getError()->getErrorCode(), 4013);
    EXPECT_FALSE(vxPictureReader::canRead(kFileTypeEMF));
    EXPECT_TRUE(vxPictureReader::canRead(kFileTypeJPEG));
}

void putBE(std::string& s, size_t at, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) s[at + i] = static_cast<char>(value >> (8 * (bytes - 1 - i)));
}

void putLE(std::string& s, size_t at, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) s[at + i] = static_cast<char>(value >> (8 * i));
}

// Headers that ask for more than a bitmap may hold are refused before any
// pixel is decoded.
TEST(vxPictureReader, AbsurdSizesAreRefused) {
    const Picture small = test::makePicture(2, 2);
    std::string png = test::encodePNG(small);
    putBE(png, 16, 100000, 4);  // IHDR width, then its checksum anew
    const uLong crc = crc32(0, reinterpret_cast<const Bytef*>(png.data() + 12), 17);
    putBE(png, 29, static_cast<uint32_t>(crc), 4);
    std::string bmp = test::encodeBMP(small, 24);
    putLE(bmp, 18, 40000, 4);
    std::string gif = test::encodeGIF(small);
    putLE(gif, 6, 30000, 2);  // 30000 by 30000 passes each side, not the area
    putLE(gif, 8, 30000, 2);
    std::string jpeg = test::encodeJPEG(small);
    const size_t sof = jpeg.find("\xFF\xC0");
    ASSERT_NE(sof, std::string::npos);
    putBE(jpeg, sof + 5, 60000, 2);
    const struct {
        short type;
        const std::string& bytes;
    } cases[] = {
        {kFileTypePNG, png}, {kFileTypeBMP, bmp}, {kFileTypeGIF, gif}, {kFileTypeJPEG, jpeg}};
    for (const auto& c : cases) {
        vxPictureReader reader;
        vxPictureInfo info;
        EXPECT_FALSE(reader.readInfo(c.type, bytesOf(c.bytes), info)) << c.type;
        EXPECT_EQ(reader.getError()->getErrorCode(), 2020) << c.type;
    }
}

TEST(vxPictureReader, ZeroWidthIsAnEmptyPicture) {
    std::string bmp = test::encodeBMP(test::makePicture(1, 2), 24);
    putLE(bmp, 18, 0, 4);
    vxPictureReader reader;
    vxBitmap bitmap;
    EXPECT_TRUE(reader.read(kFileTypeBMP, bytesOf(bmp), bitmap));
    EXPECT_TRUE(bitmap.isEmpty());
    EXPECT_EQ(bitmap.getHeight(), 2);
}

}  // namespace
}  // namespace Velarix
