// PNG pictures through libpng. libpng reports a fault by a long jump, so
// every call that may fail runs inside a small function that holds nothing
// with a destructor; the reader's structures are freed by their owner.
#include <png.h>

#include <algorithm>
#include <csetjmp>
#include <vector>

#include "output/vxBitmap.h"
#include "platform/vxPictureReader.h"

namespace Velarix {

namespace {

struct MemoryInput {
    const uint8_t* data;
    size_t size;
    size_t position;
};

void readFromMemory(png_structp png, png_bytep out, png_size_t count) {
    auto* input = static_cast<MemoryInput*>(png_get_io_ptr(png));
    if (count > input->size - input->position) png_error(png, "unexpected end of data");
    std::copy(input->data + input->position, input->data + input->position + count, out);
    input->position += count;
}

// Messages of libpng go nowhere: the fault becomes an error record.
void ignoreMessage(png_structp, png_const_charp) {}

void failWithoutMessage(png_structp png, png_const_charp) {
    png_longjmp(png, 1);
}

struct PngHeader {
    png_uint_32 width = 0;
    png_uint_32 height = 0;
    png_uint_32 xPerMeter = 0;  // 0 when the file gives no resolution
};

struct PngReader {
    png_structp png = nullptr;
    png_infop info = nullptr;
    MemoryInput input{};

    ~PngReader() { png_destroy_read_struct(&png, info ? &info : nullptr, nullptr); }
};

// Reads the header and asks for 8-bit RGBA rows, whatever the file holds.
// The size limits are the bitmap's, tested by the caller: libpng's own
// are lifted so that an oversized header is told apart from a damaged one.
bool readHeader(PngReader& r, PngHeader& out) {
    if (setjmp(png_jmpbuf(r.png))) return false;
    png_set_read_fn(r.png, &r.input, readFromMemory);
    png_set_user_limits(r.png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_read_info(r.png, r.info);
    out.width = png_get_image_width(r.png, r.info);
    out.height = png_get_image_height(r.png, r.info);
    png_uint_32 yPerMeter = 0;
    int unit = 0;
    if (!png_get_pHYs(r.png, r.info, &out.xPerMeter, &yPerMeter, &unit) ||
        unit != PNG_RESOLUTION_METER) {
        out.xPerMeter = 0;
    }
    return true;
}

bool readPixels(PngReader& r, png_bytepp rows) {
    if (setjmp(png_jmpbuf(r.png))) return false;
    png_set_expand(r.png);
    png_set_strip_16(r.png);
    png_set_gray_to_rgb(r.png);
    png_set_add_alpha(r.png, 0xFF, PNG_FILLER_AFTER);
    png_set_interlace_handling(r.png);
    png_read_update_info(r.png, r.info);
    png_read_image(r.png, rows);
    png_read_end(r.png, nullptr);
    return true;
}

}  // namespace

bool vxPictureReader::readPNG(Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap) {
    if (bytes.size() < 8 || png_sig_cmp(bytes.data(), 0, 8) != 0) {
        setError(vxErrFile::kUnknownFormat, where(L"readPNG", 1));
        return false;
    }
    PngReader reader;
    reader.input = {bytes.data(), bytes.size(), 0};
    reader.png =
        png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, failWithoutMessage, ignoreMessage);
    if (reader.png) reader.info = png_create_info_struct(reader.png);
    if (!reader.png || !reader.info) {
        setError(vxErrRuntime::kOutOfMemory, where(L"readPNG", 2));
        return false;
    }
    PngHeader header;
    if (!readHeader(reader, header)) {
        setError(vxErrFile::kRead, where(L"readPNG", 3));
        return false;
    }
    info.width = static_cast<long>(header.width);
    info.height = static_cast<long>(header.height);
    const short dpi = toResolution(header.xPerMeter * 0.0254);
    if (dpi > 0) info.resolution = dpi;
    if (!checkSize(info, L"readPNG", 4)) return false;
    if (!bitmap) return true;
    if (!allocate(*bitmap, info)) return false;
    std::vector<png_bytep> rows(static_cast<size_t>(info.height));
    for (long y = 0; y < info.height; ++y) {
        rows[static_cast<size_t>(y)] =
            reinterpret_cast<png_bytep>(bitmap->getData() + y * info.width);
    }
    if (!readPixels(reader, rows.data())) {
        setError(vxErrFile::kRead, where(L"readPNG", 5));
        return false;
    }
    bitmap->convertFromRGBA();
    return true;
}

}  // namespace Velarix
