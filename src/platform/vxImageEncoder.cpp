#include "platform/vxImageEncoder.h"

#include <cstdint>
#include <new>

#include "platform/vxEncoderSupport.h"

namespace Velarix {

namespace {

using Encoder = bool (*)(const vxRasterPixels&, const vxEncoderOptions&,
                         std::vector<unsigned char>&, std::string&);

Encoder encoderFor(vxImageFormat format) {
    switch (format) {
        case vxImageFormat::kGIF:
            return vxEncodeGIF;
        case vxImageFormat::kJPEG:
            return vxEncodeJPEG;
        case vxImageFormat::kTIFF:
            return vxEncodeTIFF;
        case vxImageFormat::kPNG:
            return vxEncodePNG;
        case vxImageFormat::kBMP:
            return vxEncodeBMP;
    }
    return nullptr;
}

const char* formatName(vxImageFormat format) {
    switch (format) {
        case vxImageFormat::kGIF:
            return "GIF";
        case vxImageFormat::kJPEG:
            return "JPEG";
        case vxImageFormat::kTIFF:
            return "TIFF";
        case vxImageFormat::kPNG:
            return "PNG";
        case vxImageFormat::kBMP:
            return "BMP";
    }
    return "";
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
    Encoder encoder = encoderFor(format);
    if (encoder == nullptr) {
        status = "unknown picture format " + std::to_string(static_cast<int>(format));
        return false;
    }
    std::string detail = rasterFault(pixels);
    bool done = false;
    if (detail.empty()) {
        try {
            done = encoder(pixels, options, out, detail);
        } catch (const std::bad_alloc&) {
            detail = "out of memory";
        }
    }
    if (!done) {
        out.clear();
        out.shrink_to_fit();
        status = std::string(formatName(format)) + ": " + (detail.empty() ? "failed" : detail);
    }
    return done;
}

}  // namespace Velarix
