// BMP pictures, read by hand: a file header, an information header of 40
// bytes or one of its longer successors, and uncompressed rows bottom-up
// (top-down for a negative height), each padded to four bytes. Pixels of 1,
// 4 and 8 bits index a palette; 16 and 32 bits are split by bit masks
// (the file's own with BI_BITFIELDS); 24 bits are blue, green, red. The
// fourth byte of 32-bit pixels is taken as alpha only when some pixel uses
// it, since most writers leave it 0. Compressed forms aren't read.
#include <array>
#include <bit>
#include <cstdint>

#include "output/vxBitmap.h"
#include "platform/vxPictureReader.h"

namespace Velarix {

namespace {

constexpr size_t kFileHeaderSize = 14;
constexpr uint32_t kInfoHeaderSize = 40;
constexpr uint32_t kRGB = 0;
constexpr uint32_t kBitFields = 3;

uint32_t u16(const uint8_t* p) {
    return static_cast<uint32_t>(p[0]) | (static_cast<uint32_t>(p[1]) << 8);
}

uint32_t u32(const uint8_t* p) {
    return u16(p) | (u16(p + 2) << 16);
}

struct Header {
    uint32_t pixelOffset = 0;
    uint32_t headerSize = 0;
    int64_t width = 0;
    int64_t height = 0;  // as stored: negative for top-down rows
    uint32_t bitCount = 0;
    uint32_t compression = 0;
    int64_t xPerMeter = 0;
    uint32_t colorsUsed = 0;
    std::array<uint32_t, 4> masks{};  // red, green, blue, alpha
};

// One channel of a pixel cut out by its mask and spread over 0 to 255.
struct Channel {
    uint32_t mask = 0;
    int shift = 0;
    uint32_t maximum = 0;

