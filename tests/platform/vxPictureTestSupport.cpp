#include "vxPictureTestSupport.h"

#include <png.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <map>

#include <jpeglib.h>

#include "support/vxLibraryCall.h"

namespace Velarix {

vxTestRaster::vxTestRaster(int width, int height, int padding)
    : mWidth(width), mHeight(height), mStride(width * 4 + padding) {
    mBytes.assign(size_t(mStride) * size_t(height), 0xEE);
    fill(0, 0, width, height, {0, 0, 0, 0});
}

void vxTestRaster::set(int x, int y, vxRGBA c) {
    auto pre = [&](int v) { return uint32_t((v * c[3] + 127) / 255); };
    uint32_t word = uint32_t(c[3]) << 24 | pre(c[0]) << 16 | pre(c[1]) << 8 | pre(c[2]);
    std::memcpy(&mBytes[size_t(y) * size_t(mStride) + size_t(x) * 4], &word, 4);
}

void vxTestRaster::fill(int x0, int y0, int x1, int y1, vxRGBA colour) {
    for (int y = y0; y < y1; ++y)
        for (int x = x0; x < x1; ++x) set(x, y, colour);
}

vxRGBA vxDecodedPicture::at(int x, int y) const {
    const int channels = hasAlpha ? 4 : 3;
    const unsigned char* s = &samples[(size_t(y) * size_t(width) + size_t(x)) * channels];
    return {s[0], s[1], s[2], hasAlpha ? s[3] : 255};
}

int vxChannelDifference(const vxRGBA& a, const vxRGBA& b, bool withAlpha) {
    int worst = 0;
    for (int i = 0; i < (withAlpha ? 4 : 3); ++i) worst = std::max(worst, std::abs(a[i] - b[i]));
    return worst;
}

vxRGBA vxOverWhite(const vxRGBA& c) {
    auto mix = [&](int v) { return int(std::lround(v * c[3] / 255.0 + 255.0 - c[3])); };
    return {mix(c[0]), mix(c[1]), mix(c[2]), 255};
}

namespace {

VX_LIBRARY_CALL(kGIF, DGifOpenFileHandle);
VX_LIBRARY_CALL(kGIF, DGifSlurp);
VX_LIBRARY_CALL(kGIF, DGifSavedExtensionToGCB);
VX_LIBRARY_CALL(kGIF, DGifCloseFile);
VX_LIBRARY_CALL(kTIFF, TIFFFdOpen);
VX_LIBRARY_CALL(kTIFF, TIFFGetField);
VX_LIBRARY_CALL(kTIFF, TIFFGetFieldDefaulted);
VX_LIBRARY_CALL(kTIFF, TIFFReadScanline);
VX_LIBRARY_CALL(kTIFF, TIFFClose);

using Bytes = std::vector<unsigned char>;

void start(vxDecodedPicture& p, int width, int height, bool alpha) {
    p.width = width;
    p.height = height;
    p.hasAlpha = alpha;
    p.samples.assign(size_t(width) * size_t(height) * (alpha ? 4 : 3), 0);
}

uint32_t bigEndian(const unsigned char* b) {
    return uint32_t(b[0]) << 24 | uint32_t(b[1]) << 16 | uint32_t(b[2]) << 8 | b[3];
}

uint32_t littleEndian(const Bytes& b, size_t at) {
    return uint32_t(b[at + 3]) << 24 | uint32_t(b[at + 2]) << 16 | uint32_t(b[at + 1]) << 8 | b[at];
}

// A file descriptor holding the bytes, for the readers that want one.
int fileWith(const Bytes& bytes) {
    std::FILE* file = std::tmpfile();
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fflush(file);
    int fd = dup(fileno(file));
    std::fclose(file);
    lseek(fd, 0, SEEK_SET);
    return fd;
}

// Pixels through libpng's simplified reader, the pHYs chunk by hand.
void decodePNG(const Bytes& bytes, vxDecodedPicture& p) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, bytes.data(), bytes.size())) return;
    start(p, int(image.width), int(image.height), image.format & PNG_FORMAT_FLAG_ALPHA);
    image.format = p.hasAlpha ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
    p.ok = png_image_finish_read(&image, nullptr, p.samples.data(), 0, nullptr) != 0;
    const unsigned char tag[] = {'p', 'H', 'Y', 's'};
    auto at = std::search(bytes.begin(), bytes.end(), tag, tag + 4);
    if (bytes.end() - at >= 13 && at[12] == 1) {  // unit 1: per metre
        p.dpiX = bigEndian(&at[4]) * 0.0254;
        p.dpiY = bigEndian(&at[8]) * 0.0254;
    }
}

struct JpegFailure {
    jpeg_error_mgr pub;
    std::jmp_buf jump;
};

void jpegFail(j_common_ptr cinfo) {
    std::longjmp(reinterpret_cast<JpegFailure*>(cinfo->err)->jump, 1);
}

bool jpegSession(jpeg_decompress_struct& cinfo, JpegFailure& failure, const Bytes& bytes,
                 vxDecodedPicture& p) {
    if (setjmp(failure.jump)) return false;
    jpeg_create_decompress(&cinfo);
    jpeg_mem_src(&cinfo, bytes.data(), static_cast<unsigned long>(bytes.size()));
    jpeg_read_header(&cinfo, TRUE);
    if (cinfo.num_components != 3) return false;
    if (cinfo.saw_JFIF_marker && cinfo.density_unit == 1) {  // dots per inch
        p.dpiX = cinfo.X_density;
        p.dpiY = cinfo.Y_density;
    }
    jpeg_start_decompress(&cinfo);
    start(p, int(cinfo.output_width), int(cinfo.output_height), false);
    for (int y = 0; y < p.height; ++y) {
        JSAMPROW row = &p.samples[size_t(y) * size_t(p.width) * 3];
        jpeg_read_scanlines(&cinfo, &row, 1);
    }
    jpeg_finish_decompress(&cinfo);
    return true;
}

