#include "support/vxPictureFiles.h"

#include <png.h>

#include <csetjmp>
#include <cstdio>
#include <filesystem>
#include <map>

#include <jpeglib.h>

#include "support/vxLibraryCall.h"
#include "support/vxTestRun.h"

namespace Velarix::test {

namespace {

VX_LIBRARY_CALL(kGIF, EGifOpen);
VX_LIBRARY_CALL(kGIF, EGifSetGifVersion);
VX_LIBRARY_CALL(kGIF, EGifPutScreenDesc);
VX_LIBRARY_CALL(kGIF, EGifGCBToExtension);
VX_LIBRARY_CALL(kGIF, EGifPutExtension);
VX_LIBRARY_CALL(kGIF, EGifPutImageDesc);
VX_LIBRARY_CALL(kGIF, EGifPutLine);
VX_LIBRARY_CALL(kGIF, EGifCloseFile);
VX_LIBRARY_CALL(kGIF, GifMakeMapObject);
VX_LIBRARY_CALL(kGIF, GifFreeMapObject);
VX_LIBRARY_CALL(kTIFF, TIFFOpen);
VX_LIBRARY_CALL(kTIFF, TIFFSetField);
VX_LIBRARY_CALL(kTIFF, TIFFWriteScanline);
VX_LIBRARY_CALL(kTIFF, TIFFClose);

void appendToString(png_structp png, png_bytep data, png_size_t size) {
    static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<char*>(data), size);
}

void flushNothing(png_structp) {}

bool writePNG(png_structp png, png_infop info, const Picture& picture, int dpi, bool interlaced,
              std::string* out, png_bytepp rows) {
    if (setjmp(png_jmpbuf(png))) return false;
    png_set_write_fn(png, out, appendToString, flushNothing);
    png_set_IHDR(png, info, picture.width, picture.height, 8, PNG_COLOR_TYPE_RGBA,
                 interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (dpi > 0) {
        const auto perMeter = static_cast<png_uint_32>(dpi / 0.0254 + 0.5);
        png_set_pHYs(png, info, perMeter, perMeter, PNG_RESOLUTION_METER);
    }
    png_write_info(png, info);
    png_write_image(png, rows);
    png_write_end(png, nullptr);
    return true;
}

void putLE(std::string& s, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) s.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
}

int writeToString(GifFileType* gif, const GifByteType* data, int size) {
    static_cast<std::string*>(gif->UserData)->append(reinterpret_cast<const char*>(data), size);
    return size;
}

}  // namespace

Picture makePicture(int width, int height) {
    Picture p{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            p.pixels.push_back(
                {static_cast<uint8_t>(x * 40), static_cast<uint8_t>(y * 60), 200, 255});
        }
    }
    p.pixels[p.pixels.size() - 2] = {0, 0, 0, 0};
    p.pixels.back().a = 128;
    return p;
}

Picture solidPicture(int width, int height, Rgba color) {
    return Picture{width, height, std::vector<Rgba>(static_cast<size_t>(width * height), color)};
}

std::string encodePNG(const Picture& picture, int dpi, bool interlaced) {
    std::string out;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    std::vector<Rgba> pixels = picture.pixels;
    std::vector<png_bytep> rows;
    for (int y = 0; y < picture.height; ++y) {
        rows.push_back(reinterpret_cast<png_bytep>(pixels.data() + y * picture.width));
    }
    if (!writePNG(png, info, picture, dpi, interlaced, &out, rows.data())) out.clear();
    png_destroy_write_struct(&png, &info);
    return out;
}

std::string encodeJPEG(const Picture& picture, int dpi) {
    jpeg_compress_struct cinfo{};
    jpeg_error_mgr error{};
    cinfo.err = jpeg_std_error(&error);
    jpeg_create_compress(&cinfo);
    unsigned char* buffer = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&cinfo, &buffer, &size);
    cinfo.image_width = picture.width;
    cinfo.image_height = picture.height;
    cinfo.input_components = 3;
    cinfo.in_color_space = JCS_RGB;
    jpeg_set_defaults(&cinfo);
    jpeg_set_quality(&cinfo, 100, TRUE);
    if (dpi > 0) {
        cinfo.density_unit = 1;
        cinfo.X_density = cinfo.Y_density = static_cast<UINT16>(dpi);
    }
    jpeg_start_compress(&cinfo, TRUE);
    std::vector<uint8_t> row(static_cast<size_t>(picture.width) * 3);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const Rgba c = picture.at(x, y);
            row[x * 3] = c.r;
            row[x * 3 + 1] = c.g;
            row[x * 3 + 2] = c.b;
        }
        JSAMPROW pointer = row.data();
        jpeg_write_scanlines(&cinfo, &pointer, 1);
    }
    jpeg_finish_compress(&cinfo);
    jpeg_destroy_compress(&cinfo);
    std::string out(reinterpret_cast<char*>(buffer), size);
    std::free(buffer);
    return out;
}

