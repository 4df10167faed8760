#include "vxPictureTestSupport.h"

#include <gif_lib.h>
#include <png.h>
#include <tiffio.h>

#include <unistd.h>
#include <algorithm>
#include <cmath>
#include <csetjmp>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <jpeglib.h>

namespace Velarix {

vxTestRaster::vxTestRaster(int width, int height, int padding)
    : mWidth(width),
      mHeight(height),
      mStride(width * 4 + padding),
      mBytes(size_t(mStride) * size_t(height), 0xEE) {
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

vxRasterPixels vxTestRaster::pixels() const {
    return {mBytes.data(), mWidth, mHeight, mStride};
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

struct ByteReader {
    const std::vector<unsigned char>* bytes;
    size_t at = 0;
    size_t read(void* to, size_t count) {
        count = std::min(count, bytes->size() - at);
        std::memcpy(to, bytes->data() + at, count);
        at += count;
        return count;
    }
};

uint32_t be32(const unsigned char* b) {
    return uint32_t(b[0]) << 24 | uint32_t(b[1]) << 16 | uint32_t(b[2]) << 8 | b[3];
}

void startPicture(vxDecodedPicture& p, int width, int height) {
    p.width = width;
    p.height = height;
    p.pixels.assign(size_t(width) * size_t(height), vxRGBA{0, 0, 0, 255});
}

// --- PNG: pixels through libpng's simplified reader, the pHYs chunk by hand.

void decodePNG(const std::vector<unsigned char>& bytes, vxDecodedPicture& p) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&image, bytes.data(), bytes.size())) return;
    p.hasAlpha = (image.format & PNG_FORMAT_FLAG_ALPHA) != 0;
    image.format = PNG_FORMAT_RGBA;
    std::vector<unsigned char> rgba(PNG_IMAGE_SIZE(image));
    p.ok = png_image_finish_read(&image, nullptr, rgba.data(), 0, nullptr) != 0;
    startPicture(p, int(image.width), int(image.height));
    for (size_t i = 0; i < p.pixels.size(); ++i)
        p.pixels[i] = {rgba[i * 4], rgba[i * 4 + 1], rgba[i * 4 + 2], rgba[i * 4 + 3]};
    const unsigned char tag[] = {'p', 'H', 'Y', 's'};
    auto at = std::search(bytes.begin(), bytes.end(), tag, tag + 4);
    if (bytes.end() - at >= 13 && at[12] == 1) {  // unit 1: per metre
        p.dpiX = be32(&at[4]) * 0.0254;
        p.dpiY = be32(&at[8]) * 0.0254;
    }
}

// --- JPEG

struct JpegFailure {
    jpeg_error_mgr pub;
    std::jmp_buf jump;
};

void jpegFail(j_common_ptr cinfo) {
    std::longjmp(reinterpret_cast<JpegFailure*>(cinfo->err)->jump, 1);
}

bool jpegSession(jpeg_decompress_struct& cinfo, JpegFailure& failure,
                 const std::vector<unsigned char>& bytes, vxDecodedPicture& p,
                 std::vector<unsigned char>& row) {
    if (setjmp(failure.jump)) return false;
    jpeg_create_decompress(&cinfo);
    jpeg_mem_src(&cinfo, bytes.data(), static_cast<unsigned long>(bytes.size()));
    jpeg_read_header(&cinfo, TRUE);
    p.hasAlpha = cinfo.num_components > 3;
    if (cinfo.saw_JFIF_marker && cinfo.density_unit == 1) {
        p.dpiX = cinfo.X_density;
        p.dpiY = cinfo.Y_density;
    }
    cinfo.out_color_space = JCS_RGB;
    jpeg_start_decompress(&cinfo);
    startPicture(p, int(cinfo.output_width), int(cinfo.output_height));
    row.resize(size_t(p.width) * 3);
    JSAMPROW rows[1] = {row.data()};
    for (int y = 0; y < p.height; ++y) {
        jpeg_read_scanlines(&cinfo, rows, 1);
        for (int x = 0; x < p.width; ++x)
            for (int c = 0; c < 3; ++c) p.pixels[size_t(y * p.width + x)][c] = row[x * 3 + c];
    }
    jpeg_finish_decompress(&cinfo);
    return true;
}

void decodeJPEG(const std::vector<unsigned char>& bytes, vxDecodedPicture& p) {
    JpegFailure failure;
    jpeg_decompress_struct cinfo{};
    cinfo.err = jpeg_std_error(&failure.pub);
    failure.pub.error_exit = jpegFail;
    std::vector<unsigned char> row;
    p.ok = jpegSession(cinfo, failure, bytes, p, row);
    if (!p.ok) p.error = "libjpeg failed";
    jpeg_destroy_decompress(&cinfo);
}

// --- GIF

int gifRead(GifFileType* gif, GifByteType* to, int count) {
    return int(static_cast<ByteReader*>(gif->UserData)->read(to, size_t(count)));
}