void decodeJPEG(const Bytes& bytes, vxDecodedPicture& p) {
    JpegFailure failure;
    jpeg_decompress_struct cinfo{};
    cinfo.err = jpeg_std_error(&failure.pub);
    failure.pub.error_exit = jpegFail;
    p.ok = jpegSession(cinfo, failure, bytes, p);
    jpeg_destroy_decompress(&cinfo);
}

// One frame; alpha when a graphics control block names a transparent index.
void decodeGIF(const Bytes& bytes, vxDecodedPicture& p) {
    int error = 0;
    GifFileType* gif = DGifOpenFileHandle(fileWith(bytes), &error);
    if (gif == nullptr) return;
    GraphicsControlBlock control{};
    if (DGifSlurp(gif) == GIF_OK && gif->ImageCount == 1 && gif->SColorMap) {
        bool transparent = DGifSavedExtensionToGCB(gif, 0, &control) == GIF_OK &&
                           control.TransparentColor != NO_TRANSPARENT_COLOR;
        start(p, gif->SWidth, gif->SHeight, false);
        const GifByteType* indexes = gif->SavedImages[0].RasterBits;
        for (size_t i = 0; i < size_t(p.width) * size_t(p.height); ++i) {
            const GifColorType& c = gif->SColorMap->Colors[indexes[i]];
            p.samples[i * 3] = c.Red, p.samples[i * 3 + 1] = c.Green, p.samples[i * 3 + 2] = c.Blue;
        }
        p.hasAlpha = transparent;
        p.ok = !transparent;  // the samples hold none
    }
    DGifCloseFile(gif, &error);
}

// 8-bit RGB, with unassociated alpha as the only extra sample.
void readTIFF(TIFF* tif, vxDecodedPicture& p) {
    uint32_t width = 0, height = 0;
    uint16_t bits = 0, samples = 0, extraCount = 0, unit = 0, *extra = nullptr;
    float resX = 0, resY = 0;
    TIFFGetField(tif, TIFFTAG_IMAGEWIDTH, &width);
    TIFFGetField(tif, TIFFTAG_IMAGELENGTH, &height);
    TIFFGetFieldDefaulted(tif, TIFFTAG_BITSPERSAMPLE, &bits);
    TIFFGetFieldDefaulted(tif, TIFFTAG_SAMPLESPERPIXEL, &samples);
    TIFFGetFieldDefaulted(tif, TIFFTAG_EXTRASAMPLES, &extraCount, &extra);
    TIFFGetFieldDefaulted(tif, TIFFTAG_RESOLUTIONUNIT, &unit);
    bool alpha = samples == 4 && extraCount == 1 && extra[0] == EXTRASAMPLE_UNASSALPHA;
    if (bits != 8 || (samples != 3 && !alpha)) return;
    if (unit == RESUNIT_INCH && TIFFGetField(tif, TIFFTAG_XRESOLUTION, &resX) &&
        TIFFGetField(tif, TIFFTAG_YRESOLUTION, &resY))
        p.dpiX = resX, p.dpiY = resY;
    start(p, int(width), int(height), alpha);
    for (uint32_t y = 0; y < height; ++y)
        if (TIFFReadScanline(tif, &p.samples[size_t(y) * width * samples], y, 0) < 0) return;
    p.ok = true;
}

void decodeTIFF(const Bytes& bytes, vxDecodedPicture& p) {
    if (TIFF* tif = TIFFFdOpen(fileWith(bytes), "picture", "r")) {
        readTIFF(tif, p);
        TIFFClose(tif);
    }
}

// No library: the 54-byte header of the encoder and 24-bit rows, bottom up.
void decodeBMP(const Bytes& b, vxDecodedPicture& p) {
    if (b.size() < 54 || b[0] != 'B' || b[1] != 'M' || b[28] != 24) return;
    start(p, int(littleEndian(b, 18)), int(littleEndian(b, 22)), false);
    p.dpiX = littleEndian(b, 38) * 0.0254;
    p.dpiY = littleEndian(b, 42) * 0.0254;
    const size_t rowSize = (size_t(p.width) * 3 + 3) & ~size_t(3);
    if (54 + rowSize * size_t(p.height) != b.size()) return;
    for (int y = 0; y < p.height; ++y)
        for (size_t x = 0; x < size_t(p.width); ++x)
            for (size_t c = 0; c < 3; ++c)
                p.samples[(size_t(y) * size_t(p.width) + x) * 3 + c] =
                    b[54 + rowSize * size_t(p.height - 1 - y) + x * 3 + 2 - c];
    p.ok = true;
}

}  // namespace

vxDecodedPicture vxDecodePicture(vxImageFormat format, const Bytes& bytes) {
    static const std::map<vxImageFormat, void (*)(const Bytes&, vxDecodedPicture&)> decoders = {
        {vxImageFormat::kPNG, decodePNG},
        {vxImageFormat::kJPEG, decodeJPEG},
        {vxImageFormat::kGIF, decodeGIF},
        {vxImageFormat::kTIFF, decodeTIFF},
        {vxImageFormat::kBMP, decodeBMP}};
    vxDecodedPicture picture;
    decoders.at(format)(bytes, picture);
    return picture;
}

}  // namespace Velarix
