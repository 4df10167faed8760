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

namespace {

// Runs `encode` on a raster that can be read, for a known format; the
// status names the format before what went wrong.
template <typename Encode>
bool runEncoder(vxImageFormat format, const vxRasterPixels& pixels, std::string& status,
                Encode encode) {
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
            done = encode(*entry, detail);
        } catch (const std::bad_alloc&) {
            detail = "out of memory";
        }
    }
    if (!done) status = std::string(entry->name) + ": " + (detail.empty() ? "failed" : detail);
    return done;
}

}  // namespace

bool vxEncodeImage(vxImageFormat format, const vxRasterPixels& pixels,
                   const vxEncoderOptions& options, std::vector<unsigned char>& out,
                   std::string& status) {
    out.clear();
    const bool done =
        runEncoder(format, pixels, status, [&](const FormatEntry& entry, std::string& detail) {
            return entry.encode(pixels, options, out, detail);
        });
    if (!done) {
        out.clear();
        out.shrink_to_fit();
    }
    return done;
}

bool vxEncodeImageTo(vxImageFormat format, const vxRasterPixels& pixels,
                     const vxEncoderOptions& options, const vxByteSink& write,
                     std::string& status) {
    return runEncoder(format, pixels, status, [&](const FormatEntry& entry, std::string& detail) {
        if (entry.format == vxImageFormat::kBMP) return vxWriteBMP(pixels, options, write, detail);
        std::vector<unsigned char> bytes;
        if (!entry.encode(pixels, options, bytes, detail)) return false;
        if (write(bytes.data(), bytes.size())) return true;
        detail = "writing failed";
        return false;
    });
}

}  // namespace Velarix
