// JPEG pictures through libjpeg-turbo, which writes RGBA rows straight into
// the bitmap. A fault of the library is a long jump out of its call, so the
// calls run inside small functions that hold nothing with a destructor.
// The library mends a file that ends early with grey rows and a warning;
// here that warning is a fault, since the picture is damaged.
#include <cstdio>

#include <jerror.h>
#include <jpeglib.h>

#include <csetjmp>

#include "output/vxBitmap.h"
#include "platform/vxPictureReader.h"

namespace Velarix {

namespace {

struct JpegError {
    jpeg_error_mgr manager;
    std::jmp_buf jump;
    bool endedEarly;
};

void failJump(j_common_ptr cinfo) {
    auto* error = reinterpret_cast<JpegError*>(cinfo->err);
    std::longjmp(error->jump, 1);
}

// Warnings and trace messages are dropped; a premature end is noted.
void noteMessage(j_common_ptr cinfo, int level) {
    auto* error = reinterpret_cast<JpegError*>(cinfo->err);
    if (level < 0 && error->manager.msg_code == JWRN_JPEG_EOF) error->endedEarly = true;
}

struct JpegReader {
    jpeg_decompress_struct cinfo{};
    JpegError error{};
    bool isCreated = false;

    ~JpegReader() {
        if (isCreated) jpeg_destroy_decompress(&cinfo);
    }
};

bool openReader(JpegReader& r, const uint8_t* data, size_t size) {
    r.cinfo.err = jpeg_std_error(&r.error.manager);
    r.error.manager.error_exit = failJump;
    r.error.manager.emit_message = noteMessage;
    if (setjmp(r.error.jump)) return false;
    jpeg_create_decompress(&r.cinfo);
    r.isCreated = true;
    jpeg_mem_src(&r.cinfo, data, static_cast<unsigned long>(size));
    jpeg_read_header(&r.cinfo, TRUE);
    return true;
}

// CMYK files (as Adobe writes them, inverted) are converted row by row;
// everything else the library turns into RGBA itself.
bool isCMYK(const JpegReader& r) {
    return r.cinfo.jpeg_color_space == JCS_CMYK || r.cinfo.jpeg_color_space == JCS_YCCK;
}

void cmykToRGBA(uint8_t* row, long width, bool isInverted) {
    for (long x = 0; x < width; ++x) {
        uint8_t* p = row + x * 4;
        unsigned c = p[0], m = p[1], y = p[2], k = p[3];
        if (!isInverted) {
            c = 255 - c;
            m = 255 - m;
            y = 255 - y;
            k = 255 - k;
        }
        p[0] = static_cast<uint8_t>(c * k / 255);
        p[1] = static_cast<uint8_t>(m * k / 255);
        p[2] = static_cast<uint8_t>(y * k / 255);
        p[3] = 255;
    }
}

bool decompress(JpegReader& r, uint8_t* pixels, long stride) {
    if (setjmp(r.error.jump)) return false;
    r.cinfo.out_color_space = isCMYK(r) ? JCS_CMYK : JCS_EXT_RGBA;
    jpeg_start_decompress(&r.cinfo);
    while (r.cinfo.output_scanline < r.cinfo.output_height) {
        JSAMPROW row = pixels + static_cast<long>(r.cinfo.output_scanline) * stride;
        if (jpeg_read_scanlines(&r.cinfo, &row, 1) != 1) return false;
        if (isCMYK(r)) cmykToRGBA(row, r.cinfo.output_width, r.cinfo.saw_Adobe_marker);
    }
    jpeg_finish_decompress(&r.cinfo);
    return true;
}

// Dots per inch, 0 when the file gives only an aspect ratio.
double densityOf(const jpeg_decompress_struct& cinfo) {
    switch (cinfo.density_unit) {
        case 1:
            return cinfo.X_density;
        case 2:
            return cinfo.X_density * 2.54;
        default:
            return 0;
    }
}

}  // namespace

bool vxPictureReader::readJPEG(Bytes bytes, vxPictureInfo& info, vxBitmap* bitmap) {
    if (bytes.size() < 3 || bytes[0] != 0xFF || bytes[1] != 0xD8 || bytes[2] != 0xFF) {
        setError(vxErrFile::kUnknownFormat, where(L"readJPEG", 1));
        return false;
    }
    JpegReader reader;
    if (!openReader(reader, bytes.data(), bytes.size()) || reader.error.endedEarly) {
        setError(vxErrFile::kRead, where(L"readJPEG", 2));
        return false;
    }
    info.width = static_cast<long>(reader.cinfo.image_width);
    info.height = static_cast<long>(reader.cinfo.image_height);
    const short dpi = toResolution(densityOf(reader.cinfo));
    if (dpi > 0) info.resolution = dpi;
    if (!checkSize(info, L"readJPEG", 3)) return false;
    if (!bitmap) return true;
    if (!allocate(*bitmap, info)) return false;
    auto* pixels = reinterpret_cast<uint8_t*>(bitmap->getData());
    if (!decompress(reader, pixels, bitmap->getStride()) || reader.error.endedEarly) {
        setError(vxErrFile::kRead, where(L"readJPEG", 4));
        return false;
    }
    bitmap->convertFromRGBA();
    return true;
}

}  // namespace Velarix