    explicit Channel(uint32_t m) : mask(m) {
        if (m == 0) return;
        shift = std::countr_zero(m);
        maximum = m >> shift;
    }
    uint8_t of(uint32_t pixel) const {
        if (maximum == 0) return 0;
        return static_cast<uint8_t>(uint64_t{(pixel & mask) >> shift} * 255u / maximum);
    }
};

bool isSupported(const Header& h) {
    switch (h.bitCount) {
        case 1:
        case 4:
        case 8:
        case 24:
            return h.compression == kRGB;
        case 16:
        case 32:
            return h.compression == kRGB || h.compression == kBitFields;
        default:
            return false;
    }
}

void setDefaultMasks(Header& h) {
    if (h.compression == kBitFields) return;
    if (h.bitCount == 16) h.masks = {0x7C00, 0x03E0, 0x001F, 0};
    if (h.bitCount == 32) h.masks = {0x00FF0000, 0x0000FF00, 0x000000FF, 0xFF000000};
}

// The masks of BI_BITFIELDS: inside a longer header, or just after one of
// 40 bytes. False when the file ends before them.
bool readMasks(std::span<const uint8_t> bytes, Header& h) {
    const size_t start = kFileHeaderSize + kInfoHeaderSize;
    const size_t count = h.headerSize >= 56 ? 4 : 3;
    if (bytes.size() < start + count * 4) return false;
    for (size_t i = 0; i < count; ++i) h.masks[i] = u32(bytes.data() + start + i * 4);
    return true;
}

int64_t rowSize(const Header& h) {
    return (h.bitCount * h.width + 31) / 32 * 4;
}

uint32_t indexAt(const uint8_t* row, int64_t x, uint32_t bitCount) {
    const int64_t bit = x * bitCount;
    const uint32_t byte = row[bit / 8];
    const int shift = static_cast<int>(8 - bitCount - bit % 8);
    return (byte >> shift) & ((1u << bitCount) - 1u);
}

using Palette = std::array<uint32_t, 256>;

// The palette follows the information header; entries are blue, green,
// red and a byte that isn't used. False when the file ends inside it.
bool readPalette(std::span<const uint8_t> bytes, const Header& h, Palette& palette) {
    palette.fill(vxBitmap::premultiply(0, 0, 0, 255));
    const uint32_t size = 1u << h.bitCount;
    const uint32_t count = (h.colorsUsed == 0 || h.colorsUsed > size) ? size : h.colorsUsed;
    const uint64_t start = kFileHeaderSize + static_cast<uint64_t>(h.headerSize);
    if (start + count * 4ull > bytes.size()) return false;
    for (uint32_t i = 0; i < count; ++i) {
        const uint8_t* e = bytes.data() + start + i * 4;
        palette[i] = vxBitmap::premultiply(e[2], e[1], e[0], 255);
    }
    return true;
}

uint32_t wordAt(const uint8_t* row, int64_t x, uint32_t bitCount) {
    return bitCount == 16 ? u16(row + x * 2) : u32(row + x * 4);
}

// Whether the alpha channel holds anything at all.
bool usesAlpha(std::span<const uint8_t> bytes, const Header& h, int64_t height) {
    if (h.masks[3] == 0) return false;
    const int64_t stride = rowSize(h);
    for (int64_t y = 0; y < height; ++y) {
        const uint8_t* row = bytes.data() + h.pixelOffset + y * stride;
        for (int64_t x = 0; x < h.width; ++x) {
            if (wordAt(row, x, h.bitCount) & h.masks[3]) return true;
        }
    }
    return false;
}

void decodeRows(std::span<const uint8_t> bytes, const Header& h, const Palette& palette,
                vxBitmap& bitmap) {
    const int64_t height = bitmap.getHeight();
    const int64_t stride = rowSize(h);
    const bool hasAlpha = h.bitCount >= 16 && usesAlpha(bytes, h, height);
    const Channel red(h.masks[0]), green(h.masks[1]), blue(h.masks[2]), alpha(h.masks[3]);
    for (int64_t y = 0; y < height; ++y) {
        const uint8_t* row = bytes.data() + h.pixelOffset + y * stride;
        const long target = static_cast<long>(h.height < 0 ? y : height - 1 - y);
        uint32_t* out = bitmap.getData() + target * bitmap.getWidth();
        for (int64_t x = 0; x < h.width; ++x) {
            if (h.bitCount <= 8) {
                out[x] = palette[indexAt(row, x, h.bitCount)];
            } else if (h.bitCount == 24) {
                const uint8_t* b = row + x * 3;
                out[x] = vxBitmap::premultiply(b[2], b[1], b[0], 255);
            } else {
                const uint32_t w = wordAt(row, x, h.bitCount);
                out[x] = vxBitmap::premultiply(red.of(w), green.of(w), blue.of(w),
                                               hasAlpha ? alpha.of(w) : 255);
            }
        }
    }
}

}  // namespace

bool vxPictureReader::readBMP(Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap) {
    if (bytes.size() < 2 || bytes[0] != 'B' || bytes[1] != 'M') {
        setError(vxErrFile::kUnknownFormat, where(L"readBMP", 1));
        return false;
    }
    if (bytes.size() < kFileHeaderSize + kInfoHeaderSize) {
        setError(vxErrFile::kRead, where(L"readBMP", 2));
        return false;
    }
    const uint8_t* p = bytes.data();
    Header h;
    h.pixelOffset = u32(p + 10);
    h.headerSize = u32(p + 14);
    h.width = static_cast<int32_t>(u32(p + 18));
    h.height = static_cast<int32_t>(u32(p + 22));
    h.bitCount = u16(p + 28);
    h.compression = u32(p + 30);
    h.xPerMeter = static_cast<int32_t>(u32(p + 38));
    h.colorsUsed = u32(p + 46);
    if (h.headerSize < kInfoHeaderSize || !isSupported(h)) {
        setError(vxErrFile::kUnknownFormat, where(L"readBMP", 3));
        return false;
    }
    if (h.width < 0 || (h.compression == kBitFields && !readMasks(bytes, h))) {
        setError(vxErrFile::kRead, where(L"readBMP", 4));
        return false;
    }
    setDefaultMasks(h);
    info.width = static_cast<long>(h.width);
    info.height = static_cast<long>(h.height < 0 ? -h.height : h.height);
    const short dpi = toResolution(h.xPerMeter * 0.0254);
    if (dpi > 0) info.resolution = dpi;
    if (!checkSize(info, L"readBMP", 5)) return false;
    if (!bitmap) return true;
    // Every row must be there before anything is decoded.
    const int64_t stride = rowSize(h);
    if (static_cast<int64_t>(h.pixelOffset) + stride * info.height >
        static_cast<int64_t>(bytes.size())) {
        setError(vxErrFile::kRead, where(L"readBMP", 6));
        return false;
    }
    Palette palette;
    if (h.bitCount <= 8 && !readPalette(bytes, h, palette)) {
        setError(vxErrFile::kRead, where(L"readBMP", 7));
        return false;
    }
    if (!allocate(*bitmap, info)) return false;
    decodeRows(bytes, h, palette, *bitmap);
    return true;
}

}  // namespace Velarix
