// BMP written directly: a file header, a BITMAPINFOHEADER and 24-bit
// blue-green-red rows, bottom row first, each padded to a multiple of
// four bytes. The rows go out a batch at a time, so that a picture written
// to a file never needs the file's size in memory; held in memory, the
// output is reserved at its full size before the first byte.
#include <algorithm>
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

bool vxWriteBMP(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                const vxByteSink& write, std::string& status) {
    const uint64_t rowSize = (uint64_t(pixels.width) * 3 + 3) & ~uint64_t(3);
    const uint64_t imageSize = rowSize * uint64_t(pixels.height);
    if (kPixelOffset + imageSize > UINT32_MAX) {
        status = "raster too large for the format";
        return false;
    }
    unsigned char headers[kPixelOffset];
    RecordWriter header(headers);
    writeFileHeader(header, uint32_t(kPixelOffset + imageSize));
    writeInfoHeader(header, pixels, uint32_t(imageSize), vxResolutionPerMetre(options));
    status = "writing failed";
    if (!write(headers, kPixelOffset)) return false;
    // The padding at the end of each row stays zero from the start.
    const int batchRows = static_cast<int>(std::max<uint64_t>(1, (1u << 20) / rowSize));
    std::vector<unsigned char> batch(size_t(rowSize) * size_t(batchRows), 0);
    for (int y = pixels.height - 1; y >= 0;) {
        unsigned char* row = batch.data();
        int rows = 0;
        for (; rows < batchRows && y >= 0; ++rows, --y, row += rowSize) vxRowToBGR(pixels, y, row);
        if (!write(batch.data(), size_t(rowSize) * size_t(rows))) return false;
    }
    status.clear();
    return true;
}

bool vxEncodeBMP(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                 std::vector<unsigned char>& out, std::string& status) {
    const uint64_t rowSize = (uint64_t(pixels.width) * 3 + 3) & ~uint64_t(3);
    const uint64_t fileSize = kPixelOffset + rowSize * uint64_t(pixels.height);
    if (fileSize <= UINT32_MAX) out.reserve(size_t(fileSize));
    return vxWriteBMP(
        pixels, options,
        [&](const unsigned char* data, size_t length) { return vxAppendBytes(out, data, length); },
        status);
}

}  // namespace Velarix