void decodeGIF(const std::vector<unsigned char>& bytes, vxDecodedPicture& p) {
    ByteReader reader{&bytes};
    int error = 0;
    GifFileType* gif = DGifOpen(&reader, gifRead, &error);
    if (gif == nullptr) return;
    if (DGifSlurp(gif) == GIF_OK && gif->ImageCount == 1 && gif->SColorMap) {
        const SavedImage& image = gif->SavedImages[0];
        GraphicsControlBlock gcb{};
        p.hasAlpha = DGifSavedExtensionToGCB(gif, 0, &gcb) == GIF_OK &&
                     gcb.TransparentColor != NO_TRANSPARENT_COLOR;
        startPicture(p, gif->SWidth, gif->SHeight);
        for (size_t i = 0; i < p.pixels.size(); ++i) {
            const GifColorType& c = gif->SColorMap->Colors[image.RasterBits[i]];
            p.pixels[i] = {c.Red, c.Green, c.Blue, 255};
        }
        p.ok = image.ImageDesc.Width == gif->SWidth && image.ImageDesc.Height == gif->SHeight;
    }
    DGifCloseFile(gif, &error);
}

// --- TIFF, read through a temporary file.

// Reads 8-bit contiguous RGB, with unassociated alpha as the only extra sample.
void readTIFF(TIFF* tif, vxDecodedPicture& p) {
    uint32_t width = 0, height = 0;
    uint16_t bits = 0, samples = 0, extraCount = 0, unit = 0;
    uint16_t* extra = nullptr;
    float resX = 0, resY = 0;
    TIFFGetField(tif, TIFFTAG_IMAGEWIDTH, &width);
    TIFFGetField(tif, TIFFTAG_IMAGELENGTH, &height);
    TIFFGetFieldDefaulted(tif, TIFFTAG_BITSPERSAMPLE, &bits);
    TIFFGetFieldDefaulted(tif, TIFFTAG_SAMPLESPERPIXEL, &samples);
    TIFFGetFieldDefaulted(tif, TIFFTAG_EXTRASAMPLES, &extraCount, &extra);
    if (bits != 8 || samples < 3 || samples > 4) return;
    p.hasAlpha = samples == 4 && extraCount == 1 && extra[0] == EXTRASAMPLE_UNASSALPHA;
    if (samples == 4 && !p.hasAlpha) return;
    if (TIFFGetField(tif, TIFFTAG_XRESOLUTION, &resX) &&
        TIFFGetField(tif, TIFFTAG_YRESOLUTION, &resY) &&
        TIFFGetFieldDefaulted(tif, TIFFTAG_RESOLUTIONUNIT, &unit) && unit == RESUNIT_INCH) {
        p.dpiX = resX;
        p.dpiY = resY;
    }
    startPicture(p, int(width), int(height));
    std::vector<unsigned char> row(size_t(TIFFScanlineSize(tif)));
    for (uint32_t y = 0; y < height; ++y) {
        if (TIFFReadScanline(tif, row.data(), y, 0) < 0) return;
        for (uint32_t x = 0; x < width; ++x)
            for (int c = 0; c < samples; ++c)
                p.pixels[size_t(y) * width + x][c] = row[size_t(x) * samples + size_t(c)];
    }
    p.ok = true;
}

void decodeTIFF(const std::vector<unsigned char>& bytes, vxDecodedPicture& p) {
    std::FILE* file = std::tmpfile();
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fflush(file);
    std::rewind(file);
    if (TIFF* tif = TIFFFdOpen(dup(fileno(file)), "picture", "r")) {
        readTIFF(tif, p);
        TIFFClose(tif);
    }
    std::fclose(file);
}

// --- BMP, read by hand: uncompressed 24-bit rows, bottom-up for a positive height.

uint32_t le(const std::vector<unsigned char>& b, size_t at, int size) {
    uint32_t v = 0;
    for (int i = size - 1; i >= 0; --i) v = v << 8 | b[at + size_t(i)];
    return v;
}

void decodeBMP(const std::vector<unsigned char>& b, vxDecodedPicture& p) {
    if (b.size() < 54 || b[0] != 'B' || b[1] != 'M' || le(b, 14, 4) != 40) return;
    int width = int(le(b, 18, 4)), height = int(le(b, 22, 4));
    int bpp = int(le(b, 28, 2));
    size_t offset = le(b, 10, 4);
    if (width <= 0 || height <= 0 || (bpp != 24 && bpp != 32) || le(b, 30, 4) != 0) return;
    p.hasAlpha = bpp == 32;
    p.dpiX = le(b, 38, 4) * 0.0254;
    p.dpiY = le(b, 42, 4) * 0.0254;
    size_t rowSize = (size_t(width) * size_t(bpp / 8) + 3) & ~size_t(3);
    if (offset + rowSize * size_t(height) > b.size()) return;
    startPicture(p, width, height);
    for (int y = 0; y < height; ++y) {
        const unsigned char* row = &b[offset + rowSize * size_t(height - 1 - y)];
        for (int x = 0; x < width; ++x, row += bpp / 8)
            p.pixels[size_t(y * width + x)] = {row[2], row[1], row[0], bpp == 32 ? row[3] : 255};
    }
    p.ok = true;
}

}  // namespace

vxDecodedPicture vxDecodePicture(vxImageFormat format, const std::vector<unsigned char>& bytes) {
    vxDecodedPicture p;
    switch (format) {
        case vxImageFormat::kPNG:
            decodePNG(bytes, p);
            break;
        case vxImageFormat::kJPEG:
            decodeJPEG(bytes, p);
            break;
        case vxImageFormat::kGIF:
            decodeGIF(bytes, p);
            break;
        case vxImageFormat::kTIFF:
            decodeTIFF(bytes, p);
            break;
        case vxImageFormat::kBMP:
            decodeBMP(bytes, p);
            break;
    }
    return p;
}

}  // namespace Velarix
