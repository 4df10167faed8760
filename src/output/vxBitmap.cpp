#include "output/vxBitmap.h"

#include <cstring>
#include <new>

#include "host/vxLog.h"

namespace Velarix {

namespace {

uint8_t scaled(uint32_t component, uint32_t alpha) {
    return static_cast<uint8_t>((component * alpha + 127) / 255);
}

uint8_t unscaled(uint32_t component, uint32_t alpha) {
    if (alpha == 0) return 0;
    const uint32_t value = (component * 255 + alpha / 2) / alpha;
    return static_cast<uint8_t>(value > 255 ? 255 : value);
}

}  // namespace

vxBitmap::vxBitmap() : vxErrorHolder(L"vxBitmap") {}

vxBitmap::~vxBitmap() = default;

bool vxBitmap::isSizeAllowed(long w, long h) {
    if (w < 0 || h < 0 || w > kMaxSide || h > kMaxSide) return false;
    return static_cast<long long>(w) * h <= kMaxPixels;
}

bool vxBitmap::allocateMemory(long w, long h) {
    clear();
    if (!isSizeAllowed(w, h)) {
        setError(vxErrChart::kImageDimension, where(L"allocateMemory", 2),
                 std::to_wstring(w) + L" x " + std::to_wstring(h));
        return false;
    }
    try {
        pixels.assign(static_cast<size_t>(w) * static_cast<size_t>(h), 0u);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"allocateMemory", 1));
        return false;
    }
    width = w;
    height = h;
    return true;
}

void vxBitmap::clear() {
    std::vector<uint32_t>().swap(pixels);
    width = 0;
    height = 0;
}

bool vxBitmap::set(const vxBitmap& from) {
    if (&from == this) return true;
    clear();
    try {
        pixels = from.pixels;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"set"));
        return false;
    }
    width = from.width;
    height = from.height;
    resolution = from.resolution;
    interpolationMode = from.interpolationMode;
    return true;
}

void vxBitmap::setResolution(short dpi) {
    resolution = dpi >= 1 ? dpi : kDefaultResolution;
}

uint32_t vxBitmap::getPixel(long x, long y) const {
    if (x < 0 || y < 0 || x >= width || y >= height) return 0;
    return pixels[static_cast<size_t>(y) * width + x];
}

void vxBitmap::setPixel(long x, long y, uint8_t red, uint8_t green, uint8_t blue, uint8_t alpha) {
    if (x < 0 || y < 0 || x >= width || y >= height) return;
    pixels[static_cast<size_t>(y) * width + x] = premultiply(red, green, blue, alpha);
}

void vxBitmap::getColor(long x, long y, uint8_t rgba[4]) const {
    const uint32_t word = getPixel(x, y);
    const uint32_t alpha = word >> 24;
    rgba[0] = unscaled((word >> 16) & 0xFFu, alpha);
    rgba[1] = unscaled((word >> 8) & 0xFFu, alpha);
    rgba[2] = unscaled(word & 0xFFu, alpha);
    rgba[3] = static_cast<uint8_t>(alpha);
}

uint32_t vxBitmap::premultiply(uint8_t red, uint8_t green, uint8_t blue, uint8_t alpha) {
    return (static_cast<uint32_t>(alpha) << 24) |
           (static_cast<uint32_t>(scaled(red, alpha)) << 16) |
           (static_cast<uint32_t>(scaled(green, alpha)) << 8) | scaled(blue, alpha);
}

void vxBitmap::convertFromRGBA() {
    for (uint32_t& word : pixels) {
        uint8_t bytes[4];
        std::memcpy(bytes, &word, 4);
        word = premultiply(bytes[0], bytes[1], bytes[2], bytes[3]);
    }
}

void vxBitmap::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(className));
    vxDumpLine(out, "long bufferSize:        ", getBufferSize());
    vxDumpLine(out, "long width:             ", width);
    vxDumpLine(out, "long height:            ", height);
    vxDumpLine(out, "long numOfRows:         ", getNumOfRows());
    vxDumpLine(out, "long numOfColumns:      ", getNumOfColumns());
    vxDumpLine(out, "short resolution:       ", resolution);
    vxDumpLine(out, "short interpolationMode:", interpolationMode);
    if (error) error->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
