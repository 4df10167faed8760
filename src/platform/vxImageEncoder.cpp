#include "platform/vxImageEncoder.h"

#include <cstdint>
#include <new>

#include "platform/vxEncoderSupport.h"

namespace Velarix {

namespace {

using Encoder = bool (*)(const vxRasterPixels&, const vxEncoderOptions&,
                         std::vector<unsigned char>&, std::string&);

struct FormatEntry {
    vxImageFormat format;
    const char* name;
    Encoder encode;
};

constexpr FormatEntry kFormats[] = {{vxImageFormat::kGIF, "GIF", vxEncodeGIF},
                                    {vxImageFormat::kJPEG, "JPEG", vxEncodeJPEG},
                                    {vxImageFormat::kTIFF, "TIFF", vxEncodeTIFF},
                                    {vxImageFormat::kPNG, "PNG", vxEncodePNG},
                                    {vxImageFormat::kBMP, "BMP", vxEncodeBMP}};

const FormatEntry* entryFor(vxImageFormat format) {
    for (const FormatEntry& entry : kFormats)
        if (entry.format == format) return &entry;
    return nullptr;
}

// Empty text when the raster can be read, else what is wrong with it.
const char* rasterFault(const vxRasterPixels& pixels) {
    if (pixels.data == nullptr) return "raster without pixels";
    if (pixels.width <= 0 || pixels.height <= 0) return "raster without area";
    if (int64_t(pixels.stride) < int64_t(pixels.width) * 4) return "raster rows shorter than width";
    return "";
}

}  // namespace

bool vxFormatHasAlpha(vxImageFormat format) {
    return format == vxImageFormat::kPNG || format == vxImageFormat::kTIFF;
}

bool vxEncodeImage(vxImageFormat format, const vxRasterPixels& pixels,
                   const vxEncoderOptions& options, std::vector<unsigned char>& out,
                   std::string& status) {
    out.clear();
    status.clear();
    const FormatEntry* entry = entryFor(format);
    if (entry == nullptr) {
        status = "unknown picture format " + std::to_string(static_cast<int>(format));
        return false;
    }
    std::string detail = rasterFault(pixels);
    bool done = false;
    if (detail.empty()) {
        try {
            done = entry->encode(pixels, options, out, detail);
        } catch (const std::bad_alloc&) {
            detail = "out of memory";
        }
    }
    if (!done) {
        out.clear();
        out.shrink_to_fit();
        status = std::string(entry->name) + ": " + (detail.empty() ? "failed" : detail);
    }
    return done;
}

}  // namespace Velarix