std::string encodeGIF(const Picture& picture, bool interlaced) {
    std::map<uint32_t, int> indexOf;
    std::vector<GifColorType> colors(256, GifColorType{0, 0, 0});
    const int transparent = 0;
    int next = 1;
    std::vector<GifPixelType> indexes;
    for (const Rgba& c : picture.pixels) {
        if (c.a == 0) {
            indexes.push_back(transparent);
            continue;
        }
        const uint32_t key = (c.r << 16) | (c.g << 8) | c.b;
        if (!indexOf.count(key)) {
            colors[next] = GifColorType{c.r, c.g, c.b};
            indexOf[key] = next++;
        }
        indexes.push_back(static_cast<GifPixelType>(indexOf[key]));
    }
    std::string out;
    int error = 0;
    GifFileType* gif = EGifOpen(&out, writeToString, &error);
    ColorMapObject* map = GifMakeMapObject(256, colors.data());
    EGifSetGifVersion(gif, true);
    EGifPutScreenDesc(gif, picture.width, picture.height, 8, 0, map);
    GraphicsControlBlock control{DISPOSAL_UNSPECIFIED, false, 0, transparent};
    GifByteType extension[4];
    const size_t length = EGifGCBToExtension(&control, extension);
    EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(length), extension);
    EGifPutImageDesc(gif, 0, 0, picture.width, picture.height, interlaced, nullptr);
    std::vector<int> order;
    if (interlaced) {
        const int start[] = {0, 4, 2, 1}, step[] = {8, 8, 4, 2};
        for (int pass = 0; pass < 4; ++pass) {
            for (int y = start[pass]; y < picture.height; y += step[pass]) order.push_back(y);
        }
    } else {
        for (int y = 0; y < picture.height; ++y) order.push_back(y);
    }
    for (int y : order) EGifPutLine(gif, indexes.data() + y * picture.width, picture.width);
    EGifCloseFile(gif, &error);
    GifFreeMapObject(map);
    return out;
}

std::string encodeTIFF(const Picture& picture, int dpi) {
    const std::string folder = makeTempFolder("tiff-encoder");
    const std::string path = folder + "/picture.tif";
    TIFF* tif = TIFFOpen(path.c_str(), "w");
    TIFFSetField(tif, TIFFTAG_IMAGEWIDTH, picture.width);
    TIFFSetField(tif, TIFFTAG_IMAGELENGTH, picture.height);
    TIFFSetField(tif, TIFFTAG_SAMPLESPERPIXEL, 4);
    TIFFSetField(tif, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tif, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(tif, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tif, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    const uint16_t extra[] = {EXTRASAMPLE_UNASSALPHA};
    TIFFSetField(tif, TIFFTAG_EXTRASAMPLES, 1, extra);
    TIFFSetField(tif, TIFFTAG_ROWSPERSTRIP, 1);
    if (dpi > 0) {
        TIFFSetField(tif, TIFFTAG_XRESOLUTION, static_cast<float>(dpi));
        TIFFSetField(tif, TIFFTAG_YRESOLUTION, static_cast<float>(dpi));
        TIFFSetField(tif, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    }
    std::vector<Rgba> pixels = picture.pixels;
    for (int y = 0; y < picture.height; ++y) {
        TIFFWriteScanline(tif, pixels.data() + y * picture.width, y, 0);
    }
    TIFFClose(tif);
    std::string out = readFile(path);
    std::filesystem::remove_all(folder);
    return out;
}

std::string encodeBMP(const Picture& picture, int bits, bool topDown, int dpi) {
    const int stride = (bits * picture.width + 31) / 32 * 4;
    const int paletteSize = bits == 8 ? 256 * 4 : 0;
    const int offset = 14 + 40 + paletteSize;
    std::string s = "BM";
    putLE(s, static_cast<uint32_t>(offset + stride * picture.height), 4);
    putLE(s, 0, 4);
    putLE(s, static_cast<uint32_t>(offset), 4);
    putLE(s, 40, 4);
    putLE(s, static_cast<uint32_t>(picture.width), 4);
    putLE(s, static_cast<uint32_t>(topDown ? -picture.height : picture.height), 4);
    putLE(s, 1, 2);
    putLE(s, static_cast<uint32_t>(bits), 2);
    putLE(s, 0, 4);  // uncompressed
    putLE(s, static_cast<uint32_t>(stride * picture.height), 4);
    const auto perMeter = static_cast<uint32_t>(dpi / 0.0254 + 0.5);
    putLE(s, perMeter, 4);
    putLE(s, perMeter, 4);
    putLE(s, 0, 4);
    putLE(s, 0, 4);
    // An 8-bit palette of greys, entry i being (i, i, i).
    for (int i = 0; i < paletteSize / 4; ++i) {
        s += {static_cast<char>(i), static_cast<char>(i), static_cast<char>(i), 0};
    }
    for (int row = 0; row < picture.height; ++row) {
        const int y = topDown ? row : picture.height - 1 - row;
        std::string line;
        for (int x = 0; x < picture.width; ++x) {
            const Rgba c = picture.at(x, y);
            if (bits == 8) {
                line.push_back(static_cast<char>(c.g));
            } else {
                line += {static_cast<char>(c.b), static_cast<char>(c.g), static_cast<char>(c.r)};
                if (bits == 32) line.push_back(static_cast<char>(c.a));
            }
        }
        line.resize(static_cast<size_t>(stride), '\0');
        s += line;
    }
    return s;
}

}  // namespace Velarix::test
