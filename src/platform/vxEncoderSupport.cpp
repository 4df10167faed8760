#include "platform/vxEncoderSupport.h"

#include <cmath>
#include <cstring>

namespace Velarix {

namespace {

// A pixel as cairo stores it: one 32-bit word in the machine's byte order,
// alpha in the top byte.
uint32_t pixelAt(const vxRasterPixels& pixels, int x, int y) {
    uint32_t word;
    std::memcpy(&word, pixels.data + static_cast<size_t>(y) * pixels.stride + size_t(x) * 4, 4);
    return word;
}

unsigned char unpremultiply(uint32_t channel, uint32_t alpha) {
    uint32_t value = (channel * 255 + alpha / 2) / alpha;
    return static_cast<unsigned char>(value > 255 ? 255 : value);
}

// A premultiplied channel over white: the channel plus the white the alpha
// leaves uncovered. A channel above its alpha is not valid premultiplied
// data and is held at 255.
unsigned char overWhite(uint32_t channel, uint32_t alpha) {
    uint32_t value = channel + 255 - alpha;
    return static_cast<unsigned char>(value > 255 ? 255 : value);
}

}  // namespace

void vxRowToRGBA(const vxRasterPixels& pixels, int y, unsigned char* out) {
    for (int x = 0; x < pixels.width; ++x, out += 4) {
        uint32_t p = pixelAt(pixels, x, y);
        uint32_t a = p >> 24;
        uint32_t r = (p >> 16) & 0xFF, g = (p >> 8) & 0xFF, b = p & 0xFF;
        if (a == 255) {
            out[0] = static_cast<unsigned char>(r);
            out[1] = static_cast<unsigned char>(g);
            out[2] = static_cast<unsigned char>(b);
        } else if (a == 0) {
            // Premultiplied data keeps no colour where there is no alpha:
            // the drawing's background, transparent white, stands there.
            out[0] = out[1] = out[2] = 255;
        } else {
            out[0] = unpremultiply(r, a);
            out[1] = unpremultiply(g, a);
            out[2] = unpremultiply(b, a);
        }
        out[3] = static_cast<unsigned char>(a);
    }
}

uint32_t vxPixelOverWhite(const vxRasterPixels& pixels, int x, int y) {
    uint32_t p = pixelAt(pixels, x, y);
    uint32_t a = p >> 24;
    if (a == 255) return p & 0xFFFFFF;
    return uint32_t(overWhite((p >> 16) & 0xFF, a)) << 16 |
           uint32_t(overWhite((p >> 8) & 0xFF, a)) << 8 | overWhite(p & 0xFF, a);
}

void vxRowToRGB(const vxRasterPixels& pixels, int y, unsigned char* out) {
    for (int x = 0; x < pixels.width; ++x, out += 3) {
        uint32_t rgb = vxPixelOverWhite(pixels, x, y);
        out[0] = static_cast<unsigned char>(rgb >> 16);
        out[1] = static_cast<unsigned char>(rgb >> 8);
        out[2] = static_cast<unsigned char>(rgb);
    }
}

void vxRowToBGR(const vxRasterPixels& pixels, int y, unsigned char* out) {
    for (int x = 0; x < pixels.width; ++x, out += 3) {
        uint32_t rgb = vxPixelOverWhite(pixels, x, y);
        out[0] = static_cast<unsigned char>(rgb);
        out[1] = static_cast<unsigned char>(rgb >> 8);
        out[2] = static_cast<unsigned char>(rgb >> 16);
    }
}

int vxResolutionPerInch(const vxEncoderOptions& options) {
    return options.resolution < 1 ? 96 : options.resolution;
}

uint32_t vxResolutionPerMetre(const vxEncoderOptions& options) {
    return static_cast<uint32_t>(std::lround(vxResolutionPerInch(options) / 0.0254));
}

bool vxAppendBytes(std::vector<unsigned char>& out, const void* data, size_t length) noexcept {
    const auto* bytes = static_cast<const unsigned char*>(data);
    try {
        out.insert(out.end(), bytes, bytes + length);
    } catch (...) {  // std::bad_alloc or std::length_error
        return false;
    }
    return true;
}

}  // namespace Velarix
