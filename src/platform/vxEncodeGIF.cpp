// GIF through giflib: one frame, no transparency, a palette of up to 256
// colours made by libimagequant. The palette is made from the raster read
// row by row, and each row is then mapped to it and written at once, so the
// picture is never held whole.
#include <memory>

#include "platform/vxEncoderSupport.h"
#include "platform/vxPaletteMapper.h"
#include "platform/vxPictureLibraries.h"

namespace Velarix {

namespace {

constexpr int kMaxSide = 65535;  // the format stores sides in 16 bits

// Frees an object of a C library through the library's own call.
template <typename Object>
struct CallFree {
    void (*free)(Object*);
    void operator()(Object* p) const { free(p); }
};
template <typename Object>
using Owned = std::unique_ptr<Object, CallFree<Object>>;

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
std::vector<uint32_t> makePalette(const vxImageQuantCalls& q, const vxRasterPixels& pixels,
                                  std::string& status) {
    Owned<liq_attr> attr(q.liq_attr_create(), {q.liq_attr_destroy});
    if (!attr) {
        status = "out of memory";
        return {};
    }
    q.liq_set_max_colors(attr.get(), 256);
    Owned<liq_image> image(
        q.liq_image_create_custom(attr.get(), rowForPalette, const_cast<vxRasterPixels*>(&pixels),
                                  pixels.width, pixels.height, 0.0),
        {q.liq_image_destroy});
    liq_result* quantized = nullptr;
    liq_error error =
        image ? q.liq_image_quantize(image.get(), attr.get(), &quantized) : LIQ_OUT_OF_MEMORY;
    Owned<liq_result> result(quantized, {q.liq_result_destroy});
    if (error != LIQ_OK || !result) {
        status = "no palette (libimagequant error " + std::to_string(int(error)) + ")";
        return {};
    }
    const liq_palette* palette = q.liq_get_palette(result.get());
    std::vector<uint32_t> colours;
    for (unsigned i = 0; i < palette->count; ++i) {
        const liq_color& c = palette->entries[i];
        colours.push_back(uint32_t(c.r) << 16 | uint32_t(c.g) << 8 | c.b);
    }
    return colours;
}

// The palette in giflib's form, padded with black to a power of two.
Owned<ColorMapObject> makeColorMap(const vxGIFCalls& g, const std::vector<uint32_t>& colours) {
    int count = int(colours.size());
    Owned<ColorMapObject> map(g.GifMakeMapObject(1 << g.GifBitSize(count), nullptr),
                              {g.GifFreeMapObject});
    if (!map) return map;
    for (int i = 0; i < map->ColorCount; ++i) {
        uint32_t c = i < count ? colours[size_t(i)] : 0;
        map->Colors[i] = {static_cast<GifByteType>(c >> 16), static_cast<GifByteType>(c >> 8),
                          static_cast<GifByteType>(c)};
    }
    return map;
}

std::string giflibMessage(const vxGIFCalls& g, int error) {
    const char* text = g.GifErrorString(error);
    return text ? text : "giflib error " + std::to_string(error);
}

int onWrite(GifFileType* gif, const GifByteType* data, int length) {
    auto* out = static_cast<std::vector<unsigned char>*>(gif->UserData);
    return vxAppendBytes(*out, data, size_t(length)) ? length : 0;
}

bool writeFrame(const vxGIFCalls& g, GifFileType* gif, const ColorMapObject& map,
                const vxRasterPixels& pixels, vxPaletteMapper& mapper) {
    if (g.EGifPutScreenDesc(gif, pixels.width, pixels.height, 8, 0, &map) == GIF_ERROR ||
        g.EGifPutImageDesc(gif, 0, 0, pixels.width, pixels.height, false, nullptr) == GIF_ERROR)
        return false;
    std::vector<GifPixelType> row(size_t(pixels.width));
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x)
            row[size_t(x)] = mapper.nearest(vxPixelOverWhite(pixels, x, y));
        if (g.EGifPutLine(gif, row.data(), pixels.width) == GIF_ERROR) return false;
    }
    return true;
}

// The tables of both libraries, or a message naming the one that is missing.
bool findLibraries(const vxGIFCalls*& g, const vxImageQuantCalls*& q, std::string& status) {
    vxPictureLibraries& libraries = vxPictureLibraries::shared();
    g = libraries.gif();
    q = g ? libraries.imageQuant() : nullptr;
    if (q != nullptr) return true;
    vxPictureLibrary missing = g ? vxPictureLibrary::kImageQuant : vxPictureLibrary::kGIF;
    status = libraries.missingText(missing);
    return false;
}

bool writeFile(const vxGIFCalls& g, const std::vector<uint32_t>& colours,
               const vxRasterPixels& pixels, std::vector<unsigned char>& out, std::string& status) {
    auto map = makeColorMap(g, colours);
    if (!map) {
        status = "out of memory";
        return false;
    }
    vxPaletteMapper mapper(colours);
    int error = 0;
    GifFileType* gif = g.EGifOpen(&out, onWrite, &error);
    if (gif == nullptr) {
        status = giflibMessage(g, error);
        return false;
    }
    bool done = writeFrame(g, gif, *map, pixels, mapper);
    if (!done) error = gif->Error;
    int closeError = 0;
    if (g.EGifCloseFile(gif, &closeError) == GIF_ERROR && done) {
        done = false;
        error = closeError;
    }
    if (!done) status = giflibMessage(g, error);
    return done;
}

}  // namespace

bool vxEncodeGIF(const vxRasterPixels& pixels, const vxEncoderOptions& options,
                 std::vector<unsigned char>& out, std::string& status) {
    if (pixels.width > kMaxSide || pixels.height > kMaxSide) {
        status = "raster larger than 65535 pixels";
        return false;
    }
    const vxGIFCalls* g = nullptr;
    const vxImageQuantCalls* q = nullptr;
    if (!findLibraries(g, q, status)) return false;
    std::vector<uint32_t> colours = makePalette(*q, pixels, status);
    return !colours.empty() && writeFile(*g, colours, pixels, out, status);
}

}  // namespace Velarix
