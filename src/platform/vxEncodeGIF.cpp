// GIF through giflib: one frame, no transparency, a palette of up to 256
// colours made by libimagequant. The palette is made from the raster read
// row by row, and each row is then mapped to it and written at once, so the
// picture is never held whole.
#include <gif_lib.h>
#include <libimagequant.h>

#include <memory>

#include "platform/vxEncoderSupport.h"
#include "platform/vxPaletteMapper.h"

namespace Velarix {

namespace {

constexpr int kMaxSide = 65535;  // the format stores sides in 16 bits

struct LiqAttrFree {
    void operator()(liq_attr* p) const { liq_attr_destroy(p); }
};
struct LiqImageFree {
    void operator()(liq_image* p) const { liq_image_destroy(p); }
};
struct LiqResultFree {
    void operator()(liq_result* p) const { liq_result_destroy(p); }
};
struct GifMapFree {
    void operator()(ColorMapObject* p) const { GifFreeMapObject(p); }
};

// libimagequant asks for rows as it needs them, possibly more than once and
// from several threads; each answer is the row shown over white.
void rowForPalette(liq_color rowOut[], int row, int width, void* user) {
    const auto& pixels = *static_cast<const vxRasterPixels*>(user);
    for (int x = 0; x < width; ++x) {
        uint32_t rgb = vxPixelOverWhite(pixels, x, row);
        rowOut[x] = {static_cast<unsigned char>(rgb >> 16), static_cast<unsigned char>(rgb >> 8),
                     static_cast<unsigned char>(rgb), 255};
    }
}

// The palette fitted to the raster, as 0xRRGGBB colours; empty on failure.
std::vector<uint32_t> makePalette(const vxRasterPixels& pixels, std::string& status) {
    std::unique_ptr<liq_attr, LiqAttrFree> attr(liq_attr_create());
    if (!attr) {
        status = "out of memory";
        return {};
    }
    liq_set_max_colors(attr.get(), 256);
    std::unique_ptr<liq_image, LiqImageFree> image(
        liq_image_create_custom(attr.get(), rowForPalette, const_cast<vxRasterPixels*>(&pixels),
                                pixels.width, pixels.height, 0.0));
    liq_result* quantized = nullptr;
    liq_error error =
        image ? liq_image_quantize(image.get(), attr.get(), &quantized) : LIQ_OUT_OF_MEMORY;
    std::unique_ptr<liq_result, LiqResultFree> result(quantized);
    if (error != LIQ_OK || !result) {
        status = "no palette (libimagequant error " + std::to_string(int(error)) + ")";
        return {};
    }
    const liq_palette* palette = liq_get_palette(result.get());
    std::vector<uint32_t> colours;
    for (unsigned i = 0; i < palette->count; ++i) {
        const liq_color& c = palette->entries[i];
        colours.push_back(uint32_t(c.r) << 16 | uint32_t(c.g) << 8 | c.b);
    }
    return colours;
}

// The palette in giflib's form, padded with black to a power of two.
std::unique_ptr<ColorMapObject, GifMapFree> makeColorMap(const std::vector<uint32_t>& colours) {
    int count = int(colours.size());
    std::unique_ptr<ColorMapObject, GifMapFree> map(
        GifMakeMapObject(1 << GifBitSize(count), nullptr));
    if (!map) return map;
    for (int i = 0; i < map->ColorCount; ++i) {
        uint32_t c = i < count ? colours[size_t(i)] : 0;
        map->Colors[i] = {static_cast<GifByteType>(c >> 16), static_cast<GifByteType>(c >> 8),
                          static_cast<GifByteType>(c)};
    }
    return map;
}

std::string giflibMessage(int error) {
    const char* text = GifErrorString(error);
    return text ? text : "giflib error " + std::to_string(error);
}

int onWrite(GifFileType* gif, const GifByteType* data, int length) {
    auto* out = static_cast<std::vector<unsigned char>*>(gif->UserData);
    return vxAppendBytes(*out, data, size_t(length)) ? length : 0;
}

bool writeFrame(GifFileType* gif, const ColorMapObject& map, const vxRasterPixels& pixels,
                vxPaletteMapper& mapper) {
    if (EGifPutScreenDesc(gif, pixels.width, pixels.height, 8, 0, &map) == GIF_ERROR ||
        EGifPutImageDesc(gif, 0, 0, pixels.width, pixels.height, false, nullptr) == GIF_ERROR)
        return false;
    std::vector<GifPixelType> row(size_t(pixels.width));
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x)
            row[size_t(x)] = mapper.nearest(vxPixelOverWhite(pixels, x, y));
        if (EGifPutLine(gif, row.data(), pixels.width) == GIF_ERROR) return false;
    }
    return true;
}

}  // namespace

bool vxEncodeGIF(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                 std::vector<unsigned char>& out, std::string& status) {
    if (pixels.width > kMaxSide || pixels.height > kMaxSide) {
        status = "raster larger than 65535 pixels";
        return false;
    }
    std::vector<uint32_t> colours = makePalette(pixels, status);
    if (colours.empty()) return false;
    auto map = makeColorMap(colours);
    if (!map) {
        status = "out of memory";
        return false;
    }
    vxPaletteMapper mapper(colours);
    int error = 0;
    GifFileType* gif = EGifOpen(&out, onWrite, &error);
    if (gif == nullptr) {
        status = giflibMessage(error);
        return false;
    }
    bool done = writeFrame(gif, *map, pixels, mapper);
    if (!done) error = gif->Error;
    int closeError = 0;
    if (EGifCloseFile(gif, &closeError) == GIF_ERROR && done) {
        done = false;
        error = closeError;
    }
    if (!done) status = giflibMessage(error);
    return done;
}

}  // namespace Velarix
