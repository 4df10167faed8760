// BMP written directly: a file header, a BITMAPINFOHEADER and 24-bit
// blue-green-red rows, bottom row first, each padded to a multiple of
// four bytes. The size of the file is known before the first byte, so the
// output is made once at its full size and filled in place.
#include <cstdint>
#include <cstring>

#include "platform/vxEncoderSupport.h"

namespace Velarix {

namespace {

constexpr uint32_t kFileHeaderSize = 14;
constexpr uint32_t kInfoHeaderSize = 40;
constexpr uint32_t kPixelOffset = kFileHeaderSize + kInfoHeaderSize;

// Little-endian fields written at a running position.
class RecordWriter {
public:
    explicit RecordWriter(unsigned char* at) : mAt(at) {}
    void u16(uint16_t v) { put(v, 2); }
    void u32(uint32_t v) { put(v, 4); }
    void i32(int32_t v) { put(static_cast<uint32_t>(v), 4); }

private:
    void put(uint32_t v, int bytes) {
        for (int i = 0; i < bytes; ++i) *mAt++ = static_cast<unsigned char>(v >> (8 * i));
    }
    unsigned char* mAt;
};

void writeFileHeader(RecordWriter& w, uint32_t fileSize) {
    w.u16(0x4D42);  // "BM"
    w.u32(fileSize);
    w.u16(0);  // reserved
    w.u16(0);
    w.u32(kPixelOffset);
}

// A positive height tells readers that the rows run from the bottom up.
void writeInfoHeader(RecordWriter& w, const vxRasterPixels& pixels, uint32_t imageSize,
                     uint32_t perMetre) {
    w.u32(kInfoHeaderSize);
    w.i32(pixels.width);
    w.i32(pixels.height);
    w.u16(1);   // planes
    w.u16(24);  // bits per pixel
    w.u32(0);   // BI_RGB, no compression
    w.u32(imageSize);
    w.i32(static_cast<int32_t>(perMetre));
    w.i32(static_cast<int32_t>(perMetre));
    w.u32(0);  // colours used: none, there is no palette
    w.u32(0);  // important colours: all
}

}  // namespace

bool vxEncodeBMP(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                 std::vector<unsigned char>& out, std::string& status) {
    const uint64_t rowSize = (uint64_t(pixels.width) * 3 + 3) & ~uint64_t(3);
    const uint64_t imageSize = rowSize * uint64_t(pixels.height);
    if (kPixelOffset + imageSize > UINT32_MAX) {
        status = "raster too large for the format";
        return false;
    }
    out.assign(kPixelOffset + imageSize, 0);
    RecordWriter header(out.data());
    writeFileHeader(header, uint32_t(kPixelOffset + imageSize));
    writeInfoHeader(header, pixels, uint32_t(imageSize), vxResolutionPerMetre(options));
    unsigned char* row = out.data() + kPixelOffset;
    for (int y = pixels.height - 1; y >= 0; --y, row += rowSize) vxRowToBGR(pixels, y, row);
    return true;
}

}  // namespace Velarix
